#include "audio/Suivi.h"

#include "audio/Zoom.h"
#include "textfile/nombres.h"

#include <algorithm>

namespace vermo {

SuiviLecture suivreLecture(const EtatAudio& audio, double position, Twips W, Twips Z) {
    SuiviLecture suivi;
    suivi.LblCompteur = HeureTexte(position);
    suivi.largeurCurseurZoom = std::max(xZoom(audio, position, Z + AVANCE_CURSEUR_ZOOM), 0.0);
    if (audio.MarqueDebut != 0) {
        const Twips gauche = xVue(audio, audio.MarqueDebut, W);
        suivi.TotalSelect = Etendue{gauche, xVue(audio, position, W) - gauche};
        const Twips gaucheZoom = xZoom(audio, audio.MarqueDebut, Z);
        suivi.ZoomSelect = Etendue{gaucheZoom, suivi.largeurCurseurZoom - gaucheZoom};
    }
    suivi.pageFinie = suivi.largeurCurseurZoom >= Z;
    suivi.gaucheCurseur = xVue(audio, position, W) + AVANCE_CURSEUR;
    suivi.Reprise = static_cast<std::int32_t>(arrondi(position));
    return suivi;
}

std::optional<int> volumeFondu(float reste, float VolumeLecture) {
    const float v = reste * 100;
    if (VolumeLecture == 0 || v >= VolumeLecture) return std::nullopt;
    return static_cast<int>(arrondi(v));
}

void suivreVolume(EtatAudio& audio, LecteurMedia& media) {
    if (audio.VolumeLecture == 0)
        audio.VolumeLecture = static_cast<float>(media.volume());
    else if (static_cast<float>(media.volume()) != audio.VolumeLecture)
        media.volume(static_cast<int>(arrondi(audio.VolumeLecture)));
}

} // namespace vermo
