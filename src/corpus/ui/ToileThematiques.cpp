#include "corpus/ui/ToileThematiques.h"

#include "corpus/Panneaux.h"
#include "window/Fenetres.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <algorithm>
#include <iterator>

namespace vermo {

ToileThematiques::ToileThematiques(Session& session, Fenetres& fenetres, QWidget* parent)
    : ToileDefilante(QStringLiteral("Frm_thm"), parent), session_(session), fenetres_(fenetres) {
    setAccessibleName(QStringLiteral("Thématiques"));
    surPression = [this](const Souris& s) {
        if (!s.element || s.element->controle != Controle::LblCoul) return;
        if (s.bouton == Qt::LeftButton || s.bouton == Qt::RightButton)
            basculer(s.element->index, s.bouton == Qt::RightButton);
    };
    surMouvement = [this](const Souris& s) {
        setCursor(s.element ? Qt::PointingHandCursor : Qt::ArrowCursor);
    };
}

void ToileThematiques::redessiner() {
    lignes(lignesThematiques(session_, hauteurTwips()));
    disposer();
}

void ToileThematiques::disposerPartie(Elements& liste, const Rectangle&) const {
    Elements toutes = disposerThematiques(session_, largeurTwips(), hauteurTwips(), Legende::Corpus);
    std::move(toutes.begin(), toutes.end(), std::back_inserter(liste));
    if (!hasFocus() || rang_ > lignes().nombre()) return;
    const Twips haut = lignes().debut(rang_);
    liste.push_back({.controle = Controle::ImgSurlig,
                     .cadre = {0, haut, largeurTwips(), lignes().fin(rang_) - haut},
                     .tag = {},
                     .bord = theme::ACCENT,
                     .borde = true});
}

QString ToileThematiques::nomDeLigne(int rang) const {
    return versQt(ligneDe(session_.corpus.ThmNom, rang));
}

void ToileThematiques::noterCourant(int rang) {
    rang_ = rang;
}

void ToileThematiques::basculer(int rang, bool seule) {
    rang_ = rang;
    seule ? isolerThematique(session_.corpus, rang) : basculerThematique(session_.corpus, rang);
    if (surBascule) surBascule();
    fenetres_.annoncer({Sujet::Bascules});
}

void ToileThematiques::basculerChoisie(bool seule) {
    basculer(std::min(rang_, lignes().nombre()), seule);
}

void ToileThematiques::resizeEvent(QResizeEvent* evenement) {
    ToileDefilante::resizeEvent(evenement);
    redessiner();
}

} // namespace vermo
