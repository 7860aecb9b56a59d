#include "platform/qt/EmplacementsQt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace vermo {

Emplacements emplacementsQt() {
    const auto dossier = [](const QString& chemin) {
        return QFile::encodeName(QDir::cleanPath(chemin) + QLatin1Char('/')).toStdString();
    };
    const QString programme = QCoreApplication::applicationDirPath();
    const QString execution = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString etat = qEnvironmentVariable("XDG_STATE_HOME");
    return {dossier(programme), dossier(programme + QStringLiteral("/../share/vermo")),
            dossier(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                    QStringLiteral("/Vermo")),
            execution.isEmpty() ? Utf8() : dossier(execution),
            dossier((QDir::isAbsolutePath(etat) ? etat : QDir::homePath() + QStringLiteral("/.local/state")) +
                    QStringLiteral("/Vermo"))};
}

} // namespace vermo
