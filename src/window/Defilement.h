#pragma once
#include "window/Element.h"

namespace vermo {

/// A scroll thumb on its track, beside a frame that shows part of a surface. Heights of the thumb and its
/// track are twips of the frame.
struct Defilement {
    bool visible = false;              ///< track, thumb and line
    Twips hauteurSurface = 0;          ///< at least the frame's
    Twips excedent = 0;                ///< how far the surface can scroll
    Twips hautLigne = 0, basLigne = 0; ///< the thumb's track
    Twips hauteurPouce = 0;
};
Defilement disposerDefilement(Twips hauteurSurface, Twips hauteurCadre);

/// Scroll held within the excess.
Twips bornerDefilement(const Defilement& defilement, Twips voulu);
/// Top of the thumb for a scroll, and back; both are held to their bounds.
Twips hautPouce(const Defilement& defilement, Twips defile);
Twips defilementDe(const Defilement& defilement, Twips hautPouce);

} // namespace vermo
