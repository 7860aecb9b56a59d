#pragma once
#include <cstdint>
#include <functional>
#include <vector>

namespace vermo {

/// One run of pixels of a shape: x from `debut` up to but not including `fin`, on row `y`.
struct Segment {
    int debut, y, fin;
    bool operator==(const Segment&) const = default;
};

/// The outline of a window cut from a picture of `largeur` x `hauteur` pixels: what differs from the colour
/// of the pixel at (0, 0). A run that reaches the last column ends at that column, whose pixel is left out. A
/// picture of one colour gives no region.
std::vector<Segment> RegionDepuisImage(int largeur, int hauteur,
                                       const std::function<std::uint32_t(int x, int y)>& pixel);

} // namespace vermo
