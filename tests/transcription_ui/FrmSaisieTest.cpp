#include "transcription/ui/FrmSaisie.h"
#include "support/Gestes.h"
#include "support/Pannes.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

constexpr auto CRP =
    "Corpus\r\n<|THEM|\r\n000,&H0, Rien\r\n001,255, Travail\r\n>|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n"
    ">|DIC|\r\n<|ENTR|\r\na.mp3\r\n>|ENTR|\r\n";
constexpr auto RTR =
    " 60 \r\n<|OBS|\r\n\r\n>|OBS|\r\n<|ATTR|\r\n2,3\r\n>|ATTR|\r\n::0.00::000\r\nZ\xE9ro.\r\r\n"
    "::5.00::\r\n::10.00::001\r\nUn.\rDeux.\r\r\n::20.00::\r\n";

/// A corpus of one MP3 interview of a minute on the disk and in the player; FrmSaisie on its second extract.
/// Places on Pict_saisie are seconds, on LblSec parts of its height.
class SaisieDEssai : public Scene {
  public:
    std::unique_ptr<FrmSaisie> saisie;
    std::unique_ptr<Pannes> pannes;

    SaisieDEssai() {
        hote.dossier.ecrire("c.Crp", CRP);
        hote.dossier.ecrire("a.Rtr", RTR);
        auto& c = session.corpus;
        session.reglages.separateurDecimal = '.';
        c.CheminCorpus = hote.dossier.chemin("c.Crp"), c.RepCorpus = hote.dossier.chemin();
        c.Entretiens.resize(2);
        c.Entretiens[1].Fichier = "a.mp3", c.Entretiens[1].Duree = 60, c.Entretiens[1].Attributs[1] = 3;
        c.NbEntretiens = c.EntretienCourant = 1;
        c.ThmCode = {"", "000", "001"}, c.ThmCouleur = {"", "&H0", "255"};
        c.ThmNom = {"", " Rien", " Travail"}, c.ThmVisible = {0, 1, 1}, c.NbThm = 2;
        session.audio.DureeFichier = 60;
        hote.media.URL(hote.dossier.ecrire("a.mp3", "x"));
        montres = {"ShpDict0", "SaisieSelect0", "Curseur0"}, colores = {"ShpFondSaisie0", "ShpFdThm0"};
        nommerVerbes();
        LireRetranscription(session, hote);
        faire("refaire 2; position 10");
    }

    Forme& fenetre() override { return *saisie; }
    QPoint lieu(const Toile& toile, const std::string& ou) override {
        const auto& t = session.transcription;
        const double part = std::stod(ou);
        if (toile.objectName() == QLatin1String("LblSec")) return {5, qRound(part * toile.height())};
        if (toile.objectName() != QLatin1String("Pict_saisie")) return Scene::lieu(toile, ou);
        return {qRound((part - t.SaisieDebut) / t.SaisieDuree * toile.width()), 10};
    }

  private:
    void nommerVerbes() {
        verbes["refaire"] = [this](const std::string& n) {
            saisie = std::make_unique<FrmSaisie>(session, hote, fenetres);
            faire("ouvre " + n);
        };
        verbes["ouvre"] = [this](const std::string& n) { saisie->OuvrirExtrait(std::stoi(n)); };
        verbes["nouveau"] = [this](const std::string& span) {
            auto& t = session.transcription;
            t.SaisieDebut = std::stod(span), t.SaisieFin = std::stod(span.substr(span.find('-') + 1));
            t.SaisieDuree = t.SaisieFin - t.SaisieDebut, t.NouvelExtrait = true;
            saisie->PreparerSaisie();
        };
        verbes["tic"] = [this](const std::string& n) {
            n == "1"   ? saisie->Timer1_Tick()
            : n == "2" ? saisie->Timer2_Tick()
            : n == "3" ? saisie->Timer3_Tick()
                       : saisie->Timer4_Tick();
        };
        verbes["retour"] = [this](const std::string&) { session.transcription.RetourCorpus = true; };
        verbes["entre"] = [this](const std::string& nom) {
            QEvent entree(QEvent::Enter);
            QApplication::sendEvent(&controle(nom), &entree);
        };
        verbes["panne"] = [this](const std::string&) {
            pannes = std::make_unique<Pannes>(Panne{1, ENOSPC, "write", true});
        };
        verbes["vitesse"] = [this](const std::string& facteur) { hote.media.rate(std::stod(facteur)); };
        verbes["perdre"] = [this](const std::string& nom) {
            std::filesystem::remove(hote.dossier.chemin(nom));
        };
        verbes["pastilles"] = [this](const std::string&) {
            for (int i = 0; i < 14; ++i)
                faire("clic LblCoulThm" + std::to_string(i));
        };
        verbes["vider"] = [this](const std::string&) {
            auto& t = session.transcription;
            t.ExtraitDebut.resize(1), t.ExtraitTexte.resize(1), t.NbExtraits = 0;
        };
        verbes["remplir"] = [this](const std::string&) {
            auto& c = session.corpus;
            for (; c.NbThm < 40; c.NbThm += 1) {
                c.ThmCode.push_back(std::to_string(100 + static_cast<int>(c.NbThm)));
                c.ThmCouleur.push_back("255"), c.ThmNom.push_back(" x"), c.ThmVisible.push_back(1);
            }
            saisie->ConstruireThematiques();
        };
    }
};

std::unique_ptr<SaisieDEssai> ouverte() {
    return std::make_unique<SaisieDEssai>();
}

const std::vector<Geste> GESTES = {
    // Opening, and leaving with and without what was typed.
    {"ouvrir", "clic Picture2@0.9; clic ImgPlus0; touche Esc; vitesse 1", "ouvre 1",
     "ShpFondSaisie0=0; TextRtr=Zéro.\n; courant=1; etq_deb_sel=00:00; etq_fin_sel=00:05; fenetre=524; "
     "lbl_thm=vu000  Rien; saisie=0-5; span=; vitesse=1.226190"},
    {"ouvrir-nouveau", "clic BtnOpt1; touche Esc", "nouveau 30-50",
     "Imgsuppr=caché; ShpDict0=0+1905; ShpFondSaisie0=0; TXTcodethem=002; TextRtr=; TxtThema=Saisissez ici "
     "le nom de la thématique; alpha=250; etq_deb_sel=00:30; etq_fin_sel=00:50; fenetre=940; lbl_thm=vu000 - "
     "Pas de thématique; nouveau=1; portion=30-35; saisie=30-50; span="},
    {"fermer", "tape perdu", "clic lbl_fermer0", "fenetre=cachée; span=0"},
    {"fermer-retour", "retour", "touche Esc", "fenetre=cachée; lecture=2; span=0"},
    {"valider-nouveau", "nouveau 30-35; tape Bien\u00A0; touche Return", "colle su\u0302r; clic Imgbtn0",
     "TextRtr=Bien \nsûr; demande=annoncer Extraits; disque a.Rtr= -Zéro.// -::5.00::/ -::10.00::001/ "
     "-Un./Deux.// -::20.00::/ +Zéro./ +/ +::5.00::/ +::10.00::001/ +Un./ +Deux./ +/ +::20.00::/ "
     "+::30.00::000/ +Bien\u00A0/ +sûr/ +::35.00::/; fenetre=cachée; span=0"},
    {"touche-valider", "touche Ctrl+End; tape Trois.", "touche Ctrl+Return",
     "demande=annoncer Extraits; disque a.Rtr= -::10.00::001/ -Un./Deux.// +::10.00::001  Travail/ "
     "+Un./Deux./Trois./; extrait2=10-20 001  Travail Un.\rDeux.\rTrois.; fenetre=cachée; span=0"},
    {"valider-zero", "ouvre 1; tape Plus", "touche Ctrl+Return",
     "demande=annoncer Extraits; disque a.Rtr= -::0.00::000/ -Zéro.// +::0.00::000  Rien/ +ZPluséro.//; "
     "extrait1=0-5 000  Rien ZPluséro.\r; fenetre=cachée; span=0"},
    {"valider-retour", "retour", "clic Imgbtn0",
     "demande=annoncer Extraits, annoncer Entretiens, decharger FrmVisu; disque a.Rtr= -::10.00::001/ "
     "+::10.00::001  Travail/; "
     "extrait2=10-20 001  Travail Un.\rDeux.\r; fenetre=cachée; retour=0; span=0"},
    {"supprimer", "repondre Oui", "clic Imgsuppr",
     "demande=annoncer Extraits; disque a.Rtr= -::10.00::001/ -Un./Deux.// -::20.00::/; dit=Etes-vous "
     "sûr(e) de vouloir supprimer cet extrait?; fenetre=cachée; span=0"},
    {"supprimer-retour", "retour; repondre Oui", "clic Imgsuppr",
     "demande=annoncer Extraits, annoncer Entretiens; disque a.Rtr= -::10.00::001/ -Un./Deux.// -::20.00::/; "
     "dit=Etes-vous sûr(e) de vouloir supprimer cet extrait?; fenetre=cachée; retour=0; span=0"},
    // Listening.
    {"lire", "pause", "clic ImgMedia1", "lecture=3"},
    {"pause", "", "clic ImgMedia1", "lecture=2"},
    {"bulle", "", "entre ImgMedia1", "LblTip=[Alt + Espace]"},
    {"touche-alt-espace", "", "touche Alt+Space", "lecture=2"},
    {"touche-ctrl-espace", "", "touche Ctrl+Space", "lecture=2"},
    {"touche-alt-gauche", "position 12", "touche Alt+Left", "position=11"},
    {"touche-alt-droite", "position 12", "touche Alt+Right", "position=13"},
    {"touche-droite-ecrit", "", "touche Right", ""},
    {"onde-clic", "", "clic Pict_saisie@15", "Curseur0=3810+30; position=15"},
    {"onde-clic-dictee", "clic BtnOpt1", "clic Pict_saisie@15",
     "Curseur0=3810+30; ShpDict0=3810+3810; portion=15-20; position=15"},
    {"onde-glisse", "", "glisse Pict_saisie@12>16",
     "BtnOpt1=allumé; LblSec~; ShpDict0=1530+3042; options=dictee ; portion=12-16; position=12"},
    {"tic", "position 15", "tic 1", "Curseur0=3810+30"},
    {"tic-fin", "position 20.2", "tic 1", "lecture=2; position=10"},
    {"tic-fondu", "", "tic 2; tic 2", "alpha=50"},
    {"vitesse", "", "clic Picture2@0.9", "Picture2~; rythme=1.226190; vitesse=1.226190"},
    {"vitesse-roule", "", "roule Picture2 1", "Picture2~; rythme=1.025000; vitesse=1.025000"},
    {"vitesse-bord", "clic Picture2@0.93", "6x roule Picture2 1", ""},
    // Lengthening.
    {"allonger", "pause", "clic ImgPlus0", "Curseur0=7560+30; ImgPlus1=vu; lecture=3; position=19"},
    {"allonger-tic", "clic ImgPlus0; position 22", "tic 4", "etq_fin_sel=00:22; saisie=10-22"},
    {"allonger-fin", "clic ImgPlus0; position 23", "clic ImgPlus1",
     "ImgPlus1=caché; etq_fin_sel=00:23; position=20; saisie=10-23"},
    {"allonger-pause", "clic ImgPlus0; position 23", "touche Alt+Space",
     "ImgPlus1=caché; etq_fin_sel=00:23; lecture=2; position=20; saisie=10-23"},
    {"allonger-valider", "clic ImgPlus0; position 23; tic 4", "clic Imgbtn0",
     "ImgPlus1=caché; demande=annoncer Extraits; disque a.Rtr= -::10.00::001/ -Un./Deux.// -::20.00::/ "
     "+::10.00::001  Travail/ +Un./Deux.// +::23.00::/; extrait2=10-23 001  Travail Un.\rDeux.\r; "
     "fenetre=cachée; span=0"},
    // Dictation.
    {"dictee", "position 12", "clic BtnOpt1",
     "BtnOpt1=allumé; ShpDict0=1524+3810; options=dictee ; portion=12-17"},
    {"dictee-fin", "clic BtnOpt1", "clic BtnOpt1", "BtnOpt1=vu; ShpDict0=; options="},
    {"boucle", "", "clic BtnOpt0", "BtnOpt0=allumé; options=boucle"},
    {"automatique", "", "clic BtnOpt2", "BtnOpt2=allumé; options=auto "},
    {"secondes-glisse", "clic BtnOpt1", "glisse LblSec@0.5>-1.5", "LblSec~; ShpDict0=0+4572; portion=10-16"},
    {"secondes-roule", "clic BtnOpt1", "roule LblSec 1", "LblSec~; ShpDict0=0+4572; portion=10-16"},
    {"secondes-une", "clic BtnOpt1", "9x roule LblSec -1", "LblSec~; ShpDict0=0+762; portion=10-11"},
    {"portion-finie", "clic BtnOpt1; position 15.2", "tic 1", "lecture=2; position=10"},
    {"portion-repetee", "clic BtnOpt1; clic BtnOpt0; position 15.2", "tic 1",
     "Curseur0=3962+30; position=10"},
    {"touche-entree-ligne", "", "touche Return", "TextRtr=U\nn.\nDeux.\n"},
    {"touche-entree-portion", "clic Picture2@0.9; clic BtnOpt1; pause", "touche Return",
     "ShpDict0=3810+3810; lecture=3; portion=15-20; position=14"},
    {"touche-entree-derniere", "clic BtnOpt1; position 16; clic Pict_saisie@16", "touche Return", ""},
    {"decompte", "clic BtnOpt1; clic BtnOpt2", "tic 3", "LblTimer=2; compteur=1"},
    {"decompte-efface", "clic BtnOpt1; clic BtnOpt2; tic 3", "tic 1", "LblTimer="},
    {"fenetre-refaite", "clic BtnOpt1; roule LblSec 1; clic BtnOpt1; clic BtnOpt1; refaire 2",
     "touche Return", "ShpDict0=4572+4572; portion=16-22; position=15"},
    {"decompte-fin", "clic BtnOpt1; clic BtnOpt2; pause; tic 3; tic 3", "tic 3",
     "LblTimer=0; ShpDict0=3810+3810; compteur=0; lecture=3; portion=15-20; position=14"},
    {"decompte-touche", "clic BtnOpt1; clic BtnOpt2; tic 3; tic 3; touche Right", "tic 3",
     "LblTimer=2; compteur=1"},
    // The panel of thematics.
    {"deplier", "", "clic lbl_thm",
     "TXTcodethem=002; TxtThema=Saisissez ici le nom de la thématique; fenetre=933; focus=FrmThms"},
    {"replier", "clic lbl_thm", "clic lbl_fermer1", "fenetre=524; focus=TextRtr"},
    {"touche-replier", "clic lbl_thm; focus TxtThema", "touche Esc", "fenetre=524; focus=TextRtr"},
    {"thematique-clic", "nouveau 30-35", "clic FrmThms@LblCoul2",
     "ShpFondSaisie0=255; fenetre=524; lbl_thm=vu001  Travail"},
    {"touche-thematique", "ouvre 1; clic lbl_thm", "touche Down; touche Return",
     "ShpFondSaisie0=255; fenetre=524; focus=TextRtr; lbl_thm=vu001  Travail"},
    {"touche-thematique-haut", "clic lbl_thm; touche Down", "touche Up; touche Space",
     "ShpFondSaisie0=0; fenetre=524; focus=TextRtr; lbl_thm=vu000  Rien"},
    {"touche-panneau-espace", "clic lbl_thm", "touche Ctrl+Space", "focus=TextRtr; lecture=2"},
    {"panneau-fin", "remplir; clic lbl_thm", "9x roule FrmThms -9; clic FrmThms@LblCoul40",
     "fenetre=524; focus=TextRtr; lbl_thm=vu139  x"},
    {"panneau-debut", "remplir; clic lbl_thm", "roule FrmThms 9; clic FrmThms@LblCoul1",
     "ShpFondSaisie0=0; fenetre=524; focus=TextRtr; lbl_thm=vu000  Rien"},
    {"couleurs", "clic lbl_thm", "pastilles toutes", "ShpFdThm0=32896"},
    {"ajouter", "nouveau 30-35; clic LblCoulThm12; focus TxtThema; tape Métier", "clic Imgbtn2",
     "ShpFdThm0=0; ShpFondSaisie0=255; TXTcodethem=003; TxtThema=Saisissez ici le nom de la thématique; "
     "demande=annoncer Thematiques; disque c.Crp= +002,255,Métier/; fenetre=524; focus=TextRtr; "
     "lbl_thm=vu002 Métier; thm3=002,255,Métier"},
    {"touche-ajouter", "nouveau 30-35; clic LblCoulThm3; focus TxtThema; tape Lieu", "touche Return",
     "ShpFdThm0=0; ShpFondSaisie0=8323072; TXTcodethem=003; TxtThema=Saisissez ici le nom de la thématique; "
     "demande=annoncer Thematiques; disque c.Crp= +002,8323072,Lieu/; fenetre=524; focus=TextRtr; "
     "lbl_thm=vu002 Lieu; thm3=002,8323072,Lieu"},
    {"fond", "focus FrmThms", "clic Picture1@0.001", "focus=TextRtr"},
};

/// Questions answered with no, texts that can't stand, and writes that fail: nothing is lost, nothing moves.
const std::vector<Geste> REFUS = {
    {"supprimer", "tape Plus; repondre Non", "clic Imgsuppr",
     "dit=Etes-vous sûr(e) de vouloir supprimer cet extrait?"},
    {"sans-couleur", "nouveau 30-35; repondre Ok", "clic Imgbtn2",
     "dit=Vous n'avez pas choisi de couleur..."},
    {"sans-nom", "nouveau 30-35; clic LblCoulThm12; focus TxtThema; touche Backspace; repondre Ok",
     "clic Imgbtn2", "dit=La thématique que vous souhaitez ajouter n'a pas de nom..."},
    {"code-pris", "nouveau 30-35; clic LblCoulThm12; focus TXTcodethem; touche Ctrl+A; tape 1; repondre Ok",
     "clic Imgbtn2", "dit=Le code '1' existe déjà (nom :' Travail').\\nChoisissez un code inutilisé. Merci."},
    {"caracteres", "tape a→c::d; repondre Ok", "clic Imgbtn0",
     "dit=Ces caractères ne peuvent pas être enregistrés :\\n« → » (ligne 1, caractère 3)\\n« :: » (ligne 1, "
     "caractère 5)\\nRien n'est perdu : remplacez-les, puis validez."},
    {"fichier-perdu", "tape Plus; perdre a.Rtr; repondre Ok", "clic Imgbtn0",
     "dit=Enregistrement impossible!!"},
    {"supprimer-perdu", "vider tout; repondre Oui; repondre Ok", "clic Imgsuppr",
     "dit=Etes-vous sûr(e) de vouloir supprimer cet extrait?Enregistrement impossible!!"},
    {"extrait-perdu", "tape Plus; vider tout; repondre Ok", "clic Imgbtn0", "dit=L'extrait 2 n'existe pas."},
    {"disque-plein", "tape Plus; panne disque; repondre Ok", "clic Imgbtn0",
     "dit=Enregistrement impossible!!"},
    {"disque-plein-nouveau", "nouveau 30-35; tape Plus; panne disque; repondre Ok", "clic Imgbtn0",
     "dit=Écriture impossible : disque plein\\na.Rtr"},
    {"disque-plein-supprimer", "panne disque; repondre Oui; repondre Ok", "clic Imgsuppr",
     "dit=Etes-vous sûr(e) de vouloir supprimer cet extrait?Enregistrement impossible!!"},
    {"disque-plein-thematique", "nouveau 30-35; clic LblCoulThm12; panne disque; repondre Ok", "clic Imgbtn2",
     "dit=Écriture impossible : disque plein\\nc.Crp"},
};

} // namespace

TEST(FrmSaisie, EveryGestureHasItsEffectAndNoOther) {
    jouerTable(GESTES, ouverte);
}

TEST(FrmSaisie, WhatIsRefusedOrFailsLeavesEverything) {
    jouerTable(REFUS, ouverte, false);
}

TEST(FrmSaisie, WhatTheFileCantHoldIsMarkedAsItIsTyped) {
    SaisieDEssai essai;
    auto& texte = essai.controle<QPlainTextEdit>("TextRtr");
    texte.setPlainText(QString::fromUtf8("a\nb→c::d\u2028") + QChar(u'\0'));
    EXPECT_EQ(texte.extraSelections().size(), 3);
    essai.hote.dialogues.repondre(Reponse::Ok, "« → » (ligne 2, caractère 2)\n« ␀ » (ligne 2, caractère 8)\n"
                                               "« :: » (ligne 2, caractère 4)");
    essai.faire("clic Imgbtn0");
    EXPECT_EQ(essai.hote.dossier.lire("a.Rtr"), RTR);
}

TEST(FrmSaisie, AToggleThatIsOnIsSeenAndTheDictationShowsItsSeconds) {
    SaisieDEssai essai;
    QWidget &dictee = essai.controle("BtnOpt1"), &secondes = essai.controle("LblSec");
    const auto fond = [&] { return dictee.grab().toImage().pixelColor(3, dictee.height() / 2); };
    const QColor eteint = fond();
    EXPECT_TRUE(secondes.visibleRegion().isEmpty());
    essai.faire("clic BtnOpt1");
    EXPECT_NE(fond(), eteint);
    EXPECT_FALSE(secondes.visibleRegion().isEmpty());
}

TEST(FrmSaisie, TheDeleteButtonStandsUnderTheTextInLineWithTheValidation) {
    SaisieDEssai essai;
    const QRect suppr = essai.controle("Imgsuppr").geometry(), valider = essai.controle("Imgbtn0").geometry();
    EXPECT_EQ(suppr.size(), valider.size());
    EXPECT_EQ(suppr.top(), valider.top());
    EXPECT_GT(suppr.top(), essai.controle("TextRtr").geometry().bottom());
}

TEST(FrmSaisie, ThePlayerIsSeenOnItsButton) {
    SaisieDEssai essai;
    const auto icone = [&] { return essai.controle("ImgMedia1").grab().toImage(); };
    essai.hote.media.play();
    const QImage joue = icone();
    essai.hote.media.pause();
    EXPECT_NE(icone(), joue);
}

/// By its own timers, with nobody at the keys: the portion ends, three seconds are counted, the next begins;
/// then the span is lengthened second by second.
TEST(FrmSaisie, AutomaticDictationAndLengtheningGoOnByThemselves) {
    SaisieDEssai essai;
    const auto& t = essai.session.transcription;
    essai.faire("clic BtnOpt2; clic BtnOpt1; position 15.2");
    QElapsedTimer depuis;
    depuis.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return t.PortionDebut == 15; }, 10000));
    EXPECT_GE(depuis.elapsed(), 2900) << "the pause to type in";
    EXPECT_EQ(essai.hote.media.currentPosition(), 14);
    essai.faire("clic BtnOpt2; clic BtnOpt1; clic ImgPlus0; position 22");
    EXPECT_TRUE(QTest::qWaitFor([&] { return t.SaisieFin == 22; }, 10000));
    essai.faire("clic ImgPlus1; position 19");
    EXPECT_TRUE(QTest::qWaitFor([&] { return essai.effetDe("position 24") != ""; }, 1000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return essai.hote.media.currentPosition() == 10; }, 10000));
}
