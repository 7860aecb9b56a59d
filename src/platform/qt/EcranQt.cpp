#include "platform/qt/EcranQt.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace vermo {

ZoneTravail EcranQt::zoneTravail() const {
    constexpr double TWIPS_PAR_PIXEL = 15;
    const QWindow* active = QGuiApplication::focusWindow();
    const QScreen* ecran = active ? active->screen() : QGuiApplication::primaryScreen();
    if (!ecran) return {};
    const QRect utile = ecran->availableGeometry();
    const int entiere = ecran->geometry().height();
    return {.gauche = utile.x() * TWIPS_PAR_PIXEL,
            .haut = utile.y() * TWIPS_PAR_PIXEL,
            .largeur = utile.width() * TWIPS_PAR_PIXEL,
            .hauteur = entiere * TWIPS_PAR_PIXEL,
            .barreDesTaches = entiere - utile.height()};
}

void EcranQt::pointeur(Pointeur pointeur) {
    if (pointeur == Pointeur::Normal) {
        if (pose_) QApplication::restoreOverrideCursor();
        pose_ = false;
        return;
    }
    const Qt::CursorShape forme = pointeur == Pointeur::Sablier ? Qt::WaitCursor : Qt::BusyCursor;
    if (pose_)
        QApplication::changeOverrideCursor(forme);
    else
        QApplication::setOverrideCursor(forme);
    pose_ = true;
}

} // namespace vermo
