#include "window/Placement.h"

#include <algorithm>

namespace vermo {

Rectangle dansEcran(Rectangle voulu, const ZoneTravail& zone) {
    const Twips bas = std::max(0.0, zone.hauteur - zone.barreDesTaches * TWIPS_PAR_PIXEL);
    voulu.largeur = std::min(voulu.largeur, zone.largeur);
    voulu.hauteur = std::min(voulu.hauteur, bas);
    voulu.gauche = std::clamp(voulu.gauche, 0.0, zone.largeur - voulu.largeur);
    voulu.haut = std::clamp(voulu.haut, 0.0, bas - voulu.hauteur);
    return voulu;
}

} // namespace vermo
