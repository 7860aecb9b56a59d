#include "window/Detourage.h"

namespace vermo {

std::vector<Segment> RegionDepuisImage(int largeur, int hauteur,
                                       const std::function<std::uint32_t(int x, int y)>& pixel) {
    std::vector<Segment> region;
    if (largeur <= 0 || hauteur <= 0) return region;
    const std::uint32_t transparente = pixel(0, 0);
    const int derniere = largeur - 1;
    for (int y = 0; y < hauteur; ++y) {
        for (int x = 0; x < derniere; ++x) {
            if (pixel(x, y) == transparente) continue;
            const int debut = x;
            while (x < derniere && pixel(x, y) != transparente)
                ++x;
            region.push_back({debut, y, x});
        }
    }
    return region;
}

} // namespace vermo
