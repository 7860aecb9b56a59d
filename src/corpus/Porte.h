#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The one door through which the corpus's files, the corpus file and the transcripts, are read whole and
/// changed. It never writes over what memory hasn't seen: a file is read anew, compared with the state that
/// memory was made from, and only then changed.
namespace vermo {

/// All bytes of the open corpus's file, of a transcript; `lu` becomes their state. Throw FauteExecution with
/// the cause.
std::string lireFichierCorpus(const EtatCorpus& corpus, EtatLu& lu);
std::string lireRetranscription(const Retranscription& retranscription, EtatLu& lu);

/// True when these bytes are those of the state.
bool estLu(const EtatLu& lu, const Utf8& chemin, const std::optional<std::string>& octets);

/// The bytes of a file, none where there is no file.
using Octets = std::optional<std::string>;

/// One file of a change.
struct FichierAChanger {
    Utf8 chemin;
    /// From the bytes that stand to those that shall stand; none refuses the whole change. It may throw, and
    /// asks nobody anything: the directory is kept from other programs meanwhile. No function: the file goes.
    std::function<Octets(const Octets& avant)> transformer;
    /// The state that memory, and so the change, was made from; it becomes that of the change's result. None:
    /// the change needs nothing from memory, and goes through whatever stands.
    EtatLu* memoire = nullptr;
    Temporaire temporaire = Temporaire::Aucun;
};

enum class IssueChangement {
    Fait,
    Refuse,  ///< a file's function refuses; the caller says why
    Conflit, ///< another program changed a file: it has been said, the notice asks for it to be read again
};

/// Changes files: reads each anew, asks what shall stand, writes them in their order, sends the notice, and
/// tells in one message what came up. `nom` says to people what is done: "Supprimer l'extrait 12 de Claire";
/// under it the change can be taken back. Unless it is done, nothing is written.
///
/// Throws FauteExecution when a file can't be read or written; those before it in the order have then been
/// written.
IssueChangement changerFichiers(Session& session, Plateforme& plateforme, const Utf8& nom,
                                const std::vector<FichierAChanger>& fichiers,
                                const std::optional<Avis>& avis = {});

/// Takes the last change back, makes the last one that was taken back again: the bytes alone. Memory is to be
/// read again for the files that it gives, none where there was nothing to do. When another program changed
/// one of them, which is said, nothing is written and what history knew of them is forgotten. Throws
/// FauteExecution as a change does.
std::vector<Utf8> annuler(Session& session, Plateforme& plateforme);
std::vector<Utf8> refaire(Session& session, Plateforme& plateforme);

} // namespace vermo
