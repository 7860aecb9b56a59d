#include "textfile/lignes.h"

namespace vermo {

bool Lignes::jusqua(std::string_view balise) {
    std::string_view ligne;
    while (suivante(ligne))
        if (contient(ligne, balise)) return true;
    return false;
}

void ecrireLigne(std::string& sortie, std::string_view ligne) {
    sortie.append(ligne).append("\r\n");
}

void copierLignes(std::string& sortie, std::string_view octets,
                  void (*ecrire)(std::string&, std::string_view)) {
    Lignes lignes(octets, '\r');
    std::string_view ligne;
    while (lignes.suivante(ligne))
        ecrire(sortie, ligne);
}

std::string_view avecCr(std::string_view octets, std::string& copie) {
    if (finDeLigne(octets) == '\r') return octets;
    for (const char octet : octets) {
        if (octet == '\n') copie += '\r';
        copie += octet;
    }
    return copie;
}

} // namespace vermo
