#include "platform/qt/EcranQt.h"

#include <QApplication>
#include <QScreen>

namespace vermo {

ZoneTravail EcranQt::zoneTravail() const {
    constexpr double TWIPS_PAR_PIXEL = 15;
    const QScreen* ecran = QGuiApplication::primaryScreen();
    if (!ecran) return {};
    const QSize entier = ecran->geometry().size();
    return {entier.width() * TWIPS_PAR_PIXEL, entier.height() * TWIPS_PAR_PIXEL,
            entier.height() - ecran->availableGeometry().height()};
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
