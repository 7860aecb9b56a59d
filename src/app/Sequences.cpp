// The sequences that go through several windows: what src/sequences/ does, shown.
#include "app/Application.h"
#include "audio/ui/FrmVisu.h"
#include "corpus/ui/FrmCorpus.h"
#include "platform/Sablier.h"
#include "sequences/Histoire.h"
#include "sequences/Import.h"
#include "sequences/Ouverture.h"
#include "sequences/Reprise.h"
#include "transcription/ui/FrmSaisie.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

namespace vermo {

void Application::NouveauCorpus() {
    if (!nouveauCorpus(session_, plateforme_)) return;
    rouvrirCorpus();
    session_.corpus.OuvertureDirecte = false;
}

void Application::OuvrirCorpus() {
    if (lireCorpus()) reprendreBrouillon();
}

/// False when the person wanted none, or it couldn't be opened.
bool Application::lireCorpus() {
    const auto progression = qScopeGuard([this] { plateforme_.progression.fin(); });
    const Spectateur spectateur{corpus().hauteurFond(), [this](Etape etape) { montrerEtape(etape); }};
    if (ouvrirCorpus(session_, plateforme_, spectateur) != IssueOuverture::Ouverte) return false;
    repos_.start();
    direVoisin();
    return true;
}

/// What was typed in this corpus when the program was ended from outside.
void Application::reprendreBrouillon() {
    auto offre = offrirBrouillon(session_, plateforme_);
    if (!offre) return;
    ouvrirEntretien({offre->slot, Ouverture::SansFondu});
    if (visible(Fenetre::FrmVisu))
        formes_.de<FrmSaisie>(Fenetre::FrmSaisie).reprendre(offre->reprise, std::move(offre->tenu));
}

/// Another program may have the corpus open too: both are told, the second one, and may go on.
void Application::direVoisin() {
    const Utf8 nom = nomVerrou(plateforme_.emplacements, session_.corpus);
    if (nom.empty() || nom == nomTenu_) return;
    nomTenu_ = nom;
    corpusTenu_ = VerrouFichier(nom);
    if (corpusTenu_.ailleurs())
        plateforme_.dialogues.demander(
            {"Ce corpus est déjà ouvert dans un autre Vermo :\n" + session_.corpus.CheminCorpus +
                 "\nVous pouvez continuer : ce que l'un enregistre est relu par l'autre, rien n'est écrasé.",
             "Vermo", Boutons::Ok, Icone::Information});
}

void Application::montrerEtape(Etape etape) {
    switch (etape) {
    case Etape::Debut:
        return montrerCorpusVide();
    case Etape::Vide:
        return corpus().viderAffichage();
    case Etape::Thematiques:
        return annoncer({Sujet::Thematiques});
    case Etape::Frise:
        return corpus().montrerFrise();
    case Etape::Pistes:
        return corpus().montrerPistes();
    }
}

/// The window on the screen before the files are read: empty, and its bar says that there is more to come.
void Application::montrerCorpusVide() {
    constexpr int attenteMs = 200;
    if (visible(Fenetre::FrmCorpus)) return;
    montrer(Fenetre::FrmCorpus);
    plateforme_.progression.montrer();
    const QDeadlineTimer limite(attenteMs);
    QTimer::singleShot(attenteMs, &corpus(), [] {}); // wakes the loop when the system doesn't show the window
    while (!corpus().windowHandle()->isExposed() && !limite.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // what its first paint asked for
}

/// What is on the disk counts again, without a question.
void Application::rouvrirCorpus() {
    session_.corpus.OuvertureDirecte = true;
    lireCorpus();
}

void Application::suivreListe(const SuiteListe& suite) {
    if (suite.aRouvrir) rouvrirCorpus();
    if (suite.faute) throw FauteExecution(*suite.faute);
}

void Application::retirerEntretien() {
    suivreListe(vermo::retirerEntretien(session_, plateforme_));
}

void Application::DeplacerEntretien(int source, int cible) {
    suivreListe(deplacerDansListe(session_, plateforme_, source, cible));
}

void Application::annulerChangement() {
    parcourir(Sens::Annuler);
}

void Application::refaireChangement() {
    parcourir(Sens::Refaire);
}

bool Application::aAnnuler() const {
    return prochain(session_, Sens::Annuler) != nullptr;
}

bool Application::aRefaire() const {
    return prochain(session_, Sens::Refaire) != nullptr;
}

/// A change of the corpus file may take away the very interview that is being worked on.
void Application::parcourir(Sens sens) {
    const Changement* changement = prochain(session_, sens);
    if (!changement) return;
    if (toucheCorpus(session_, *changement))
        for (const Fenetre fenetre : FENETRES)
            if (entamee(fenetre)) return montrer(fenetre);
    if (!parcourirHistoire(session_, plateforme_, sens)) return;
    cacher(Fenetre::FrmSaisie);
    decharger(Fenetre::FrmVisu);
    rouvrirCorpus();
}

/// Windows stay alive while a recording is copied or measured: a second import waits for the first to end.
void Application::ImporterEntretien() {
    if (importEnCours_) return;
    const QScopedValueRollback enCours(importEnCours_, true);
    const Sablier sablier(plateforme_.ecran, std::nullopt);
    importer();
}

void Application::importer() {
    const SuiteImport suite = importerEntretien(session_, plateforme_);
    const int slot = session_.corpus.EntretienCourant;
    switch (suite.issue) {
    case IssueImport::Abandonne:
        return;
    case IssueImport::OuvrirDAbord:
        return OuvrirCorpus();
    case IssueImport::ARouvrir:
        return suivreListe({true, suite.faute});
    case IssueImport::Ajoute:
        annoncer({Sujet::Entretiens, slot});
        lireAttributs(session_, plateforme_, slot);
        montrer(Fenetre::FrmVisu, EntretienVoulu{slot, Ouverture::SansFondu});
    }
}

void Application::ouvrirEntretien(const EntretienVoulu& voulu) {
    EtatCorpus& etat = session_.corpus;
    if (voulu.slot < 1 || voulu.slot > etat.NbEntretiens) return;
    const Sablier sablier(plateforme_.ecran);
    etat.EntretienCourant = static_cast<std::int16_t>(voulu.slot);
    actualiserEntretien(session_, plateforme_, voulu.slot);
    decharger(Fenetre::FrmVisu);
    plateforme_.media.URL(cheminEnregistrement(session_, voulu.slot), Fenetre::FrmVisu);
    montrerEntretien(voulu.ouverture);
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
    session_.transcription.signalement.oublier();
    desactiverCorpus();
    try {
        if (formes_.de<FrmVisu>(Fenetre::FrmVisu).OuvrirEntretienVue(ouverture)) return;
    } catch (...) {
        decharger(Fenetre::FrmVisu);
        corpus().setEnabled(true);
        throw;
    }
    decharger(Fenetre::FrmVisu);
}

} // namespace vermo
