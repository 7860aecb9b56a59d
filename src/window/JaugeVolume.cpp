#include "window/JaugeVolume.h"

#include <algorithm>
#include <cmath>

namespace vermo::jauge {
namespace {

constexpr Couleur ENCRE = 0xFBFBFB;
constexpr Twips COURSE = 1240, HAUT_COURSE = 440;

} // namespace

Dessin DessinerVolume(float VolumeLecture, Twips largeur, Twips hauteur) {
    Dessin coin;
    for (int i = 1; i <= std::min(static_cast<int>(VolumeLecture), 100); ++i) {
        const Twips x = largeur * i / 100;
        coin.traits.push_back({x, hauteur - hauteur * i / 100 + 5, x, hauteur, ENCRE});
    }
    return coin;
}

Twips hautImgCurseur(float VolumeLecture) {
    return (100 - VolumeLecture) / 100 * COURSE + HAUT_COURSE;
}

int volumeImgCurseur(Twips haut) {
    const double part = 100 - (haut - HAUT_COURSE) / COURSE * 100;
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 100.0)));
}

} // namespace vermo::jauge
