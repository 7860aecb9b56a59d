#include "window/ui/ToileDefilante.h"

#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/LignesAccessibles.h"

#include <QAccessible>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace vermo {
namespace {

constexpr int PAS_LATERAUX = 8; ///< steps sideways to the width of a view

} // namespace

ToileDefilante::ToileDefilante(const QString& nom, QWidget* parent) : Toile(nom, parent) {
    installerLignesAccessibles();
    setFocusPolicy(Qt::StrongFocus);
    surMolette = [this](int crans, Qt::KeyboardModifiers avec) { tournerMolette(crans, avec); };
}

void ToileDefilante::lignes(Rangs lignes) {
    lignes_ = std::move(lignes);
}

void ToileDefilante::fixer(Twips largeur, Twips hauteur) {
    fixe_ = {qRound(enPixels(largeur)), qRound(enPixels(hauteur))};
    disposer();
}

void ToileDefilante::disposer() {
    listeAJour_ = false;
    aPeindre_ = rect();
    update();
}

// The scroll.

void ToileDefilante::defiler(Twips gauche, Twips haut) {
    const double pas = TWIPS_PAR_PIXEL / devicePixelRatioF();
    const auto tenir = [pas](Twips voulu, Twips excedent) {
        return std::round(std::clamp(voulu, 0.0, std::max(excedent, 0.0)) / pas) * pas;
    };
    gauche_ = tenir(gauche, largeurSurface() - largeurTwips());
    haut_ = tenir(haut, hauteurSurface() - hauteurTwips());
    decalage(gauche_, haut_);
    listeAJour_ = false;
    if (surDefilement) surDefilement();
}

void ToileDefilante::tournerMolette(int crans, Qt::KeyboardModifiers modificateurs) {
    if (modificateurs & Qt::ShiftModifier && largeurSurface() > largeurTwips())
        return defiler(gauche_ - crans * largeurTwips() / PAS_LATERAUX, haut_);
    const int premiere = std::clamp(lignes_.a(haut_ + enTwips(fixe_.height())), 1, lignes_.nombre());
    if (premiere < 1) return;
    const Twips pas = lignes_.fin(premiere) - lignes_.debut(premiere);
    defiler(haut_ - crans * std::min(pas, hauteurTwips() / 2));
}

bool ToileDefilante::defilerDeCote(int touche) {
    if (largeurSurface() <= largeurTwips() || (touche != Qt::Key_Left && touche != Qt::Key_Right))
        return false;
    defiler(gauche_ + (touche == Qt::Key_Right ? 1 : -1) * largeurTwips() / PAS_LATERAUX, haut_);
    return true;
}

void ToileDefilante::amenerEnVue(std::array<Twips, 2> etendue) {
    const Twips enHaut = etendue[0] - enTwips(fixe_.height()), enBas = etendue[1] - hauteurTwips();
    defiler(std::clamp(haut_, std::min(enHaut, enBas), std::max(enHaut, enBas)));
}

void ToileDefilante::resizeEvent(QResizeEvent* evenement) {
    Toile::resizeEvent(evenement);
    disposer();
    defiler(haut_);
}

// The current row.

void ToileDefilante::choisir(int rang) {
    if (rang < 1 || rang > lignes_.nombre()) return;
    const int avant = courant();
    noterCourant(rang);
    repeindreLigne(avant);
    repeindreLigne(rang);
    direCourant();
    amenerEnVue(etendue(rang));
}

void ToileDefilante::direCourant() {
    if (!QAccessible::isActive() || !hasFocus()) return;
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(courant() - 1);
    QAccessible::updateAccessibility(&focus);
}

int ToileDefilante::ligneVisee(int touche) const {
    const int ici = courant(), depuis = std::clamp(ici, 1, lignes_.nombre());
    const Twips vue = hauteurTwips() - enTwips(fixe_.height());
    const auto vers = [this](int rang) { return std::clamp(rang, 1, lignes_.nombre()); };
    switch (touche) {
    case Qt::Key_Up:
        return vers(ici - 1);
    case Qt::Key_Down:
        return vers(ici + 1);
    case Qt::Key_PageUp:
        return vers(ici - lignes_.page(depuis, vue, -1));
    case Qt::Key_PageDown:
        return vers(ici + lignes_.page(depuis, vue, 1));
    case Qt::Key_Home:
        return 1;
    case Qt::Key_End:
        return lignes_.nombre();
    default:
        return 0;
    }
}

bool ToileDefilante::touche(int touche, Qt::KeyboardModifiers) {
    const int visee = ligneVisee(touche);
    if (visee == 0) return defilerDeCote(touche);
    choisir(visee);
    return true;
}

void ToileDefilante::keyPressEvent(QKeyEvent* evenement) {
    bool prise = false;
    if (lignes_.nombre() > 0)
        garderPour(this, [&] { prise = touche(evenement->key(), evenement->modifiers()); });
    if (!prise) Toile::keyPressEvent(evenement);
}

void ToileDefilante::focusInEvent(QFocusEvent* evenement) {
    Toile::focusInEvent(evenement);
    repeindreLigne(courant());
}

void ToileDefilante::focusOutEvent(QFocusEvent* evenement) {
    Toile::focusOutEvent(evenement);
    repeindreLigne(courant());
}

} // namespace vermo
