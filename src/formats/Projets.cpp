#include "formats/Projets.h"

#include "textfile/jetons.h"
#include "textfile/lignes.h"

namespace vermo::projets {

std::vector<Utf8> lire(std::string_view octets) {
    std::vector<Utf8> chemins;
    std::string copie;
    Jetons jetons(avecCr(octets, copie));
    Texte item;
    while (jetons.suivant(item))
        if (!item.empty()) chemins.push_back(versUtf8(item));
    return chemins;
}

std::string ecrire(const Utf8& chemin, const std::vector<Utf8>& anciens) {
    std::string sortie;
    const Texte premier = depuisUtf8(composer(chemin));
    ecrireLigne(sortie, premier);
    for (const Utf8& ancien : anciens)
        if (const Texte suivant = depuisUtf8(ancien); !suivant.empty() && suivant != premier)
            ecrireLigne(sortie, suivant);
    return sortie;
}

} // namespace vermo::projets
