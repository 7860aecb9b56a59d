#include "app/Demarrage.h"

int main(int argc, char** argv) {
    vermo::Programme programme(argc, argv);
    programme.application().demarrer();
    return QApplication::exec();
}
