#pragma once
#include "formats/EnTeteWav.h"
#include "platform/Dialogues.h"
#include "textfile/fichier.h"
#include "textfile/texte.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

/// Wave files, read by position: a header of 44 bytes, the "data" tag, and one small read a point. A file is
/// never read whole, so an hour opens as fast as a minute.
namespace vermo {

/// True for a name that ends in "WAV", in any case: the only recordings whose samples are read.
bool estWav(const Utf8& nom);

/// The header of a recording that is to be brought in. A missing file, or a name that is not a wave file's:
/// one message, and a zeroed record. A read that fails half-way gives what was read so far, without a word.
EnTeteWav LireEnteteWav(const Utf8& nom, Dialogues& dialogues);

/// The same without a word, for drawing.
EnTeteWav sonderEnteteWav(const Utf8& nom);

/// The record with what drawing takes for missing figures: 1 channel, 16 bits.
EnTeteWav avecDefauts(EnTeteWav entete);

/// An open recording. Its reads never fault: beyond the end of the file, or once it is gone, they give
/// nothing.
class FichierOnde {
  public:
    /// Throws FauteExecution with the cause when the file can't be opened or is no plain file.
    explicit FichierOnde(const Utf8& nom) : source_(nom) {}

    /// Reads at a position counted from 1. Gives the number of bytes read, 0 when there are none.
    std::size_t lire(std::int64_t position, void* octets, std::size_t taille) const noexcept;

    std::int64_t taille() const noexcept { return source_.taille(); } ///< bytes

    /// Tells the system that these bytes are to be read soon; waits for nothing.
    void annoncer(std::int64_t position, std::size_t taille) const noexcept;

  private:
    Source source_;
};

/// Where the samples begin. Positions count from 1.
struct LieuDonnees {
    std::int32_t TailleData = 0; ///< bytes of samples, as the file says
    std::int64_t PosDonnees = 4; ///< of the 4-byte size; the first sample lies 4 bytes further
    bool operator==(const LieuDonnees&) const = default;
};

/// Searches the first "data" in the first 255 bytes. When there is none the size is read at position 4:
/// wrong, told to nobody, and harmless, since reads outside the file give nothing.
LieuDonnees localiserDonnees(const FichierOnde& fichier);

/// Why the wave of a recording can't be drawn from its bytes, for people; empty when it can. A wave is drawn
/// from PCM samples of 8 or 16 bits that stand where the header's 44 bytes and the first "data" say; of any
/// other file, that would be a picture of noise. A file that says up to 44 bytes of samples too many, those
/// of its header, is let pass.
Utf8 refusOnde(const FichierOnde& fichier);

/// What of a recording a picture shows.
struct Empan {
    double debut = 0; ///< fraction of the file, 0 to 1
    double part = 1;  ///< fraction that the picture covers
};

/// How points are read: `PosDonnees` of the first, and the bytes between two.
struct PasLecture {
    std::int64_t PosDonnees = 0, PasOctets = 0;
    bool operator==(const PasLecture&) const = default;
};

/// With 16 bits the step is made even, and the position odd: positions count from 1, so every read lies on an
/// even byte of the file. `largeur` in points.
PasLecture pasDeLecture(const LieuDonnees& lieu, const EnTeteWav& entete, const Empan& empan, long largeur);

/// The points of one picture: the first channel from index 0, the second from index LargeurCible. 16-bit
/// samples go to `points`, 8-bit ones to `octets`; conversion leaves Y coordinates in `points`.
struct PointsOnde {
    std::vector<std::int16_t> points;
    std::vector<std::uint8_t> octets;
    void allouer(std::size_t nombre); ///< all zero
};

/// Called every 360 points with the number of points read.
using AvanceLecture = std::function<void(long)>;

/// Reads one sample a point, and the sample behind it into the second row, for points 0 to `largeur` - 2. A
/// point that lies beyond the end of the file keeps its value. Grows `points` where it is too small.
void lirePoints(const FichierOnde& fichier, const EnTeteWav& entete, const Empan& empan, long largeur,
                PointsOnde& points, const AvanceLecture& avance = {});

} // namespace vermo
