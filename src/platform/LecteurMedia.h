#pragma once
#include "textfile/texte.h"

#include <functional>

namespace vermo {

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

/// The media control: plays one file. Windows poll it; only state changes are told.
///
/// Positions and durations are seconds. Setting `URL` starts loading and never waits; until the file is ready
/// `duration()` is 0, and `play()` and positions asked for meanwhile are carried out once it is.
class LecteurMedia {
  public:
    virtual ~LecteurMedia() = default;

    /// Loads now what the first recording would have to wait for, as while nothing else is to be done.
    virtual void preparer() {}

    virtual Utf8 URL() const = 0;
    /// Loads a file; an empty path unloads.
    virtual void URL(const Utf8& chemin) = 0;

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

    /// Called after each change of `playState`, on the interface thread.
    std::function<void(EtatLecture)> surChangementEtat;
    /// Called after each position that is asked for: who follows a player that stands still looks then.
    std::function<void()> surDeplacement;

    bool enLecture() const { return playState() == EtatLecture::Lecture; }
};

} // namespace vermo
