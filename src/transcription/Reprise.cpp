#include "transcription/Reprise.h"

#include "textfile/faute.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

namespace vermo::saisie {
namespace {

using Champs = std::map<Utf8, Utf8>;

/// The shortest text that reads back as the same number.
template <class Nombre>
Utf8 enTexte(Nombre nombre) {
    char texte[64];
    return {texte, std::to_chars(texte, texte + sizeof texte, nombre).ptr};
}

const Utf8& champ(const Champs& champs, const Utf8& nom) {
    const auto trouve = champs.find(nom);
    if (trouve == champs.end()) throw FauteExecution("le brouillon n'a pas de champ « " + nom + " »");
    return trouve->second;
}

template <class Nombre>
void lireNombre(const Champs& champs, const Utf8& nom, Nombre& nombre) {
    const Utf8& texte = champ(champs, nom);
    const char* fin = texte.data() + texte.size();
    const auto [suite, erreur] = std::from_chars(texte.data(), fin, nombre);
    if (erreur != std::errc() || suite != fin)
        throw FauteExecution("« " + texte + " » n'est pas un nombre (champ « " + nom + " » du brouillon)");
}

void ajouter(Champs& champs, const Utf8& de, const Fiche& fiche) {
    champs[de + "numero"] = enTexte(fiche.numero);
    champs[de + "debut"] = enTexte(fiche.debut);
    champs[de + "fin"] = enTexte(fiche.fin);
    champs[de + "code"] = versUtf8(fiche.thematique.tag);
    champs[de + "thematique"] = versUtf8(fiche.thematique.caption);
    champs[de + "couleur"] = enTexte(fiche.thematique.couleur);
}

Fiche ficheDe(const Champs& champs, const Utf8& de) {
    Fiche fiche;
    lireNombre(champs, de + "numero", fiche.numero);
    lireNombre(champs, de + "debut", fiche.debut);
    lireNombre(champs, de + "fin", fiche.fin);
    fiche.thematique.tag = depuisUtf8(champ(champs, de + "code"));
    fiche.thematique.caption = depuisUtf8(champ(champs, de + "thematique"));
    lireNombre(champs, de + "couleur", fiche.thematique.couleur);
    return fiche;
}

} // namespace

Brouillon brouillonDe(Brouillon vide, const Reprise& reprise) {
    Brouillon brouillon = std::move(vide);
    brouillon.texte = reprise.fiche.texte;
    ajouter(brouillon.champs, "", reprise.fiche);
    ajouter(brouillon.champs, "ouvert-", reprise.ouverte);
    brouillon.champs["ouvert-texte"] = reprise.ouverte.texte;
    return brouillon;
}

Reprise repriseDe(const Brouillon& brouillon) {
    Reprise reprise{ficheDe(brouillon.champs, "ouvert-"), ficheDe(brouillon.champs, "")};
    reprise.ouverte.texte = champ(brouillon.champs, "ouvert-texte");
    reprise.fiche.texte = brouillon.texte;
    return reprise;
}

int retrouver(const Session& session, const Reprise& reprise) {
    if (const int numero = retrouver(session, reprise.ouverte)) return numero;
    Fiche ecrite = reprise.fiche; // the program may have ended between the writing and the draft's removal
    ecrite.numero = std::max(1, ecrite.numero);
    if (!ecrite.texte.ends_with('\n')) ecrite.texte += '\n';
    return retrouver(session, ecrite);
}

} // namespace vermo::saisie
