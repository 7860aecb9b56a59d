#pragma once
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>

namespace vermo::essai {

inline std::string petitBoutiste(std::uint32_t valeur, int octets) {
    std::string resultat;
    for (int i = 0; i < octets; ++i)
        resultat += static_cast<char>(valeur >> 8 * i);
    return resultat;
}

struct FormatWav {
    int bits = 8, voies = 1, frequence = 8000;
};

/// A wave file around `donnees`, whose header announces `annoncees` bytes of them (-1: as many as there are).
inline std::string wav(const std::string& donnees, const FormatWav& f, long annoncees = -1) {
    const auto taille =
        static_cast<std::uint32_t>(annoncees < 0 ? static_cast<long>(donnees.size()) : annoncees);
    const auto bloc = static_cast<std::uint32_t>(f.bits / 8 * f.voies);
    const auto frequence = static_cast<std::uint32_t>(f.frequence);
    return "RIFF" + petitBoutiste(36 + taille, 4) + "WAVEfmt " + petitBoutiste(16, 4) + petitBoutiste(1, 2) +
           petitBoutiste(static_cast<std::uint32_t>(f.voies), 2) + petitBoutiste(frequence, 4) +
           petitBoutiste(frequence * bloc, 4) + petitBoutiste(bloc, 2) +
           petitBoutiste(static_cast<std::uint32_t>(f.bits), 2) + "data" + petitBoutiste(taille, 4) + donnees;
}

/// A tone of 440 Hz.
inline std::string son(double secondes, const FormatWav& f = {}) {
    std::string donnees;
    for (int i = 0; i < secondes * f.frequence; ++i) {
        const double x = std::sin(2 * std::numbers::pi * 440 * i / f.frequence) / 2;
        const int valeur = f.bits == 8 ? 128 + std::lround(x * 127) : std::lround(x * 32767);
        for (int voie = 0; voie < f.voies; ++voie)
            donnees += petitBoutiste(static_cast<std::uint32_t>(valeur), f.bits / 8);
    }
    return donnees;
}

/// `trames` silent MP3 frames of 1152 samples at 44.1 kHz; every third has a higher bit rate than the others,
/// and no tag says so. `annoncees` above 0 puts a tag before them that announces so many.
inline std::string mp3(int trames, int annoncees = 0) {
    const auto trame = [](char debit, std::size_t octets) {
        std::string t("\xFF\xFB", 2);
        t += debit;
        t += '\xC4';
        return t + std::string(octets - 4, '\0');
    };
    std::string resultat;
    if (annoncees > 0) {
        std::string etiquette = trame('\x90', 417);
        etiquette.replace(21, 4, "Xing");
        etiquette[28] = 1; // the number of frames follows, high byte first
        etiquette[31] = static_cast<char>(annoncees & 255);
        etiquette[30] = static_cast<char>(annoncees >> 8);
        resultat = etiquette;
    }
    for (int i = 0; i < trames; ++i)
        resultat += i % 3 == 2 ? trame('\xB0', 626) : trame('\x50', 208);
    return resultat;
}

} // namespace vermo::essai
