#include "transcription/ui/Pastille.h"

#include "window/ui/Glace.h"

#include <QPainter>

namespace vermo {

Pastille::Pastille(int index, Couleur couleur, QWidget* parent) : QAbstractButton(parent), couleur_(couleur) {
    setObjectName(QStringLiteral("LblCoulThm%1").arg(index));
    const QColor qt = couleurQt(couleur);
    setAccessibleName(QStringLiteral("Couleur %1 (rouge %2, vert %3, bleu %4)")
                          .arg(index + 1)
                          .arg(qt.red())
                          .arg(qt.green())
                          .arg(qt.blue()));
    setToolTip(QStringLiteral("Couleur de la nouvelle thématique"));
    setCursor(Qt::PointingHandCursor);
}

void Pastille::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), couleurQt(couleur_));
    peintre.setPen(hasFocus() || underMouse() ? Qt::white : QColor(0, 0, 0));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace vermo
