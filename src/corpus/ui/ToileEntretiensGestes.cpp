#include "corpus/Panneaux.h"
#include "corpus/ui/ToileEntretiens.h"
#include "window/Fenetres.h"
#include "window/ui/Glace.h"

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <utility>

namespace vermo {
namespace {

/// The controls by which a row is dragged.
bool poignee(Controle controle) {
    return controle == Controle::ImgOnOff || controle == Controle::lblfich || controle == Controle::lblpiste;
}

} // namespace

/// Beside the columns that a row is dragged by, letting go changes nothing.
int ToileEntretiens::ligneVisee(const Souris& souris) const {
    const bool colonnes = souris.x >= 0 && souris.x < TAILLES_FRISE.gaucheImgEnt;
    return colonnes ? slotSous(session_, souris.y) : 0;
}

void ToileEntretiens::presser(const Souris& souris) {
    glisse_ = false;
    source_ = cible_ = 0;
    if (souris.bouton != Qt::LeftButton || !souris.element || !poignee(souris.element->controle)) return;
    source_ = souris.element->index;
    prise_ = souris.y;
}

void ToileEntretiens::bouger(const Souris& souris) {
    setCursor(glisse_ ? Qt::ClosedHandCursor : souris.element ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (source_ == 0) return;
    if (!glisse_ && std::abs(souris.y - prise_) < enTwips(QApplication::startDragDistance())) return;
    glisse_ = true;
    session_.corpus.LigneSource = static_cast<std::int16_t>(source_);
    const int avant = std::exchange(cible_, ligneVisee(souris));
    const bool auDessus = souris.y<defilement(), auDessous = souris.y> defilement() + hauteurTwips();
    defiler(defilement() + (auDessous - auDessus) * static_cast<Twips>(session_.corpus.HauteurEntretien));
    if (cible_ != avant) disposer();
}

void ToileEntretiens::relacher(const Souris&) {
    const int source = std::exchange(source_, 0), cible = std::exchange(cible_, 0);
    if (!glisse_) return;
    setCursor(Qt::ArrowCursor);
    disposer();
    if (cible == 0 || cible == source) return;
    session_.corpus.LigneCible = static_cast<std::int16_t>(cible);
    fenetres_.DeplacerEntretien(source, cible);
}

void ToileEntretiens::cliquer(const Element& element, Twips y) {
    switch (element.controle) {
    case Controle::ImgOnOff:
        return basculer(element.index, false);
    case Controle::ImgPlay:
        return fenetres_.montrer(Fenetre::FrmVisu, EntretienVoulu{element.index, Ouverture::AvecFondu});
    case Controle::ImgEnt:
        return choisir(element.index);
    case Controle::Lblthm:
        return choisir(slotSous(session_, y));
    default:
        return;
    }
}

void ToileEntretiens::doubleCliquer(const Element& element) {
    if (element.controle == Controle::ImgOnOff)
        basculer(element.index, true);
    else if (element.controle == Controle::lblfich)
        fenetres_.montrer(Fenetre::FrmVisu, EntretienVoulu{element.index, Ouverture::SansFondu});
}

void ToileEntretiens::basculer(int slot, bool seul) {
    seul ? isolerEntretien(session_.corpus, slot) : basculerEntretien(session_.corpus, slot);
    fenetres_.annoncer({Sujet::Bascules});
}

void ToileEntretiens::noterCourant(int slot) {
    session_.corpus.EntretienCourant = static_cast<std::int16_t>(slot);
    setAccessibleDescription(nomDeLigne(slot));
}

QString ToileEntretiens::nomDeLigne(int slot) const {
    return versQt(entretienDe(session_.corpus, slot).Fichier);
}

/// A row moved by the keys stays chosen, so that it can be moved on.
void ToileEntretiens::deplacer(int source, int cible) {
    if (source == 0 || cible < 1 || cible > nombreLignes(session_.corpus)) return;
    session_.corpus.LigneSource = static_cast<std::int16_t>(source);
    session_.corpus.LigneCible = static_cast<std::int16_t>(cible);
    fenetres_.DeplacerEntretien(source, cible);
    choisir(cible);
}

void ToileEntretiens::ouvrirCourant() {
    fenetres_.montrer(Fenetre::FrmVisu, EntretienVoulu{courant(), Ouverture::AvecFondu});
}

void ToileEntretiens::basculerCourant(bool seul) {
    basculer(courant(), seul);
}

void ToileEntretiens::deplacerCourant(int pas) {
    deplacer(courant(), courant() + pas);
}

/// Alt with an arrow moves a row: where none is current, it chooses none either.
bool ToileEntretiens::touche(int touche, Qt::KeyboardModifiers modificateurs) {
    return !(modificateurs & Qt::AltModifier) && ToileDefilante::touche(touche, modificateurs);
}

} // namespace vermo
