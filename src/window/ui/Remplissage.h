#pragma once
#include <QPoint>
#include <QRect>
#include <QRgb>
#include <cstddef>
#include <vector>

class QColor;
class QPainter;
class QRectF;

namespace vermo {

/// QPainter::fillRect to the pixel. On a picture in memory narrow bars are filled in a fraction of its time:
/// a corpus has tens of thousands in view. Bars of one height that follow each other wait, and are then
/// filled line by line, many pixels at once.
class Remplissage {
  public:
    /// The painter keeps its place and its clip as long as this lives.
    explicit Remplissage(QPainter& peintre);
    ~Remplissage() { finir(); }
    Remplissage(const Remplissage&) = delete;
    Remplissage& operator=(const Remplissage&) = delete;

    /// `cadre` has its edges at device pixels.
    void remplir(const QRectF& cadre, const QColor& couleur);
    /// Fills what waits: to be called before anything else is painted.
    void finir();

  private:
    struct Barre {
        int gauche, droite; ///< pixels of the picture, the last one included
        QRgb encre;         ///< premultiplied
    };
    /// One bar at most for each pixel of a line: its ink, and what it leaves of what stands there, each byte
    /// for its own, 255 for all of it.
    struct Couche {
        std::vector<QRgb> encres, restes;
        std::size_t debut, fin; ///< of the pixels that have one
    };
    std::size_t empiler();
    void commencer(std::size_t k, std::size_t x);

    std::vector<Barre> barres_;     ///< that wait
    std::vector<Couche> couches_;   ///< of the same
    std::vector<std::size_t> pile_; ///< how many layers have a bar at each pixel
    int gauche_ = 0;                ///< pixel of the picture at which layers and pile begin
    int haut_ = 0, bas_ = -1;       ///< their lines, the last one included
    QPainter& peintre_;
    QRgb* pixels_ = nullptr; ///< of the picture; null: the painter does it all
    int parLigne_ = 0;       ///< pixels from one line to the next
    QPoint decalage_;        ///< from the painter's origin to the picture's
    QRect limites_;          ///< what may be painted, in the picture
};

} // namespace vermo
