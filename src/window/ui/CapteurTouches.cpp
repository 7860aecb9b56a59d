#include "window/ui/CapteurTouches.h"

#include "window/ui/Forme.h"

#include <QKeyEvent>

namespace vermo {

CapteurTouches::CapteurTouches(const QString& nomLu, QWidget* fenetre) : QLineEdit(fenetre) {
    setObjectName(QStringLiteral("TxtCtrl"));
    setAccessibleName(nomLu);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setFrame(false);
    setReadOnly(true); // its cursor has nothing to blink for
    setGeometry(0, 0, 1, 1);
}

bool CapteurTouches::prise(const QKeyEvent& evenement, Frappe frappe) {
    bool prise = true;
    garderPour(this, [&] { prise = surTouche && surTouche(evenement, frappe); });
    return prise;
}

void CapteurTouches::keyPressEvent(QKeyEvent* evenement) {
    if (!prise(*evenement, evenement->isAutoRepeat() ? Frappe::Repetition : Frappe::Appui))
        QLineEdit::keyPressEvent(evenement);
}

void CapteurTouches::keyReleaseEvent(QKeyEvent* evenement) {
    if (evenement->isAutoRepeat()) return; // the key is still down
    if (!prise(*evenement, Frappe::Relachement)) QLineEdit::keyReleaseEvent(evenement);
}

} // namespace vermo
