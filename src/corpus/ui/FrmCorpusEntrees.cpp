// The volume: its gauge and the way to its panel; the zoom buttons' double click.
#include "corpus/Frise.h"
#include "corpus/Session.h"
#include "corpus/ui/FrmCorpus.h"
#include "window/JaugeVolume.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"
#include "window/ui/Toile.h"

#include <QEvent>
#include <algorithm>

namespace vermo {
namespace {

constexpr Twips ECART_VOLUME = 60; ///< between the gauge and its panel

} // namespace

Rectangle FrmCorpus::surEcran(const QWidget* controle) const {
    return enTwips(QRectF(controle->mapToGlobal(QPoint()), controle->size()));
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

} // namespace vermo
