#pragma once
#include "platform/LecteurMedia.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace vermo::essai {

/// A player whose clock is moved by hand. A recording is ready as soon as it is loaded, unless `lent` is set:
/// then `pret()` ends the loading. Its state changes within the call, and as with the real one its listeners
/// hear of it later only: in `dire()`, which `reveil` is asked for.
class LecteurSimule : public LecteurMedia {
  public:
    std::map<Utf8, double> durees; ///< seconds, by the name alone
    double dureeParDefaut = 60;    ///< of a recording that the table doesn't name; 0: it can't be loaded
    bool lent = false;
    bool sansSon = false;
    std::function<void()> reveil; ///< there is a change to tell

    void dire() {
        for (const EtatLecture etat : std::exchange(aDire_, {}))
            annoncerEtat(etat);
    }

    /// Lets `secondes` of the clock pass. At the end of the recording it stops there.
    void avancer(double secondes) {
        if (etat_ != EtatLecture::Lecture) return;
        position_ = std::min(position_ + secondes * vitesse_, duree_);
        if (position_ >= duree_) passer(EtatLecture::Arrete);
    }

    void pret() {
        duree_ = dureeDe(url_);
        erreur_ = duree_ > 0 ? Utf8() : "Lecture impossible : " + url_;
        position_ = std::min(position_, duree_);
        passer(duree_ <= 0         ? EtatLecture::Indefini
               : jouerUneFoisPret_ ? EtatLecture::Lecture
                                   : EtatLecture::Arrete);
    }

    Utf8 URL() const override { return url_; }
    using LecteurMedia::URL;
    EtatLecture playState() const override { return etat_; }
    void play() override {
        jouerUneFoisPret_ = etat_ == EtatLecture::Chargement;
        if (duree_ <= 0) return;
        if (position_ >= duree_) position_ = 0;
        passer(EtatLecture::Lecture);
    }
    void pause() override {
        jouerUneFoisPret_ = false;
        if (etat_ == EtatLecture::Lecture) passer(EtatLecture::EnPause);
    }
    void stop() override {
        jouerUneFoisPret_ = false;
        position_ = 0;
        if (duree_ > 0) passer(EtatLecture::Arrete);
    }
    double currentPosition() const override { return position_; }
    void currentPosition(double secondes) override {
        position_ =
            etat_ == EtatLecture::Chargement ? std::max(0.0, secondes) : std::clamp(secondes, 0.0, duree_);
        annoncerDeplacement();
    }
    double duration() const override { return duree_; }
    int volume() const override { return volume_; }
    void volume(int part) override { volume_ = std::clamp(part, 0, 100); }
    bool rateDisponible() const override { return true; }
    void rate(double facteur) override { vitesse_ = facteur; }
    double vitesse() const { return vitesse_; }
    Utf8 erreur() const override { return erreur_; }
    bool muet() const override { return sansSon; }

  private:
    void ouvrir(const Utf8& chemin) override {
        url_ = chemin;
        position_ = duree_ = 0;
        jouerUneFoisPret_ = false;
        erreur_.clear();
        passer(chemin.empty() ? EtatLecture::Indefini : EtatLecture::Chargement);
        if (!lent && !chemin.empty()) pret();
    }
    double dureeDe(const Utf8& chemin) const {
        const auto trouvee = durees.find(chemin.substr(chemin.rfind('/') + 1));
        return trouvee == durees.end() ? dureeParDefaut : trouvee->second;
    }
    void passer(EtatLecture etat) {
        if (etat == etat_) return;
        etat_ = etat;
        aDire_.push_back(etat);
        if (reveil) reveil();
    }

    Utf8 url_, erreur_;
    EtatLecture etat_ = EtatLecture::Indefini;
    std::vector<EtatLecture> aDire_;
    double position_ = 0, duree_ = 0, vitesse_ = 1;
    int volume_ = 100;
    bool jouerUneFoisPret_ = false;
};

} // namespace vermo::essai
