// What leads out of the window: menus, the volume panel, the keys.
#include "corpus/Frise.h"
#include "corpus/Session.h"
#include "corpus/ui/FrmCorpus.h"
#include "window/JaugeVolume.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"
#include "window/ui/Theme.h"
#include "window/ui/Toile.h"

#include <QKeyEvent>
#include <algorithm>

namespace vermo {
namespace {

constexpr Twips ECART_VOLUME = 60; ///< between the gauge and its panel

} // namespace

Rectangle FrmCorpus::surEcran(const QWidget* controle) const {
    return enTwips(QRectF(controle->mapToGlobal(QPoint()), controle->size()));
}

void FrmCorpus::ouvrirMenu(int index) {
    session_.EtatFondu = 1;
    fenetres_.montrer(Fenetre::FrmMenu,
                      PanneauVoulu{static_cast<Panneau>(index), surEcran(ligneDe(lblmenu_, index))});
}

void FrmCorpus::ouvrirVolume() {
    Rectangle ancre = surEcran(PictVol_);
    ancre.hauteur += ECART_VOLUME;
    fenetres_.montrer(Fenetre::FrmMenu, PanneauVoulu{Panneau::Volume, ancre});
}

void FrmCorpus::DessinerVolume() {
    float& volume = session_.audio.VolumeLecture;
    if (volume == 0) volume = static_cast<float>(plateforme_.media.volume());
    const Twips largeur = PictVol_->largeurTwips(), hauteur = PictVol_->hauteurTwips();
    Dessin jauge = jauge::DessinerVolume(100, largeur, hauteur);
    for (Trait& trait : jauge.traits)
        trait.couleur = theme::BORD;
    const Dessin coin = jauge::DessinerVolume(volume, largeur, hauteur);
    jauge.traits.insert(jauge.traits.end(), coin.traits.begin(), coin.traits.end());
    PictVol_->dessin(std::move(jauge));
    PictVol_->setToolTip(QStringLiteral("Volume : %1 %").arg(qRound(volume)));
    PictVol_->setAccessibleName(PictVol_->toolTip());
}

/// A double click on a zoom button goes to the end of its course, and is no second click.
bool FrmCorpus::eventFilter(QObject* objet, QEvent* evenement) {
    const auto zoom = std::find(ImgZoom_.begin(), ImgZoom_.end(), objet);
    if (zoom == ImgZoom_.end() || evenement->type() != QEvent::MouseButtonDblClick)
        return Forme::eventFilter(objet, evenement);
    garder([&] { zoomer(zoom == ImgZoom_.begin() ? HAUTEUR_ZOOM_MAX : HAUTEUR_ZOOM_MIN); });
    return true;
}

void FrmCorpus::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    const bool entree = touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space;
    if (touche == Qt::Key_Plus)
        garder([this] { zoomPlus(); });
    else if (touche == Qt::Key_Minus)
        garder([this] { zoomMoins(); });
    else if (entree && PictVol_->hasFocus())
        garder([this] { ouvrirVolume(); });
    else
        Forme::keyPressEvent(evenement);
}

} // namespace vermo
