#pragma once
#include "window/ui/Toile.h"

#include <QLabel>

/// How the interview window's painted controls and labels are made.
namespace vermo::visu {

/// Accessible name and ground of a canvas; gives the canvas.
template <class T>
T* habiller(T* toile, const char* nomLu, Couleur fond) {
    toile->setAccessibleName(QString::fromUtf8(nomLu));
    toile->fond(fond);
    return toile;
}

/// A label of plain text that leaves the mouse to what lies under it.
QLabel* creerEtiquette(const char* nom, int corps, bool gras, Couleur encre, QWidget* parent);

} // namespace vermo::visu
