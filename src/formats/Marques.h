#pragma once
#include "formats/Champs.h"
#include "textfile/nombres.h"

#include <cmath>
#include <optional>
#include <string_view>

/// The lines between which a transcript's observations and extracts ("::12.50::001") stand, for all who read
/// them.
namespace vermo::rtr {

constexpr std::string_view OBS = "<|OBS|", FIN_OBS = ">|OBS|";
constexpr std::string_view MARQUE = "::";

/// The fields of a mark line: between its marks, and behind the second.
struct Marque {
    std::string_view temps;
    std::string_view suite;
};

/// Nothing for a line of text. Throws for a mark line without its second mark.
inline std::optional<Marque> lireMarque(std::string_view ligne, const Lieu& lieu) {
    const std::size_t p = ligne.find(MARQUE);
    if (p == std::string_view::npos) return std::nullopt;
    const std::size_t q = ligne.find(MARQUE, p + 1);
    if (q == std::string_view::npos || q < p + MARQUE.size())
        lieu.refuser("Ligne de repère coupée : le second « :: » manque.");
    return Marque{ligne.substr(p + MARQUE.size(), q - p - MARQUE.size()), ligne.substr(q + MARQUE.size())};
}

/// A time by the locale's conversion. Throws, naming `quoi`, for a text that starts with no number.
inline double tempsOuFaute(std::string_view temps, const Reglages& reglages, const std::string& quoi,
                           const Lieu& lieu) {
    try {
        return nombre(temps, reglages);
    } catch (const FauteExecution&) {
        lieu.refuser(quoi + " « " + versUtf8(temps) + " » n'est pas un nombre.");
    }
}

/// The duration on a transcript's first line, seconds. Throws for what no recording can last.
inline double dureeOuFaute(std::string_view ligne, const Reglages& reglages, const Lieu& lieu) {
    const double duree = tempsOuFaute(ligne, reglages, "La durée", lieu);
    if (duree < 0) lieu.refuser("La durée est négative.");
    if (!std::isfinite(static_cast<float>(duree))) lieu.refuser("La durée est hors de toute mesure.");
    return duree;
}

} // namespace vermo::rtr
