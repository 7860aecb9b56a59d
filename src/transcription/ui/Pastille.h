#pragma once
#include "window/Element.h"

#include <QAbstractButton>

namespace vermo {

/// One swatch of colour (LblCoulThm) for a new thematic.
class Pastille : public QAbstractButton {
    Q_OBJECT
  public:
    Pastille(int index, Couleur couleur, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    Couleur couleur_;
};

} // namespace vermo
