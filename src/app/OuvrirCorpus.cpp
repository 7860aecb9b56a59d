// Opening a corpus: everything is read from the disk anew, from top to bottom. It is also the reload after
// any change in the interview list.
#include "app/Application.h"
#include "corpus/AnalyserEntretiens.h"
#include "corpus/EcritureCorpus.h"
#include "corpus/Frise.h"
#include "corpus/Ordre.h"
#include "corpus/OuvertureCorpus.h"
#include "corpus/Pistes.h"
#include "corpus/ui/FrmCorpus.h"
#include "data/Variables.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QScopeGuard>
#include <QWindow>
#include <utility>

namespace vermo {

void Application::NouveauCorpus() {
    if (!creerCorpus(session_, plateforme_)) return;
    session_.corpus.OuvertureDirecte = true;
    OuvrirCorpus();
    session_.corpus.OuvertureDirecte = false;
}

void Application::OuvrirCorpus() {
    session_.corpus.EntretienCourant = 0;
    plateforme_.ecran.pointeur(Pointeur::Sablier);
    try {
        if (!demanderCorpus(session_, plateforme_)) {
            corpus().RedessinerPistes(); // no interview is chosen any more
            plateforme_.ecran.pointeur(Pointeur::Normal);
        } else if (lireCorpus()) {
            plateforme_.ecran.pointeur(Pointeur::Normal);
        }
    } catch (...) {
        plateforme_.ecran.pointeur(Pointeur::Normal);
        throw;
    }
}

/// False when the corpus could not be opened: the window stays emptied and its pointer the hourglass.
bool Application::lireCorpus() {
    const auto progression = qScopeGuard([this] { plateforme_.progression.fin(); });
    if (!visible(Fenetre::FrmCorpus)) montrerCorpusVide();
    nommerCorpus(session_);
    MettreAJourProjets(session_, plateforme_);
    viderCorpus(session_);
    corpus().viderAffichage();
    if (!corpusAccessible(session_, plateforme_)) return false;
    if (!lireThematiques(session_, plateforme_)) return false;
    ConstruireThematiques();
    if (!lireEntretiens(session_, plateforme_)) return false;
    toutActiver(session_);
    calculerHauteur(session_, corpus().hauteurFond());
    RedessinerFrise();
    RedessinerPistes();
    LireVariables(session_, plateforme_);
    for (int slot = 1; slot <= session_.corpus.NbEntretiens; ++slot)
        lireAttributs(slot);
    repos_.start();
    return true;
}

/// The window on the screen before the files are read: empty, and its bar says that there is more to come.
void Application::montrerCorpusVide() {
    constexpr int attenteMs = 200;
    montrer(Fenetre::FrmCorpus);
    plateforme_.progression.montrer();
    const QDeadlineTimer limite(attenteMs);
    QTimer::singleShot(attenteMs, &corpus(), [] {}); // wakes the loop when the system doesn't show the window
    while (!corpus().windowHandle()->isExposed() && !limite.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

/// A fault in one interview's attributes is told once for this file, and the opening goes on.
void Application::lireAttributs(int slot) {
    try {
        LireAttributs(session_, slot);
    } catch (const FauteExecution& faute) {
        bool& dite = session_.corpus.extraits[std::size_t(slot)].fauteDite;
        if (!std::exchange(dite, true)) direFaute(plateforme_.dialogues, faute);
    }
}

void Application::RedessinerFrise() {
    preparerFrise(session_, plateforme_);
    corpus().RedessinerFrise();
}

void Application::RedessinerPistes() {
    signalerDureesNulles(session_, plateforme_, 1, session_.corpus.NbEntretiens);
    corpus().RedessinerPistes();
}

void Application::RetirerEntretien() {
    auto& etat = session_.corpus;
    if (etat.EntretienCourant == 0) return;
    const Reponse reponse =
        plateforme_.dialogues.demander({.texte = "Etes-vous sûre de vouloir retirer cet entretien du corpus?",
                                        .titre = "Vermo",
                                        .boutons = Boutons::OuiNon,
                                        .icone = Icone::Question});
    if (reponse != Reponse::Oui) return;
    etat.Entretiens[std::size_t(etat.EntretienCourant)].Fichier.clear();
    enregistrerEntretiens();
    etat.OuvertureDirecte = true;
    etat.EntretienCourant = 0;
    OuvrirCorpus();
}

/// When the list can't be written, the one that the file holds counts again.
void Application::enregistrerEntretiens() {
    try {
        EcrireEntretiens(session_, plateforme_);
    } catch (...) {
        session_.corpus.OuvertureDirecte = true;
        OuvrirCorpus();
        throw;
    }
}

void Application::DeplacerEntretien(int source, int cible) {
    if (source == cible) return;
    vermo::DeplacerEntretien(session_, source, cible);
    enregistrerEntretiens();
    session_.corpus.OuvertureDirecte = true;
    OuvrirCorpus();
}

void Application::BasculerTailleReelle(bool redessiner) {
    session_.corpus.TailleReelle = !session_.corpus.TailleReelle;
    if (!redessiner) return;
    corpus().surface(false);
    RedessinerFrise();
    RedessinerPistes();
    corpus().surface(true);
}

} // namespace vermo
