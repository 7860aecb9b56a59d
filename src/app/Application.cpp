#include "app/Application.h"

#include "audio/Suivi.h"
#include "corpus/ui/FrmCorpus.h"
#include "transcription/ui/FrmSaisie.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace vermo {

Application::Application(Session& session, Plateforme& plateforme,
                         std::function<void(QProgressBar*)> brancherProgression)
    : session_(session), plateforme_(plateforme), brancherProgression_(std::move(brancherProgression)),
      formes_(session, plateforme, *this, [this](Forme& forme) { brancher(forme); }) {
    constexpr int reposMs = 300;
    ecoute_ =
        plateforme_.media.ecouter([this](EtatLecture) { suivreVolume(session_.audio, plateforme_.media); });
    plateforme_.annonces.surAvis = [this](const Avis& avis) { transmettre(avis); };
    repos_.setSingleShot(true);
    repos_.setInterval(reposMs);
    connect(&repos_, &QTimer::timeout, this, [this] {
        if (Forme* corpus = formes_.ouverte(Fenetre::FrmCorpus))
            corpus->garder([this] { preparerVisu(); });
        else if (Forme* intro = formes_.ouverte(Fenetre::FrmIntro))
            intro->garder([this] { formes_.mettreEnReserve(Fenetre::FrmCorpus); });
    });
}

Application::~Application() {
    plateforme_.annonces.surAvis = nullptr;
}

void Application::demarrer() {
    montrer(Fenetre::FrmIntro);
    repos_.start();
}

FrmCorpus& Application::corpus() {
    return formes_.de<FrmCorpus>(Fenetre::FrmCorpus);
}

void Application::brancher(Forme& forme) {
    if (auto* corpus = qobject_cast<FrmCorpus*>(&forme); corpus && brancherProgression_)
        brancherProgression_(corpus->ProgressBar1());
}

void Application::preparerVisu() {
    plateforme_.media.preparer();
    formes_.mettreEnReserve(Fenetre::FrmVisu);
}

void Application::montrer(Fenetre fenetre, const Contenu& contenu) {
    if (const auto* voulu = std::get_if<EntretienVoulu>(&contenu)) return ouvrirEntretien(*voulu);
    formes_.forme(fenetre).montrer(contenu);
}

void Application::cacher(Fenetre fenetre) {
    if (Forme* forme = formes_.ouverte(fenetre)) forme->hide();
}

bool Application::visible(Fenetre fenetre) const {
    const Forme* forme = formes_.ouverte(fenetre);
    return forme != nullptr && forme->isVisible();
}

bool Application::entamee(Fenetre fenetre) const {
    return visible(fenetre) && formes_.ouverte(fenetre)->entamee();
}

void Application::decharger(Fenetre fenetre) {
    if (formes_.ouverte(fenetre) == nullptr) return;
    formes_.decharger(fenetre);
    if (fenetre != Fenetre::FrmVisu) return;
    if (plateforme_.media.proprietaire() == Fenetre::FrmVisu) {
        plateforme_.media.stop();
        plateforme_.media.URL(Utf8());
    }
    corpus().setEnabled(true);
    repos_.start();
}

void Application::finir() {
    for (const Fenetre fenetre : FENETRES)
        if (entamee(fenetre)) return montrer(fenetre);
    std::for_each(std::rbegin(FENETRES), std::rend(FENETRES), [this](Fenetre fenetre) { cacher(fenetre); });
    emit fini();
}

bool Application::texteAbandonne() const {
    const auto* saisie = dynamic_cast<const FrmSaisie*>(formes_.ouverte(Fenetre::FrmSaisie));
    return saisie != nullptr && saisie->aReprendre();
}

void Application::mettreALAbri() {
    for (const Fenetre fenetre : FENETRES)
        if (Forme* forme = formes_.ouverte(fenetre)) forme->garder([&] { forme->mettreALAbri(); });
}

void Application::terminer() {
    mettreALAbri();
    QCoreApplication::exit();
}

void Application::annoncer(const Avis& avis) {
    plateforme_.annonces.annoncer(avis);
}

void Application::transmettre(const Avis& avis) {
    for (const Fenetre fenetre : FENETRES)
        if (Forme* forme = formes_.ouverte(fenetre)) forme->garder([&] { forme->surAvis(avis); });
}

} // namespace vermo
