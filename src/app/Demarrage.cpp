#include "app/Demarrage.h"

#include "platform/qt/Francais.h"
#include "window/ui/Theme.h"

#include <clocale>

namespace vermo {

Programme::Programme(int& argc, char** argv, const std::string& sortieAudio)
    : qt_(argc, argv), hote_(sortieAudio),
      application_(session_, hote_.plateforme(),
                   [this](QProgressBar* barre) { hote_.progression().brancher(barre); }) {
    // The player's library refuses to start under a decimal comma; texts take theirs from Reglages.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("Vermo"));
    QApplication::setApplicationVersion(QStringLiteral(VERMO_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    theme::appliquer(qt_);
    installerFrancais(qt_);
    session_.reglages = reglagesDuSysteme();
    QObject::connect(&application_, &Application::fini, &qt_, &QApplication::quit, Qt::QueuedConnection);
}

} // namespace vermo
