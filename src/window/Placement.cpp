#include "window/Placement.h"

#include <algorithm>

namespace vermo {

Rectangle cadreUtile(const ZoneTravail& zone) {
    return {zone.gauche, zone.haut, zone.largeur,
            std::max(0.0, zone.hauteur - zone.barreDesTaches * TWIPS_PAR_PIXEL)};
}

Rectangle dansEcran(Rectangle voulu, const ZoneTravail& zone) {
    const Rectangle utile = cadreUtile(zone);
    voulu.largeur = std::min(voulu.largeur, utile.largeur);
    voulu.hauteur = std::min(voulu.hauteur, utile.hauteur);
    voulu.gauche = std::clamp(voulu.gauche, utile.gauche, utile.droite() - voulu.largeur);
    voulu.haut = std::clamp(voulu.haut, utile.haut, utile.bas() - voulu.hauteur);
    return voulu;
}

} // namespace vermo
