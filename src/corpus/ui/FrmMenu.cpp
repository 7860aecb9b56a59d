#include "corpus/ui/FrmMenu.h"

#include "corpus/Session.h"
#include "corpus/ui/LblVol.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"
#include "window/ui/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QWindow>
#include <algorithm>

namespace vermo {
namespace {

constexpr float FONDU_PLEIN = 250, FONDU_PAS = 10;

} // namespace

FrmMenu::FrmMenu(Session& session, Plateforme& plateforme, Fenetres& fenetres)
    : Forme("FrmMenu", session, plateforme, fenetres) {
    setWindowTitle(QStringLiteral("Menu"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    commandes_.avantBouton = [this] { hide(); };
    construirePanneaux();
    commandes_.ecouter();
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &FrmMenu::suivreActivation);
    regler(Timer1_, "Timer1", 1, [this] { Timer1_Tick(); });
}

void FrmMenu::montrer(const Contenu& contenu) {
    if (const auto* voulu = std::get_if<PanneauVoulu>(&contenu))
        OuvrirMenu(voulu->panneau, voulu->ancre);
    else
        Forme::montrer(contenu);
}

void FrmMenu::OuvrirMenu(Panneau panneau, Rectangle ancre) {
    ouvert_ = panneau;
    if (panneau == Panneau::Corpus) {
        listerCorpus();
        montrerHistoire();
    }
    montrerEntretienCourant();
    montrerVolume();
    for (auto& [autre, cadre] : FrmMnu_)
        cadre->setVisible(autre == panneau);
    QFrame* cadre = FrmMnu_.at(panneau);
    Lien::soulignerSeul(cadre, nullptr);
    cadre->adjustSize();
    cadre->move(0, 0);
    placer({ancre.gauche, ancre.bas(), enTwips(cadre->width()), enTwips(cadre->height())});
    const bool fondu = panneau != Panneau::Volume && session_.EtatFondu <= FONDU_PLEIN;
    Transparence(static_cast<int>(fondu ? session_.EtatFondu : FONDU_PLEIN));
    show();
    raise();
    activateWindow();
    active_ = QGuiApplication::focusWindow() == windowHandle();
    (panneau == Panneau::Volume ? static_cast<QWidget*>(LblVol_) : this)->setFocus();
    if (fondu) Timer1_.start();
}

void FrmMenu::Timer1_Tick() {
    session_.EtatFondu = std::min(session_.EtatFondu + FONDU_PAS, FONDU_PLEIN);
    Transparence(static_cast<int>(session_.EtatFondu));
    if (session_.EtatFondu >= FONDU_PLEIN) Timer1_.stop();
}

void FrmMenu::montrerVolume() {
    LblVol_->montrer(session_.audio.VolumeLecture);
}

/// A window that shares its activation with others, as tool windows do, isn't told of losing it.
void FrmMenu::suivreActivation(const QWindow* fenetre) {
    if (fenetre == windowHandle())
        active_ = true;
    else if (active_ && isVisible())
        hide();
}

void FrmMenu::hideEvent(QHideEvent* evenement) {
    Timer1_.stop();
    Forme::hideEvent(evenement);
}

/// The volume panel opens under the mouse without a click, so it goes with the mouse too.
void FrmMenu::leaveEvent(QEvent* evenement) {
    if (ouvert_ == Panneau::Volume && !LblVol_->isSliderDown()) hide();
    Forme::leaveEvent(evenement);
}

void FrmMenu::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setPen(couleurQt(theme::BORD));
    peintre.setBrush(couleurQt(theme::PANNEAU));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace vermo
