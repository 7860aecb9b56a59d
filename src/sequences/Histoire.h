#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

namespace vermo {

/// The two ways through the history of changes.
enum class Sens { Annuler, Refaire };

/// The next change that way; none when there is none.
const Changement* prochain(const Session& session, Sens sens);

/// True when it changes the corpus file, on which all windows stand.
bool toucheCorpus(const Session& session, const Changement& changement);

/// Takes the next step that way, reads again what it changed and gives the notices. True when the list of
/// interviews is another: the corpus is then to be opened again, directly. Throws FauteExecution when a file
/// can't be written.
bool parcourirHistoire(Session& session, Plateforme& plateforme, Sens sens);

} // namespace vermo
