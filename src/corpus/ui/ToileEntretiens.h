#pragma once
#include "corpus/Frise.h"
#include "window/ui/Toile.h"

#include <QRegion>

namespace vermo {

class Fenetres;

/// `Frm_entretiens`: the rows of the timeline with their bars. Shows what stands at the scroll; a scroll step
/// lays out the rows in view and nothing else.
///
/// Mouse: switch (click, double click), play button, double click on a name, a click on a bar or an extract
/// chooses its interview, a row dragged by its number, name or switch onto another moves there.
/// Keys: arrows, page keys, Home and End choose a row; Enter opens it; Space switches it, Shift+Space leaves
/// it alone on; Alt with an arrow moves it.
class ToileEntretiens : public Toile {
    Q_OBJECT
  public:
    ToileEntretiens(Session& session, Fenetres& fenetres, QWidget* parent);

    /// Looks up what pictures there are, then lays the rows out.
    void redessiner();
    /// Shows the rows in view anew, from the Session.
    void disposer();
    using Toile::elements;
    const Elements& elements() const override; ///< of the view
    /// Shows nothing, scrolled to the top.
    void vider();

    VueFrise vue() const;
    void defiler(Twips voulu);           ///< held within what there is
    std::function<void()> surDefilement; ///< the scroll or the surface's height changed

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    int ligneVisee(const Souris& souris) const;
    void presser(const Souris& souris);
    void bouger(const Souris& souris);
    void relacher(const Souris& souris);
    void cliquer(const Element& element, Twips y);
    void doubleCliquer(const Element& element);
    bool touche(int touche, Qt::KeyboardModifiers modificateurs);
    int slotVise(int touche) const; ///< the row that an arrow or page key leads to; 0: no such key
    void choisir(int slot);
    void amenerEnVue(int slot);
    void basculer(int slot, bool seul);
    void deplacer(int source, int cible);
    /// The items that meet the heights between `haut` and `bas`.
    void disposerEntre(Elements& liste, Twips haut, Twips bas) const;
    Rectangle cadreLigne(int slot) const; ///< a whole row, up to halfway to its neighbours
    void repeindreLigne(int slot);
    void actualiserVue();
    QRect glisserVue(); ///< the part of the picture that is to be painted after it, pixels
    void ajouterSurlignage(Elements& liste) const;
    void ajouterInsertion(Elements& liste) const;

    Session& session_;
    Fenetres& fenetres_;
    std::vector<Utf8> vues_;
    std::vector<IdentiteFichier> identites_; ///< of vues_
    bool vide_ = true;                       ///< nothing is shown before the first redraw
    bool tailleReelle_ = false;              ///< as of the last redraw
    Twips defile_ = 0;                       ///< whole pixels of the screen
    mutable Elements liste_;                 ///< what elements() gives
    mutable bool listeAJour_ = false;

    QImage peinte_;  ///< the view as it was painted
    Elements bande_; ///< the strip being painted
    Twips defilePeinte_ = 0;
    QRegion aPeindre_; ///< of peinte_, pixels

    // A row that is pressed, and perhaps dragged.
    int source_ = 0, cible_ = 0;
    Twips prise_ = 0;
    bool glisse_ = false;
};

} // namespace vermo
