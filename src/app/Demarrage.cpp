#include "app/Demarrage.h"

#include "platform/qt/Francais.h"
#include "window/ui/Theme.h"

#include <clocale>
#include <malloc.h>

namespace vermo {

namespace {

/// Touching fresh memory costs more than reading the files or drawing the pictures it is for: what was given
/// back stays at hand for the next, up to 64 MB, and the heap grows by a megabyte at a time.
void garderLaMemoire() {
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 64 << 20);
    mallopt(M_TOP_PAD, 1 << 20);
#endif
}

} // namespace

Programme::Programme(int& argc, char** argv, const std::string& sortieAudio)
    : qt_(argc, argv), hote_(sortieAudio),
      application_(session_, hote_.plateforme(),
                   [this](QProgressBar* barre) { hote_.progression().brancher(barre); }) {
    garderLaMemoire();
    // The player's library refuses to start under a decimal comma; texts take theirs from Reglages.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("Vermo"));
    QApplication::setApplicationVersion(QStringLiteral(VERMO_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    theme::appliquer(qt_);
    installerFrancais(qt_);
    session_.reglages = reglagesDuSysteme();
    QObject::connect(
        &application_, &Application::fini, &qt_, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

} // namespace vermo
