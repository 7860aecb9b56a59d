#pragma once
#include "corpus/Session.h"
#include "transcription/Saisie.h"

namespace vermo::saisie {

/// What the transcription window holds while a person works in it: enough to show it again as it was.
struct Fiche {
    Retranscription source;    ///< whose transcript it is for
    int numero = 0;            ///< of the extract in it; 0: a new one
    double debut = 0, fin = 0; ///< the span, seconds
    ThematiqueAffichee thematique = thematiqueParDefaut();
    Utf8 texte{}; ///< as typed, lines parted by LF; may hold what the files can't
    bool operator==(const Fiche&) const = default;
};

/// The fiche of the span that is open in the Session: an extract of the working arrays, or a new one, without
/// text and thematic. Throws FauteExecution for an extract outside the arrays.
Fiche ficheOuverte(const Session& session);

/// The number by which the working arrays know by now the extract on which `ouverte` was opened: the nearest
/// with its bounds and its text. 0: it was changed or removed, or was none.
int retrouver(const Session& session, const Fiche& ouverte);

} // namespace vermo::saisie
