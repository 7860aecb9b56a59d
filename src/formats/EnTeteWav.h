#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace vermo {

/// The canonical 44-byte header of a wave file, fields at their fixed offsets whatever the file really holds.
struct EnTeteWav {
    std::string Riff;
    std::int32_t TailleRiff = 0;
    std::string Wave;
    std::string Fmt;
    std::int32_t TailleFmt = 0;
    std::int16_t Format = 0; ///< 1: plain PCM
    std::int16_t NbCanaux = 0;
    std::int32_t Frequence = 0; ///< samples a second
    std::int32_t OctetsParSeconde = 0;
    std::int16_t AlignementBloc = 0;
    std::int16_t BitsParEchantillon = 0;
    std::string Data;
    std::int32_t TailleDonnees = 0;
    bool operator==(const EnTeteWav&) const = default;
};

/// Little endian, from the first bytes of a file. Fields beyond the end of a short file stay zero.
EnTeteWav lireEnTeteWav(std::string_view octets);

} // namespace vermo
