#include "transcription/Fiche.h"

#include "textfile/tables.h"
#include "transcription/Retranscription.h"

#include <algorithm>

namespace vermo::saisie {

Fiche ficheOuverte(const Session& session) {
    const EtatTranscription& etat = session.transcription;
    Fiche fiche{.source = etat.source, .debut = etat.SaisieDebut, .fin = etat.SaisieFin};
    if (etat.NouvelExtrait) return fiche;
    fiche.numero = numeroValide(session, extraitCourant(etat));
    fiche.thematique = thematiqueDeCode(session.corpus, ligneDe(etat.ExtraitCode, fiche.numero));
    fiche.texte = versUtf8(ligneDe(etat.ExtraitTexte, fiche.numero));
    std::ranges::replace(fiche.texte, CR, '\n');
    return fiche;
}

} // namespace vermo::saisie
