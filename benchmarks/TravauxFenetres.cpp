// The jobs with windows: timeline, scroll, an interview's opening, the start.
#include "Donnees.h"
#include "Mesure.h"

#include "app/Demarrage.h"
#include "window/ui/Toile.h"

#include <QtTest>

#include <chrono>
#include <filesystem>
#include <optional>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

/// A corpus open in the program's own windows, at 1920 x 1080.
class CorpusOuvert {
  public:
    CorpusOuvert(Programme& programme, const std::string& crp) : programme_(programme) {
        auto& emplacements = programme.hote().plateforme().emplacements;
        emplacements.programme = fs::path(crp).parent_path().string() + "/";
        programme.session().corpus = {};
        programme.session().corpus.CheminCorpus = crp;
        programme.session().corpus.OuvertureDirecte = true;
        programme.application().montrer(Fenetre::FrmCorpus);
        corpus().resize(1920, 1080);
        programme.application().OuvrirCorpus();
        (void)QTest::qWaitForWindowExposed(&corpus());
        QTest::qWait(50);
    }
    ~CorpusOuvert() {
        programme_.application().decharger(Fenetre::FrmCorpus),
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    CorpusOuvert(const CorpusOuvert&) = delete;
    CorpusOuvert& operator=(const CorpusOuvert&) = delete;

    QWidget& corpus() {
        for (QWidget* fenetre : QApplication::topLevelWidgets())
            if (fenetre->objectName() == QLatin1String("FrmCorpus")) return *fenetre;
        throw std::runtime_error("no corpus window");
    }
    Toile& rangees() { return *corpus().findChild<Toile*>(QStringLiteral("Frm_entretiens")); }

    /// The timeline laid out and painted, once.
    double redessiner() {
        return chronometrer([this] {
            programme_.application().RedessinerPistes();
            corpus().repaint();
        });
    }

    /// One notch of the wheel, up to the painted rows.
    double defiler(int crans) {
        Toile& toile = rangees();
        const QPointF milieu = toile.rect().center();
        QWheelEvent molette(milieu, toile.mapToGlobal(milieu), {}, {0, 120 * crans}, Qt::NoButton, {},
                            Qt::NoScrollPhase, false);
        return chronometrer([&] {
            QCoreApplication::sendEvent(&toile, &molette);
            toile.repaint();
        });
    }

  private:
    Programme& programme_;
};

/// Median of many redraws or scroll steps, the first few left out.
double medianeDe(int fois, const std::function<double(int)>& mesure) {
    std::vector<double> valeurs;
    for (int i = 0; i < fois; ++i)
        valeurs.push_back(mesure(i));
    valeurs.erase(valeurs.begin(), valeurs.begin() + fois / 5);
    return mediane(valeurs);
}

double redessins(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    return medianeDe(25, [&](int) { return ouvert.redessiner(); });
}

double defilements(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    // Zoomed in as far as needed for the small corpus to scroll; the same rows a screen in both.
    programme.session().corpus.HauteurEntretien = 450;
    programme.application().RedessinerFrise();
    programme.application().RedessinerPistes();
    return medianeDe(40, [&](int i) { return ouvert.defiler(i % 10 < 5 ? -1 : 1); });
}

Resultat frise(Programme& programme, const std::string& donnees) {
    const double grand = redessins(programme, corpusDe(donnees, 999, 999));
    const double petit = redessins(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 3};
}

Resultat defilement(Programme& programme, const std::string& donnees) {
    const double grand = defilements(programme, corpusDe(donnees, 999, 999));
    const double petit = defilements(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 1.5};
}

/// Notes when a window that is to come has been painted for the first time.
class GuetteurDeDessin : public QObject {
  public:
    explicit GuetteurDeDessin(QString nom) : nom_(std::move(nom)) { qApp->installEventFilter(this); }
    std::optional<std::chrono::steady_clock::time_point> peinte;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        // What is posted during a paint comes once the window and its children stand on the screen.
        if (evenement->type() == QEvent::Paint && objet->objectName() == nom_)
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        return false;
    }
    bool event(QEvent* evenement) override {
        if (evenement->type() == QEvent::User && !peinte) peinte = std::chrono::steady_clock::now();
        return QObject::event(evenement);
    }

  private:
    QString nom_;
};

double jusquAuDessin(const QString& nom, const std::function<void()>& action) {
    GuetteurDeDessin guetteur(nom);
    const auto debut = std::chrono::steady_clock::now();
    action();
    while (!guetteur.peinte)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return std::chrono::duration<double>(*guetteur.peinte - debut).count();
}

/// A bare Qt window as large as the interview's, opened second in the running process, to its first paint.
double fenetreNue() {
    std::optional<QWidget> fenetre;
    return jusquAuDessin(QStringLiteral("nue"), [&] {
        fenetre.emplace();
        fenetre->setObjectName(QStringLiteral("nue"));
        fenetre->resize(1668, 969);
        fenetre->show();
    });
}

double ouvrirEntretien(Programme& programme) {
    const double duree = jusquAuDessin(
        QStringLiteral("FrmVisu"), [&] { programme.application().ouvrirEntretien(1, Ouverture::SansFondu); });
    QTest::qWait(200);
    programme.application().decharger(Fenetre::FrmVisu);
    QTest::qWait(800); // the corpus window idles
    return duree;
}

Resultat entretien(Programme& programme, const std::string& donnees) {
    CorpusOuvert ouvert(programme, corpusDe(donnees, 40, 120));
    QTest::qWait(800); // the corpus window idles
    const Paire paire = apparier(
        7, [&] { return ouvrirEntretien(programme); }, fenetreNue);
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "first paint of a bare Qt window opened second",
            .atteinte = 1};
}

std::string depart(const char* programme) {
    return (fs::read_symlink("/proc/self/exe").parent_path() / programme).string();
}

Resultat demarrage(Programme&, const std::string&) {
    const Paire paire = apparier(
        11, [] { return commande(depart("banc_intro")); },
        [] { return commande(depart("banc_fenetre_nue")); });
    return {.notre = paire.notre, .autre = paire.autre, .aCote = "a bare Qt window", .atteinte = 1.5};
}

double memoireDe(const std::string& programme) {
    return std::stod(sortieDe(programme).substr(4)) / 1000;
}

Resultat memoireRepos(Programme&, const std::string&) {
    const Paire paire = apparier(
        5, [] { return memoireDe(depart("banc_intro")); },
        [] { return memoireDe(depart("banc_fenetre_nue")); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .unite = "MB",
            .aCote = "a bare Qt window",
            .atteinte = 1.8};
}

} // namespace

std::vector<NomTravail> travauxFenetres(Programme& programme) {
    const auto avec = [&programme](Resultat (*travail)(Programme&, const std::string&)) {
        return [&programme, travail](const std::string& donnees) { return travail(programme, donnees); };
    };
    return {{"frise-999x999", avec(frise)},
            {"defilement-999x999", avec(defilement)},
            {"entretien-cache", avec(entretien)},
            {"demarrage", avec(demarrage)},
            {"memoire-repos", avec(memoireRepos)}};
}

} // namespace bancs
