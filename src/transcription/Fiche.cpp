#include "transcription/Fiche.h"

#include "textfile/tables.h"
#include "transcription/Retranscription.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vermo::saisie {
namespace {

Utf8 texteDe(const Session& session, int k) {
    Utf8 texte = versUtf8(ligneDe(session.transcription.ExtraitTexte, k));
    std::ranges::replace(texte, CR, '\n');
    return texte;
}

} // namespace

Fiche ficheOuverte(const Session& session) {
    const EtatTranscription& etat = session.transcription;
    Fiche fiche{.source = etat.source, .debut = etat.SaisieDebut, .fin = etat.SaisieFin};
    if (etat.NouvelExtrait) return fiche;
    fiche.numero = numeroValide(session, extraitCourant(etat));
    fiche.thematique = thematiqueDeCode(session.corpus, ligneDe(etat.ExtraitCode, fiche.numero));
    fiche.texte = texteDe(session, fiche.numero);
    return fiche;
}

int retrouver(const Session& session, const Fiche& ouverte) {
    constexpr double arrondi = 0.005001; // files hold two decimals
    int trouve = 0;
    if (ouverte.numero == 0) return trouve;
    for (int k = 1; k <= nombreExtraits(session); ++k) {
        const bool lui = std::abs(secondesDebut(session, k) - ouverte.debut) < arrondi &&
                         std::abs(secondesFin(session, k) - ouverte.fin) < arrondi &&
                         texteDe(session, k) == ouverte.texte;
        if (lui && (trouve == 0 || std::abs(k - ouverte.numero) < std::abs(trouve - ouverte.numero)))
            trouve = k;
    }
    return trouve;
}

} // namespace vermo::saisie
