#pragma once
#include "corpus/BrouillonTenu.h"
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "transcription/Reprise.h"

#include <memory>
#include <optional>

namespace vermo {

/// What was typed about the interview in `slot`, to be taken up, and its draft.
struct BrouillonRepris {
    saisie::Reprise reprise;
    int slot;
    std::unique_ptr<BrouillonTenu> tenu;
};

/// Asks about each draft that belongs to the open corpus and that no living program holds: to take it up,
/// which is given, to forget it, or to keep it for later. Asks no more once one is taken up.
std::optional<BrouillonRepris> offrirBrouillon(const Session& session, Plateforme& plateforme);

} // namespace vermo
