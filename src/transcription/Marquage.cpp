#include "transcription/Marquage.h"

#include "textfile/faute.h"
#include "transcription/Retranscription.h"

#include <utility>
#include <vector>

namespace vermo {

namespace {

bool finDedans(const Bornes& span, const Bornes& extrait) {
    return span.debut < extrait.debut && span.fin > extrait.debut && span.fin < extrait.fin;
}

bool debutDedans(const Bornes& span, const Bornes& extrait) {
    return span.fin > extrait.fin && span.debut > extrait.debut && span.debut < extrait.fin;
}

bool englobeOuEnglobe(const Bornes& span, const Bornes& extrait) {
    return (span.debut < extrait.debut && span.fin > extrait.fin) ||
           (span.debut > extrait.debut && span.fin < extrait.fin);
}

/// Bounds as their text reads: under a decimal comma they count as whole seconds here.
std::vector<Bornes> autresBornes(const Session& session, int k) {
    const EtatTranscription& etat = session.transcription;
    std::vector<Bornes> autres;
    for (int i = 1; i <= nombreExtraits(session); ++i)
        if (i != k)
            autres.push_back({valeurTexte(ligneDe(etat.ExtraitDebut, i), session.reglages),
                              valeurTexte(ligneDe(etat.ExtraitFin, i), session.reglages)});
    return autres;
}

} // namespace

Marquage bornerNouvelExtrait(Bornes voulues, std::span<const Bornes> extraits) {
    Marquage marquage{.bornes = voulues};
    for (const Bornes& extrait : extraits) {
        if (finDedans(marquage.bornes, extrait)) marquage.bornes.fin = extrait.debut;
        if (debutDedans(marquage.bornes, extrait)) marquage.bornes.debut = extrait.fin;
        if (englobeOuEnglobe(marquage.bornes, extrait)) marquage.englobe = true;
    }
    return marquage;
}

Marquage bornerExtraitDeplace(Bornes deplacees, std::span<const Bornes> autres) {
    for (const Bornes& extrait : autres) {
        if (finDedans(deplacees, extrait)) return {.bornes = {deplacees.debut, extrait.debut}};
        if (debutDedans(deplacees, extrait)) return {.bornes = {extrait.fin, deplacees.fin}};
        if (englobeOuEnglobe(deplacees, extrait)) return {.bornes = deplacees, .englobe = true};
    }
    return {.bornes = deplacees};
}

std::optional<Bornes> bornesExtrait(const Session& session, int n) {
    numeroValide(session, n);
    try {
        return Bornes{secondesDebut(session, n), secondesFin(session, n)};
    } catch (const FauteExecution&) {
        return std::nullopt;
    }
}

void redresserBornes(Session& session) {
    EtatTranscription& etat = session.transcription;
    for (int n = 1; n <= nombreExtraits(session); ++n)
        if (const auto bornes = bornesExtrait(session, n); bornes && bornes->fin < bornes->debut)
            std::swap(ligneDe(etat.ExtraitDebut, n), ligneDe(etat.ExtraitFin, n));
}

Marquage bornerNouvelExtrait(const Session& session, Bornes voulues) {
    std::vector<Bornes> extraits;
    for (int n = 1; n <= nombreExtraits(session); ++n)
        if (const auto bornes = bornesExtrait(session, n)) extraits.push_back(*bornes);
    return bornerNouvelExtrait(voulues, extraits);
}

Deplacement deplacerBorne(Session& session, int k, bool debut, double v) {
    EtatTranscription& etat = session.transcription;
    const double f0 = secondesFin(session, k);
    ligneDe(debut ? etat.ExtraitDebut : etat.ExtraitFin, k) = v;
    const Bornes deplacees{secondesDebut(session, k), secondesFin(session, k)};
    const Marquage marquage = bornerExtraitDeplace(deplacees, autresBornes(session, k));
    if (marquage.englobe) return {.englobe = true};
    if (marquage.bornes.debut != deplacees.debut) ligneDe(etat.ExtraitDebut, k) = marquage.bornes.debut;
    if (marquage.bornes.fin != deplacees.fin) ligneDe(etat.ExtraitFin, k) = marquage.bornes.fin;
    return {.allonge = marquage.bornes.fin > f0};
}

} // namespace vermo
