#pragma once
#include "platform/LecteurMedia.h"

#include <QElapsedTimer>
#include <QObject>
#include <atomic>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <thread>

struct mpv_handle;
struct mpv_event;

namespace vermo {

/// The player, over libmpv in the program's own process.
///
/// All members are called on the interface thread. The library works on threads of its own and wakes this
/// object through the event queue, so states follow its events; a command of the caller shows in `playState`
/// at once. Listeners are always called from the event loop, never from inside a call.
///
/// At the end of the recording the state becomes Arrete and the position stays at the duration; `play()`
/// there starts from 0. A file that can't be played leaves the state Indefini and says why in `erreur()`.
class LecteurMpv final : public QObject, public LecteurMedia {
  public:
    /// `sortieAudio`: name of an audio output, "null" for none (in real time); empty: the system's own.
    /// Throws FauteExecution when the library refuses to start.
    explicit LecteurMpv(const std::string& sortieAudio);
    ~LecteurMpv() override;

    using LecteurMedia::URL;
    Utf8 URL() const override { return url_; }
    EtatLecture playState() const override { return etat_; }
    void play() override;
    void pause() override;
    void stop() override;
    double currentPosition() const override;
    void currentPosition(double secondes) override;
    double duration() const override { return pret_ ? duree_.value_or(0) : 0; }
    int volume() const override { return volume_; }
    void volume(int part) override;
    bool rateDisponible() const override { return true; }
    void rate(double facteur) override;
    Utf8 erreur() const override { return erreur_; }
    bool muet() const override;

  private:
    void ouvrir(const Utf8& chemin) override;
    void ouvrirBibliotheque(const std::string& sortieAudio);
    void charger();
    void lancerChargement();
    void mesurer();
    void dureeMesuree(int chargement, double secondes);
    void oublier();
    void echouer(const Utf8& raison);
    void changerEtat(EtatLecture etat);

    void vider();
    void recevoir(const mpv_event& evenement);
    void fichierCharge();
    void lecturePrete();
    void reponseRecue(const mpv_event& evenement);
    void fichierFini(const mpv_event& evenement);
    void rechercheFinie();
    void accorder();

    void demarrer();
    void chercher(double secondes);
    double borne() const { return duree_.value_or(dureeAnnoncee_); }
    void commander(std::uint64_t reponse, std::initializer_list<const char*> mots);
    void suspendre(bool oui);
    void regler(const char* nom, double valeur);
    double nombre(const char* nom) const;
    bool vrai(const char* nom) const;

    mpv_handle* mpv_ = nullptr;
    std::string sortieAudio_;
    std::atomic<bool> reveille_ = false; ///< a call of `vider` is queued

    Utf8 url_, erreur_;
    EtatLecture etat_ = EtatLecture::Indefini;
    EtatLecture souhait_ = EtatLecture::Arrete; ///< what to become once loaded
    int chargement_ = 0;         ///< counts the files: late answers about earlier ones are told by it
    bool departAttendu_ = false; ///< the next start-of-file event is that of `url_`
    std::int64_t entree_ = -1;   ///< the library's number for `url_` once it started on it
    bool pret_ = false;

    std::optional<double> duree_; ///< exact, once measured
    double dureeAnnoncee_ = 0;    ///< what the library believes; bounds the positions until then
    int volume_ = 100;
    double vitesse_ = 1;

    bool enRecherche_ = false; ///< the position is on its way to `cible_`
    int sansReponse_ = 0;      ///< seeks, starts and pauses that the library hasn't acknowledged
    double cible_ = 0;
    mutable double ancre_ = 0;          ///< the last position known,
    mutable QElapsedTimer depuisAncre_; ///< and when it was

    std::jthread mesure_; ///< last: it ends before what it reports to
};

} // namespace vermo

/// The library's one entry: a new player that the caller deletes, or null when it can't start.
extern "C" vermo::LecteurMedia* vermo_creer_lecteur(const char* sortieAudio);
