#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

/// Reading of the attribute table: variables and modalities from the corpus file, an interview's choices from
/// its transcript.
namespace vermo {

/// Fills `EtatDonnees` from the sections POS and DIC of the corpus. Without a section, or after a fault in
/// one (a line that is no variable or modality, a number outside 1 to 99): one message, and empty tables.
/// True when both were read, and the data table is to be built.
bool LireVariables(Session& session, Plateforme& plateforme);

/// Reads the attributes of interview `slot` into its record. A variable without a line keeps its value; a
/// transcript that is missing or has no such section changes nothing.
/// Throws FauteExecution, the record untouched, for a line that is no pair of numbers or a number outside its
/// bounds, naming file and line.
void LireAttributs(Session& session, int slot);

} // namespace vermo
