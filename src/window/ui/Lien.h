#pragma once
#include "window/Element.h"

#include <QAbstractButton>

namespace vermo {

/// A line of text that is pressed: a list entry, a menu title, a command. Underlined and filled while the
/// mouse or the focus is on it, and of its neighbours only one at a time. Reached by Tab, pressed by Space
/// and Enter; its text is its accessible name. A text too long for its width is shortened in the middle and
/// shown whole as its tooltip.
class Lien : public QAbstractButton {
    Q_OBJECT
  public:
    /// `texte` is taken as it stands: no character of it makes a shortcut. Blanks in front of it make room
    /// for an icon.
    Lien(const QString& nom, const QString& texte, QWidget* parent, int corps = 10);

    void encre(Couleur couleur);
    Couleur encre() const { return encre_; }
    bool souligne() const { return souligne_; }
    QSize sizeHint() const override;

    /// Underlines `choisi` alone among the lines of `parent`; nullptr: none.
    static void soulignerSeul(QWidget* parent, Lien* choisi);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    int retrait() const; ///< pixels

    Couleur encre_;
    bool souligne_ = false;
};

} // namespace vermo
