#pragma once
#include "corpus/Session.h"

namespace vermo {

/// Moves interview `source` to slot `cible`, its rows with it; those between close up. In memory only: the
/// caller saves the list and opens the corpus again. Slots outside 1 to NbEntretiens change nothing.
void DeplacerEntretien(Session& session, int source, int cible);

} // namespace vermo
