#include "formats/Sections.h"

#include "textfile/jetons.h"

namespace vermo {

void copierSimplement(std::string& sortie, std::string_view octets) {
    copierLignes(sortie, octets);
}

void copierParJetons(std::string& sortie, std::string_view octets) {
    Jetons jetons(octets);
    Texte item;
    while (jetons.suivant(item))
        ecrireLigne(sortie, item);
}

void copierEntreGuillemets(std::string& sortie, std::string_view octets) {
    copierLignes(sortie, octets, ecrireEntreGuillemets);
}

std::optional<std::string> reecrireSection(std::string_view octets, const Section& section,
                                           const std::vector<Texte>& lignes, const Cadre& cadre) {
    std::string copie;
    octets = avecCr(octets, copie);
    Lignes anciennes(octets);
    if (!anciennes.jusqua(section.ouverture)) return std::nullopt;
    std::string sortie;
    cadre.tete(sortie, octets.substr(0, octets.size() - anciennes.reste().size()));
    for (const Texte& ligne : lignes)
        ecrireLigne(sortie, ligne);
    ecrireLigne(sortie, section.fermeture);
    anciennes.jusqua(section.fermeture);
    cadre.queue(sortie, anciennes.reste());
    return sortie;
}

} // namespace vermo
