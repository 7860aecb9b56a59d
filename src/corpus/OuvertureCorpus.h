#pragma once
#include "corpus/Session.h"
#include "formats/FichierCorpus.h"
#include "platform/Plateforme.h"
#include "textfile/faute.h"
#include "window/Element.h"

#include <vector>

/// The steps of opening and of creating a corpus, in the order in which the program takes them:
/// demanderCorpus, nommerCorpus, MettreAJourProjets, viderCorpus, corpusAccessible, lireThematiques,
/// lireEntretiens, toutActiver, calculerHauteur. A step that returns false ends the opening; it has said why.
namespace vermo {

constexpr std::size_t PROJETS_MONTRES = 5; ///< recent corpora in the start window and in the menu

/// The recent corpora to be listed, the last opened first, at most PROJETS_MONTRES. A missing list is empty.
std::vector<Utf8> listeProjets(const Emplacements& emplacements);

/// Unless OuvertureDirecte, asks which corpus: CheminCorpus takes it and HauteurEntretien is 0. False when
/// the person gave up or chose the corpus that is open.
bool demanderCorpus(Session& session, Plateforme& plateforme);

/// RepCorpus and NomCorpus from CheminCorpus, which takes the name that the file has on the disk.
void nommerCorpus(Session& session);

/// Puts CheminCorpus at the head of the recent list. A list that can't be read or written is said in one
/// message and left as it is; the corpus opens all the same.
void MettreAJourProjets(const Session& session, Plateforme& plateforme);

/// Clears the interviews and the corpus-wide tables; NbEntretiens keeps its value until lireEntretiens. What
/// was scanned is kept aside for the next scan. The corpus counts as unread (ouvertureInachevee) until
/// lireEntretiens has come to its end.
void viderCorpus(Session& session);

/// True when the corpus file is there.
bool corpusAccessible(const Session& session, Plateforme& plateforme);

/// The thematic table. False without an opening tag. Throws FauteExecution for a file that can't be read or a
/// line that is no thematic.
bool lireThematiques(Session& session, Plateforme& plateforme);

/// Makes these rows the thematic table. One whose code was there keeps its switch, others are on.
void prendreThematiques(EtatCorpus& corpus, const std::vector<crp::Thematique>& rangs);

/// The interviews whose recording is there. One message tells those that aren't, another the names that are
/// paths, which are never followed. False without an opening tag. Throws FauteExecution, no interview taken,
/// for a file that can't be read and for more than ENTRETIENS_MAX recordings.
bool lireEntretiens(Session& session, Plateforme& plateforme);

/// Every interview and every thematic on.
void toutActiver(Session& session);

/// HauteurEntretien when it is 0, so that the rows fill `hauteurCadre`, the height of Frm_fond_entretiens;
/// never less than 335.
void calculerHauteur(Session& session, Twips hauteurCadre);

/// Asks for a name and writes an empty corpus there, replacing any file; CheminCorpus and RepCorpus take it.
/// False when the person gave up.
bool creerCorpus(Session& session, Plateforme& plateforme);

/// One message for a fault after which the work goes on.
void direFaute(Dialogues& dialogues, const FauteExecution& faute);

} // namespace vermo
