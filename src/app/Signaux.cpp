#include "app/Signaux.h"

#include "app/Application.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace vermo {
namespace {

/// The end that a signal writes to, since it may do nothing else.
int& boutEcrit() {
    static int bout = -1;
    return bout;
}

extern "C" void noterSignal(int) {
    const char fin = 0;
    [[maybe_unused]] const ssize_t ecrits = ::write(boutEcrit(), &fin, 1);
}

void entendreSignaux(Application& application) {
    int bouts[2];
    if (::pipe2(bouts, O_CLOEXEC | O_NONBLOCK) != 0) return;
    boutEcrit() = bouts[1];
    auto* notifieur = new QSocketNotifier(bouts[0], QSocketNotifier::Read, &application);
    QObject::connect(notifieur, &QSocketNotifier::activated, &application, [notifieur, &application] {
        notifieur->setEnabled(false);
        application.terminer();
    });
    struct sigaction action {};
    action.sa_handler = noterSignal;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        ::sigaction(signal, &action, nullptr);
}

} // namespace

void ecouterLaFin(Application& application) {
    entendreSignaux(application);
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &application,
        [&application] { application.mettreALAbri(); }, Qt::DirectConnection);
}

} // namespace vermo
