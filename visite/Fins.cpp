#include "Fins.h"

#include "app/Signaux.h"

#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSocketNotifier>
#include <QtTest>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <unistd.h>

namespace vermo::visite {

namespace fs = std::filesystem;

namespace {

constexpr int TOUCHE_MS = 20, TOUCHES_AVANT_LA_FIN = 2500 / TOUCHE_MS;

/// What is typed by the n-th key.
QChar touche(qsizetype n) {
    static const QString phrase =
        QStringLiteral("Elle l'a déjà dit : « C'était l'été… »\nPuis elle hésite. ");
    return phrase[n % phrase.size()];
}

qint64 maintenantMs() {
    const auto instant = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(instant).count();
}

void ouvrirCorpus(Programme& programme, const std::string& chemin) {
    EtatCorpus& corpus = programme.session().corpus;
    corpus.CheminCorpus = chemin;
    corpus.OuvertureDirecte = true;
    programme.application().OuvrirCorpus();
}

void ouvrirNouvelExtrait(Programme& programme) {
    auto& saisie = programme.session().transcription;
    programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    saisie.SaisieDebut = 25, saisie.SaisieFin = 29, saisie.SaisieDuree = 4;
    saisie.NouvelExtrait = true;
    programme.application().montrer(Fenetre::FrmSaisie, NouvelExtraitVoulu{});
}

} // namespace

int taper(int argc, char** argv) {
    Programme programme(argc, argv, "null");
    ecouterLaFin(programme.application());
    const QSocketNotifier session(STDIN_FILENO, QSocketNotifier::Read); // closed: the session ends
    QObject::connect(&session, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    programme.hote().plateforme().emplacements.programme = fs::path(argv[2]).parent_path().string() + "/";
    ouvrirCorpus(programme, argv[2]);
    ouvrirNouvelExtrait(programme);
    QWidget* texte = nullptr;
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (fenetre->isVisible() && texte == nullptr)
            texte = fenetre->findChild<QWidget*>(QStringLiteral("TextRtr"));
    if (texte == nullptr) return 1;
    QTimer doigt;
    QObject::connect(&doigt, &QTimer::timeout, qApp, [texte, n = qsizetype(0)]() mutable {
        Visiteur::taper(*texte, touche(n++));
        std::printf("%lld\n", static_cast<long long>(maintenantMs()));
        std::fflush(stdout);
    });
    doigt.start(TOUCHE_MS);
    return QApplication::exec();
}

/// A program that this one started, and that doesn't outlive it.
class Processus : public QProcess {
  public:
    Processus() {
        setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
    ~Processus() override { tuer(); }
    void tuer() {
        kill();
        waitForFinished();
    }
};

/// How each is ended.
struct Maniere {
    const char* nom;
    void (*finir)(QProcess& programme, Processus& ecran);
    qint64 perteMs; ///< what was typed in the last moments may be lost; 0: nothing of it
    bool sansEclat; ///< the program ends by itself, and well
};

namespace {

template <int numero>
void signaler(QProcess& programme, Processus&) {
    ::kill(pid_t(programme.processId()), numero);
}

const Maniere MANIERES[] = {
    {"SIGKILL", signaler<SIGKILL>, 1000, false},
    {"SIGTERM", signaler<SIGTERM>, 0, true},
    {"SIGHUP", signaler<SIGHUP>, 0, true},
    {"SIGINT", signaler<SIGINT>, 0, true},
    {"session", [](QProcess& programme, Processus&) { programme.closeWriteChannel(); }, 0, true},
    {"ecran", [](QProcess&, Processus& ecran) { ecran.tuer(); }, 1000, false}};

} // namespace

class Fins::Enfant {
  public:
    Enfant(const Maniere& maniere, const fs::path& demo, const fs::path& dossier)
        : maniere_(maniere), dossier_(dossier / maniere.nom) {
        fs::create_directories(dossier_);
        fs::copy(demo, dossier_ / "corpus");
    }

    const char* nom() const { return maniere_.nom; }
    fs::path dossier() const { return dossier_; }

    void ouvrirEcran() {
        ecran_.setStandardErrorFile(QProcess::nullDevice()); // numbers that were taken
        ecran_.start(QStringLiteral("Xvfb"),
                     {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                      QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                      QStringLiteral("tcp")});
    }
    bool ecranOuvert() { return ecran_.canReadLine(); }

    void lancer() {
        auto milieu = QProcessEnvironment::systemEnvironment();
        milieu.insert(QStringLiteral("DISPLAY"),
                      QLatin1Char(':') + QString::fromLatin1(ecran_.readLine().trimmed()));
        milieu.insert(QStringLiteral("XDG_STATE_HOME"), QString::fromStdString(dossier_ / "etat"));
        programme_.setProcessEnvironment(milieu);
        programme_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        programme_.start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("--taper"), QString::fromStdString(dossier_ / "corpus/Métiers.Crp")});
    }
    bool aTape() {
        lireInstants();
        if (programme_.state() == QProcess::NotRunning)
            throw Manque(std::string("ended before its time: ") + nom());
        return instants_.size() >= TOUCHES_AVANT_LA_FIN;
    }

    void finir() {
        fin_ = maintenantMs();
        maniere_.finir(programme_, ecran_);
    }
    bool fini() { return programme_.state() == QProcess::NotRunning; }
    void verifierFin() {
        lireInstants();
        const bool bien = programme_.exitStatus() == QProcess::NormalExit && programme_.exitCode() == 0;
        if (maniere_.sansEclat && !bien) throw Manque(std::string("the program didn't end well: ") + nom());
        ecran_.tuer();
    }

    /// It begins with all that was typed before what may be lost, and holds nothing else.
    void comparer(const QString& repris) const {
        const auto due = std::ranges::count_if(
            instants_, [this](qint64 instant) { return instant <= fin_ - maniere_.perteMs; });
        bool juste = repris.size() >= due && repris.size() <= instants_.size() + 1;
        for (qsizetype n = 0; n < repris.size(); ++n)
            juste = juste && repris[n] == touche(n);
        std::printf("  %s : %d touches, %d dues, %d reprises\n", nom(), int(instants_.size()), int(due),
                    int(repris.size()));
        if (!juste) throw Manque(std::string("not what was typed: ") + nom() + ": " + repris.toStdString());
    }

  private:
    void lireInstants() {
        while (programme_.canReadLine())
            instants_.push_back(programme_.readLine().toLongLong());
    }

    const Maniere& maniere_;
    fs::path dossier_;
    Processus ecran_, programme_;
    QList<qint64> instants_; ///< ms, of each key
    qint64 fin_ = 0;
};

Fins::Fins(Programme& programme, Visiteur& visiteur, fs::path demo, fs::path dossier)
    : programme_(programme), visiteur_(visiteur) {
    fs::remove_all(dossier);
    for (const Maniere& maniere : MANIERES)
        enfants_.push_back(std::make_unique<Enfant>(maniere, demo, dossier));
}

Fins::~Fins() = default;

void Fins::finirTous() {
    const auto attendreTous = [this](const char* quoi, bool (Enfant::*vrai)()) {
        visiteur_.attendre(quoi, [&] {
            return std::ranges::all_of(enfants_, [&](const auto& enfant) { return (*enfant.*vrai)(); });
        });
    };
    for (const auto& enfant : enfants_)
        enfant->ouvrirEcran();
    attendreTous("the screens", &Enfant::ecranOuvert);
    for (const auto& enfant : enfants_)
        enfant->lancer();
    attendreTous("the typing", &Enfant::aTape);
    for (const auto& enfant : enfants_)
        enfant->finir();
    attendreTous("the end", &Enfant::fini);
    for (const auto& enfant : enfants_)
        enfant->verifierFin();
}

void Fins::reprendre(std::size_t i) {
    const Enfant& enfant = *enfants_[i];
    fs::rename(enfant.dossier() / "corpus", enfant.dossier() / "ailleurs");
    programme_.hote().plateforme().emplacements.etat = enfant.dossier() / "etat/Vermo/";
    visiteur_.prevoirBouton(("brouillon-" + std::string(enfant.nom())).c_str(), QMessageBox::Yes);
    ouvrirCorpus(programme_, enfant.dossier() / "ailleurs/Métiers.Crp");
    const auto texte = [this]() -> QPlainTextEdit& {
        return visiteur_.controle<QPlainTextEdit>("FrmSaisie", "TextRtr");
    };
    const QString repris = texte().toPlainText();
    enfant.comparer(repris);
    visiteur_.photographier(QStringLiteral("brouillon-repris"));
    visiteur_.touche(texte(), Qt::Key_Escape);
    visiteur_.photographier(QStringLiteral("reprise-offerte"));
    visiteur_.cliquer(visiteur_.controle("FrmVisu", "LblReprendre"));
    if (texte().toPlainText() != repris) throw Manque("the abandoned text isn't the one that was discarded");
    visiteur_.touche(texte(), Qt::Key_Escape);
    visiteur_.touche(visiteur_.controle("FrmVisu", "TxtCtrl"), Qt::Key_Escape);
    visiteur_.attendre("the closed window",
                       [this] { return !programme_.application().visible(Fenetre::FrmVisu); });
}

} // namespace vermo::visite
