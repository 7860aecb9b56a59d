#include "Fenetres.h"

#include "Mesure.h"

#include <QtTest>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <optional>
#include <stdexcept>

namespace bancs {

using namespace vermo;

namespace {

/// Notes when a widget that is to come has been painted for the first time.
class GuetteurDeDessin : public QObject {
  public:
    explicit GuetteurDeDessin(const char* nom) : nom_(QLatin1String(nom)) { qApp->installEventFilter(this); }
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

} // namespace

QWidget& fenetre(const char* nom) {
    for (QWidget* haute : QApplication::topLevelWidgets())
        if (haute->objectName() == QLatin1String(nom)) return *haute;
    throw std::runtime_error(std::string("no window ") + nom);
}

void laisser(int ms) {
    QEventLoop boucle;
    QTimer::singleShot(ms, Qt::PreciseTimer, &boucle, &QEventLoop::quit);
    boucle.exec();
}

double jusquAuDessin(const char* nom, const std::function<void()>& action) {
    GuetteurDeDessin guetteur(nom);
    const auto debut = std::chrono::steady_clock::now();
    const QDeadlineTimer limite(30000);
    QTimer::singleShot(30000, &guetteur, [] {}); // wakes the loop, so that the limit is seen
    action();
    while (!guetteur.peinte) {
        if (limite.hasExpired()) throw std::runtime_error(std::string("never painted: ") + nom);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return std::chrono::duration<double>(*guetteur.peinte - debut).count();
}

double fenetreNue(QSize taille) {
    std::optional<QWidget> nue;
    return jusquAuDessin("nue", [&] {
        nue.emplace();
        nue->setObjectName(QStringLiteral("nue"));
        nue->resize(taille);
        nue->show();
    });
}

void fermerCorpus(Programme& programme, const std::string& crp) {
    programme.application().decharger(Fenetre::FrmCorpus);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    programme.session().corpus = {};
    malloc_trim(0);
    const std::string repertoire = std::filesystem::path(crp).parent_path();
    auto& emplacements = programme.hote().plateforme().emplacements;
    emplacements.programme = emplacements.etat = repertoire + "/";
    emplacements.execution.clear(); // a measure in its own process finds the corpus open in this one
    std::ofstream(repertoire + "/Projets.ini") << crp << "\r\n";
}

CorpusOuvert::CorpusOuvert(Programme& programme, const std::string& crp) : programme_(programme) {
    fermerCorpus(programme, crp);
    programme.session().corpus.CheminCorpus = crp;
    programme.session().corpus.OuvertureDirecte = true;
    programme.application().montrer(Fenetre::FrmCorpus);
    corpus().resize(1920, 1080);
    (void)QTest::qWaitForWindowExposed(&corpus());
    laisser(100);
    premiere = ouvrir();
    laisser(50);
}

CorpusOuvert::~CorpusOuvert() {
    programme_.application().decharger(Fenetre::FrmCorpus);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double CorpusOuvert::ouvrir() {
    return chronometrer([this] {
        programme_.application().OuvrirCorpus();
        corpus().repaint();
    });
}

double medianeDe(int fois, const std::function<double(int)>& mesure) {
    std::vector<double> valeurs;
    for (int i = 0; i < fois; ++i)
        valeurs.push_back(mesure(i));
    valeurs.erase(valeurs.begin(), valeurs.begin() + fois / 5);
    return mediane(valeurs);
}

} // namespace bancs
