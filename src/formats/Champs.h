#pragma once
#include "textfile/faute.h"
#include "textfile/texte.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What the text formats have in common: fields of a line, and where a fault lies.
namespace vermo {

/// Where the line under the hand stands, for faults.
struct Lieu {
    const Utf8& fichier;
    std::size_t ligne;

    [[noreturn]] void refuser(const std::string& quoi) const { throw FauteExecution(quoi, fichier, ligne); }
};

/// Throws for a line that holds a NUL byte: the file is no text.
inline void refuserNul(std::string_view ligne, const Lieu& lieu) {
    if (ligne.find('\0') != std::string_view::npos) lieu.refuser("Octet nul dans un fichier de texte.");
}

/// What stands before the first comma; `reste` keeps what follows it. Nothing when there is no comma.
inline std::optional<std::string_view> avantVirgule(std::string_view& reste) {
    const std::size_t virgule = reste.find(',');
    if (virgule == std::string_view::npos) return std::nullopt;
    const std::string_view champ = reste.substr(0, virgule);
    reste.remove_prefix(virgule + 1);
    return champ;
}

/// A whole number within bounds, blanks around it allowed. Throws, naming `quoi`, for anything else.
inline int entierBorne(std::string_view champ, int minimum, int maximum, const std::string& quoi,
                       const Lieu& lieu) {
    const std::size_t debut = champ.find_first_not_of(" \t");
    const std::string_view chiffres = debut == std::string_view::npos
                                          ? std::string_view{}
                                          : champ.substr(debut, champ.find_last_not_of(" \t") + 1 - debut);
    int valeur = 0;
    const auto [fin, erreur] = std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur);
    if (chiffres.empty() || erreur == std::errc::invalid_argument || fin != chiffres.data() + chiffres.size())
        lieu.refuser(citer(champ) + " n'est pas un numéro de " + quoi + ".");
    if (erreur != std::errc{} || valeur < minimum || valeur > maximum)
        lieu.refuser("Le numéro de " + quoi + " " + citer(chiffres) + " n'est pas compris entre " +
                     std::to_string(minimum) + " et " + std::to_string(maximum) + ".");
    return valeur;
}

} // namespace vermo
