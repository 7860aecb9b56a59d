#pragma once
#include <QPoint>
#include <QRect>
#include <QRgb>

class QColor;
class QPainter;
class QRectF;

namespace vermo {

/// QPainter::fillRect to the pixel. On a picture in memory narrow bars are filled in a fraction of its time:
/// a corpus has tens of thousands in view.
class Remplissage {
  public:
    /// The painter keeps its place and its clip as long as this lives.
    explicit Remplissage(QPainter& peintre);

    /// `cadre` has its edges at device pixels.
    void remplir(const QRectF& cadre, const QColor& couleur);

  private:
    QPainter& peintre_;
    QRgb* pixels_ = nullptr; ///< of the picture; null: the painter does it all
    int parLigne_ = 0;       ///< pixels from one line to the next
    QPoint decalage_;        ///< from the painter's origin to the picture's
    QRect limites_;          ///< what may be painted, in the picture
};

} // namespace vermo
