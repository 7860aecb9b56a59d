#include "formats/Projets.h"

#include "textfile/jetons.h"
#include "textfile/lignes.h"

namespace vermo::projets {

std::vector<Utf8> lire(std::string_view octets) {
    std::vector<Utf8> chemins;
    Jetons jetons(octets);
    Texte item;
    while (jetons.suivant(item))
        if (!item.empty()) chemins.push_back(versUtf8(item));
    return chemins;
}

std::string ecrire(const Utf8& chemin, const std::vector<Utf8>& anciens) {
    std::string sortie;
    ecrireLigne(sortie, depuisUtf8(chemin));
    for (const Utf8& ancien : anciens)
        if (!ancien.empty() && ancien != chemin) ecrireLigne(sortie, depuisUtf8(ancien));
    return sortie;
}

} // namespace vermo::projets
