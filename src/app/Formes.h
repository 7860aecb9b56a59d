#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "window/Fenetres.h"

#include <QPointer>
#include <array>
#include <functional>

class QWidget;

namespace vermo {

class Forme;

/// The life of the windows: each is made at its first reference and lives until it is unloaded. What is
/// particular to a window stands in the one table of Formes.cpp.
///
/// A window that is unloaded is hidden at once and deleted once its own events have returned.
class Formes {
  public:
    /// `faite` is told each window that was made.
    Formes(Session& session, Plateforme& plateforme, Fenetres& fenetres, std::function<void(Forme&)> faite);
    ~Formes();
    Formes(const Formes&) = delete;
    Formes& operator=(const Formes&) = delete;

    Forme& forme(Fenetre fenetre);         ///< made if need be
    Forme* ouverte(Fenetre fenetre) const; ///< nullptr where it isn't loaded
    void decharger(Fenetre fenetre);       ///< with those that lie over it

    /// The window as its class; F names which.
    template <class F>
    F& de(Fenetre fenetre) {
        return static_cast<F&>(forme(fenetre));
    }

    /// Makes a window ahead of its use and keeps it hidden, unless there is one: its first reference then
    /// takes no time.
    void mettreEnReserve(Fenetre fenetre);

  private:
    Forme* faire(Fenetre fenetre);

    Session& session_;
    Plateforme& plateforme_;
    Fenetres& fenetres_;
    std::function<void(Forme&)> faite_;
    std::array<QPointer<Forme>, std::size(FENETRES)> formes_, reserve_;
};

} // namespace vermo
