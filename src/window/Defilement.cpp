#include "window/Defilement.h"

#include <algorithm>

namespace vermo {
namespace {

constexpr Twips MARGE_LIGNE = 60, POUCE_MIN = 300;

} // namespace

Defilement disposerDefilement(Twips hauteurSurface, Twips hauteurCadre) {
    Defilement defilement;
    defilement.hauteurSurface = hauteurCadre;
    if (hauteurSurface <= hauteurCadre) return defilement;
    defilement.visible = true;
    defilement.hauteurSurface = hauteurSurface;
    defilement.excedent = hauteurSurface - hauteurCadre;
    defilement.hautLigne = MARGE_LIGNE;
    defilement.basLigne = std::max(hauteurCadre - MARGE_LIGNE, MARGE_LIGNE);
    const Twips course = defilement.basLigne - defilement.hautLigne;
    defilement.hauteurPouce = std::min(std::max(course * hauteurCadre / hauteurSurface, POUCE_MIN), course);
    return defilement;
}

Twips bornerDefilement(const Defilement& defilement, Twips voulu) {
    return std::clamp(voulu, 0.0, defilement.excedent);
}

Twips hautPouce(const Defilement& defilement, Twips defile) {
    if (!defilement.visible) return defilement.hautLigne;
    const Twips course = defilement.basLigne - defilement.hautLigne - defilement.hauteurPouce;
    return defilement.hautLigne + course * bornerDefilement(defilement, defile) / defilement.excedent;
}

Twips defilementDe(const Defilement& defilement, Twips hautPouce) {
    const Twips course = defilement.basLigne - defilement.hautLigne - defilement.hauteurPouce;
    if (!defilement.visible || course <= 0) return 0;
    return bornerDefilement(defilement, defilement.excedent * (hautPouce - defilement.hautLigne) / course);
}

} // namespace vermo
