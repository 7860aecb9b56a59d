#pragma once
#include "audio/OndeDEssai.h"

#include <cmath>
#include <numbers>

namespace vermo::essai {

/// Of a wave file: its header announces `taille` bytes of sound, however many there are.
inline std::string annoncant(std::uint32_t taille, std::string octets) {
    return octets.replace(4, 4, entier(36 + taille, 4)).replace(40, 4, entier(taille, 4));
}

/// A wave file of a tone of 440 Hz.
inline std::string son(double secondes, int voies = 1, int bits = 8, std::uint32_t frequence = 8000) {
    std::string donnees;
    for (int i = 0; i < secondes * frequence; ++i) {
        const double x = std::sin(2 * std::numbers::pi * 440 * i / frequence) / 2;
        const int valeur = bits == 8 ? 128 + std::lround(x * 127) : std::lround(x * 32767);
        for (int voie = 0; voie < voies; ++voie)
            donnees += entier(static_cast<std::uint32_t>(valeur), bits / 8);
    }
    return wav(voies, bits, donnees, {}, frequence);
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
