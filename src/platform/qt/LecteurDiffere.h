#pragma once
#include "platform/LecteurMedia.h"

#include <memory>

namespace vermo {

/// The player whose library is loaded with the first recording, if not before: it costs more than the
/// program's start.
///
/// The library "libvermo_mpv.so" is looked for beside the executable, then in "../lib/vermo/". Where it can't
/// be loaded, `erreur()` says so once a recording is given, and nothing else happens.
class LecteurDiffere final : public LecteurMedia {
  public:
    /// `sortieAudio`: name of an audio output, "null" for none; empty: the system's own.
    explicit LecteurDiffere(std::string sortieAudio = {}) : sortieAudio_(std::move(sortieAudio)) {}

    void preparer() override;

    using LecteurMedia::URL;
    Utf8 URL() const override { return lecteur_ ? lecteur_->URL() : url_; }
    EtatLecture playState() const override {
        return lecteur_ ? lecteur_->playState() : EtatLecture::Indefini;
    }
    void play() override;
    void pause() override;
    void stop() override;
    double currentPosition() const override { return lecteur_ ? lecteur_->currentPosition() : 0; }
    void currentPosition(double secondes) override;
    double duration() const override { return lecteur_ ? lecteur_->duration() : 0; }
    int volume() const override { return lecteur_ ? lecteur_->volume() : volume_; }
    void volume(int part) override;
    bool rateDisponible() const override { return !lecteur_ || lecteur_->rateDisponible(); }
    void rate(double facteur) override;
    Utf8 erreur() const override;
    bool muet() const override { return lecteur_ && lecteur_->muet(); }

  private:
    void ouvrir(const Utf8& chemin) override;

    std::string sortieAudio_;
    std::unique_ptr<LecteurMedia> lecteur_;
    Ecoute ecoute_; ///< passes on what it says
    Utf8 url_;      ///< asked for without a player
    Utf8 panne_;    ///< why there is no player; empty until it was tried
    int volume_ = 100;
    double vitesse_ = 1;
};

} // namespace vermo
