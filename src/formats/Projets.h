#pragma once
#include "textfile/texte.h"

#include <string>
#include <string_view>
#include <vector>

/// The list of recent corpora (Projets.ini): one full path a line, the corpus opened last first.
namespace vermo::projets {

/// Every item in order, empty ones left out. Items are taken by the tokenising read, so a comma in a path
/// cuts it in two. Paths come back as UTF-8.
std::vector<Utf8> lire(std::string_view octets);

/// `chemin` first, then each item of `anciens` that is neither empty nor equal to it, in order.
/// Throws FauteExecution for a path that CP1252 can't hold.
std::string ecrire(const Utf8& chemin, const std::vector<Utf8>& anciens);

} // namespace vermo::projets
