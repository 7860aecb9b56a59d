#include "window/Rangs.h"

#include <algorithm>

namespace vermo {

Rangs::Rangs(const std::vector<Twips>& tailles, Twips debut) {
    bords_.push_back(debut);
    for (const Twips taille : tailles)
        bords_.push_back(bords_.back() + taille);
}

Rangs Rangs::egaux(int nombre, Twips taille, Twips debut) {
    Rangs rangs;
    for (int i = 0; i <= nombre; ++i)
        rangs.bords_.push_back(debut + i * taille); // products: a sum would drift
    return rangs;
}

int Rangs::a(Twips place) const {
    return static_cast<int>(std::upper_bound(bords_.begin(), bords_.end(), place) - bords_.begin());
}

Rangs::Suite Rangs::entre(Twips debut, Twips fin) const {
    return {std::max(a(debut), 1), std::min(a(fin), nombre())};
}

int Rangs::page(int rang, Twips longueur, int sens) const {
    const auto bas = std::lower_bound(bords_.begin(), bords_.end(), fin(rang) - longueur);
    const int entiers =
        sens > 0 ? a(debut(rang) + longueur) - rang : rang - static_cast<int>(bas - bords_.begin());
    return std::max(entiers - 1, 1);
}

} // namespace vermo
