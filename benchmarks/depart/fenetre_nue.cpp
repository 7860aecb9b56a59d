// What a start costs before a program of one's own begins: a bare Qt window, shown and painted.
#include "premierDessin.h"

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QWidget fenetre;
    fenetre.resize(600, 400);
    PremierDessin dessin(&fenetre);
    fenetre.show();
    return QApplication::exec();
}
