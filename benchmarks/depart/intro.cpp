// The program's own start, up to the painted start window.
#include "premierDessin.h"

#include "app/Application.h"
#include "app/Demarrage.h"

int main(int argc, char** argv) {
    vermo::Programme programme(argc, argv);
    programme.application().demarrer();
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (fenetre->objectName() == QLatin1String("FrmIntro")) new PremierDessin(fenetre);
    return QApplication::exec();
}
