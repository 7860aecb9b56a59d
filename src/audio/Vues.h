#pragma once
#include "audio/ImageOnde.h"
#include "corpus/Session.h"

/// Where the interview window's two pictures come from.
namespace vermo {

/// The overview's picture, kept beside its recording, by the name that it has on the disk. Its presence alone
/// decides: it is made once and never compared with the recording.
Utf8 cheminCache(const Utf8& enregistrement);

enum class SourceVue {
    Cache, ///< the picture that was kept
    Onde,  ///< the wave, read from the recording
    Regle, ///< the minutes alone: a recording without samples
};
SourceVue sourceVue(const Utf8& enregistrement, bool cacheLu);

/// Keeps the overview's picture, unless there is one. Throws FauteExecution when it can't be written.
void garderCache(const Utf8& cache, const Bitmap8& image);

/// What stands in the place of the minutes' numbers where there is no wave: the name's extension.
Texte etiquetteRegle(const Texte& nom);

/// The whole recording, as wide as `largeur`.
DemandeOnde demandeVue(const Utf8& enregistrement, Twips largeur, double densite);
/// The span that the zoom shows.
DemandeOnde demandeZoom(const EtatAudio& audio, const Utf8& enregistrement, Twips largeur, Twips hauteur,
                        double densite);

} // namespace vermo
