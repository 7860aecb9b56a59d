#include "platform/qt/Francais.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace vermo {

bool installerFrancais(QApplication& application) {
    auto* traducteur = new QTranslator(&application);
    return traducteur->load(QStringLiteral("qtbase_fr"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
           QCoreApplication::installTranslator(traducteur);
}

} // namespace vermo
