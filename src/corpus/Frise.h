#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "window/Defilement.h"
#include "window/Element.h"
#include "window/Rangs.h"

#include <vector>

/// The timeline: one row an interview, with its number, its name, its waveform picture as a bar, a switch and
/// a play button; and the time ruler above the rows. Places are twips of `Frm_entretiens`, the surface that
/// scrolls inside `Frm_fond_entretiens`.
namespace vermo {

/// Sizes of the row's controls where they don't follow from HauteurEntretien.
struct TaillesFrise {
    Twips premiereLigne = 240; ///< base of row 1
    Rectangle lblpiste{60, 0, 345, 0};
    Rectangle ImgOnOff{435, 0, 210, 210};
    Rectangle lblfich{705, 0, 1835, 0};
    Twips gaucheImgEnt = 2600;
    Twips margeImgEnt = 300;            ///< right of the model bar
    Rectangle ImgPlay{60, 0, 240, 244}; ///< left: from the bar's right end
};
constexpr TaillesFrise TAILLES_FRISE;

constexpr float HAUTEUR_MIN = 335; ///< of a row, at an opening
constexpr float HAUTEUR_ZOOM_MIN = 450, HAUTEUR_ZOOM_MAX = 3600;

/// The part of the surface that is seen.
struct VueFrise {
    Twips largeur = 0;         ///< of Frm_entretiens
    Twips defilement = 0;      ///< minus the top of Frm_entretiens
    Twips hauteur = 0;         ///< of Frm_fond_entretiens
    bool tailleReelle = false; ///< TailleReelle at the last redraw: the command applies with the next one
};

/// Before a redraw: scans every interview under the progress bar, and returns the greatest duration. When
/// that is 0 says so and sets TailleReelle false. Does nothing, and returns 0, without interviews.
float preparerFrise(Session& session, Plateforme& plateforme);

/// Greatest Duree of all interviews, seconds.
float dureeMax(const EtatCorpus& corpus);

/// Interviews that the timeline shows: none of a corpus whose opening did not come to its end.
int nombreLignes(const EtatCorpus& corpus);

/// Path of each interview's waveform picture by slot, empty where there is none. Looks the directory up once:
/// keep it from one redraw to the next.
std::vector<Utf8> cheminsVues(const Session& session);

/// Full width of a bar: of the model ImgEnt(0).
Twips largeurBarre(const VueFrise& vue);

/// Place of the bar of interview `slot`; `durmax` from dureeMax.
Rectangle cadreImgEnt(const Session& session, int slot, const VueFrise& vue, float durmax);

/// First and last slot that the view meets; {1, 0} for none.
struct LignesEnVue {
    int premiere, derniere;
};
LignesEnVue lignesEnVue(const Session& session, const VueFrise& vue);

/// The rows as they follow each other, each with half of what parts it from its neighbours.
Rangs lignesFrise(const Session& session);

/// Slot whose row holds the height `y`, 0 for none.
int slotSous(const Session& session, Twips y);

/// Appends lblpiste, lblfich, ImgEnt (tag Fichier), ShpFich and ImgOnOff of the rows in view, index the slot.
/// ImgPlay is not among them: it stands over the bars, DisposerPistes brings it.
void disposerFrise(const Session& session, const VueFrise& vue, const std::vector<Utf8>& vues,
                   Elements& sortie);

/// The ruler, empty unless TailleReelle. `inscriptions` are places in PictTps, `traits` (the LigneTps) in
/// Frm_entretiens, to be drawn behind the rows. Beyond some 400 hours the marks spread out.
Dessin disposerRegle(const Session& session, Twips largeurBarre);

/// The scroll thumb beside the rows.
Defilement AjusterDefilement(const Session& session, Twips hauteurCadre);

/// The zoom commands: the new height of a row.
float zoomAvant(float hauteur);   ///< ImgZoom 0, click: half as much again below 3600
float zoomArriere(float hauteur); ///< ImgZoom 1, click: two thirds above 450

} // namespace vermo
