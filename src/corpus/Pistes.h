#pragma once
#include "corpus/Frise.h"

/// The coloured extract bars over the timeline's rows, and the counters of what is switched on.
namespace vermo {

constexpr Couleur GRIS = 0x808080; ///< of what is switched off

/// Colour of thematic `rang`; GRIS when its text is no colour.
Couleur couleurThematique(const EtatCorpus& corpus, int rang);

/// True when ThmVisible of `rang` is 1.
bool thematiqueVisible(const EtatCorpus& corpus, int rang);

/// Appends the bars of the rows in view, then their ImgPlay (index the slot) over them.
///
/// A bar is one item that shows the colour and takes the mouse: Lblthm, index counted from 1 through the
/// list, tag the extract's number; `slotSous` of its height gives the interview. One whose thematic is hidden
/// isn't filled, but still takes the mouse. Behind the last extract of each interview stands one more, the
/// mark of the empty row: at the bar's left end, white; its number leads to no extract. An interview of
/// duration 0 has no bars.
void disposerPistes(const Session& session, const VueFrise& vue, Elements& sortie);

/// "Thématiques  (n/N)" and "Entretiens  (n/N)", "(0/0)" while no corpus is open or after an opening failed.
Texte compteThematiques(const EtatCorpus& corpus);
Texte compteEntretiens(const EtatCorpus& corpus);

/// One message for each interview of the range whose duration is 0, once for each state of its transcript.
/// Its answer changes nothing.
void signalerDureesNulles(Session& session, Plateforme& plateforme, int premier, int dernier);

} // namespace vermo
