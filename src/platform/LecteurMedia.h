#pragma once
#include "textfile/texte.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vermo {

enum class Fenetre; ///< the windows, named in window/Fenetres.h

/// Play states, numbered as the windows compare them.
enum class EtatLecture {
    Indefini = 0,
    Arrete = 1,
    EnPause = 2,
    Lecture = 3,
    AvanceRapide = 4,
    RetourRapide = 5,
    Chargement = 9,
};

/// It plays or scans.
constexpr bool enMouvement(EtatLecture etat) {
    return etat >= EtatLecture::Lecture && etat <= EtatLecture::RetourRapide;
}

/// A listener to the state of the player: hears it for as long as this is held.
using Ecoute = std::shared_ptr<const std::function<void(EtatLecture)>>;

/// The media control: plays one file. Windows poll it; only state changes are told. It belongs to the window
/// that last gave it a file; any number of windows may listen.
///
/// Positions and durations are seconds. Setting `URL` starts loading and never waits; until the file is ready
/// `duration()` is 0, and `play()` and positions asked for meanwhile are carried out once it is.
class LecteurMedia {
  public:
    virtual ~LecteurMedia() = default;

    /// Loads now what the first recording would have to wait for, as while nothing else is to be done.
    virtual void preparer() {}

    virtual Utf8 URL() const = 0;
    /// Loads a file for a window; an empty path unloads.
    void URL(const Utf8& chemin, std::optional<Fenetre> fenetre = {}) {
        proprietaire_ = fenetre;
        ouvrir(chemin);
    }
    /// The window that last set `URL`; none when it was unloaded.
    std::optional<Fenetre> proprietaire() const { return proprietaire_; }

    virtual EtatLecture playState() const = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    /// Stops and goes back to 0.
    virtual void stop() = 0;

    virtual double currentPosition() const = 0;
    /// Exact; held between 0 and the duration.
    virtual void currentPosition(double secondes) = 0;
    virtual double duration() const = 0;

    /// 0 to 100, a linear share.
    virtual int volume() const = 0;
    virtual void volume(int part) = 0;

    /// True when the rate can change; the pitch is kept.
    virtual bool rateDisponible() const = 0;
    virtual void rate(double facteur) = 0;

    /// Why the last file could not be loaded, in French; empty while all is well.
    virtual Utf8 erreur() const = 0;
    /// True when there is no sound device: it plays silently.
    virtual bool muet() const = 0;

    /// `action` is called after each change of `playState`, on the interface thread; listeners in the order
    /// in which they came.
    [[nodiscard]] Ecoute ecouter(std::function<void(EtatLecture)> action) {
        auto ecoute = std::make_shared<const std::function<void(EtatLecture)>>(std::move(action));
        ecoutes_.push_back(ecoute);
        return ecoute;
    }

    bool enLecture() const { return playState() == EtatLecture::Lecture; }

  protected:
    virtual void ouvrir(const Utf8& chemin) = 0;

    /// Tells the listeners. One may come or go while it is told.
    void annoncerEtat(EtatLecture etat) {
        std::erase_if(ecoutes_, [](const auto& ecoute) { return ecoute.expired(); });
        for (const auto& presente : std::vector(ecoutes_))
            if (const Ecoute ecoute = presente.lock()) (*ecoute)(etat);
    }

  private:
    std::optional<Fenetre> proprietaire_;
    std::vector<std::weak_ptr<const std::function<void(EtatLecture)>>> ecoutes_;
};

} // namespace vermo
