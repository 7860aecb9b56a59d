#pragma once
#include "app/Application.h"
#include "audio/OndeDEssai.h"
#include "support/Scene.h"
#include "textfile/chemins.h"

#include <QFrame>
#include <QTimer>

namespace vermo::essai {

inline constexpr const char* TETE =
    "Projet\r\n<|THEM|\r\n000,&H0, Rien\r\n001,255, Travail\r\n>|THEM|\r\n<|POS|\r\n"
    ">|POS|\r\n<|DIC|\r\n>|DIC|\r\n<|ENTR|\r\n";
inline constexpr const char* RTR = " 60 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";
inline constexpr const char* EXTRAIT = "::1.00::001\r\nmot\r\n::3.00::\r\n";

inline const std::string MONO = wav(1, 8, std::string(12000, '\x80')),
                         STEREO = wav(2, 16, std::string(40000, '\0'));

/// The whole program, its host simulated, beside the corpus c/E.Crp with one recording a letter: "a.wav"…
/// with an extract of "001" each. Its own gestures:
///  - fichier PATH of the test's directory, before the box comes (none: the person gives up); ferme WINDOW
///  - impatient; lent (the player's loading); muet SLOT (no duration is known)
///  - pendant GESTURE, GESTURE (at the first wait; after lent: for the player)
class Programme : public Scene {
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
        nommerVerbes();
    }
    /// Chosen in the start window's list of recent ones; by "ImgBtn1" none is.
    void ouvrirCorpus(const std::string& par = "lblcorpus3") {
        app.demarrer();
        faire("clic " + par);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::vector<Forme*> formes() override {
        std::vector<Forme*> vues;
        for (const char* nom : {"FrmMenu", "FrmSaisie", "FrmVisu", "FrmCorpus", "FrmIntro"})
            for (QWidget* f : QApplication::topLevelWidgets())
                if (f->isVisible() && f->objectName() == QLatin1String(nom))
                    vues.push_back(dynamic_cast<Forme*>(f));
        return vues;
    }
    /// The window of this name, its timers stopped.
    Forme& forme(const char* nom) {
        for (Forme* fenetre : formes())
            if (fenetre->objectName() == QLatin1String(nom)) {
                for (QTimer* timer : fenetre->findChildren<QTimer*>())
                    timer->stop();
                return *fenetre;
            }
        throw std::runtime_error(std::string("not on the screen: ") + nom);
    }
    Releve relever() override;

    Application app{session, hote};
    bool fini = false;
    bool sessionEntiere = false; ///< the report tells whether anything of the session changed

  private:
    void nommerVerbes();
    std::string fenetresEnVue();
    std::string etatDeLaSession();
    void releverCorpus(Releve& releve) const;
    void releverFrmCorpus(Releve& releve);

    Releve vue_; ///< what FrmCorpus showed when it was last on the screen
    Session connue_;
    int etats_ = 0;
};

inline void Programme::nommerVerbes() {
    using S = const std::string&;
    verbes["fichier"] = [this](S nom) {
        hote.dialogues.choisir(nom.empty() ? "" : hote.dossier.chemin(nom));
    };
    verbes["ferme"] = [this](S nom) { forme(nom.c_str()).close(); };
    verbes["impatient"] = [this](S) { hote.progression.patience = 0; };
    verbes["lent"] = [this](S) { hote.media.lent = true; };
    verbes["muet"] = [this](S slot) {
        Entretien& entretien = session.corpus.Entretiens.at(std::stoul(slot));
        entretien.Duree = 0;
        hote.media.durees[versUtf8(entretien.Fichier)] = 0;
    };
    verbes["pendant"] = [this](S gestes) {
        hote.progression.pendant = [this, gestes, faits = false]() mutable {
            if (!std::exchange(faits, true)) faire(remplacer(gestes, ", ", "; "));
            if (hote.media.lent) hote.media.pret();
        };
    };
}

/// "-" where a window takes no input, "_" minimised; those over FrmCorpus with their opacity, FrmMenu with
/// its panel and place.
inline std::string Programme::fenetresEnVue() {
    std::string suite;
    for (const Forme* f : formes()) {
        std::string vue = f->objectName().toStdString();
        vue += f->isMinimized() ? "_" : f->isEnabled() ? "" : "-";
        if (f->objectName() != QLatin1String("FrmCorpus"))
            vue += ":" + std::to_string(std::lround(255 * f->windowOpacity()));
        for (const QWidget* panneau : f->findChildren<QFrame*>())
            if (panneau->isVisible() && panneau->objectName().startsWith(QLatin1String("FrmMnu")))
                vue += ":" + panneau->objectName().toStdString() + " at " + enTexte(f->geometry());
        suite = vue + (suite.empty() ? "" : " ") + suite;
    }
    return suite;
}

inline void Programme::releverCorpus(Releve& releve) const {
    const EtatCorpus& corpus = session.corpus;
    releve["choix"] = std::to_string(corpus.EntretienCourant);
    releve["corpus"] = vermo::nomDe(corpus.CheminCorpus);
    releve["hauteur"] = std::to_string(std::lround(corpus.HauteurEntretien));
    releve["taille"] = corpus.TailleReelle ? "vraie" : "pleine";
    releve["volume"] =
        std::to_string(std::lround(session.audio.VolumeLecture)) + "/" + std::to_string(hote.media.volume());
    for (std::size_t i = 1; i < corpus.Entretiens.size(); ++i) {
        const std::string initiale = lisible(corpus.Entretiens[i].Fichier.substr(0, 1));
        releve["liste"] += initiale;
        releve["eteints"] += corpus.Entretiens[i].Visible ? "" : initiale;
        if (const float lu = corpus.Entretiens[i].Attributs[2]; lu != 0) releve["attributs"] += dixieme(lu);
    }
    for (std::size_t i = 1; i < corpus.ThmVisible.size(); ++i)
        releve["thematiques"] += std::to_string(corpus.ThmVisible[i]);
}

inline void Programme::releverFrmCorpus(Releve& releve) {
    Forme& corpus = forme("FrmCorpus");
    releverControles(releve, corpus);
    for (const Element& rang : corpus.findChild<Toile*>(QStringLiteral("Frm_entretiens"))->elements())
        if (rang.controle == Controle::lblfich) releve["rangs"] += lisible(rang.texte);
}

/// Another each time that anything changed but how the next opening finds its path, and the fades' counter.
inline std::string Programme::etatDeLaSession() {
    Session actuelle = session;
    actuelle.corpus.OuvertureDirecte = false;
    actuelle.EtatFondu = 0;
    if (connue_ != actuelle) ++etats_;
    connue_ = actuelle;
    return std::to_string(etats_);
}

inline Releve Programme::relever() {
    Releve releve;
    if (sessionEntiere) releve["session~"] = etatDeLaSession();
    releve["lecteur"] = vermo::nomDe(hote.media.URL()) + (hote.media.enLecture() ? " joue" : "");
    releve["pointeur"] = std::to_string(static_cast<int>(hote.ecran.pointeurCourant));
    releve["fenetres"] = fenetresEnVue();
    releve["bulle"] = bulle;
    releve["fini"] = fini ? "oui" : "non";
    releverCorpus(releve);
    releverDisque(releve, hote.dossier);
    if (app.visible(Fenetre::FrmCorpus)) releverFrmCorpus(vue_ = {});
    releve.merge(Releve(vue_));
    return releve;
}

} // namespace vermo::essai
