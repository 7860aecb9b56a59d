#include "app/Formes.h"

#include "audio/ui/FrmVisu.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/FrmIntro.h"
#include "corpus/ui/FrmMenu.h"
#include "textfile/tables.h"
#include "transcription/ui/FrmSaisie.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace vermo {
namespace {

template <class F>
Forme* nouvelle(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* mere) {
    if constexpr (std::is_constructible_v<F, Session&, Plateforme&, Fenetres&, QWidget*>)
        return new F(session, plateforme, fenetres, mere);
    else
        return new F(session, plateforme, fenetres);
}

/// How a window is made. One with a mother lies over it, is disabled with it, and goes before it does.
struct Fabrique {
    Forme* (*faire)(Session&, Plateforme&, Fenetres&, QWidget* mere);
    Fenetre mere; ///< itself: none
};

Fabrique fabriqueDe(Fenetre fenetre) {
    switch (fenetre) {
    case Fenetre::FrmIntro:
        return {nouvelle<FrmIntro>, Fenetre::FrmIntro};
    case Fenetre::FrmCorpus:
        return {nouvelle<FrmCorpus>, Fenetre::FrmCorpus};
    case Fenetre::FrmMenu:
        return {nouvelle<FrmMenu>, Fenetre::FrmMenu};
    case Fenetre::FrmVisu:
        return {nouvelle<FrmVisu>, Fenetre::FrmCorpus};
    case Fenetre::FrmSaisie:
        return {nouvelle<FrmSaisie>, Fenetre::FrmVisu};
    }
    throw std::logic_error("no such window");
}

template <class Table>
auto& placeDe(Table& table, Fenetre fenetre) {
    return ligneDe(table, static_cast<int>(fenetre));
}

} // namespace

Formes::Formes(Session& session, Plateforme& plateforme, Fenetres& fenetres,
               std::function<void(Forme&)> faite)
    : session_(session), plateforme_(plateforme), fenetres_(fenetres), faite_(std::move(faite)) {}

Formes::~Formes() {
    std::for_each(std::rbegin(FENETRES), std::rend(FENETRES), [this](Fenetre fenetre) {
        delete ouverte(fenetre);
        delete placeDe(reserve_, fenetre);
    });
}

Forme* Formes::ouverte(Fenetre fenetre) const {
    return placeDe(formes_, fenetre);
}

Forme* Formes::faire(Fenetre fenetre) {
    const Fabrique fabrique = fabriqueDe(fenetre);
    Forme* mere = fabrique.mere == fenetre ? nullptr : &forme(fabrique.mere);
    Forme* forme = fabrique.faire(session_, plateforme_, fenetres_, mere);
    faite_(*forme);
    return forme;
}

Forme& Formes::forme(Fenetre fenetre) {
    QPointer<Forme>& place = placeDe(formes_, fenetre);
    if (!place) {
        place = std::exchange(placeDe(reserve_, fenetre), nullptr);
        if (place)
            place->setEnabled(true); // it was there when its mother was disabled, and went with it
        else
            place = faire(fenetre);
    }
    return *place;
}

void Formes::mettreEnReserve(Fenetre fenetre) {
    if (ouverte(fenetre) || placeDe(reserve_, fenetre)) return;
    Forme* forme = faire(fenetre);
    placeDe(reserve_, fenetre) = forme;
    forme->preparer();
}

void Formes::decharger(Fenetre fenetre) {
    Forme* forme = std::exchange(placeDe(formes_, fenetre), nullptr);
    if (forme == nullptr) return;
    for (const Fenetre autre : FENETRES)
        if (autre != fenetre && fabriqueDe(autre).mere == fenetre) decharger(autre);
    forme->hide();
    forme->deleteLater();
}

} // namespace vermo
