#include "app/Demarrage.h"
#include "app/Signaux.h"

int main(int argc, char** argv) {
    vermo::Programme programme(argc, argv);
    vermo::ecouterLaFin(programme.application());
    programme.application().demarrer();
    return QApplication::exec();
}
