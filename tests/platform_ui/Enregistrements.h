#pragma once
#include "audio/OndeDEssai.h"

#include <cmath>
#include <numbers>

namespace vermo::essai {

struct FormatWav {
    int bits = 8, voies = 1, frequence = 8000;
};

/// A wave file around `donnees`, whose header announces `annoncees` bytes of them (-1: as many as there are).
inline std::string wav(const std::string& donnees, const FormatWav& f, int annoncees = -1) {
    const auto frequence = static_cast<std::uint32_t>(f.frequence),
               parSeconde = frequence * static_cast<std::uint32_t>(f.bits / 8 * f.voies),
               taille = static_cast<std::uint32_t>(annoncees);
    std::string octets = wav(f.voies, f.bits, donnees);
    octets.replace(24, 8, entier(frequence, 4) + entier(parSeconde, 4));
    if (annoncees >= 0) octets.replace(4, 4, entier(36 + taille, 4)).replace(40, 4, entier(taille, 4));
    return octets;
}

/// A tone of 440 Hz.
inline std::string son(double secondes, const FormatWav& f = {}) {
    std::string donnees;
    for (int i = 0; i < secondes * f.frequence; ++i) {
        const double x = std::sin(2 * std::numbers::pi * 440 * i / f.frequence) / 2;
        const int valeur = f.bits == 8 ? 128 + std::lround(x * 127) : std::lround(x * 32767);
        for (int voie = 0; voie < f.voies; ++voie)
            donnees += entier(static_cast<std::uint32_t>(valeur), f.bits / 8);
    }
    return donnees;
}

/// `trames` silent MP3 frames of 1152 samples at 44.1 kHz; every third has a higher bit rate than the others,
/// and no tag says so.
inline std::string mp3(int trames) {
    const auto trame = [](char debit, std::size_t octets) {
        std::string t("\xFF\xFB", 2);
        t += debit;
        t += '\xC4';
        return t + std::string(octets - 4, '\0');
    };
    std::string resultat;
    for (int i = 0; i < trames; ++i)
        resultat += i % 3 == 2 ? trame('\xB0', 626) : trame('\x50', 208);
    return resultat;
}

} // namespace vermo::essai
