#pragma once
#include "corpus/Brouillon.h"
#include "transcription/Fiche.h"

namespace vermo::saisie {

inline constexpr const char* GENRE_EXTRAIT = "extrait"; ///< of drafts of the transcription window

/// What the transcription window needs to show again what was typed and no file holds.
struct Reprise {
    Fiche ouverte; ///< as it was opened
    Fiche fiche;   ///< as it was left
    bool operator==(const Reprise&) const = default;
};

/// As a draft, in the place of what `vide` holds, and back; whose transcript it is for, the session knows
/// that opens the interview. Throws FauteExecution for a draft without one of its fields, or with a number
/// that is none.
Brouillon brouillonDe(Brouillon vide, const Reprise& reprise);
Reprise repriseDe(const Brouillon& brouillon);

/// The extract that it was opened on, or the one that holds by now what was typed; 0: neither is there, and
/// what was typed is a new extract.
int retrouver(const Session& session, const Reprise& reprise);

} // namespace vermo::saisie
