#include "corpus/ui/ToileThematiques.h"

#include "corpus/Panneaux.h"
#include "window/Fenetres.h"
#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QKeyEvent>
#include <algorithm>

namespace vermo {

ToileThematiques::ToileThematiques(Session& session, Fenetres& fenetres, QWidget* parent)
    : Toile(QStringLiteral("Frm_thm"), parent), session_(session), fenetres_(fenetres) {
    setAccessibleName(QStringLiteral("Thématiques"));
    setFocusPolicy(Qt::StrongFocus);
    surPression = [this](const Souris& s) {
        if (!s.element || s.element->controle != Controle::LblCoul) return;
        if (s.bouton == Qt::LeftButton || s.bouton == Qt::RightButton)
            basculer(s.element->index, s.bouton == Qt::RightButton);
    };
    surMouvement = [this](const Souris& s) {
        setCursor(s.element ? Qt::PointingHandCursor : Qt::ArrowCursor);
    };
}

void ToileThematiques::disposer() {
    Elements liste = disposerThematiques(session_, largeurTwips(), hauteurTwips(), Legende::Corpus);
    const auto choisie = std::find_if(liste.begin(), liste.end(), [this](const Element& e) {
        return e.controle == Controle::LblCoul && e.index == rang_;
    });
    if (hasFocus() && choisie != liste.end()) {
        const Element cadre{.controle = Controle::ImgSurlig,
                            .cadre = choisie->cadre,
                            .tag = {},
                            .bord = theme::ACCENT,
                            .borde = true};
        liste.push_back(cadre);
    }
    elements(std::move(liste));
}

void ToileThematiques::basculer(int rang, bool seule) {
    rang_ = rang;
    seule ? isolerThematique(session_.corpus, rang) : basculerThematique(session_.corpus, rang);
    if (surBascule) surBascule();
    fenetres_.annoncer({Sujet::Bascules});
}

bool ToileThematiques::touche(int touche, bool seule) {
    const int nombre = static_cast<int>(session_.corpus.NbThm);
    switch (touche) {
    case Qt::Key_Up:
        rang_ = std::max(1, rang_ - 1);
        break;
    case Qt::Key_Down:
        rang_ = std::min(nombre, rang_ + 1);
        break;
    case Qt::Key_Home:
        rang_ = 1;
        break;
    case Qt::Key_End:
        rang_ = nombre;
        break;
    case Qt::Key_Space:
        basculer(std::clamp(rang_, 1, nombre), seule);
        return true;
    default:
        return false;
    }
    disposer();
    return true;
}

void ToileThematiques::keyPressEvent(QKeyEvent* evenement) {
    bool prise = false;
    if (!elements().empty())
        garderPour(this,
                   [&] { prise = touche(evenement->key(), evenement->modifiers() & Qt::ShiftModifier); });
    if (!prise) Toile::keyPressEvent(evenement);
}

void ToileThematiques::focusInEvent(QFocusEvent* evenement) {
    Toile::focusInEvent(evenement);
    disposer();
}

void ToileThematiques::focusOutEvent(QFocusEvent* evenement) {
    Toile::focusOutEvent(evenement);
    disposer();
}

void ToileThematiques::resizeEvent(QResizeEvent* evenement) {
    Toile::resizeEvent(evenement);
    disposer();
}

} // namespace vermo
