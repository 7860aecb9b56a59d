#pragma once
#include "window/Element.h"

#include <QImage>
#include <QWidget>
#include <functional>

namespace vermo {

/// What the mouse did on a canvas.
struct Souris {
    Twips x, y;             ///< in the surface
    Qt::MouseButton bouton; ///< NoButton for a plain move
    Qt::KeyboardModifiers touches;
    QPoint ecran;           ///< pixels of the screen
    const Element* element; ///< on top under the mouse, nullptr for none; valid until the list is replaced
};

/// The canvas: paints the visible part of a list of items over a ground (a colour, a picture, rulers, a
/// waveform), and finds what the mouse hit. Knows nothing of what the items mean.
///
/// Coordinates of items and rulers are twips of the surface; the canvas shows the part that starts at
/// `decalage`. The ground's picture always fills the canvas.
///
/// A caption stands on one line in the height's middle, or from the top down where the item is two lines high
/// or more; a carriage return starts a new line. It is cut with "…" where the item is too narrow.
///
/// Keys are left to the window. Faults of the callbacks go to the guard of the window.
class Toile : public QWidget {
    Q_OBJECT
  public:
    explicit Toile(const QString& nom, QWidget* parent = nullptr); ///< objectName and accessible name

    void fond(Couleur couleur);
    /// A picture stretched over the canvas, under everything; null for none.
    void image(const QImage& image);
    const QImage& image() const { return image_; }
    /// Lines and texts of a ruler, over the picture.
    void dessin(Dessin dessin);
    /// The items, in drawing order.
    void elements(Elements elements);
    /// A canvas of many items may lay them out only here, when they are asked for.
    virtual const Elements& elements() const { return elements_; }
    /// One item for changing in place, nullptr for none; the caller then repaints its part (`repeindre`).
    /// Items on top are found first.
    Element* modifiable(Controle controle, int index = 0);
    void decalage(Twips x, Twips y);

    /// Where a part of the surface stands in the canvas as it is scrolled now.
    virtual Rectangle dansLaToile(const Rectangle& partie) const {
        return {partie.gauche - decalageX_, partie.haut - decalageY_, partie.largeur, partie.hauteur};
    }

    Twips largeurTwips() const;
    Twips hauteurTwips() const;

    /// Repaints one part of the surface only, after a change of the items in it.
    virtual void repeindre(const Rectangle& partie);

    /// Paints ground and items onto any device, as on the screen; `zone` in pixels of the canvas.
    virtual void peindre(QPainter& peintre, const QRectF& zone);

    // What the window does of the mouse. A click is a press and a release of the left button on the same item
    // (or on none both times); it follows the release. A double click comes instead of the second press where
    // the window asks for it, and makes no click of its own.
    std::function<void(const Souris&)> surPression, surMouvement, surRelachement, surClic, surDoubleClic;
    std::function<void(int crans, Qt::KeyboardModifiers)>
        surMolette; ///< notches, positive away from the person
    std::function<void()> surSortie;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    bool event(QEvent* evenement) override; ///< tooltips of items

    virtual QPointF surface(QPointF pixels) const; ///< twips
    /// Paints `elements` (those that meet `zone` are enough) where `origine`, twips of the surface, stands in
    /// the canvas's corner.
    void peindre(QPainter& peintre, const QRectF& zone, const Elements& elements, QPointF origine);

  private:
    struct Presse {
        Controle controle = Controle::Aucun;
        int index = 0;
        bool tenue = false;
    };

    Souris souris(QMouseEvent* evenement) const;
    void appeler(const std::function<void(const Souris&)>& action, QMouseEvent* evenement);
    void peindreFond(QPainter& peintre, const QRectF& zone);
    void montrerBulle(QPoint ici, QPoint ecran);

    Couleur fond_;
    QImage image_, imageAjustee_;
    Dessin dessin_;
    Elements elements_;
    Twips decalageX_ = 0, decalageY_ = 0;
    Presse presse_;
    int molette_ = 0; ///< eighths of a degree not told yet
};

} // namespace vermo
