// The jobs that a person waits for: an interview never opened before, a corpus, its reload, an extract.
#include "Donnees.h"
#include "Fenetres.h"
#include "Mesure.h"

#include <QtTest>

#include <QPlainTextEdit>

#include <filesystem>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

constexpr int REPOS_MS = 800; ///< in which the corpus window prepares the next interview

/// From the click to the painted window, its fade over, of an interview that has no picture yet and whose
/// recording is on the disk alone.
double ouvrirAFroid(Programme& programme, const std::string& onde) {
    const fs::path image = fs::path(onde).replace_extension("Bmp");
    fs::remove(image);
    oublierPages(onde);
    const double duree = chronometrer([&] {
        jusquAuDessin("FrmVisu", [&] {
            programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::AvecFondu});
        });
        while (fenetre("FrmVisu").findChild<QTimer*>(QStringLiteral("Timer3"))->isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
    programme.application().decharger(Fenetre::FrmVisu);
    laisser(REPOS_MS);
    return duree;
}

Resultat ouvertureFroide(Programme& programme, const std::string& donnees) {
    const std::string crp = corpusDUneHeure(donnees);
    const std::string onde = fs::path(crp).parent_path() / "Entretien.wav";
    CorpusOuvert ouvert(programme, crp);
    laisser(REPOS_MS);
    const Paire paire = apparier(
        5, [&] { return ouvrirAFroid(programme, onde); },
        [&] {
            oublierPages(onde);
            return commande("cat " + onde);
        });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "cat of the same file, not in memory either",
            .atteinte = 0.7};
}

/// From the click in the start window's list to the corpus window painted with the bar of its progress.
double ouvrirDepuisLaListe(Programme& programme, const std::string& crp) {
    fermerCorpus(programme, crp);
    programme.application().demarrer();
    (void)QTest::qWaitForWindowExposed(&fenetre("FrmIntro"));
    laisser(REPOS_MS);
    auto& ligne = controle(fenetre("FrmIntro"), "lblcorpus3");
    const double duree = jusquAuDessin("ProgressBar1", [&] { QTest::mouseClick(&ligne, Qt::LeftButton); });
    laisser(100);
    return duree;
}

Resultat corpus999(Programme& programme, const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    const QSize ecran = QApplication::primaryScreen()->availableSize();
    const Paire paire = apparier(
        5, [&] { return ouvrirDepuisLaListe(programme, crp); }, [&] { return fenetreNue(ecran); });
    fermerCorpus(programme, crp);
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "first paint of a bare Qt window opened second",
            .atteinte = 1.5};
}

Resultat recharge999(Programme& programme, const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    std::vector<double> premieres, suivantes;
    for (int i = 0; i < 3; ++i) {
        CorpusOuvert ouvert(programme, crp);
        premieres.push_back(ouvert.premiere);
        for (int j = 0; j < 3; ++j)
            suivantes.push_back(ouvert.ouvrir());
    }
    return {.notre = mediane(suivantes),
            .autre = mediane(premieres),
            .aCote = "our own first opening, whole",
            .atteinte = 0.1};
}

/// One extract opened, typed in and validated; timed from the click to the painted interview, the file safe
/// on the disk.
double valider(Programme& programme, int essai) {
    programme.application().montrer(Fenetre::FrmSaisie, ExtraitVoulu{5});
    QWidget& saisie = fenetre("FrmSaisie");
    (void)QTest::qWaitForWindowExposed(&saisie);
    laisser(150);
    controle<QPlainTextEdit>(saisie, "TextRtr")
        .setPlainText(QStringLiteral("Un texte repris %1.").arg(essai));
    auto& bouton = controle(saisie, "Imgbtn0");
    return chronometrer([&] {
        bouton.click();
        QCoreApplication::processEvents();
        fenetre("FrmVisu").repaint();
    });
}

double editions(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    laisser(REPOS_MS);
    programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    laisser(200);
    const double duree = medianeDe(25, [&](int i) { return valider(programme, i); });
    programme.application().decharger(Fenetre::FrmVisu);
    return duree;
}

Resultat edition999(Programme& programme, const std::string& donnees) {
    const double grand = editions(programme, corpusDe(donnees, 999, 999));
    const double petit = editions(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 1.5};
}

} // namespace

std::vector<NomTravail> travauxAttente(Programme& programme) {
    const auto avec = [&programme](auto* travail) { return lier(programme, travail); };
    return {{"ouverture-froide-1h", avec(ouvertureFroide)},
            {"corpus-999x999", avec(corpus999)},
            {"recharge-999x999", avec(recharge999)},
            {"edition-999x999", avec(edition999)}};
}

} // namespace bancs
