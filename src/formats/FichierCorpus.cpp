#include "formats/FichierCorpus.h"

#include "formats/Champs.h"
#include "formats/Sections.h"
#include "textfile/lignes.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <utility>

namespace vermo::crp {
namespace {

constexpr Section THEM{"<|THEM|", ">|THEM|"};
constexpr Section POS{"<|POS|", ">|POS|"};
constexpr Section DIC{"<|DIC|", ">|DIC|"};
constexpr Section ENTR{"<|ENTR|", ">|ENTR|"};

/// Rows of a section, one a line that isn't empty; `lireRang` takes a line and where it stands, and may give
/// nothing.
template <class Rang, class LireRang>
std::optional<std::vector<Rang>> lireSection(std::string_view octets, const Section& section,
                                             const Utf8& fichier, std::size_t maximum, LireRang lireRang) {
    Lignes lignes(octets);
    if (!lignes.jusqua(section.ouverture)) return std::nullopt;
    std::vector<Rang> rangs;
    std::string_view ligne;
    while (lignes.suivante(ligne) && !contient(ligne, section.fermeture)) {
        if (ligne.empty()) continue;
        const Lieu lieu{fichier, lignes.numero()};
        refuserNul(ligne, lieu);
        std::optional<Rang> rang = lireRang(ligne, lieu);
        if (!rang) continue;
        if (rangs.size() == maximum)
            lieu.refuser("La section " + std::string(section.ouverture) + " tient au plus " +
                         std::to_string(maximum) + " lignes.");
        rangs.push_back(std::move(*rang));
    }
    return rangs;
}

std::string_view champ(std::string_view& reste, const std::string& quoi, const Lieu& lieu) {
    const auto avant = avantVirgule(reste);
    if (!avant) lieu.refuser("Il manque une virgule dans la ligne de " + quoi + ".");
    return *avant;
}

Thematique lireThematique(std::string_view ligne, const Lieu& lieu) {
    Thematique rang;
    rang.code = champ(ligne, "thématique", lieu);
    rang.couleur = champ(ligne, "thématique", lieu);
    rang.nom = ligne;
    try {
        couleur(rang.couleur);
    } catch (const FauteExecution& faute) {
        lieu.refuser(faute.quoi());
    }
    return rang;
}

} // namespace

std::string nouveau(std::string_view date, std::string_view heure) {
    std::string sortie;
    const Texte annonce =
        depuisUtf8("Projet crée le ") + std::string(date) + depuisUtf8(" à ") + std::string(heure);
    const Texte sansThematique = depuisUtf8("000,&H0, Pas de thématique");
    for (const std::string_view ligne :
         {std::string_view(annonce), THEM.ouverture, std::string_view(sansThematique), THEM.fermeture,
          POS.ouverture, POS.fermeture, DIC.ouverture, DIC.fermeture, ENTR.ouverture, ENTR.fermeture})
        ecrireLigne(sortie, ligne);
    return sortie;
}

std::optional<std::vector<Thematique>> lireThematiques(std::string_view octets, const Utf8& fichier,
                                                       std::size_t maximum) {
    return lireSection<Thematique>(octets, THEM, fichier, maximum, lireThematique);
}

std::optional<std::vector<Texte>> lireEntretiens(std::string_view octets, const Utf8& fichier,
                                                 std::size_t maximum, const Garder& garder) {
    return lireSection<Texte>(octets, ENTR, fichier, maximum, [&](std::string_view ligne, const Lieu& lieu) {
        std::optional<Texte> nom(ligne);
        if (garder && !garder(*nom, lieu.ligne)) nom.reset();
        return nom;
    });
}

bool nomEtranger(std::string_view nom) {
    return nom.find_first_of("/\\") != std::string_view::npos || nom == "." || nom == "..";
}

std::optional<std::vector<LigneVariable>> lirePos(std::string_view octets, const Utf8& fichier) {
    return lireSection<LigneVariable>(octets, POS, fichier, octets.size(),
                                      [](std::string_view ligne, const Lieu& lieu) {
                                          const std::string_view numero = champ(ligne, "variable", lieu);
                                          entierBorne(numero, 1, RANGS_MAX, "variable", lieu);
                                          return LigneVariable{Texte(numero), Texte(ligne)};
                                      });
}

std::optional<std::vector<LigneModalite>> lireDic(std::string_view octets, const Utf8& fichier) {
    return lireSection<LigneModalite>(
        octets, DIC, fichier, octets.size(), [](std::string_view ligne, const Lieu& lieu) {
            const std::string_view variable = champ(ligne, "modalité", lieu);
            const std::string_view modalite = champ(ligne, "modalité", lieu);
            return LigneModalite{entierBorne(variable, 1, RANGS_MAX, "variable", lieu),
                                 entierBorne(modalite, 1, RANGS_MAX, "modalité", lieu), Texte(ligne)};
        });
}

std::optional<std::string> ecrireThematiques(std::string_view octets, const std::vector<Thematique>& rangs) {
    std::vector<Texte> lignes;
    for (const Thematique& rang : rangs)
        if (!rang.code.empty()) lignes.push_back(rang.code + "," + rang.couleur + "," + rang.nom);
    return reecrireSection(octets, THEM, lignes, {.tete = copierParJetons});
}

std::optional<std::string> ecrireEntretiens(std::string_view octets, std::vector<Texte> fichiers) {
    std::erase_if(fichiers, [](const Texte& nom) { return nom.empty() || nomEtranger(nom); });
    std::size_t rang = 0;
    for (const Texte& ancien : lireEntretiens(octets).value_or(std::vector<Texte>{})) {
        const auto place = static_cast<std::ptrdiff_t>(std::min(rang++, fichiers.size()));
        if (nomEtranger(ancien)) fichiers.insert(fichiers.begin() + place, ancien);
    }
    return reecrireSection(octets, ENTR, fichiers, {.queue = copierEntreGuillemets});
}

} // namespace vermo::crp
