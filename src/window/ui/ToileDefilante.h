#pragma once
#include "window/Rangs.h"
#include "window/ui/Toile.h"

#include <QRegion>
#include <array>

namespace vermo {

/// A canvas that shows part of a larger surface of rows: scrolls in both directions, can hold a first row and
/// a first column in place, has a current row, and tells its rows to screen readers as they are asked for.
///
/// A subclass says what meets a part of the surface; what was painted is kept, slid by a scroll, and painted
/// anew only in strips. What changes without a scroll is told by `disposer` (all of it) or `repeindre`.
///
/// Keys: up, down, page keys, Home and End choose a row; left and right scroll a surface that is wider. The
/// wheel scrolls, with Shift sideways.
class ToileDefilante : public Toile {
    Q_OBJECT
  public:
    explicit ToileDefilante(const QString& nom, QWidget* parent = nullptr);

    void disposer(); ///< everything in view is laid out and painted anew
    using Toile::elements;
    const Elements& elements() const override; ///< of the view
    using Toile::peindre;
    void peindre(QPainter& peintre, const QRectF& zone) override;
    void repeindre(const Rectangle& partie) override;
    Rectangle dansLaToile(const Rectangle& partie) const override;

    Twips defilement() const { return haut_; }
    Twips defilementLateral() const { return gauche_; }
    void defiler(Twips haut) { defiler(gauche_, haut); } ///< held within what there is, to whole pixels
    void defiler(Twips gauche, Twips haut);
    std::function<void()> surDefilement; ///< the scroll or the surface's size changed

    const Rangs& lignes() const { return lignes_; }
    virtual int courant() const = 0;                ///< the current row; 0: none
    virtual QString nomDeLigne(int rang) const = 0; ///< for screen readers
    int ligneSous(QPoint pixels) const { return lignes_.a(surface(pixels).y()); } ///< as Rangs::a
    /// Makes a row the current one and brings it into view; nothing where there is no such row.
    void choisir(int rang);

  protected:
    void lignes(Rangs lignes);
    void fixer(Twips largeur, Twips hauteur); ///< first column and first row that stay; 0: none
    virtual void noterCourant(int rang) = 0;
    /// Appends the items that meet a part of the surface.
    virtual void disposerPartie(Elements& liste, const Rectangle& partie) const = 0;
    virtual Twips largeurSurface() const { return largeurTwips(); }
    virtual Twips hauteurSurface() const { return lignes_.total(); }
    /// What is brought into view with a row: its top and bottom.
    virtual std::array<Twips, 2> etendue(int rang) const { return {lignes_.debut(rang), lignes_.fin(rang)}; }
    /// False: the key is the window's.
    virtual bool touche(int touche, Qt::KeyboardModifiers modificateurs);

    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    QPointF surface(QPointF pixels) const override;

  private:
    /// One of the four parts that the held row and column make: its pixels, and how far it is scrolled.
    struct Quartier {
        QRect zone;
        Twips gauche, haut;
    };
    std::array<Quartier, 4> quartiers() const;
    void repeindreLigne(int rang);
    void amenerEnVue(std::array<Twips, 2> etendue);
    int ligneVisee(int touche) const; ///< the row that a key leads to; 0: no such key
    bool defilerDeCote(int touche);
    void tournerMolette(int crans, Qt::KeyboardModifiers modificateurs);
    void direCourant();
    void actualiserVue();
    QRegion glisserVue(); ///< the part of the picture that is to be painted after it, pixels

    Rangs lignes_;
    QSize fixe_{0, 0};            ///< pixels
    Twips gauche_ = 0, haut_ = 0; ///< whole pixels of the screen
    mutable Elements liste_;      ///< what elements() gives
    mutable bool listeAJour_ = false;

    QImage peinte_;  ///< the view as it was painted
    Elements bande_; ///< the strip being painted
    Twips gauchePeinte_ = 0, hautPeint_ = 0;
    QRegion aPeindre_; ///< of peinte_, pixels
};

} // namespace vermo
