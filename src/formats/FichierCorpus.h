#pragma once
#include "textfile/texte.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The corpus file (.Crp): a note for the eye, then the sections THEM, POS, DIC and ENTR between their tags.
/// A tag is found anywhere in a line. Everything here is bytes to value and back; nothing touches the disk.
namespace vermo::crp {

/// One row of the thematic table, as its line reads: code "," colour "," name. The name keeps the blank that
/// follows the comma.
struct Thematique {
    Texte code;
    Texte couleur; ///< text that `couleur()` converts
    Texte nom;
    bool operator==(const Thematique&) const = default;
};

/// One line of POS: slot number (1 to 99) "," name.
struct LigneVariable {
    Texte numero;
    Texte nom;
    bool operator==(const LigneVariable&) const = default;
};

/// One line of DIC: variable "," modality "," label.
struct LigneModalite {
    int variable;
    int modalite;
    Texte nom;
    bool operator==(const LigneModalite&) const = default;
};

/// The ten lines of a new corpus. `date` and `heure` are in the short local format.
std::string nouveau(std::string_view date, std::string_view heure);

constexpr std::size_t SANS_LIMITE = static_cast<std::size_t>(-1);
constexpr int RANGS_MAX = 99; ///< variables, and modalities of one variable

/// Sections as read; nothing when the opening tag is missing. A missing closing tag reads to the end, empty
/// lines are skipped. Throw FauteExecution with `fichier` and the line for a line without its commas, a
/// colour or a number that isn't one, a number outside its bounds, a row more than `maximum`, and a NUL byte.
std::optional<std::vector<Thematique>> lireThematiques(std::string_view octets, const Utf8& fichier,
                                                       std::size_t maximum = SANS_LIMITE);
std::optional<std::vector<LigneVariable>> lirePos(std::string_view octets, const Utf8& fichier);
std::optional<std::vector<LigneModalite>> lireDic(std::string_view octets, const Utf8& fichier);

/// The names that `garder` takes; the others don't count towards `maximum`.
using Garder = std::function<bool(const Texte& nom, std::size_t ligne)>;
std::optional<std::vector<Texte>> lireEntretiens(std::string_view octets, const Utf8& fichier = {},
                                                 std::size_t maximum = SANS_LIMITE,
                                                 const Garder& garder = {});

/// True for what names no file of the corpus's own directory: a path, on this system or another.
bool nomEtranger(std::string_view nom);
/// The whole file with its THEM section rewritten; nothing when the opening tag is missing. Rows with an
/// empty code are dropped. Lines before the section come out cut at their commas, as the tokenising copy
/// does; rows and the lines behind the section pass through it between quotes, and so come out as they are.
std::optional<std::string> ecrireThematiques(std::string_view octets, const std::vector<Thematique>& rangs);

/// The whole file with its ENTR section rewritten; nothing when the opening tag is missing. Empty names are
/// dropped; lines of the section that are `nomEtranger` keep their place in it. Lines behind the section come
/// out between quotes.
std::optional<std::string> ecrireEntretiens(std::string_view octets, std::vector<Texte> fichiers);

} // namespace vermo::crp
