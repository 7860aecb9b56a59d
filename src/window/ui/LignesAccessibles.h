#pragma once

namespace vermo {

/// From now on each `ToileDefilante` is a list to screen readers, whose rows are made as they are asked for.
void installerLignesAccessibles();

} // namespace vermo
