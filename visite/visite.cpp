// The guided tour: the real windows, dialogs and player, driven as a researcher would, on a copy of the demo
// corpus. Each step leaves a photograph; at the end the files are compared with what they should hold, and
// what is typed when the program is ended from outside is taken up.
//   visite PROJECT_ROOT
//   visite --taper CORPUS_FILE   its own child, which types until it is ended
#include "Fins.h"
#include "Visiteur.h"

#include "app/Demarrage.h"
#include "textfile/fichier.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace vermo::visite {

namespace fs = std::filesystem;

namespace {

constexpr auto MEDIA_LECTURE = "ImgMedia1";

class Visite {
  public:
    Visite(Programme& programme, const fs::path& racine)
        : programme_(programme), racine_(racine), dossier_(racine / "build/visite"),
          corpus_(dossier_ / "corpus"), visiteur_(QString::fromStdString(dossier_.string())) {}

    void preparer() {
        fs::remove_all(corpus_);
        fs::create_directories(corpus_);
        for (const auto& entree : fs::directory_iterator(racine_ / "demo"))
            fs::copy(entree.path(), corpus_);
        auto& emplacements = programme_.hote().plateforme().emplacements;
        emplacements.programme = dossier_.string() + "/";
        emplacements.etat = dossier_.string() + "/etat/";
        remplacerFichier(emplacements.programme + "Projets.ini",
                         depuisUtf8((corpus_ / "Métiers.Crp").string()) + "\r\n");
    }

    void derouler() {
        visiteur_.etape("accueil", [this] { accueillir(); });
        visiteur_.etape("corpus", [this] { ouvrirCorpus(); });
        visiteur_.etape("import", [this] { importer(); });
        visiteur_.etape("retour-au-corpus", [this] { fermerEntretien(); });
        visiteur_.etape("entretien", [this] { ouvrirEntretien(); });
        visiteur_.etape("extrait-dessine", [this] { dessinerExtrait(); });
        visiteur_.etape("saisie", [this] {
            saisir(QStringLiteral("Là, elle hésite :\n« C'était déjà l'été ! » répète-t-elle."));
        });
        visiteur_.etape("thematique-ajoutee", [this] { ajouterThematique(); });
        visiteur_.etape("extrait-valide", [this] { valider(); });
        visiteur_.etape("deuxieme-extrait", [this] { marquerAuClavier(); });
        visiteur_.etape("deuxieme-valide",
                        [this] { saisir(QStringLiteral("Un deuxième extrait.")), valider(); });
        visiteur_.etape("premier-repris", [this] { reprendrePremier(); });
        visiteur_.etape("deuxieme-supprime", [this] { supprimerDeuxieme(); });
        visiteur_.etape("borne-deplacee", [this] { deplacerBorne(); });
        visiteur_.etape("fin", [this] { fermerEntretien(); });
    }

    /// Compares the files with the committed ones; prints the transcript.
    void comparer() const {
        const fs::path attendus = racine_ / "visite/attendu";
        for (const auto& entree : fs::directory_iterator(attendus)) {
            const std::string nom = entree.path().filename();
            if (lireFichier(corpus_ / nom) != lireFichier(entree.path()))
                throw Manque("not as expected: " + (corpus_ / nom).string());
        }
        std::string texte = versUtf8(lireFichier(corpus_ / "Claire infirmière.Rtr"));
        std::erase(texte, '\r');
        std::printf("\n%s\n", texte.c_str());
    }

    void finirDeForce() {
        Fins fins(programme_, visiteur_, racine_ / "demo", dossier_ / "fins");
        visiteur_.etape("fins-brutales", [&] { fins.finirTous(); });
        for (std::size_t i = 0; i < fins.nombre(); ++i)
            visiteur_.etape("texte-abandonne", [&] { fins.reprendre(i); });
    }

  private:
    Toile& zoom() { return visiteur_.controle<Toile>("FrmVisu", "Pict_zoom"); }
    Toile& vue() { return visiteur_.controle<Toile>("FrmVisu", "Picture1"); }
    QWidget& touches() { return visiteur_.controle("FrmVisu", "TxtCtrl"); }
    QPlainTextEdit& texte() { return visiteur_.controle<QPlainTextEdit>("FrmSaisie", "TextRtr"); }
    int nombre() const { return int(programme_.session().transcription.NbExtraits); }

    /// Pixel of a time on the zoom band, at a height free of bubbles' titles.
    QPoint place(double secondes) {
        const auto& audio = programme_.session().audio;
        return {int((secondes - audio.DebutZoom) / audio.DureeZoom * zoom().width()),
                zoom().height() * 2 / 3};
    }

    void accueillir() {
        programme_.application().demarrer();
        visiteur_.fenetre("FrmIntro");
    }

    void ouvrirCorpus() {
        visiteur_.cliquer(visiteur_.controle("FrmIntro", "lblcorpus3"));
        visiteur_.fenetre("FrmCorpus");
        visiteur_.attendre("three interviews",
                           [this] { return programme_.session().corpus.NbEntretiens == 3; });
    }

    void importer() {
        const fs::path source = racine_ / "visite/donnees/Entretien à importer.wav";
        visiteur_.prevoirFichier(QString::fromStdString(source.string()));
        visiteur_.prevoirBouton("import-hors-du-repertoire", QMessageBox::Ok);
        visiteur_.prevoirBouton("import-copie", QMessageBox::Ok);
        visiteur_.cliquer(visiteur_.controle("FrmCorpus", "Imgbtn7"));
        attendreEntretien();
    }

    void attendreEntretien() {
        QWidget& fenetre = visiteur_.fenetre("FrmVisu");
        visiteur_.attendre("an opaque window", [&] { return fenetre.windowOpacity() > 0.95; });
        visiteur_.attendre("playing", [this] { return programme_.hote().lecteur().currentPosition() > 0.3; });
    }

    void ouvrirEntretien() {
        visiteur_.cliquer(visiteur_.controle<Toile>("FrmCorpus", "Frm_entretiens"), Controle::ImgPlay, 1);
        attendreEntretien();
        visiteur_.attendre("its extracts", [this] { return nombre() == 10; });
    }

    void fermerEntretien() {
        visiteur_.touche(touches(), Qt::Key_Escape);
        visiteur_.attendre("the closed window",
                           [this] { return !programme_.application().visible(Fenetre::FrmVisu); });
        if (!visiteur_.fenetre("FrmCorpus").isEnabled()) throw Manque("the corpus window stays disabled");
    }

    void mettreEnPause() {
        auto& lecteur = programme_.hote().lecteur();
        if (lecteur.enLecture()) visiteur_.touche(touches(), Qt::Key_Space);
        visiteur_.attendre("a pause", [&] { return !lecteur.enLecture(); });
    }

    void dessinerExtrait() {
        visiteur_.glisser(zoom(), place(25), place(29));
        visiteur_.fenetre("FrmSaisie");
    }

    void saisir(const QString& lignes) {
        visiteur_.taper(texte(), lignes);
        if (texte().toPlainText() != lignes)
            throw Manque("typed otherwise: " + texte().toPlainText().toStdString());
    }

    void ajouterThematique() {
        auto& nom = visiteur_.controle<QLineEdit>("FrmSaisie", "TxtThema");
        nom.clear();
        visiteur_.taper(nom, QStringLiteral("Hésitations"));
        visiteur_.cliquer(visiteur_.controle("FrmSaisie", "LblCoulThm7"));
        visiteur_.photographier(QStringLiteral("nouvelle-thematique"));
        visiteur_.cliquer(visiteur_.controle("FrmSaisie", "Imgbtn2"));
        if (programme_.session().corpus.NbThm != 10) throw Manque("the thematic was not added");
    }

    void valider() {
        const bool nouveau = programme_.session().transcription.NouvelExtrait;
        const int avant = nombre();
        visiteur_.cliquer(visiteur_.controle("FrmSaisie", "Imgbtn0"));
        if (programme_.application().visible(Fenetre::FrmSaisie))
            throw Manque("the extract was not accepted");
        if (nombre() != avant + (nouveau ? 1 : 0)) throw Manque("the extract is not in the transcript");
    }

    void marquerAuClavier() {
        auto& lecteur = programme_.hote().lecteur();
        QTest::mouseClick(&zoom(), Qt::LeftButton, {}, place(84));
        if (!lecteur.enLecture()) visiteur_.cliquer(visiteur_.controle("FrmVisu", MEDIA_LECTURE));
        visiteur_.attendre("playing from 84 s",
                           [&] { return lecteur.enLecture() && lecteur.currentPosition() > 84.1; });
        visiteur_.touche(touches(), Qt::Key_Return);
        const double debut = lecteur.currentPosition();
        visiteur_.attendre("a second heard", [&] { return lecteur.currentPosition() > debut + 1; });
        visiteur_.photographier(QStringLiteral("marque-au-clavier"));
        visiteur_.touche(touches(), Qt::Key_Return);
        visiteur_.fenetre("FrmSaisie");
    }

    void ouvrirExtrait(int n) {
        visiteur_.cliquer(vue(), Controle::LblXtr, n, true);
        visiteur_.fenetre("FrmSaisie");
        if (int(programme_.session().transcription.ExtraitCourant) != n)
            throw Manque("another extract opened");
    }

    void reprendrePremier() {
        ouvrirExtrait(3);
        texte().moveCursor(QTextCursor::End);
        visiteur_.taper(texte(), QStringLiteral("(Silence.)"));
        visiteur_.photographier(QStringLiteral("premier-ouvert"));
        valider();
    }

    void supprimerDeuxieme() {
        ouvrirExtrait(10);
        visiteur_.prevoirBouton("suppression-demandee", QMessageBox::Yes);
        visiteur_.cliquer(visiteur_.controle("FrmSaisie", "Imgsuppr"));
        if (nombre() != 11) throw Manque("the extract was not deleted");
    }

    void deplacerBorne() {
        mettreEnPause();
        visiteur_.cliquer(vue(), Controle::LblXtr, 3);
        mettreEnPause();
        int poignee = 0;
        for (const Element& element : zoom().elements())
            if (element.controle == Controle::ImgBulleInt && element.tag == "3" && element.index % 2 == 1)
                poignee = element.index;
        const QPoint depart = Visiteur::place(zoom(), Controle::ImgBulleInt, poignee).center();
        visiteur_.glisser(zoom(), depart, depart - QPoint(60, 0));
        if (programme_.session().transcription.ExtraitDebut[3].secondes.value() >= 25)
            throw Manque("the bound has not moved");
    }

    Programme& programme_;
    fs::path racine_, dossier_, corpus_;
    Visiteur visiteur_;
};

} // namespace
} // namespace vermo::visite

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == "--taper") return vermo::visite::taper(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "visite PROJECT_ROOT\n");
        return 2;
    }
    vermo::Programme programme(argc, argv, "null");
    vermo::visite::Visite visite(programme, std::filesystem::absolute(argv[1]));
    try {
        visite.preparer();
        visite.derouler();
        visite.comparer();
        visite.finirDeForce();
    } catch (const std::exception& faute) {
        std::fprintf(stderr, "Visite : %s\n", faute.what());
        return 1;
    }
    std::puts("Visite terminée.");
    return 0;
}
