#pragma once
#include "corpus/Session.h"
#include "platform/LecteurMedia.h"
#include "window/Element.h"
#include "window/Fondu.h"

#include <optional>

/// What the interview window shows of the player, tick by tick. Lengths are twips: `W` is the width of
/// Picture1, `Z` that of Pict_zoom.
namespace vermo {

/// Left and width of a shape.
struct Etendue {
    Twips gauche = 0, largeur = 0;
    bool operator==(const Etendue&) const = default;
};

/// One tick of `Timer1`.
struct SuiviLecture {
    Texte LblCompteur;
    Twips largeurCurseurZoom = 0;                   ///< of `shp_curseur_zoom`
    std::optional<Etendue> TotalSelect, ZoomSelect; ///< the span marked by the keyboard, while there is one
    bool pageFinie = false;                         ///< the position has run out of the zoom band
    Twips gaucheCurseur = 0;                        ///< of `Curseur`
    std::int32_t Reprise = 0;
};
SuiviLecture suivreLecture(const EtatAudio& audio, double position, Twips W, Twips Z);

/// What `Curseur` and the zoom's cursor add to the plain proportion.
constexpr Twips AVANCE_CURSEUR = 30;
constexpr Twips AVANCE_CURSEUR_ZOOM = 120;

/// The window's fade, on `EtatFondu`.
constexpr Fondu FONDU_VISU{.base = 10000};

/// The player's volume, 0 to 100, when `reste` of the closing fade is left: none while it isn't below what
/// was set.
std::optional<int> volumeFondu(float reste, float VolumeLecture);

/// On each change of the play state: gives the player the volume that was set, or learns it.
void suivreVolume(EtatAudio& audio, LecteurMedia& media);

} // namespace vermo
