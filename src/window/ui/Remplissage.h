#pragma once
#include <QPoint>
#include <QRect>
#include <QRgb>
#include <vector>

class QColor;
class QPainter;
class QRectF;

namespace vermo {

/// QPainter::fillRect to the pixel. On a picture in memory narrow bars are filled in a fraction of its time:
/// a corpus has tens of thousands in view. Bars of one height that follow each other wait to be filled line
/// by line, as memory is read fastest.
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
    void remplirLigne(QRgb* ligne) const;

    std::vector<Barre> barres_; ///< that wait
    int haut_ = 0, bas_ = -1;   ///< their lines, the last one included
    QPainter& peintre_;
    QRgb* pixels_ = nullptr; ///< of the picture; null: the painter does it all
    int parLigne_ = 0;       ///< pixels from one line to the next
    QPoint decalage_;        ///< from the painter's origin to the picture's
    QRect limites_;          ///< what may be painted, in the picture
};

} // namespace vermo
