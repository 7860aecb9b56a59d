// What each key, button and gesture of the start window, the corpus window and its menus does, with the whole
// program behind it, and that questions refused change nothing.
//
// A row: what is done before | the steps -> all that they change. Steps are parted by ";", each on the
// topmost window that has the control; a PLACE is "x y" in pixels, or "item index" of a canvas:
//  - clic, double, survol, molette NAME [PLACE]; droit NAME PLACE; tire NAME PLACE PLACE
//  - touche NAME KEY (the control takes the focus); tape KEY; ferme WINDOW
//  - dit ANSWER PART-OF-THE-QUESTION; fichier PATH of the test's directory (none: the person gives up)
//  - before: impatient; muet SLOT (no duration is known); pendant STEP,STEP (at the first wait; after lent:
//    for the player)
#include "Programme.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/FrmIntro.h"
#include "corpus/ui/FrmMenu.h"
#include "support/CommandesCouvertes.h"

#include <QWheelEvent>
#include <algorithm>
#include <sstream>

namespace vermo::essai {
namespace {

/// The files that rows speak of, beside the corpus.
void poserFichiers(Programme& p) {
    const DossierTemporaire& dossier = p.hote.dossier;
    for (const char* nom : {"c/z.wav", "c/nul.wav", "ailleurs/y.wav", "ailleurs/a.wav"})
        dossier.ecrire(nom, wav(1, 8, std::string(9000, '\x7F')));
    dossier.ecrire("c/s.wav", STEREO);
    dossier.ecrire("d/F.Crp", std::string(TETE) + "x.wav\r\n>|ENTR|\r\n");
    dossier.ecrire("d/x.wav", MONO);
    dossier.ecrire("d/x.Rtr", RTR);
    dossier.ecrire("donnees/Vermo de Vermo.mp3", "son");
    p.hote.media.durees["nul.wav"] = 0;
}

class Acteur {
  public:
    explicit Acteur(Programme& programme) : programme_(programme) {}

    void jouer(const std::string& etapes, char separateur = ';') {
        std::istringstream suite(etapes);
        for (std::string etape; std::getline(suite, etape, separateur);)
            faire(etape);
    }

  private:
    void faire(const std::string& etape) {
        std::istringstream mots(etape);
        std::string quoi, nom;
        mots >> quoi >> nom;
        if (quoi == "dit" || quoi == "fichier")
            repondre(quoi == "fichier", nom, reste(mots));
        else if (quoi == "tape" || quoi == "ferme")
            quoi == "tape" ? taper(dessus()->focusWidget(), nom) : void(forme(nom.c_str()).close());
        else if (quoi == "touche")
            controle(nom)->setFocus(), taper(controle(nom), reste(mots));
        else if (quoi == "clic" || quoi == "double" || quoi == "droit" || quoi == "survol" ||
                 quoi == "tire" || quoi == "molette")
            manier(quoi, *controle(nom), mots);
        else
            preparer(quoi, nom + reste(mots));
    }

    static std::string reste(std::istringstream& mots) {
        std::string suite;
        std::getline(mots, suite);
        return suite;
    }
    static QWidget* dessus(const char* nom = nullptr) {
        for (const char* fenetre : {"FrmMenu", "FrmVisu", "FrmCorpus", "FrmIntro"})
            for (QWidget* f : QApplication::topLevelWidgets())
                if (f->isVisible() && f->objectName() == QLatin1String(fenetre) &&
                    (!nom || f->findChild<QWidget*>(QLatin1String(nom))))
                    return f;
        throw std::runtime_error(std::string("nowhere on the screen: ") + (nom ? nom : "a window"));
    }
    static QWidget* controle(const std::string& nom) {
        return membre<QWidget>(*dessus(nom.c_str()), nom.c_str());
    }

    void repondre(bool fichier, const std::string& quoi, const std::string& extrait) {
        auto& dialogues = programme_.hote.dialogues;
        if (fichier)
            dialogues.choisir(quoi.empty() ? "" : programme_.hote.dossier.chemin(quoi));
        else
            dialogues.repondre(quoi == "Oui"   ? Reponse::Oui
                               : quoi == "Non" ? Reponse::Non
                               : quoi == "Ok"  ? Reponse::Ok
                                               : Reponse::Annuler,
                               extrait.empty() ? extrait : extrait.substr(1));
    }
    static void taper(QWidget* ou, const std::string& combinaison) {
        const QKeyCombination cle = QKeySequence(QString::fromStdString(combinaison).trimmed())[0];
        QTest::keyClick(ou, cle.key(), cle.keyboardModifiers());
    }
    static QPoint lire(std::istringstream& mots, const QWidget& ou) {
        std::string premier;
        int second = 0;
        if (!(mots >> premier >> second)) return ou.rect().center();
        if (std::isdigit(premier.front())) return {std::stoi(premier), second};
        const auto& toile = dynamic_cast<const Toile&>(ou);
        for (const Element& e : toile.elements())
            if (nomControle(e.controle) == premier && e.index == second)
                return place(toile, e.controle, second);
        throw std::runtime_error("no item " + premier);
    }
    static void manier(const std::string& quoi, QWidget& ou, std::istringstream& mots) {
        const QPoint ici = lire(mots, ou);
        if (quoi == "survol") return QTest::mouseMove(&ou, ici);
        if (quoi == "molette") return tourner(ou, ici.y());
        if (quoi == "tire") {
            const QPoint la = lire(mots, ou);
            QTest::mousePress(&ou, Qt::LeftButton, {}, ici);
            QTest::mouseMove(&ou, la);
            return QTest::mouseRelease(&ou, Qt::LeftButton, {}, la);
        }
        QTest::mouseClick(&ou, quoi == "droit" ? Qt::RightButton : Qt::LeftButton, {}, ici);
        if (quoi == "double") QTest::mouseDClick(&ou, Qt::LeftButton, {}, ici);
    }
    static void tourner(QWidget& ou, int crans) {
        const QPointF ici(50, 50);
        QWheelEvent tour(ici, ou.mapToGlobal(ici), {}, {0, 120 * crans}, {}, {}, {}, false);
        QCoreApplication::sendEvent(&ou, &tour);
    }

    void preparer(const std::string& quoi, const std::string& suite) {
        auto& hote = programme_.hote;
        if (quoi == "impatient") {
            hote.progression.patience = 0;
        } else if (quoi == "lent") {
            hote.media.lent = true;
        } else if (quoi == "muet") {
            Entretien& entretien = programme_.session.corpus.Entretiens.at(std::stoul(suite));
            entretien.Duree = 0;
            hote.media.durees[versUtf8(entretien.Fichier)] = 0;
        } else if (quoi == "pendant") {
            hote.progression.pendant = [this, suite, faite = false]() mutable {
                if (!std::exchange(faite, true)) jouer(suite, ',');
                if (programme_.hote.media.lent) programme_.hote.media.pret();
            };
        } else {
            throw std::runtime_error("no step: " + quoi);
        }
    }

    Programme& programme_;
};

struct Ligne {
    std::string avant, gestes, effet;
};

std::vector<Ligne> lignes(const char* table) {
    std::vector<Ligne> resultat;
    std::istringstream texte(table);
    for (std::string ligne; std::getline(texte, ligne);) {
        if (ligne.empty()) continue;
        const std::size_t barre = ligne.find(" | "), fleche = ligne.find(" ->");
        const bool prepare = barre < fleche;
        resultat.push_back({prepare ? ligne.substr(0, barre) : "",
                            ligne.substr(prepare ? barre + 3 : 0, fleche - (prepare ? barre + 3 : 0)),
                            ligne.substr(std::min(fleche + 4, ligne.size()))});
    }
    return resultat;
}

/// Each row on a program of its own with the interviews `lettres`, whose corpus window was reached by the
/// line `par` of the start window; none: it stands at its start. Where nothing changes, the Session doesn't
/// either.
void verifier(const char* table, const std::string& lettres, const char* par = "lblcorpus3",
              bool sessionEntiere = false) {
    for (const Ligne& ligne : lignes(table)) {
        SCOPED_TRACE(ligne.avant + " | " + ligne.gestes);
        Programme programme(lettres);
        poserFichiers(programme);
        programme.session.corpus.HauteurEntretien = 2000;
        par ? programme.ouvrirCorpus(par) : programme.app.demarrer();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&forme(par ? "FrmCorpus" : "FrmIntro")));
        Acteur acteur(programme);
        acteur.jouer(ligne.avant);
        programme.noter();
        acteur.jouer(ligne.gestes);
        EXPECT_EQ(programme.bilan(), ligne.effet);
        EXPECT_TRUE(!sessionEntiere || !ligne.effet.empty() || programme.sessionIntacte());
    }
}

/// Every control that answers has its row, and every button that shows draws something.
void verifierControles(const QWidget& fenetre, std::string table) {
    std::ranges::replace(table, ';', ' ');
    for (QWidget* controle : fenetre.findChildren<QWidget*>()) {
        const std::string nom = " " + controle->objectName().toStdString() + " ";
        const bool repond = controle->focusPolicy() != Qt::NoFocus && controle->isEnabled();
        EXPECT_TRUE(!repond || table.find(nom) != std::string::npos) << "no row for" << nom;
        if (!qobject_cast<BoutonImage*>(controle) || !controle->isVisible()) continue;
        const QImage image = controle->grab().toImage().convertToFormat(QImage::Format_Indexed8);
        EXPECT_GT(image.colorCount(), 1) << nom << "is blank";
    }
}

constexpr const char* DE_FRMCORPUS = R"(
clic lblmenu0 -> fenetres=FrmCorpus FrmMenu:FrmMnu0
clic lblmenu1 -> fenetres=FrmCorpus FrmMenu:FrmMnu1
clic lblmenu2 -> fenetres=FrmCorpus FrmMenu:FrmMnu2
clic lblmenu3 -> fenetres=FrmCorpus FrmMenu:FrmMnu3
tape Alt+C -> fenetres=FrmCorpus FrmMenu:FrmMnu0
tape Alt+E -> fenetres=FrmCorpus FrmMenu:FrmMnu1
tape Alt+T -> fenetres=FrmCorpus FrmMenu:FrmMnu2
tape Alt+A -> fenetres=FrmCorpus FrmMenu:FrmMnu3
tape Alt+V -> fenetres=FrmCorpus FrmMenu:FrmMnu5
clic PictVol -> fenetres=FrmCorpus FrmMenu:FrmMnu5
survol PictVol 5 5 -> fenetres=FrmCorpus FrmMenu:FrmMnu5
touche PictVol Return -> fenetres=FrmCorpus FrmMenu:FrmMnu5
touche PictVol Space -> fenetres=FrmCorpus FrmMenu:FrmMnu5
clic ImgCroix0 48 10 -> fenetres= | fini=oui | rangs=
clic ImgCroix0 4 10 -> fenetres=FrmCorpus_
touche ImgCroix0 Left;touche ImgCroix0 Return -> fenetres=FrmCorpus_
ferme FrmCorpus -> fenetres= | fini=oui | rangs=
fichier c/z.wav;clic Imgbtn7 -> c/E.Crp ~ | c/E.Crp.$$$ + | c/z.Bmp + | c/z.Rtr + | choix=13 | etq1=(13/13) | fenetres=FrmCorpus- FrmVisu:250 | lecteur=z.wav joue | liste=abcdefghijklz
clic Imgbtn3 -> Imgbtn3=Taille1 | PictTps=oui | taille=vraie
clic ImgOnOffthm0 -> ImgOnOffthm0=ImgOff | etq0=(0/2) | thematiques=00
clic ImgOnOffent -> ImgOnOffent=ImgOff | eteints=abcdefghijkl | etq1=(0/12)
clic ImgOnOffent;clic ImgOnOffent ->
molette Frm_entretiens 0 -3;clic ImgZoom0 -> hauteur=3000 | rangs=cdefgh
double ImgZoom0 -> hauteur=3600 | rangs=abcd
clic ImgZoom1 -> hauteur=1333 | rangs=abcdefghijk
double ImgZoom1 -> LblScroll=non | hauteur=450 | rangs=abcdefghijkl
tape + -> hauteur=3000 | rangs=abcde
tape - -> hauteur=1333 | rangs=abcdefghijk
clic Frm_entretiens ImgOnOff 2 -> eteints=b | etq1=(11/12)
double Frm_entretiens ImgOnOff 3 -> eteints=abdefghijkl | etq1=(1/12)
clic Frm_entretiens ImgPlay 2 -> c/b.Bmp + | choix=2 | fenetres=FrmCorpus- FrmVisu:0 | lecteur=b.wav joue
clic Frm_entretiens lblfich 2 ->
double Frm_entretiens lblfich 3 -> c/c.Bmp + | choix=3 | fenetres=FrmCorpus- FrmVisu:250 | lecteur=c.wav joue
clic Frm_entretiens ImgEnt 4 -> choix=4
clic Frm_entretiens Lblthm 3 -> choix=2
tire Frm_entretiens lblfich 3 lblfich 1 -> c/E.Crp ~ | c/E.Crp.$$$ + | liste=cabdefghijkl | rangs=cabdefg
tire Frm_entretiens lblpiste 1 ImgOnOff 3 -> c/E.Crp ~ | c/E.Crp.$$$ + | liste=bcadefghijkl | rangs=bcadefg
tire Frm_entretiens lblfich 2 lblfich 2 ->
tire Frm_entretiens lblfich 3 ImgEnt 1 ->
molette Frm_entretiens 0 -3 -> rangs=cdefghij
molette Frm_entretiens 0 1 ->
clic LblScroll 5 850 -> rangs=fghijkl
tape End | clic LblScroll 5 30 -> rangs=abcdefg
tire LblScroll 5 60 5 5000 -> rangs=fghijkl
tape Down;tape Down -> choix=2
clic Frm_entretiens ImgEnt 3 | tape Up -> choix=2
clic Frm_entretiens ImgEnt 2 | tape PgDown -> choix=7
tape End | tape PgUp -> choix=7
clic Frm_entretiens ImgEnt 5 | tape Home -> choix=1
tape End -> choix=12 | rangs=fghijkl
tape Down | tape Space -> eteints=a | etq1=(11/12)
tape Down | tape Shift+Space -> eteints=bcdefghijkl | etq1=(1/12)
tape Down | tape Enter -> c/a.Bmp + | fenetres=FrmCorpus- FrmVisu:0 | lecteur=a.wav joue
tape Return ->
tape Alt+Down ->
clic Frm_entretiens ImgEnt 3 | tape Alt+Up -> c/E.Crp ~ | c/E.Crp.$$$ + | choix=2 | liste=acbdefghijkl | rangs=acbdefg
tape End | tape Alt+Down ->
clic Frm_thm LblCoul 2 -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=10
clic Frm_thm LblCoul 2;touche Frm_thm Space -> ImgOnOffthm0=ImgOff
droit Frm_thm LblCoul 2 -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01
touche Frm_thm End;touche Frm_thm Space -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=10
touche Frm_thm Down;touche Frm_thm Home;touche Frm_thm Space -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01
touche Frm_thm Down;touche Frm_thm Shift+Space -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01
touche Frm_thm Down;touche Frm_thm Up;touche Frm_thm Space -> ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01
)";

constexpr const char* DE_FRMMENU = R"(
clic lblmenu0;fichier c/N.Crp;clic lblmenu0 -> LblVide=oui | c/N.Crp + | corpus=N.Crp | etq0=(1/1) | etq1=(0/0) | liste= | programme/Projets.ini ~ | rangs= | thematiques=1
clic lblmenu0;fichier d/F.Crp;clic lblmenu1 -> corpus=F.Crp | etq1=(1/1) | hauteur=6645 | liste=x | programme/Projets.ini ~ | rangs=x
tape Down | clic lblmenu0;clic lblcorpus1 -> choix=0
clic lblmenu1;fichier c/z.wav;clic lblmenu3 -> c/E.Crp ~ | c/E.Crp.$$$ + | c/z.Bmp + | c/z.Rtr + | choix=4 | etq1=(4/4) | fenetres=FrmCorpus- FrmVisu:250 | lecteur=z.wav joue | liste=abcz | rangs=abcz
clic lblmenu1;clic lblmenu9 -> taille=vraie
tape Down | clic lblmenu1;clic lblmenu10 -> c/a.Bmp + | fenetres=FrmCorpus- FrmVisu:250 | lecteur=a.wav joue
tape Down | clic lblmenu1;dit Oui retirer;clic lblmenu12 -> c/E.Crp ~ | c/E.Crp.$$$ + | choix=0 | etq1=(2/2) | liste=bc | rangs=bc
tape End | clic lblmenu1;clic ImgPlay -> c/c.Bmp + | fenetres=FrmCorpus- FrmVisu:250 | lecteur=c.wav joue
tape End | clic lblmenu1;clic ImgOnOff -> eteints=c | etq1=(2/3)
clic lblmenu1;clic lblmenu10;clic lblmenu12;clic ImgPlay;clic ImgOnOff;tape Escape ->
clic lblmenu1;touche lblmenu3 Down;tape Return -> taille=vraie
clic lblmenu1;tape Down;tape Down;tape Return -> taille=vraie
clic lblmenu1;tape Up;tape Return -> taille=vraie
clic PictVol;clic LblVol 32 90 -> fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 41 % | volume=41/41
clic PictVol;tire LblVol 32 41 32 540 -> fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 0 % | volume=0/0
clic PictVol;tape Down -> fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 95 % | volume=95/95
)";

constexpr const char* DE_FRMINTRO = R"(
fichier c/N.Crp;clic lblcorpus0 -> c/N.Crp + | corpus=N.Crp | fenetres=FrmCorpus | programme/Projets.ini ~ | volume=100/100
fichier c/E.Crp;touche lblcorpus1 Return -> corpus=E.Crp | fenetres=FrmCorpus | hauteur=4430 | liste=ab | rangs=ab | volume=100/100
clic lblcorpus3 -> corpus=E.Crp | fenetres=FrmCorpus | liste=ab | rangs=ab | volume=100/100
touche lblcorpus1 Down;tape Return -> corpus=E.Crp | fenetres=FrmCorpus | liste=ab | rangs=ab | volume=100/100
fichier c/N.Crp;touche lblcorpus1 Up;tape Return -> c/N.Crp + | corpus=N.Crp | fenetres=FrmCorpus | programme/Projets.ini ~ | volume=100/100
clic ImgBtn1 -> fenetres=FrmCorpus | volume=100/100
clic Image1 -> fenetres= | fini=oui
clic ImgTestSon -> lecteur=Vermo de Vermo.mp3 joue | volume=100/100
)";

/// A dialog of an opening that is left takes the choice of an interview away, and no more.
constexpr const char* REFUS = R"(
clic lblmenu0;fichier;clic lblmenu0 ->
tape Down | clic lblmenu0;fichier;clic lblmenu1 -> choix=0
clic lblmenu0;fichier c/E.Crp;dit Ok déjà ouvert;clic lblmenu1 ->
tape Down | clic lblmenu1;dit Non retirer;clic lblmenu12 ->
fichier;clic Imgbtn7 ->
fichier c/s.wav;dit Annuler Stereo - 16;clic Imgbtn7 ->
fichier c/s.wav;dit Oui convertisseur;dit Ok introuvable;clic Imgbtn7 ->
fichier ailleurs/y.wav;dit Annuler hors du répertoire;clic Imgbtn7 ->
impatient | fichier ailleurs/y.wav;dit Ok hors du répertoire;clic Imgbtn7 ->
fichier ailleurs/a.wav;dit Ok hors du;dit Non l'écraser?;dit Ok déjà présent;clic Imgbtn7 ->
fichier c/nul.wav;dit Ok ça ne fonctionne pas;clic Imgbtn7 -> lecteur=nul.wav
tape Down;muet 1 | dit Non réessayer;tape Return ->
)";

constexpr const char* SANS_CORPUS = R"(
dit Non pas de projet ouvert;clic Imgbtn7 ->
dit Oui pas de projet ouvert;fichier;clic Imgbtn7 ->
)";

constexpr const char* PENDANT_UN_AJOUT = R"(
pendant clic lblmenu0,clic lblmenu1 | fichier ailleurs/y.wav;dit Ok hors du;fichier d/F.Crp;dit Ok copié;clic Imgbtn7 -> c/y.wav + | corpus=F.Crp | etq1=(1/1) | hauteur=6645 | liste=x | programme/Projets.ini ~ | rangs=x
lent;pendant clic lblmenu0,clic lblmenu1 | fichier c/z.wav;fichier d/F.Crp;clic Imgbtn7 -> corpus=F.Crp | etq1=(1/1) | hauteur=6645 | lecteur=z.wav | liste=x | programme/Projets.ini ~ | rangs=x
pendant clic Imgbtn7 | fichier ailleurs/y.wav;dit Ok hors du;dit Ok copié;clic Imgbtn7 -> c/E.Crp ~ | c/E.Crp.$$$ + | c/y.Bmp + | c/y.Rtr + | c/y.wav + | choix=3 | etq1=(3/3) | fenetres=FrmCorpus- FrmVisu:250 | lecteur=y.wav joue | liste=aby | rangs=aby
)";

TEST(CommandsTest, OfTheCorpusWindow) {
    verifier(DE_FRMCORPUS, "abcdefghijkl");
    Programme programme;
    programme.ouvrirCorpus();
    verifierControles(forme("FrmCorpus"), DE_FRMCORPUS);
    couvrir(FrmCorpus::commandes(), DE_FRMCORPUS);
}

TEST(CommandsTest, OfTheMenus) {
    verifier(DE_FRMMENU, "abc");
    Programme programme;
    programme.ouvrirCorpus();
    for (const char* geste : {"clic PictVol", "clic lblmenu0", "tape Down;clic lblmenu1"}) {
        Acteur(programme).jouer(geste);
        verifierControles(forme("FrmMenu"), DE_FRMMENU);
        forme("FrmMenu").hide();
    }
    couvrir(FrmMenu::commandes(), DE_FRMMENU);
}

TEST(CommandsTest, OfTheStartWindow) {
    verifier(DE_FRMINTRO, "ab", nullptr);
    Programme programme;
    programme.app.demarrer();
    verifierControles(forme("FrmIntro"), DE_FRMINTRO);
    couvrir(FrmIntro::commandes(), DE_FRMINTRO);
}

TEST(RefusalsTest, LeaveEverythingAsItWas) {
    verifier(REFUS, "ab", "lblcorpus3", true);
    verifier(SANS_CORPUS, "ab", "ImgBtn1", true);
}

TEST(ImportsTest, EndWithTheirCorpusAndAreNotBegunTwice) {
    verifier(PENDANT_UN_AJOUT, "ab");
}

} // namespace
} // namespace vermo::essai
