#pragma once
#include "textfile/lignes.h"
#include "textfile/texte.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The sections of corpus files and transcripts: lines between two tags, each found anywhere in its line.
namespace vermo {

struct Section {
    std::string_view ouverture;
    std::string_view fermeture;
};

/// How a rewrite copies lines that it doesn't replace: appends those of `octets` to `sortie`.
using Copie = void (*)(std::string& sortie, std::string_view octets);

/// Each line with a line end of the normal form.
void copierSimplement(std::string& sortie, std::string_view octets);
/// Cut at commas and rid of quotes, as the tokenising read does: one line an item.
void copierParJetons(std::string& sortie, std::string_view octets);
/// Each line between double quotes.
void copierEntreGuillemets(std::string& sortie, std::string_view octets);

/// The ways in which the lines before the section (its opening tag included) and behind it come out.
struct Cadre {
    Copie tete = copierSimplement;
    Copie queue = copierSimplement;
};

/// The whole file with `lignes` as the section's content. A section that isn't closed is replaced to the end
/// of the file, and closed. Nothing when the opening tag is missing.
std::optional<std::string> reecrireSection(std::string_view octets, const Section& section,
                                           const std::vector<Texte>& lignes, const Cadre& cadre = {});

} // namespace vermo
