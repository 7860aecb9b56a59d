#pragma once
#include "platform/Emplacements.h"

namespace vermo {

/// The places of the running program: its directory, "../share/vermo/" beside that, and the user's
/// "Vermo/" in the desktop's directories for data and for state.
Emplacements emplacementsQt();

} // namespace vermo
