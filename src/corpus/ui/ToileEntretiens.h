#pragma once
#include "corpus/Frise.h"
#include "window/ui/ToileDefilante.h"

#include <array>
#include <vector>

namespace vermo {

class Fenetres;

/// `Frm_entretiens`: the rows of the timeline with their bars. Shows what stands at the scroll; a scroll step
/// lays out the rows in view and nothing else. The current row is EntretienCourant.
///
/// Mouse: switch (click, double click), play button, double click on a name, a click on a bar or an extract
/// chooses its interview, a row dragged by its number, name or switch onto another moves there.
/// What keys do with the current row is the window's commands'.
class ToileEntretiens : public ToileDefilante {
    Q_OBJECT
  public:
    ToileEntretiens(Session& session, Fenetres& fenetres, QWidget* parent);

    /// Looks up what pictures there are, then lays the rows out.
    void redessiner();
    /// Shows nothing, scrolled to the top.
    void vider();

    // For the window's commands; there must be a current row.
    void ouvrirCourant();
    void basculerCourant(bool seul);
    void deplacerCourant(int pas); ///< by so many rows

    VueFrise vue() const;
    int courant() const override { return session_.corpus.EntretienCourant; }
    QString nomDeLigne(int slot) const override;

  protected:
    void noterCourant(int slot) override;
    void disposerPartie(Elements& liste, const Rectangle& partie) const override;
    Twips hauteurSurface() const override;
    std::array<Twips, 2> etendue(int slot) const override;
    bool touche(int touche, Qt::KeyboardModifiers modificateurs) override;

  private:
    int ligneVisee(const Souris& souris) const;
    void presser(const Souris& souris);
    void bouger(const Souris& souris);
    void relacher(const Souris& souris);
    void cliquer(const Element& element, Twips y);
    void doubleCliquer(const Element& element);
    void basculer(int slot, bool seul);
    void deplacer(int source, int cible);
    Rectangle cadreLigne(int slot) const; ///< a whole row, up to halfway to its neighbours
    void ajouterSurlignage(Elements& liste) const;
    void ajouterInsertion(Elements& liste) const;

    Session& session_;
    Fenetres& fenetres_;
    std::vector<Utf8> vues_;
    bool vide_ = true;          ///< nothing is shown before the first redraw
    bool tailleReelle_ = false; ///< as of the last redraw

    // A row that is pressed, and perhaps dragged.
    int source_ = 0, cible_ = 0;
    Twips prise_ = 0;
    bool glisse_ = false;
};

} // namespace vermo
