#include "app/Application.h"

#include "audio/Suivi.h"
#include "audio/ui/FrmVisu.h"
#include "corpus/AnalyserEntretiens.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/FrmIntro.h"
#include "corpus/ui/FrmMenu.h"
#include "transcription/ui/FrmSaisie.h"

#include <QTimer>

namespace vermo {

namespace {

/// The window behind `pointeur`, made at its first reference.
template <class F, class Faire>
F& premiere(QPointer<F>& pointeur, Faire&& faire) {
    if (!pointeur) pointeur = faire();
    return *pointeur;
}

} // namespace

Application::Application(Session& session, Plateforme& plateforme,
                         std::function<void(QProgressBar*)> brancherProgression)
    : session_(session), plateforme_(plateforme), brancherProgression_(std::move(brancherProgression)) {
    constexpr int reposMs = 300;
    plateforme_.media.surChangementEtat = [this](EtatLecture etat) { suivreEtat(etat); };
    plateforme_.media.surDeplacement = [this] {
        if (saisie_) saisie_->suivreLecteur();
    };
    repos_.setSingleShot(true);
    repos_.setInterval(reposMs);
    connect(&repos_, &QTimer::timeout, this, [this] {
        if (corpus_)
            corpus_->garder([this] { preparerVisu(); });
        else if (intro_)
            intro_->garder([this] { corpus().preparer(); });
    });
}

Application::~Application() {
    plateforme_.media.surChangementEtat = nullptr;
    plateforme_.media.surDeplacement = nullptr;
    for (Forme* forme : {ouverte(Fenetre::FrmSaisie), ouverte(Fenetre::FrmVisu), ouverte(Fenetre::FrmMenu),
                         ouverte(Fenetre::FrmCorpus), ouverte(Fenetre::FrmIntro)})
        delete forme;
}

void Application::demarrer() {
    montrer(Fenetre::FrmIntro);
    repos_.start();
}

FrmIntro& Application::intro() {
    return premiere(intro_, [this] { return new FrmIntro(session_, plateforme_, *this); });
}

FrmCorpus& Application::corpus() {
    return premiere(corpus_, [this] {
        auto* forme = new FrmCorpus(session_, plateforme_, *this);
        if (brancherProgression_) brancherProgression_(forme->ProgressBar1());
        return forme;
    });
}

FrmMenu& Application::menu() {
    return premiere(menu_, [this] { return new FrmMenu(session_, plateforme_, *this); });
}

FrmVisu& Application::visu() {
    if (!visu_ && reserve_) {
        visu_ = std::exchange(reserve_, nullptr);
        visu_->setEnabled(true); // it was there when the corpus window was disabled, and went with it
    }
    return premiere(visu_, [this] { return new FrmVisu(session_, plateforme_, *this, &corpus()); });
}

void Application::preparerVisu() {
    if (visu_ || reserve_) return;
    plateforme_.media.preparer();
    reserve_ = new FrmVisu(session_, plateforme_, *this, corpus_);
    reserve_->preparer();
}

FrmSaisie& Application::saisie() {
    return premiere(saisie_, [this] { return new FrmSaisie(session_, plateforme_, *this, &visu()); });
}

Forme* Application::ouverte(Fenetre fenetre) const {
    switch (fenetre) {
    case Fenetre::FrmIntro:
        return intro_;
    case Fenetre::FrmCorpus:
        return corpus_;
    case Fenetre::FrmMenu:
        return menu_;
    case Fenetre::FrmVisu:
        return visu_;
    case Fenetre::FrmSaisie:
        return saisie_;
    }
    return nullptr;
}

Forme& Application::forme(Fenetre fenetre) {
    switch (fenetre) {
    case Fenetre::FrmIntro:
        return intro();
    case Fenetre::FrmCorpus:
        return corpus();
    case Fenetre::FrmMenu:
        return menu();
    case Fenetre::FrmVisu:
        return visu();
    case Fenetre::FrmSaisie:
        break;
    }
    return saisie();
}

void Application::montrer(Fenetre fenetre) {
    Forme& voulue = forme(fenetre);
    const bool enVue = voulue.isVisible();
    voulue.show();
    if (!enVue) return;
    voulue.raise();
    voulue.activateWindow();
}

void Application::cacher(Fenetre fenetre) {
    if (Forme* forme = ouverte(fenetre)) forme->hide();
}

bool Application::visible(Fenetre fenetre) const {
    const Forme* forme = ouverte(fenetre);
    return forme != nullptr && forme->isVisible();
}

bool Application::saisieEntamee() const {
    return saisie_ && saisie_->isVisible() && saisie_->entamee();
}

void Application::decharger(Fenetre fenetre) {
    Forme* forme = ouverte(fenetre);
    if (forme == nullptr) return;
    if (fenetre == Fenetre::FrmVisu) {
        decharger(Fenetre::FrmSaisie);
        visu_.clear();
        plateforme_.media.stop();
        plateforme_.media.URL(Utf8());
        corpus().setEnabled(true);
        repos_.start();
    }
    if (fenetre == Fenetre::FrmIntro) intro_.clear();
    if (fenetre == Fenetre::FrmMenu) menu_.clear();
    if (fenetre == Fenetre::FrmSaisie) saisie_.clear();
    if (fenetre == Fenetre::FrmCorpus) corpus_.clear();
    forme->hide();
    forme->deleteLater();
}

void Application::finir() {
    if (saisieEntamee()) return montrer(Fenetre::FrmSaisie);
    for (const Fenetre fenetre :
         {Fenetre::FrmSaisie, Fenetre::FrmVisu, Fenetre::FrmMenu, Fenetre::FrmIntro, Fenetre::FrmCorpus})
        cacher(fenetre);
    emit fini();
}

void Application::OuvrirEntretien(int slot, Ouverture ouverture) {
    auto& etat = session_.corpus;
    if (slot < 1 || slot > etat.NbEntretiens) return;
    plateforme_.ecran.pointeur(Pointeur::Sablier);
    etat.EntretienCourant = std::int16_t(slot);
    decharger(Fenetre::FrmVisu);
    plateforme_.media.URL(cheminEnregistrement(session_, slot));
    try {
        montrerEntretien(ouverture);
    } catch (...) {
        plateforme_.ecran.pointeur(Pointeur::Normal);
        throw;
    }
    plateforme_.ecran.pointeur(Pointeur::Normal);
}

/// The corpus window takes no input from now on; it is painted as such only once the interview stands over
/// it.
void Application::desactiverCorpus() {
    constexpr int apresLeDessinMs = 120;
    FrmCorpus& forme = corpus();
    forme.setUpdatesEnabled(false);
    forme.setEnabled(false);
    QTimer::singleShot(apresLeDessinMs, &forme, [&forme] {
        forme.setUpdatesEnabled(true);
        forme.repaint(); // what was asked for meanwhile would wait for ever
    });
}

void Application::montrerEntretien(Ouverture ouverture) {
    session_.transcription.signalement.clear();
    desactiverCorpus();
    try {
        if (visu().OuvrirEntretienVue(ouverture)) return;
    } catch (...) {
        decharger(Fenetre::FrmVisu);
        corpus().setEnabled(true);
        throw;
    }
    decharger(Fenetre::FrmVisu);
}

void Application::ReglerVolume(int part) {
    session_.audio.VolumeLecture = float(part);
    plateforme_.media.volume(part);
    if (corpus_) corpus_->DessinerVolume();
    if (visu_) visu_->DessinerVolume();
}

void Application::suivreEtat(EtatLecture etat) {
    if (visu_)
        visu_->Media_PlayStateChange(etat);
    else
        suivreVolume(session_.audio, plateforme_.media);
    if (saisie_) saisie_->suivreEtat(etat >= EtatLecture::Lecture && etat <= EtatLecture::RetourRapide);
}

void Application::OuvrirMenu(Panneau panneau, Rectangle ancre) {
    menu().OuvrirMenu(panneau, ancre);
}

void Application::ConstruireThematiques() {
    corpus().ConstruireThematiques();
    if (saisie_) saisie_->ConstruireThematiques();
}

void Application::rafraichirExtraits() {
    if (visu_) visu_->rafraichirExtraits();
}

void Application::quitterVisu() {
    const int slot = session_.corpus.EntretienCourant;
    if (slot == 0) return;
    RelireEntretien(session_, plateforme_, slot);
    corpus().RedessinerFrise();
    corpus().RedessinerPistes();
}

void Application::PreparerSaisie() {
    saisie().PreparerSaisie();
}

void Application::OuvrirExtrait(int n) {
    saisie().OuvrirExtrait(n);
}

} // namespace vermo
