#pragma once
#include "app/Application.h"
#include "corpus/Session.h"
#include "platform/qt/HotePlateforme.h"

#include <QApplication>

namespace vermo {

/// The whole program, ready to start: the Qt application, the session, the real host and the windows' maker.
/// What a program that drives the real windows needs too.
class Programme {
  public:
    /// `sortieAudio` as for HotePlateforme: "null" plays in real time without a device.
    Programme(int& argc, char** argv, const std::string& sortieAudio = {});

    Session& session() { return session_; }
    HotePlateforme& hote() { return hote_; }
    Application& application() { return application_; }

  private:
    QApplication qt_;
    Session session_;
    HotePlateforme hote_;
    Application application_;
};

} // namespace vermo
