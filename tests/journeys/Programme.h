#pragma once
#include "app/Application.h"
#include "audio/OndeDEssai.h"
#include "corpus_ui/Gestes.h"
#include "textfile/chemins.h"
#include "window/ui/Forme.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <filesystem>
#include <map>
#include <string>

namespace vermo::essai {

inline constexpr const char* TETE =
    "Projet\r\n<|THEM|\r\n000,&H0, Rien\r\n001,255, Travail\r\n>|THEM|\r\n<|POS|\r\n"
    ">|POS|\r\n<|DIC|\r\n>|DIC|\r\n<|ENTR|\r\n";
inline constexpr const char* RTR = " 60 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";
inline constexpr const char* EXTRAIT = "::1.00::001\r\nmot\r\n::3.00::\r\n";

inline const std::string MONO = wav(1, 8, std::string(12000, '\x80')),
                         STEREO = wav(2, 16, std::string(40000, '\0'));

/// The window of this name on the screen, its timers stopped.
inline Forme& forme(const char* nom) {
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (fenetre->objectName() == QLatin1String(nom) && fenetre->isVisible()) {
            for (QTimer* timer : fenetre->findChildren<QTimer*>())
                timer->stop();
            return dynamic_cast<Forme&>(*fenetre);
        }
    throw std::runtime_error(std::string("not on the screen: ") + nom);
}

inline Toile& rangees() {
    return *membre<Toile>(forme("FrmCorpus"), "Frm_entretiens");
}

/// The whole program, its host simulated, beside the corpus c/E.Crp with one recording a letter: "a.wav"…
/// with an extract of "001" each.
class Programme {
  public:
    explicit Programme(const std::string& lettres = "ab") {
        session.reglages.separateurDecimal = '.';
        std::string liste;
        for (const char lettre : lettres) {
            const std::string nom(1, lettre);
            hote.dossier.ecrire("c/" + nom + ".wav", MONO);
            hote.dossier.ecrire("c/" + nom + ".Rtr", std::string(RTR) + EXTRAIT);
            liste += nom + ".wav\r\n";
        }
        hote.dossier.ecrire("c/E.Crp", TETE + liste + ">|ENTR|\r\n");
        hote.dossier.ecrire("programme/Projets.ini", hote.dossier.chemin("c/E.Crp") + "\r\n");
        QObject::connect(&app, &Application::fini, [this] { fini = true; });
    }
    /// Chosen in the start window's list of recent ones; by "ImgBtn1" none is.
    void ouvrirCorpus(const char* par = "lblcorpus3") {
        app.demarrer();
        QTest::mouseClick(membre<QWidget>(forme("FrmIntro"), par), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// What is kept, played and shown, by name: files with their bytes, the rest as in `bilan`.
    std::map<std::string, std::string> etat() const;
    void noter() { avant_ = etat(), sessionAvant_ = session; }
    /// What differs from when it was last noted, "name=value" by name; of files only which.
    std::string bilan() const;
    bool sessionIntacte() const {
        Session autre =
            sessionAvant_; // but how the next opening finds its path, and the counter of the fades
        autre.corpus.OuvertureDirecte = session.corpus.OuvertureDirecte;
        autre.EtatFondu = session.EtatFondu;
        return session == autre;
    }

    PlateformeDeTest hote;
    Session session;
    Application app{session, hote};
    bool fini = false;

  private:
    std::map<std::string, std::string> avant_;
    Session sessionAvant_;
};

/// Which of the icons the button shows.
inline std::string icone(const QWidget& fenetre, const char* nom) {
    auto* bouton = membre<BoutonImage>(fenetre, nom);
    for (const char* essai : {"ImgOn", "ImgOff", "Taille0", "Taille1"}) {
        BoutonImage temoin({}, QString::fromLatin1(essai), {}, bouton->parentWidget());
        temoin.resize(bouton->size());
        if (temoin.grab().toImage() == bouton->grab().toImage()) return essai;
    }
    return "?";
}

/// Names of the windows on the screen: "-" where one takes no input, "_" minimised; FrmVisu with its opacity,
/// FrmMenu with its panel.
inline std::string fenetresEnVue() {
    std::string suite;
    for (const char* nom : {"FrmIntro", "FrmCorpus", "FrmVisu", "FrmSaisie", "FrmMenu"})
        for (const QWidget* fenetre : QApplication::topLevelWidgets()) {
            if (fenetre->objectName() != QLatin1String(nom) || !fenetre->isVisible()) continue;
            suite += (suite.empty() ? "" : " ") + std::string(nom);
            suite += fenetre->isMinimized() ? "_" : fenetre->isEnabled() ? "" : "-";
            if (nom == std::string("FrmVisu"))
                suite += ":" + std::to_string(dynamic_cast<const Forme*>(fenetre)->alpha());
            for (const QWidget* panneau : fenetre->findChildren<QFrame*>())
                if (panneau->isVisible() && panneau->objectName().startsWith(QLatin1String("FrmMnu")))
                    suite += ":" + panneau->objectName().toStdString();
        }
    return suite;
}

inline std::map<std::string, std::string> Programme::etat() const {
    const EtatCorpus& corpus = session.corpus;
    std::map<std::string, std::string> e{
        {"choix", std::to_string(corpus.EntretienCourant)},
        {"corpus", nomDe(corpus.CheminCorpus)},
        {"hauteur", std::to_string(std::lround(corpus.HauteurEntretien))},
        {"taille", corpus.TailleReelle ? "vraie" : "pleine"},
        {"volume", std::to_string(std::lround(session.audio.VolumeLecture)) + "/" +
                       std::to_string(hote.media.volume())},
        {"lecteur", nomDe(hote.media.URL()) + (hote.media.enLecture() ? " joue" : "")},
        {"pointeur", std::to_string(static_cast<int>(hote.ecran.pointeurCourant))},
        {"fenetres", fenetresEnVue()},
        {"fini", fini ? "oui" : "non"},
        {"liste", ""},
        {"eteints", ""},
        {"rangs", ""}};
    for (std::size_t i = 1; i < corpus.Entretiens.size(); ++i)
        e["liste"] += corpus.Entretiens[i].Fichier.front(),
            e["eteints"] += corpus.Entretiens[i].Visible ? "" : corpus.Entretiens[i].Fichier.substr(0, 1);
    for (std::size_t i = 1; i < corpus.ThmVisible.size(); ++i)
        e["thematiques"] += std::to_string(corpus.ThmVisible[i]);
    for (const auto& entree : std::filesystem::recursive_directory_iterator(hote.dossier.chemin()))
        if (entree.is_regular_file()) {
            const std::string nom = entree.path().string().substr(hote.dossier.chemin().size());
            e[nom] = hote.dossier.lire(nom);
        }
    if (!app.visible(Fenetre::FrmCorpus)) return e;
    const Forme& fenetre = forme("FrmCorpus");
    for (const char* nom : {"etq0", "etq1"})
        e[nom] = membre<QLabel>(fenetre, nom)->text().section(QLatin1Char(' '), 2).toStdString();
    for (const char* nom : {"ImgOnOffent", "ImgOnOffthm0", "Imgbtn3"})
        e[nom] = icone(fenetre, nom);
    for (const char* nom : {"PictTps", "LblScroll", "LblVide"})
        e[nom] = membre<QWidget>(fenetre, nom)->isVisible() ? "oui" : "non";
    e["jauge"] = membre<QWidget>(fenetre, "PictVol")->toolTip().toStdString();
    for (const Element& rang : rangees().elements())
        if (rang.controle == Controle::lblfich) e["rangs"] += rang.texte;
    return e;
}

inline std::string Programme::bilan() const {
    std::string suite;
    auto noms = avant_;
    const auto apres = etat();
    noms.insert(apres.begin(), apres.end());
    for (const auto& [nom, sansObjet] : noms) {
        const auto la = avant_.find(nom), ici = apres.find(nom);
        const bool fichier = nom.starts_with("c/") || nom.starts_with("programme/"),
                   neuf = la == avant_.end(), parti = ici == apres.end();
        if (neuf || parti ? !fichier : la->second == ici->second) continue;
        suite += (suite.empty() ? "" : " | ") + nom;
        suite += !fichier ? "=" + ici->second : neuf ? " +" : parti ? " -" : " ~";
    }
    return suite;
}

/// Middle of an item of the canvas as it is scrolled now, pixels.
inline QPoint place(const Toile& toile, Controle controle, int index) {
    Twips decalage = 0;
    for (const Element& e : toile.elements())
        if (e.controle == controle && e.index == index)
            decalage = e.cadre.haut - toile.dansLaToile(e.cadre).haut;
    return lieu(toile, controle, index, decalage);
}

} // namespace vermo::essai
