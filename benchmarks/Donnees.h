#pragma once
#include <string>

/// Generated data, of fixed seeds, made once and kept under the benchmarks' directory.
namespace bancs {

/// A 16-bit stereo WAV at 44.1 kHz of `heures` hours: noise under a slow swell. Returns its path.
std::string ondeDe(const std::string& donnees, int heures);

/// A corpus of `entretiens` interviews with `extraits` extracts of some 60 words each, eight thematics, tiny
/// recordings, and pictures for the first forty. Returns the path of its .Crp.
std::string corpusDe(const std::string& donnees, int entretiens, int extraits);

/// A corpus of one interview, "Entretien.wav", whose recording is `ondeDe(donnees, 1)`, with 120 extracts and
/// without a picture. Returns the path of its .Crp.
std::string corpusDUneHeure(const std::string& donnees);

} // namespace bancs
