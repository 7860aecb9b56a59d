#pragma once
#include "platform/Ecran.h"
#include "window/Element.h"

namespace vermo {

/// The work area less the task bar, twips.
Rectangle cadreUtile(const ZoneTravail& zone);

/// `voulu`, moved and if need be cut so that it lies within the work area: no window opens outside the
/// screen.
Rectangle dansEcran(Rectangle voulu, const ZoneTravail& zone);

} // namespace vermo
