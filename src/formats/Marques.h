#pragma once
#include "formats/Champs.h"
#include "textfile/lignes.h"
#include "textfile/nombres.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

/// The lines between which a transcript's observations and extracts ("::12.50::001") stand, and the one walk
/// along them, for all who read transcripts.
namespace vermo::rtr {

constexpr std::string_view OBS = "<|OBS|", FIN_OBS = ">|OBS|";
constexpr std::string_view MARQUE = "::";

/// The observations, behind their opening line up to the closing one, each line that isn't empty ended by a
/// CR; `voir` is called with each line.
template <class Voir>
Texte lireObservations(Lignes& lignes, const Voir& voir) {
    Texte observations;
    std::string_view ligne;
    while (lignes.suivante(ligne) && !contient(ligne, FIN_OBS)) {
        voir(ligne);
        if (!ligne.empty()) observations.append(ligne) += CR;
    }
    return observations;
}

/// The fields of a mark line: between its marks, and behind the second.
struct Marque {
    std::string_view temps;
    std::string_view suite;
};

/// Cuts a line that holds a mark. Throws when it holds no second one.
inline Marque couperMarque(std::string_view ligne, const Lieu& lieu) {
    const std::size_t p = ligne.find(MARQUE);
    const std::size_t q = ligne.find(MARQUE, p + 1);
    if (q == std::string_view::npos || q < p + MARQUE.size())
        lieu.refuser("Ligne de repère coupée : le second « :: » manque.");
    return {ligne.substr(p + MARQUE.size(), q - p - MARQUE.size()), ligne.substr(q + MARQUE.size())};
}

/// Tells lines with a mark from lines of text. The next mark is sought once for all the lines before it.
class ChercheMarque {
  public:
    explicit ChercheMarque(std::string_view octets) : octets_(octets), prochaine_(octets.find(MARQUE)) {}

    /// `ligne` is a part of the bytes; lines are asked for in their order.
    bool dans(std::string_view ligne) {
        const auto debut = static_cast<std::size_t>(ligne.data() - octets_.data());
        if (prochaine_ < debut) prochaine_ = octets_.find(MARQUE, debut);
        return prochaine_ < debut + ligne.size();
    }

  private:
    std::string_view octets_;
    std::size_t prochaine_; ///< npos behind the last
};

/// Walks what `lignes` has not given yet, line by line: `preneur.texte(ligne)` for a line of text,
/// `preneur.ouvrir(marque, ligne, lieu)` and `preneur.fermer(marque, ligne, lieu)` in turn for mark lines.
/// Allocates nothing, and the taker may write over the bytes of lines that it was given. Gives the number of
/// the line that opens an extract which the end leaves open, 0 when there is none. Throws at a NUL byte and
/// at a mark line without its second mark.
template <class Preneur>
std::size_t parcourir(Lignes& lignes, const Utf8& fichier, Preneur& preneur) {
    const bool nuls = contient(lignes.reste(), std::string_view("\0", 1));
    ChercheMarque marques(lignes.reste());
    std::size_t ouverture = 0;
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        const Lieu lieu{fichier, lignes.numero()};
        if (nuls) refuserNul(ligne, lieu);
        if (!marques.dans(ligne)) {
            preneur.texte(ligne);
        } else if (ouverture == 0) {
            preneur.ouvrir(couperMarque(ligne, lieu), ligne, lieu);
            ouverture = lieu.ligne;
        } else {
            preneur.fermer(couperMarque(ligne, lieu), ligne, lieu);
            ouverture = 0;
        }
    }
    return ouverture;
}

constexpr std::size_t TEMPS_LONGUEUR_MAX = 40; ///< of the field of a time

/// A time by the locale's conversion. Throws, naming `quoi`, for a text that starts with no number and for
/// one of more than TEMPS_LONGUEUR_MAX characters, which nobody wrote as a time.
inline double tempsOuFaute(std::string_view temps, const Reglages& reglages, const char* quoi,
                           const Lieu& lieu) {
    try {
        if (temps.size() <= TEMPS_LONGUEUR_MAX) return nombre(temps, reglages);
    } catch (const FauteExecution&) {
        // Told below, with its place.
    }
    lieu.refuser(std::string(quoi) + " " + citer(temps) + " n'est pas un nombre.");
}

/// The duration on a transcript's first line, seconds. Throws for what no recording can last.
inline double dureeOuFaute(std::string_view ligne, const Reglages& reglages, const Lieu& lieu) {
    const double duree = tempsOuFaute(ligne, reglages, "La durée", lieu);
    if (duree < 0) lieu.refuser("La durée est négative.");
    if (!std::isfinite(static_cast<float>(duree))) lieu.refuser("La durée est hors de toute mesure.");
    return duree;
}

} // namespace vermo::rtr
