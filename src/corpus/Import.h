#pragma once
#include "corpus/Porte.h"
#include "corpus/Session.h"
#include "platform/Plateforme.h"

#include <optional>

/// The steps of an import that ask a person or touch files, in the order in which the program takes them. A
/// step that ends the import has said why.
namespace vermo {

/// Without an open corpus: whether to open one.
bool proposerOuverture(Plateforme& plateforme);

/// The recording to import, a WAV file before any other; empty when the person gave up.
Utf8 choisirEnregistrement(const Session& session, Plateforme& plateforme);

/// What to do with a recording that is not in the preferred format.
enum class ChoixFormat { Garder, Convertir, Annuler };
/// Asks only for 16 bits or two channels; any other format is kept. Where there is no converter, Enter keeps
/// it.
ChoixFormat demanderFormat(const EnTeteWav& enTete, Plateforme& plateforme);

/// Starts the converter, or says that it is missing.
void lancerConvertisseur(Plateforme& plateforme);

/// The record's name: the last part of `chemin`, composed. Throws FauteExecution for a name that the corpus
/// file can't hold.
Texte nomImporte(const Utf8& chemin);

/// Brings a recording that lies elsewhere into RepCorpus, after asking; one that lies there is left alone.
/// Gives its name there: of a file that the disk already has, in that file's case. Two recordings whose
/// companions would be the same files never become two interviews: a copy is offered under a free name, and
/// one that lies there is refused. Nothing ends the import: that, or the person gave up, or the copy failed.
std::optional<Texte> apporterDansCorpus(const Session& session, Plateforme& plateforme, const Utf8& chemin);

/// True, and said, when an interview has this very name.
bool dejaDansCorpus(const Session& session, Plateforme& plateforme, const Texte& nom);

/// Seconds, from the player, which is left stopped on the file; waits until it knows. 0, and said with the
/// player's cause, when the file can't be played or the person gave up waiting.
double mesurerDuree(Plateforme& plateforme, const Utf8& chemin);

/// A new last slot, active. Throws FauteExecution, nothing added, when the corpus holds ENTRETIENS_MAX.
void ajouterEntretien(Session& session, const Texte& nom, double duree);

/// The transcript of `slot`, its duration and empty sections; none where there is one.
std::optional<FichierAChanger> retranscriptionACreer(const Session& session, int slot);

} // namespace vermo
