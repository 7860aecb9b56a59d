#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace vermo {

namespace {

constexpr double ARRONDI = 3; ///< pixels, of the halo and the focus ring
constexpr double OPACITE_INACTIF = 0.32;
constexpr float OPACITE_ALLUME = 0.45F;

std::string sourceIcone(const QString& nom) {
    return nom.isEmpty() ? std::string() : ":/icones/" + utf8DepuisQt(nom) + ".svg";
}

} // namespace

BoutonImage::BoutonImage(const QString& nom, const QString& icone, const QString& bulle, QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(nom);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    this->bulle(bulle);
    this->icone(icone);
}

void BoutonImage::icone(const QString& icone) {
    icone_ = sourceIcone(icone);
    naturelle_ = tailleNaturelle(icone_);
    updateGeometry();
    update();
}

void BoutonImage::iconePressee(const QString& icone) {
    iconePressee_ = sourceIcone(icone);
    update();
}

void BoutonImage::bulle(const QString& bulle) {
    setToolTip(bulle);
    setAccessibleName(bulle);
}

void BoutonImage::caseIcone(int largeur) {
    caseIcone_ = largeur;
    update();
}

QSize BoutonImage::sizeHint() const {
    return naturelle_.isEmpty() ? QSize(24, 24) : naturelle_;
}

void BoutonImage::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRectF cadre = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isChecked()) {
        QColor lumiere = couleurQt(theme::ACCENT);
        lumiere.setAlphaF(OPACITE_ALLUME);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(lumiere);
        peintre.drawRoundedRect(cadre, ARRONDI, ARRONDI);
    }
    if (isEnabled() && (underMouse() || isDown())) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(QColor(255, 255, 255, isDown() ? 56 : 30));
        peintre.drawRoundedRect(cadre, ARRONDI, ARRONDI);
    }
    const QSize place(caseIcone_ > 0 ? caseIcone_ : width(), height());
    const QSize taille = sizeHint().scaled(place, Qt::KeepAspectRatio);
    const std::string& source = isDown() && !iconePressee_.empty() ? iconePressee_ : icone_;
    const QPoint coin((place.width() - taille.width()) / 2, (place.height() - taille.height()) / 2);
    peintre.setOpacity(isEnabled() ? 1 : OPACITE_INACTIF);
    peintre.drawImage(QRect(coin, taille), imageEtiree(source, taille * devicePixelRatioF()));
    if (hasFocus()) {
        peintre.setOpacity(1);
        peintre.setPen(couleurQt(theme::ACCENT));
        peintre.setBrush(Qt::NoBrush);
        peintre.drawRoundedRect(cadre, ARRONDI, ARRONDI);
    }
}

void BoutonImage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evenement);
}

} // namespace vermo
