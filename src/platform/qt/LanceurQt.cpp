#include "platform/qt/LanceurQt.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace vermo {

bool LanceurQt::lancer(const Utf8& chemin) {
    const QFileInfo programme(QFile::decodeName(QByteArray::fromStdString(chemin)));
    if (!programme.isFile() || !programme.isExecutable()) return false;
    return QProcess::startDetached(programme.absoluteFilePath(), {}, programme.absolutePath());
}

} // namespace vermo
