#pragma once
#include "window/ui/Forme.h"

namespace vermo {

/// The closing cross of two halves: the right one quits, the left one minimises. Under the mouse, and by the
/// left and right arrows, one half is chosen; its tooltip says which.
class CroixDouble : public BoutonImage {
    Q_OBJECT
  public:
    /// With the tooltips of its halves.
    CroixDouble(const QString& nom, const QString& reduire, const QString& quitter, QWidget* parent);
    bool gauche() const { return gauche_; } ///< the half that a click means

  protected:
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void choisir(bool gauche);

    QString reduire_, quitter_;
    bool gauche_ = false;
};

} // namespace vermo
