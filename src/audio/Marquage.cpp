#include "audio/Marquage.h"

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

} // namespace vermo
