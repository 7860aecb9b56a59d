#pragma once
#include "corpus/Session.h"
#include "formats/FichierCorpus.h"
#include "platform/Plateforme.h"

/// The rewrites of the corpus file's sections. Each change is written at once, whole or not at all.
///
/// All say by a message that the section's opening tag is missing, and then leave the corpus as it is. All
/// throw FauteExecution, the corpus as it was, when it can't be read or replaced, and when its opening did
/// not come to its end: what was not read whole is never rewritten from memory. A file that another program
/// changed is not rewritten from memory either, which is said; insertions go through. `nom` says to people
/// what is done.
namespace vermo {

/// The thematic table, rows 1 to NbThm, without those whose code is empty. No temporary file is left. Gives
/// the notice of the thematics.
void EcrireThematiques(Session& session, Plateforme& plateforme,
                       const Utf8& nom = "Modifier les thématiques");

/// Appends a row to the thematic table of the file as it stands, and takes its rows. False, the table read
/// again, when the file has a row with that code. Gives the notice of the thematics.
bool InsererThematique(Session& session, Plateforme& plateforme, const crp::Thematique& rang,
                       const Utf8& nom);

/// The interviews, slots 1 to NbEntretiens, without those whose Fichier is empty. A copy of the new corpus
/// stays beside it under its name and ".$$$". Gives no notice: the corpus is opened again, or the new row
/// shown, by who changed the list.
void EcrireEntretiens(Session& session, Plateforme& plateforme,
                      const Utf8& nom = "Modifier la liste des entretiens");

/// Appends the interview in `slot`, the last one, to the list of the file as it stands, and makes its
/// transcript unless there is one: one change. False when another program had changed the file: the corpus is
/// to be opened again.
bool InsererEntretien(Session& session, Plateforme& plateforme, int slot, const Utf8& nom);

} // namespace vermo
