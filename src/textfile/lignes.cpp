#include "textfile/lignes.h"

namespace vermo {

bool Lignes::jusqua(std::string_view balise) {
    std::string_view ligne;
    while (suivante(ligne))
        if (ligne.find(balise) != std::string_view::npos) return true;
    return false;
}

void ecrireLigne(std::string& sortie, std::string_view ligne) {
    sortie.append(ligne).append("\r\n");
}

} // namespace vermo
