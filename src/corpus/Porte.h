#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The one door through which the corpus's files, the corpus file and the transcripts, are read whole and
/// changed. What stands on the disk is known by it: each read and each write leaves in the Session the
/// identity and the fingerprint of the file, `EtatCorpus::lu` for the corpus file and `ExtraitsEntretien::lu`
/// for the transcript of a slot.
namespace vermo {

/// All bytes of the open corpus's file, of a transcript. Throw FauteExecution with the cause.
std::string lireFichierCorpus(EtatCorpus& corpus);
std::string lireRetranscription(EtatCorpus& corpus, const Retranscription& retranscription);

/// The bytes of a file, none where there is no file.
using Octets = std::optional<std::string>;

/// What becomes of the file that bears the changed file's name and ".$$$".
enum class Temporaire {
    Aucun,   ///< it is left alone
    Reste,   ///< it is written first, with the same bytes, and stays
    Disparu, ///< it is removed in the end
};

/// One file of a change.
struct FichierAChanger {
    Retranscription cible; ///< slot 0: the corpus file
    /// From the bytes that stand to those that shall stand; none refuses the whole change. It may throw, and
    /// asks nobody anything: the directory is kept from other programs meanwhile.
    std::function<Octets(const Octets& avant)> transformer;
    Temporaire temporaire = Temporaire::Aucun;
};

/// Changes files, and remembers the change as the session's last: reads each anew, asks what shall stand,
/// then writes them in their order and sends the notice. `nom` says to people what is done: "Supprimer
/// l'extrait 12 de Claire".
///
/// False when a file's function refuses: nothing is written, and the caller says why. Throws FauteExecution
/// when a file can't be read or written; those before it in the order have then been written.
bool changerFichiers(Session& session, Plateforme& plateforme, const Utf8& nom,
                     const std::vector<FichierAChanger>& fichiers, const std::optional<Avis>& avis = {});

} // namespace vermo
