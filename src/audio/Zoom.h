#pragma once
#include "corpus/Session.h"
#include "window/Element.h"

/// The span of the recording that the zoom band shows, and the commands that change it.
///
/// Each leaves FinZoom = DebutZoom + DureeZoom. Moves forward let the span run over the recording's end until
/// its start has reached it. Positions are twips: `W` is the width of Picture1, `Z` that of Pict_zoom.
namespace vermo {

constexpr Twips SEUIL_GLISSE = 30; ///< a shorter drag to the right is a click

// Where a time stands, and the time of a place.
Twips xVue(const EtatAudio& audio, double temps, Twips W);
double tempsVue(const EtatAudio& audio, Twips x, Twips W);
Twips xZoom(const EtatAudio& audio, double temps, Twips Z);
double tempsZoom(const EtatAudio& audio, Twips x, Twips Z);

/// Left and width of `Shp_visu`.
Rectangle cadreShpVisu(const EtatAudio& audio, Twips W);

/// The span of a recording just opened: about its first minute.
void ouvrirZoom(EtatAudio& audio, double DureeFichier);

// Zoom in while FacteurZoom <= 256, out while it is above 1; DebutZoom stays. False when nothing changed.
bool zoomer(EtatAudio& audio);
bool dezoomer(EtatAudio& audio);

// By a twentieth of the span. Forward, a start beyond the recording's end goes back to the last whole span.
void reculerEmpan(EtatAudio& audio);
void avancerEmpan(EtatAudio& audio);

/// A press at `debut` on the overview, released at `x`: a drag to the right chooses the span, anything else
/// moves it. Either starts on the 15-second grid. Gives the time to play from. A drag so short that it would
/// end before its start on the grid moves the span.
double choisirSurVue(EtatAudio& audio, Twips debut, Twips x, Twips W);

/// The span of an extract from `debut` to `fin` seconds, with 5 seconds on both sides within the recording.
void zoomerSurExtrait(EtatAudio& audio, double debut, double fin);

/// The span starts at the playing position `p`, which has run out of it.
void tournerPage(EtatAudio& audio, double p);

/// The content follows a drag to the left from `debut` to `x`.
void deplacerEmpan(EtatAudio& audio, Twips debut, Twips x, Twips Z);

/// One step of scrolling while a selection is dragged over the right edge. The selection's start, `glisse`,
/// stays on its time. False at the recording's end, where nothing moves.
bool defilerSelection(EtatAudio& audio, Twips& glisse, Twips Z);

} // namespace vermo
