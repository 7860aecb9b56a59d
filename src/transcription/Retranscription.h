#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

/// The transcript of the current interview: into the working arrays, and back to its file.
///
/// The arrays describe the interview that was read last. A transcript that could not be read to its end, or
/// whose times are written with the other decimal separator, is never written: every routine here then says
/// "Enregistrement impossible!!" and leaves the file as it is.
namespace vermo {

/// Fills the arrays of `EtatTranscription` from the file of `EntretienCourant`. Called after every change to
/// the file and whenever an interview is shown.
///
/// A missing file gives no extract, without a message; the pointer then stays the hourglass. A fault in the
/// file (a mark line without its second "::", a time that is no number, an extract without its end, extract
/// 10,000, a NUL byte) is shown in one message with file, line and cause; the arrays hold what was read until
/// there. The same message about the same file is shown once: forget `signalement` when an interview is
/// opened anew.
void LireRetranscription(Session& session, Plateforme& plateforme);

/// The transcript of the file that the player holds, for EntretienCourant; without a path when it holds none.
Retranscription retranscriptionDuLecteur(const Session& session, const Plateforme& plateforme);

/// Rewrites the whole file that the arrays were read from: duration, observations and attributes of its
/// interview's record, then the arrays. An extract with a negative start is left out. True when the file
/// holds them. `nom` says to people what is done. This and the next two give the notice of the extracts.
bool EnregistrerExtraits(Session& session, Plateforme& plateforme, const Utf8& nom = "Modifier les extraits");

/// What became of a deletion. `Annule`: the person thought better of it, FrmSaisie is to be shown again.
/// `Supprime`: the caller sees to RetourCorpus.
enum class Suppression { Annule, Supprime, Echec };

/// Asks, then rewrites the transcript without extract `ExtraitCourant`.
Suppression SupprimerExtrait(Session& session, Plateforme& plateforme, const Retranscription& cible);

/// Inserts the span SaisieDebut..SaisieFin in the transcript, which is created when there is none.
/// `texteSaisi` loses the line ends too many at its end, as the text control is to do too; of
/// `codeThematique` the first three characters are taken. False after a failure, which was shown: nothing was
/// written, and the text must stay on the screen.
bool AjouterExtrait(Session& session, Plateforme& plateforme, const Retranscription& cible, Texte& texteSaisi,
                    const Texte& codeThematique);

/// "Supprimer l'extrait 12 de Claire".
Utf8 nommerExtrait(const EtatCorpus& corpus, const Utf8& action, int n, int slot);

/// Takes a line end off while a CR stands before it: several at the end of a text become one CR. A text of
/// fewer than three characters stays as it is.
void rognerFins(Texte& texte);

/// Extract numbers from 1 to the end of the arrays.
int nombreExtraits(const Session& session) noexcept;

/// `k` itself; throws FauteExecution when the arrays hold no extract of that number.
int numeroValide(const Session& session, int k);

/// A time in seconds. Throws FauteExecution for a text that starts with no number.
double secondes(const Temps& temps, const Reglages& reglages);

/// Bounds of extract `k` in seconds. Throws FauteExecution for a `k` outside the arrays.
double secondesDebut(const Session& session, int k);
double secondesFin(const Session& session, int k);

/// A time through its text form, as it was read or as it would be written, by the conversion that stops at
/// the first character that is no part of a number with a point: under a decimal comma these are whole
/// seconds.
double valeurTexte(const Temps& temps, const Reglages& reglages);

} // namespace vermo
