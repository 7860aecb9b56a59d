#pragma once
#include <limits>
#include <optional>

namespace vermo {

/// The fade of a window, driven by a counter that each tick of the window's timer raises by `pas`. Up to
/// `opaque` the counter is the opacity. A closing sets the counter to the window's own `base`; from there the
/// opacity falls over `rampe`, and the window goes. Windows that share a counter have bases of their own, far
/// apart, so that one window's fade is never another's closing.
struct Fondu {
    float base = std::numeric_limits<float>::infinity(); ///< as it stands: the window goes without a fade
    float pas = 10;
    float opaque = 250;
    float rampe = 240;
    float fin() const { return base + rampe; }
};

/// What one tick asks of the window.
struct PasFondu {
    std::optional<int> alpha = {}; ///< opacity, 0 to 255
    float reste = 1;               ///< of the closing, 1 down to 0
    bool arreter = false;          ///< the timer is done
    bool decharger = false;        ///< the window goes
};
PasFondu avancer(const Fondu& fondu, float& compteur);

} // namespace vermo
