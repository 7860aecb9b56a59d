#include "corpus/ui/LblVol.h"

#include "window/JaugeVolume.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace vermo {
namespace {

// Sizes in pixels.
constexpr int LARGEUR = 64, HAUTEUR = 144, COTE_CURSEUR = 24, EPAISSEUR = 4, CHIFFRES = 24;

} // namespace

LblVol::LblVol(QWidget* parent) : QSlider(Qt::Vertical, parent), ImgCurseur_(new QLabel(this)) {
    setObjectName(QStringLiteral("LblVol"));
    setAccessibleName(QStringLiteral("Volume"));
    setToolTip(QStringLiteral("Volume"));
    setRange(0, 100);
    setSingleStep(5);
    setPageStep(20);
    setFixedSize(LARGEUR, HAUTEUR);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    ImgCurseur_->setObjectName(QStringLiteral("ImgCurseur"));
    ImgCurseur_->setPixmap(QPixmap::fromImage(
        imageEtiree(":/icones/Curseur.svg", QSize(COTE_CURSEUR, COTE_CURSEUR) * devicePixelRatioF())));
    ImgCurseur_->setScaledContents(true);
    ImgCurseur_->setAttribute(Qt::WA_TransparentForMouseEvents);
    montrer(0);
}

void LblVol::montrer(float VolumeLecture) {
    const QSignalBlocker silence(this);
    setValue(static_cast<int>(std::lround(VolumeLecture)));
    sliderChange(SliderValueChange);
}

void LblVol::sliderChange(SliderChange changement) {
    QSlider::sliderChange(changement);
    const double haut = enPixels(jauge::hautImgCurseur(static_cast<float>(value())));
    ImgCurseur_->setGeometry((LARGEUR - COTE_CURSEUR) / 2, static_cast<int>(std::lround(haut)), COTE_CURSEUR,
                             COTE_CURSEUR);
}

void LblVol::suivre(double y) {
    setValue(jauge::volumeImgCurseur(enTwips(y - prise_)));
}

void LblVol::mousePressEvent(QMouseEvent* evenement) {
    const double y = evenement->position().y();
    const QRect curseur = ImgCurseur_->geometry();
    const bool dessus = y >= curseur.top() && y <= curseur.bottom();
    prise_ = dessus ? y - curseur.top() : COTE_CURSEUR / 2.0;
    setSliderDown(true);
    suivre(y);
}

void LblVol::mouseMoveEvent(QMouseEvent* evenement) {
    if (isSliderDown()) suivre(evenement->position().y());
}

void LblVol::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void LblVol::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const double milieu = COTE_CURSEUR / 2.0, x = LARGEUR / 2.0 - EPAISSEUR / 2.0;
    const double haut = enPixels(jauge::hautImgCurseur(100)) + milieu;
    const double bas = enPixels(jauge::hautImgCurseur(0)) + milieu;
    const double ici = enPixels(jauge::hautImgCurseur(static_cast<float>(value()))) + milieu;
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(couleurQt(theme::BORD));
    peintre.drawRoundedRect(QRectF(x, haut, EPAISSEUR, bas - haut), 2, 2);
    peintre.setBrush(couleurQt(theme::ACCENT));
    peintre.drawRoundedRect(QRectF(x, ici, EPAISSEUR, bas - ici), 2, 2);
    peintre.setPen(couleurQt(hasFocus() ? theme::TEXTE : theme::TEXTE_DISCRET));
    peintre.setFont(theme::police(9));
    peintre.drawText(QRect(0, 4, LARGEUR, CHIFFRES), Qt::AlignCenter, QString::number(value()));
}

} // namespace vermo
