#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "textfile/faute.h"

#include <optional>
#include <string_view>

/// The interview scan: dates of each recording, and from each transcript duration, observations and the rows
/// of the corpus-wide tables.
///
/// A transcript is read once, and what its extracts hold is kept in one buffer; the rows are offsets in it. A
/// file whose identity is that of the last scan is not read again. Files are read on as many threads as the
/// machine runs; what is told of them is told in the order of the slots, on the caller's thread, which alone
/// touches the session.
namespace vermo {

/// What a transcript holds for the corpus-wide tables. After a fault `extraits` holds the rows before it.
struct LectureRtr {
    ExtraitsEntretien extraits; ///< what follows from the lines alone
    std::optional<FauteExecution> faute;
};

/// Reads the bytes of a transcript; `fichier` names it in a fault.
///
/// Texts keep each line, empty ones too, followed by a CR; lines that stand behind a closing line still
/// belong to the extract that it closed. The code has at most three characters.
///
/// Faults, each with its line: a duration or a time that is no number, a duration that no recording can last,
/// a mark line without its second "::", extract 1,000, an extract that the end of the file leaves open (its
/// row is kept, without an end), a NUL byte, a file of 4 GiB or more.
LectureRtr analyser(std::string_view octets, const Reglages& reglages, const Utf8& fichier);

/// Scans slots `premier` to `dernier`: DateAjout, DateModif, Duree, NbExtraits, Observations, PrcRtr and the
/// rows.
///
/// Says by one message each: a recording that can't be opened (its old dates stay), a transcript that is
/// missing (nothing else of the slot changes), and a fault in a transcript, which is said once for each state
/// of the file. The scan then goes on with the next slot. Tells `progression` each slot; the caller begins
/// and ends it.
void AnalyserEntretiens(Session& session, Plateforme& plateforme, int premier, int dernier);

/// Reads the extracts of one interview again: clears its rows first, then NbExtraits, PrcRtr and the rows as
/// the file has them. Without a file the rows stay empty, without a message.
void RelireEntretien(Session& session, Plateforme& plateforme, int slot);

/// EntretienCourant is left: its extracts are read again, and what its row shows is announced.
void quitterEntretien(Session& session, Plateforme& plateforme);

} // namespace vermo
