#pragma once
#include "window/Element.h"
#include "window/ui/Remplissage.h"
#include "window/ui/Theme.h"

#include <QRectF>

class QPainter;

namespace vermo {

/// Paints items one after the other, leaving out what doesn't meet the exposed zone: 40,000 bars in a few ms.
class PeintreElements {
  public:
    /// The painter's unit is the logical pixel, its origin that of the surface; `zone` is in those pixels.
    PeintreElements(QPainter& peintre, const QRectF& zone);

    void peindre(const Element& element);

  private:
    QRectF auPixel(const Rectangle& cadre) const; ///< edges at device pixels; at least one wide and high
    void border(const QRectF& cadre, Couleur couleur);
    void ecrire(const Element& element, const QRectF& cadre);
    void ecrireLigne(const Element& element, const QRectF& cadre, std::string_view ligne, double haut);
    void choisirPolice(const Element& element);

    QPainter& peintre_;
    Remplissage remplissage_;
    Rectangle zone_; ///< twips
    double ratio_;   ///< device pixels to the logical one
    MetriquesQt metriques_;
    int police_ = -1; ///< which font the painter holds
};

} // namespace vermo
