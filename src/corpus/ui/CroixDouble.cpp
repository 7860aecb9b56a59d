#include "corpus/ui/CroixDouble.h"

#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace vermo {
namespace {

constexpr int COTE_ICONE = 20, ARRONDI = 3; // pixels

} // namespace

CroixDouble::CroixDouble(const QString& nom, const QString& reduire, const QString& quitter, QWidget* parent)
    : BoutonImage(nom, QStringLiteral("CroixReduire"), quitter, parent), reduire_(reduire),
      quitter_(quitter) {
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
}

void CroixDouble::choisir(bool gauche) {
    gauche_ = gauche;
    bulle(gauche ? reduire_ : quitter_);
    update();
}

void CroixDouble::mouseMoveEvent(QMouseEvent* evenement) {
    choisir(evenement->position().x() < width() / 2.0);
    BoutonImage::mouseMoveEvent(evenement);
}

void CroixDouble::mousePressEvent(QMouseEvent* evenement) {
    choisir(evenement->position().x() < width() / 2.0);
    BoutonImage::mousePressEvent(evenement);
}

void CroixDouble::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Left || evenement->key() == Qt::Key_Right)
        choisir(evenement->key() == Qt::Key_Left);
    else
        BoutonImage::keyPressEvent(evenement);
}

void CroixDouble::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    for (const bool cote : {true, false}) {
        const QRect moitie(cote ? 0 : width() / 2, 0, width() / 2, height());
        if (cote == gauche_ && (underMouse() || hasFocus())) {
            peintre.setPen(hasFocus() ? QPen(couleurQt(theme::ACCENT)) : QPen(Qt::NoPen));
            peintre.setBrush(QColor(255, 255, 255, isDown() ? 56 : 30));
            peintre.drawRoundedRect(QRectF(moitie).adjusted(0.5, 0.5, -0.5, -0.5), ARRONDI, ARRONDI);
        }
        QRect icone(0, 0, COTE_ICONE, COTE_ICONE);
        icone.moveCenter(moitie.center());
        peintre.drawImage(icone, imageEtiree(cote ? ":/icones/Reduire.svg" : ":/icones/Fermer.svg",
                                             icone.size() * devicePixelRatioF()));
    }
}

} // namespace vermo
