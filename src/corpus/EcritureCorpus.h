#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

/// The rewrites of the corpus file's sections. Each change is written at once, whole or not at all.
///
/// Both say by a message that the section's opening tag is missing, and then leave the corpus as it is. Both
/// throw FauteExecution, the corpus as it was, when it can't be read or replaced, and when its opening did
/// not come to its end: what was not read whole is never rewritten from memory.
namespace vermo {

/// The thematic table, rows 1 to NbThm, without those whose code is empty. No temporary file is left.
void EcrireThematiques(const Session& session, Plateforme& plateforme);

/// The interviews, slots 1 to NbEntretiens, without those whose Fichier is empty. A copy of the new corpus
/// stays beside it under its name and ".$$$".
void EcrireEntretiens(const Session& session, Plateforme& plateforme);

} // namespace vermo
