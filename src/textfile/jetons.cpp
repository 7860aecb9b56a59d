#include "textfile/jetons.h"

#include "textfile/lignes.h"

#include <algorithm>

namespace vermo {
namespace {

/// Where an item that began with a quote ends: at its closing quote, else at the end of the line.
std::size_t finEntreGuillemets(std::string_view texte) {
    std::size_t i = texte.find_first_of("\"\r");
    while (i < texte.size() && texte[i] == '"') {
        if (i + 1 == texte.size() || texte[i + 1] == ',' || texte[i + 1] == CR) return i;
        i = texte.find_first_of("\"\r", i + 1);
    }
    return std::min(i, texte.size());
}

} // namespace

bool Jetons::suivant(Texte& item) {
    reste_.remove_prefix(std::min(reste_.find_first_not_of(" \t"), reste_.size()));
    if (reste_.empty()) return false;
    const bool guillemet = reste_.front() == '"';
    if (guillemet) reste_.remove_prefix(1);
    const std::size_t fin =
        guillemet ? finEntreGuillemets(reste_) : std::min(reste_.find_first_of(",\r"), reste_.size());
    item = reste_.substr(0, fin);
    reste_.remove_prefix(fin);
    if (guillemet && reste_.starts_with('"')) reste_.remove_prefix(1);
    if (!reste_.empty()) reste_.remove_prefix(reste_.starts_with("\r\n") ? 2 : 1);
    return true;
}

void ecrireEntreGuillemets(std::string& sortie, std::string_view texte) {
    sortie += '"';
    sortie += texte;
    ecrireLigne(sortie, "\"");
}

} // namespace vermo
