#include "platform/mpv/LecteurMpv.h"

#include "platform/mpv/DureeExacte.h"
#include "platform/mpv/Refus.h"
#include "textfile/faute.h"

#include <QTimer>
#include <algorithm>
#include <chrono>
#include <clocale>
#include <cmath>
#include <filesystem>
#include <mpv/client.h>
#include <string_view>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace vermo {
namespace {

// What an answer of the library is about.
enum Sujet : std::uint64_t { SANS_SUITE, MOUVEMENT, CHARGEMENT };

constexpr std::pair<const char*, const char*> OPTIONS[] = {
    {"config", "no"},
    {"terminal", "no"},
    {"load-scripts", "no"},
    {"osc", "no"}, // its built-in scripts are threads that wake for a picture that there isn't
    {"load-stats-overlay", "no"},
    {"load-osd-console", "no"},
    {"load-auto-profiles", "no"},
    {"ytdl", "no"},
    {"vid", "no"},
    {"sid", "no"},
    {"sub-auto", "no"},
    {"audio-display", "no"},
    {"audio-client-name", "Vermo"},
    {"audio-format", "float"},
    {"audio-fallback-to-null", "yes"},
    {"gapless-audio", "no"}, // each file looks for the sound device anew: one may have been plugged in
    {"idle", "yes"},
    {"pause", "yes"},
    {"keep-open", "yes"},
    {"hr-seek", "yes"},
    {"hr-seek-demuxer-offset", "0.2"},
};

/// Loading keeps several threads busy: the window that shows the recording is painted first.
constexpr std::chrono::milliseconds RETENUE{25};

Utf8 raisonDe(int erreur, const Utf8& chemin) {
    switch (erreur) {
    case MPV_ERROR_NOTHING_TO_PLAY:
        return refusSansSon(chemin);
    case MPV_ERROR_UNKNOWN_FORMAT:
        return refusInconnu(chemin);
    case MPV_ERROR_LOADING_FAILED:
        return refus(chemin, "n'a pas pu être ouvert.");
    default:
        return refus(chemin, std::string("ne peut pas être lu (") + mpv_error_string(erreur) + ").");
    }
}

/// The library amplifies by the cube of its volume: the windows' share of 100 is the amplitude's own.
double volumeCubique(int part) {
    return 100 * std::cbrt(part / 100.0);
}

} // namespace

LecteurMpv::LecteurMpv(const std::string& sortieAudio) : sortieAudio_(sortieAudio) {
    ouvrirBibliotheque(sortieAudio);
    mpv_observe_property(mpv_, SANS_SUITE, "pause", MPV_FORMAT_NONE);
    mpv_observe_property(mpv_, SANS_SUITE, "eof-reached", MPV_FORMAT_NONE);
    mpv_set_wakeup_callback(
        mpv_,
        [](void* lecteur) {
            auto* ici = static_cast<LecteurMpv*>(lecteur);
            if (!ici->reveille_.exchange(true))
                QMetaObject::invokeMethod(
                    ici, [ici] { ici->vider(); }, Qt::QueuedConnection);
        },
        this);
}

LecteurMpv::~LecteurMpv() {
    mesure_ = {};
    mpv_set_wakeup_callback(mpv_, nullptr, nullptr);
    mpv_terminate_destroy(mpv_);
}

void LecteurMpv::ouvrirBibliotheque(const std::string& sortieAudio) {
    std::setlocale(LC_NUMERIC, "C"); // the library refuses to start under a locale with a decimal comma
    mpv_ = mpv_create();
    if (!mpv_) throw FauteExecution("Le lecteur audio n'a pas pu démarrer.");
    for (const auto& [nom, valeur] : OPTIONS)
        mpv_set_option_string(mpv_, nom, valeur);
    if (!sortieAudio.empty()) mpv_set_option_string(mpv_, "ao", sortieAudio.c_str());
    if (const int erreur = mpv_initialize(mpv_); erreur < 0) {
        mpv_terminate_destroy(mpv_);
        throw FauteExecution(std::string("Le lecteur audio n'a pas pu démarrer : ") +
                             mpv_error_string(erreur));
    }
}

// Loading.

void LecteurMpv::ouvrir(const Utf8& chemin) {
    url_ = chemin;
    oublier();
    erreur_.clear();
    souhait_ = EtatLecture::Arrete;
    suspendre(true);
    if (chemin.empty()) {
        commander(SANS_SUITE, {"stop"});
        changerEtat(EtatLecture::Indefini);
        return;
    }
    changerEtat(EtatLecture::Chargement);
    charger();
}

void LecteurMpv::charger() {
    if (const Utf8 raison = refusAvantLecture(url_); !raison.empty()) {
        commander(SANS_SUITE, {"stop"});
        QMetaObject::invokeMethod(
            this,
            [this, chargement = chargement_, raison] {
                if (chargement == chargement_) echouer(raison);
            },
            Qt::QueuedConnection);
        return;
    }
    QTimer::singleShot(RETENUE, this, [this, chargement = chargement_] {
        if (chargement == chargement_) lancerChargement();
    });
}

void LecteurMpv::lancerChargement() {
    // A full path is never taken for an address.
    std::error_code sansImportance;
    const Utf8 complet = fs::absolute(url_, sansImportance).string();
    commander(CHARGEMENT + static_cast<unsigned>(chargement_), {"loadfile", complet.c_str(), "replace"});
    mesurer();
}

void LecteurMpv::mesurer() {
    mesure_ = std::jthread([this, chargement = chargement_, chemin = url_](const std::stop_token& arret) {
        const double secondes = dureeExacte(chemin, arret);
        if (arret.stop_requested()) return;
        QMetaObject::invokeMethod(
            this, [this, chargement, secondes] { dureeMesuree(chargement, secondes); }, Qt::QueuedConnection);
    });
}

void LecteurMpv::dureeMesuree(int chargement, double secondes) {
    if (chargement != chargement_ || !erreur_.empty()) return;
    duree_ = secondes;
    if (pret_ && secondes <= 0) echouer(refusSansSon(url_));
}

/// Nothing is loaded: what is still under way for the file before no longer counts.
void LecteurMpv::oublier() {
    ++chargement_;
    mesure_.request_stop();
    departAttendu_ = pret_ = enRecherche_ = false;
    entree_ = -1;
    duree_.reset();
    dureeAnnoncee_ = cible_ = ancre_ = 0;
}

void LecteurMpv::echouer(const Utf8& raison) {
    oublier();
    commander(SANS_SUITE, {"stop"});
    erreur_ = raison;
    changerEtat(EtatLecture::Indefini);
}

void LecteurMpv::changerEtat(EtatLecture etat) {
    if (etat == etat_) return;
    etat_ = etat;
    QMetaObject::invokeMethod(
        this, [this, etat] { annoncerEtat(etat); }, Qt::QueuedConnection);
}

// Playing.

void LecteurMpv::play() {
    if (etat_ == EtatLecture::Chargement) souhait_ = EtatLecture::Lecture;
    if (etat_ == EtatLecture::EnPause || etat_ == EtatLecture::Arrete) demarrer();
}

void LecteurMpv::demarrer() {
    if (currentPosition() >= borne()) chercher(0);
    if (!enRecherche_) suspendre(false); // else once there: nothing of the place before is to be heard
    depuisAncre_.start();
    changerEtat(EtatLecture::Lecture);
}

void LecteurMpv::pause() {
    if (etat_ == EtatLecture::Chargement && souhait_ == EtatLecture::Lecture) souhait_ = EtatLecture::EnPause;
    if (etat_ != EtatLecture::Lecture) return;
    ancre_ = currentPosition();
    suspendre(true);
    changerEtat(EtatLecture::EnPause);
}

void LecteurMpv::stop() {
    if (etat_ == EtatLecture::Chargement) {
        souhait_ = EtatLecture::Arrete;
        cible_ = 0;
    } else if (etat_ != EtatLecture::Indefini) {
        suspendre(true);
        chercher(0);
        changerEtat(EtatLecture::Arrete);
    }
}

double LecteurMpv::currentPosition() const {
    if (!pret_ || enRecherche_) return cible_;
    if (etat_ != EtatLecture::Lecture) return ancre_;
    const double lue = nombre("audio-pts");
    if (std::isnan(lue)) // the last samples are on their way out, nothing is decoded any more
        return std::min(borne(), ancre_ + vitesse_ * static_cast<double>(depuisAncre_.nsecsElapsed()) / 1e9);
    ancre_ = std::clamp(lue, 0.0, borne());
    depuisAncre_.start();
    return ancre_;
}

void LecteurMpv::currentPosition(double secondes) {
    if (!std::isfinite(secondes)) return;
    if (etat_ == EtatLecture::Chargement) cible_ = std::max(0.0, secondes);
    if (pret_) chercher(secondes);
}

void LecteurMpv::chercher(double secondes) {
    cible_ = ancre_ = std::clamp(secondes, 0.0, borne());
    enRecherche_ = true;
    ++sansReponse_;
    commander(MOUVEMENT, {"seek", std::to_string(cible_).c_str(), "absolute+exact"});
}

void LecteurMpv::volume(int part) {
    volume_ = std::clamp(part, 0, 100);
    regler("volume", volumeCubique(volume_));
}

void LecteurMpv::rate(double facteur) {
    if (!(facteur > 0) || facteur == vitesse_) return;
    const double ici = currentPosition();
    vitesse_ = facteur;
    regler("speed", facteur);
    // What is decoded ahead was stretched for the rate before: begin again from here.
    if (etat_ == EtatLecture::Lecture || etat_ == EtatLecture::EnPause) chercher(ici);
}

bool LecteurMpv::muet() const {
    if (sortieAudio_ == "null") return false;
    char* sortie = mpv_get_property_string(mpv_, "current-ao");
    const bool aucune = sortie && std::string_view(sortie) == "null";
    mpv_free(sortie);
    return aucune;
}

// The library's events.

void LecteurMpv::vider() {
    reveille_ = false;
    for (const mpv_event* e = mpv_wait_event(mpv_, 0); e->event_id != MPV_EVENT_NONE;
         e = mpv_wait_event(mpv_, 0))
        recevoir(*e);
}

void LecteurMpv::recevoir(const mpv_event& evenement) {
    switch (evenement.event_id) {
    case MPV_EVENT_START_FILE:
        if (std::exchange(departAttendu_, false))
            entree_ = static_cast<const mpv_event_start_file*>(evenement.data)->playlist_entry_id;
        break;
    case MPV_EVENT_FILE_LOADED:
        fichierCharge();
        break;
    case MPV_EVENT_PLAYBACK_RESTART:
        if (pret_)
            rechercheFinie();
        else
            lecturePrete();
        break;
    case MPV_EVENT_COMMAND_REPLY:
    case MPV_EVENT_SET_PROPERTY_REPLY:
        reponseRecue(evenement);
        break;
    case MPV_EVENT_PROPERTY_CHANGE:
        accorder();
        break;
    case MPV_EVENT_END_FILE:
        fichierFini(evenement);
        break;
    default:
        break;
    }
}

void LecteurMpv::fichierCharge() {
    if (entree_ < 0) return;
    const double annoncee = nombre("duration");
    if (annoncee > 0)
        dureeAnnoncee_ = annoncee;
    else
        echouer(refusSansSon(url_)); // a header and nothing behind it
}

void LecteurMpv::lecturePrete() {
    if (entree_ < 0) return;
    if (duree_ && *duree_ <= 0) return echouer(refusSansSon(url_));
    pret_ = true;
    if (cible_ > 0) chercher(cible_);
    if (souhait_ == EtatLecture::Lecture)
        demarrer();
    else
        changerEtat(souhait_);
}

void LecteurMpv::reponseRecue(const mpv_event& evenement) {
    if (evenement.reply_userdata == CHARGEMENT + static_cast<unsigned>(chargement_)) {
        if (evenement.error < 0)
            echouer(raisonDe(evenement.error, url_));
        else
            departAttendu_ = true;
    }
    if (evenement.reply_userdata != MOUVEMENT) return;
    --sansReponse_;
    if (evenement.error < 0 && sansReponse_ == 0) enRecherche_ = false;
    accorder();
}

void LecteurMpv::fichierFini(const mpv_event& evenement) {
    const auto& fin = *static_cast<const mpv_event_end_file*>(evenement.data);
    if (entree_ < 0 || fin.playlist_entry_id != entree_) return;
    if (fin.reason == MPV_END_FILE_REASON_ERROR)
        echouer(raisonDe(fin.error, url_));
    else
        echouer(fin.reason == MPV_END_FILE_REASON_REDIRECT ? refusInconnu(url_) : refusSansSon(url_));
}

void LecteurMpv::rechercheFinie() {
    if (!enRecherche_ || sansReponse_ > 0 || vrai("seeking")) return;
    enRecherche_ = false;
    depuisAncre_.start();
    if (etat_ == EtatLecture::Lecture && vrai("pause")) suspendre(false);
}

/// The library pauses by itself at the true end (the end of decoding alone comes 0.3 to 0.5 s early), and
/// sometimes once more when it is sent back from there.
void LecteurMpv::accorder() {
    if (etat_ != EtatLecture::Lecture || enRecherche_ || sansReponse_ > 0 || !vrai("pause")) return;
    if (!vrai("eof-reached")) return suspendre(false);
    ancre_ = borne();
    changerEtat(EtatLecture::Arrete);
}

// The library's commands and properties.

void LecteurMpv::commander(std::uint64_t reponse, std::initializer_list<const char*> mots) {
    std::vector<const char*> arguments(mots);
    arguments.push_back(nullptr);
    mpv_command_async(mpv_, reponse, arguments.data());
}

/// Keeps its order among the seeks, which a direct setting would overtake.
void LecteurMpv::suspendre(bool oui) {
    ++sansReponse_;
    int drapeau = oui;
    mpv_set_property_async(mpv_, MOUVEMENT, "pause", MPV_FORMAT_FLAG, &drapeau);
}

void LecteurMpv::regler(const char* nom, double valeur) {
    mpv_set_property(mpv_, nom, MPV_FORMAT_DOUBLE, &valeur);
}

double LecteurMpv::nombre(const char* nom) const {
    double valeur = NAN;
    return mpv_get_property(mpv_, nom, MPV_FORMAT_DOUBLE, &valeur) < 0 ? NAN : valeur;
}

bool LecteurMpv::vrai(const char* nom) const {
    int drapeau = 0;
    return mpv_get_property(mpv_, nom, MPV_FORMAT_FLAG, &drapeau) >= 0 && drapeau != 0;
}

} // namespace vermo

vermo::LecteurMedia* vermo_creer_lecteur(const char* sortieAudio) {
    try {
        return new vermo::LecteurMpv(sortieAudio);
    } catch (const vermo::FauteExecution&) {
        return nullptr;
    }
}
