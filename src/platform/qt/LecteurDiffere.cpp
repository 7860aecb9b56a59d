#include "platform/qt/LecteurDiffere.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <algorithm>

namespace vermo {
namespace {

using CreerLecteur = LecteurMedia* (*)(const char* sortieAudio);

QString cheminBibliotheque() {
    const QString programme = QCoreApplication::applicationDirPath();
    const QString voisine = programme + QStringLiteral("/libvermo_mpv.so");
    return QFileInfo::exists(voisine) ? voisine : programme + QStringLiteral("/../lib/vermo/libvermo_mpv.so");
}

} // namespace

void LecteurDiffere::preparer() {
    if (lecteur_ || !panne_.empty()) return;
    QLibrary bibliotheque(cheminBibliotheque());
    const auto creer = reinterpret_cast<CreerLecteur>(bibliotheque.resolve("vermo_creer_lecteur"));
    if (creer) lecteur_.reset(creer(sortieAudio_.c_str()));
    if (!lecteur_) {
        panne_ =
            creer ? "Le lecteur audio n'a pas pu démarrer."
                  : "Le lecteur audio n'a pas pu être chargé : " + bibliotheque.errorString().toStdString();
        return;
    }
    ecoute_ = lecteur_->ecouter([this](EtatLecture etat) { annoncerEtat(etat); });
    lecteur_->volume(volume_);
    lecteur_->rate(vitesse_);
}

void LecteurDiffere::ouvrir(const Utf8& chemin) {
    url_ = chemin;
    if (!chemin.empty()) preparer();
    if (lecteur_) lecteur_->URL(chemin, proprietaire());
}

void LecteurDiffere::play() {
    if (lecteur_) lecteur_->play();
}

void LecteurDiffere::pause() {
    if (lecteur_) lecteur_->pause();
}

void LecteurDiffere::stop() {
    if (lecteur_) lecteur_->stop();
}

void LecteurDiffere::currentPosition(double secondes) {
    if (lecteur_) lecteur_->currentPosition(secondes);
    annoncerDeplacement();
}

void LecteurDiffere::volume(int part) {
    volume_ = std::clamp(part, 0, 100);
    if (lecteur_) lecteur_->volume(volume_);
}

void LecteurDiffere::rate(double facteur) {
    vitesse_ = facteur;
    if (lecteur_) lecteur_->rate(facteur);
}

Utf8 LecteurDiffere::erreur() const {
    if (lecteur_) return lecteur_->erreur();
    return url_.empty() ? Utf8() : panne_;
}

} // namespace vermo
