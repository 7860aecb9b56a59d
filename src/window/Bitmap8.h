#pragma once
#include "window/Element.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vermo {

/// A picture of 8 bits a pixel with a palette: what waveforms are drawn on and kept as. Pixels are device
/// pixels, row 0 on top.
class Bitmap8 {
  public:
    /// All pixels of the palette's colour `fond`. Throws FauteExecution when a side is below 1 or above
    /// 32767, or the palette holds no colour or more than 256.
    Bitmap8(int largeur, int hauteur, std::vector<Couleur> palette, std::uint8_t fond);

    int largeur() const { return largeur_; }
    int hauteur() const { return hauteur_; }
    const std::vector<Couleur>& palette() const { return palette_; }
    std::uint8_t pixel(int x, int y) const { return pixels_[place(x, y)]; }
    void pixel(int x, int y, std::uint8_t indice) { pixels_[place(x, y)] = indice; }

    /// The palette indices of one row, one byte a pixel.
    std::string_view octetsRangee(int y) const;
    /// One row in one colour.
    void rangee(int y, std::uint8_t indice);
    /// Column `x` from y1 to y2, both included, in either order; what lies outside is cut off.
    void colonne(int x, int y1, int y2, std::uint8_t indice);

  private:
    std::size_t place(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(largeur_) + static_cast<std::size_t>(x);
    }
    int largeur_, hauteur_;
    std::vector<Couleur> palette_;
    std::vector<std::uint8_t> pixels_;
};

/// Draws connected lines that run to the right in steps of at most a few pixels, as waveforms do. What falls
/// into one column is one run of pixels, so a column is painted once, however many points lie in it.
class Traceur {
  public:
    Traceur(Bitmap8& image, std::uint8_t indice) : image_(image), indice_(indice) {}
    ~Traceur() { vider(); }
    Traceur(const Traceur&) = delete;
    Traceur& operator=(const Traceur&) = delete;

    /// From (x1, y1) to (x2, y2), pixels with fractions, x1 <= x2.
    void ligne(double x1, double y1, double x2, double y2);

  private:
    void toucher(int x, double y);
    void vider();

    Bitmap8& image_;
    std::uint8_t indice_;
    int colonne_ = -1;
    int haut_ = 0, bas_ = 0;
};

/// The bytes of a .Bmp file of 8 bits a pixel: it loads five times faster than one of 32.
std::string ecrireBmp(const Bitmap8& image);

} // namespace vermo
