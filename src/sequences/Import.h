#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "textfile/faute.h"

#include <optional>

namespace vermo {

/// What became of an import.
enum class IssueImport {
    Abandonne,    ///< the person gave up, or it was refused: the list is as before
    OuvrirDAbord, ///< no corpus is open, and the person wants to open one: OuvertureDirecte is false
    Ajoute,       ///< the last slot is the new interview, EntretienCourant, written, to be scanned and shown
    ARouvrir,     ///< the list is not the one in memory: the corpus is to be opened again, directly
};
struct SuiteImport {
    IssueImport issue = IssueImport::Abandonne;
    std::optional<FauteExecution> faute = {}; ///< with ARouvrir: why it could not be written
};

/// Brings one recording into the open corpus: asks for the file, its format, its copy, measures it, adds it
/// to the list and makes its transcript. Windows stay alive meanwhile: a corpus that is opened during the
/// copy or the measure ends the import.
/// Throws FauteExecution for a corpus that wasn't read whole and for a name that the corpus file can't hold.
SuiteImport importerEntretien(Session& session, Plateforme& plateforme);

} // namespace vermo
