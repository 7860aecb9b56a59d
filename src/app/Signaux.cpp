#include "app/Signaux.h"

#include "app/Application.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <cerrno>
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
    const int erreur = errno;
    [[maybe_unused]] const ssize_t ecrits = ::write(boutEcrit(), &fin, 1);
    errno = erreur;
}

/// The session asks programs to go once they have had the time to write: windows have no say in it.
class FinDeSession : public QObject {
  public:
    explicit FinDeSession(Application& application) : QObject(&application), application_(application) {
        qGuiApp->installEventFilter(this);
        connect(
            qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { application_.mettreALAbri(); },
            Qt::DirectConnection);
    }

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet != qGuiApp || evenement->type() != QEvent::Quit) return false;
        application_.terminer();
        return true;
    }

  private:
    Application& application_;
};

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
    new FinDeSession(application);
}

} // namespace vermo
