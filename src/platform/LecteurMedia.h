#pragma once
#include "textfile/texte.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vermo {

enum class Fenetre; ///< the windows, named in window/Fenetres.h

/// Names of the recordings that the player takes, as file dialogs filter them. It looks at what a file holds
/// and not at its name: these are the sounds, and the videos with a sound, that recorders, telephones and
/// programs make.
inline constexpr const char* FORMATS_LUS =
    "*.wav;*.mp3;*.m4a;*.m4b;*.aac;*.ogg;*.oga;*.opus;*.flac;*.wma;*.amr;*.awb;*.3gp;*.3ga;*.3g2;*.aif;*."
    "aiff;"
    "*.aifc;*.caf;*.au;*.snd;*.ac3;*.eac3;*.dts;*.mka;*.mp2;*.mpa;*.wv;*.ape;*.tta;*.tak;*.mpc;*.spx;*.w64;"
    "*.rf64;*.dss;*.ra;*.voc;*.gsm;*.mp4;*.m4v;*.mov;*.mkv;*.webm;*.avi;*.wmv;*.asf;*.mpg;*.mpeg;*.ts;*.mts;"
    "*.m2ts;*.vob;*.ogv;*.flv";

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

/// Listens for as long as it is held.
using Ecoute = std::shared_ptr<const void>;

/// Those who listen to one thing, told in the order in which they came. One may come or go while it is told.
template <class... Arguments>
class Ecoutes {
  public:
    using Action = std::function<void(Arguments...)>;

    [[nodiscard]] Ecoute ajouter(Action action) {
        auto ecoute = std::make_shared<const Action>(std::move(action));
        presentes_.push_back(ecoute);
        return ecoute;
    }
    void dire(Arguments... arguments) {
        std::erase_if(presentes_, [](const auto& presente) { return presente.expired(); });
        for (const auto& presente : std::vector(presentes_))
            if (const auto action = presente.lock()) (*action)(arguments...);
    }

  private:
    std::vector<std::weak_ptr<const Action>> presentes_;
};

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

    /// `action` is called after each change of `playState`, on the interface thread.
    [[nodiscard]] Ecoute ecouter(std::function<void(EtatLecture)> action) {
        return etats_.ajouter(std::move(action));
    }
    /// `action` is called after each position that is asked for: who follows a player that stands still looks
    /// then.
    [[nodiscard]] Ecoute ecouterDeplacements(std::function<void()> action) {
        return deplacements_.ajouter(std::move(action));
    }

    bool enLecture() const { return playState() == EtatLecture::Lecture; }

  protected:
    virtual void ouvrir(const Utf8& chemin) = 0;

    void annoncerEtat(EtatLecture etat) { etats_.dire(etat); }
    void annoncerDeplacement() { deplacements_.dire(); }

  private:
    std::optional<Fenetre> proprietaire_;
    Ecoutes<EtatLecture> etats_;
    Ecoutes<> deplacements_;
};

} // namespace vermo
