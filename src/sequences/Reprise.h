#pragma once
#include "corpus/BrouillonTenu.h"
#include "corpus/Session.h"
#include "platform/Plateforme.h"

#include <optional>

namespace vermo {

/// Asks about each draft that belongs to the open corpus and that no living program holds: to take it up,
/// which is given, to forget it, or to keep it for later. Asks no more once one is taken up.
std::optional<BrouillonLibre> offrirBrouillon(const Session& session, Plateforme& plateforme);

} // namespace vermo
