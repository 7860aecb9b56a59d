#include "textfile/lignes.h"

#include "textfile/texte.h"

#include <algorithm>

namespace vermo {

bool Lignes::suivante(std::string_view& ligne) {
    if (reste_.empty()) return false;
    const std::size_t fin = std::min(reste_.find(CR), reste_.size());
    ligne = reste_.substr(0, fin);
    const bool avecLf = fin + 1 < reste_.size() && reste_[fin + 1] == '\n';
    reste_.remove_prefix(std::min(fin + (avecLf ? 2 : 1), reste_.size()));
    ++numero_;
    return true;
}

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
