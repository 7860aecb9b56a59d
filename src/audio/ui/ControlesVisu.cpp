#include "audio/ui/ControlesVisu.h"

#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

namespace vermo::visu {

QLabel* creerEtiquette(const char* nom, int corps, bool gras, Couleur encre, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(QLatin1String(nom));
    etiquette->setFont(theme::police(corps, gras));
    etiquette->setTextFormat(Qt::PlainText);
    QPalette palette = etiquette->palette();
    palette.setColor(QPalette::WindowText, couleurQt(encre));
    etiquette->setPalette(palette);
    etiquette->setAttribute(Qt::WA_TransparentForMouseEvents);
    return etiquette;
}

} // namespace vermo::visu
