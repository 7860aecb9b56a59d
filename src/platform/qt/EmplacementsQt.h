#pragma once
#include "platform/Emplacements.h"

namespace vermo {

/// The places of the running program: its directory, "../share/vermo/" beside that, and the user's
/// "Vermo/" in the desktop's directory for data.
Emplacements emplacementsQt();

} // namespace vermo
