#pragma once
#include <cstdint>
#include <functional>
#include <string>

namespace vermo::essai {

inline std::string entier(std::uint32_t valeur, int octets) {
    std::string resultat;
    for (int i = 0; i < octets; ++i)
        resultat += static_cast<char>(valeur >> 8 * i & 255);
    return resultat;
}

/// A wave file. `apresFmt` stands between the format chunk and "data".
inline std::string wav(int canaux, int bits, const std::string& echantillons,
                       const std::string& apresFmt = {}, std::uint32_t frequence = 8000) {
    const auto bloc = static_cast<std::uint32_t>(canaux * bits / 8);
    return "RIFF" + entier(static_cast<std::uint32_t>(36 + apresFmt.size() + echantillons.size()), 4) +
           "WAVEfmt " + entier(16, 4) + entier(1, 2) + entier(static_cast<std::uint32_t>(canaux), 2) +
           entier(frequence, 4) + entier(frequence * bloc, 4) + entier(bloc, 2) +
           entier(static_cast<std::uint32_t>(bits), 2) + apresFmt + "data" +
           entier(static_cast<std::uint32_t>(echantillons.size()), 4) + echantillons;
}

/// `nombre` samples of `bits` bits.
inline std::string echantillons(int nombre, int bits, const std::function<int(int)>& valeur) {
    std::string octets;
    for (int i = 0; i < nombre; ++i)
        octets += entier(static_cast<std::uint32_t>(valeur(i)), bits / 8);
    return octets;
}

} // namespace vermo::essai
