#include "corpus/ui/FrmCorpus.h"

#include "corpus/ui/ToileEntretiens.h"
#include "corpus_ui/CorpusDEssai.h"
#include "window/ui/Glace.h"

#include <QLabel>
#include <QPainter>
#include <QWheelEvent>

namespace vermo {
namespace {

using namespace essai;

class FrmCorpusTest : public testing::Test {
  protected:
    explicit FrmCorpusTest(int nombre = 4) : session(corpusDEssai(nombre)), fenetre(session, hote, fenetres) {
        fenetre.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
        fenetre.ConstruireThematiques();
        fenetre.RedessinerFrise();
        fenetres.effacerJournal();
    }

    ToileEntretiens& rangees() { return *membre<ToileEntretiens>(fenetre, "Frm_entretiens"); }
    Toile& thematiques() { return *membre<Toile>(fenetre, "Frm_thm"); }
    QPoint rangee(Controle controle, int index) {
        return lieu(rangees(), controle, index, rangees().vue().defilement);
    }
    void clic(Controle controle, int index) {
        QTest::mouseClick(&rangees(), Qt::LeftButton, {}, rangee(controle, index));
    }
    void touche(int touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(&rangees(), static_cast<Qt::Key>(touche), avec);
    }
    void tirer(int source, int cible) {
        const QPoint la = rangee(Controle::lblfich, cible);
        QTest::mousePress(&rangees(), Qt::LeftButton, {}, rangee(Controle::lblfich, source));
        QTest::mouseMove(&rangees(), la);
        QTest::mouseRelease(&rangees(), Qt::LeftButton, {}, la);
    }
    Lignes visibles() const {
        Lignes lignes;
        for (int i = 1; i <= session.corpus.NbEntretiens; ++i)
            if (session.corpus.Entretiens[static_cast<std::size_t>(i)].Visible)
                lignes.push_back(std::to_string(i));
        return lignes;
    }
    std::string texte(const char* nom) { return utf8DepuisQt(membre<QLabel>(fenetre, nom)->text()); }

    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    FrmCorpus fenetre;
};

class GrandCorpusTest : public FrmCorpusTest {
  protected:
    GrandCorpusTest() : FrmCorpusTest(500) {}
    Lignes enVue() {
        Lignes lignes;
        for (const Element& e : rangees().elements())
            if (e.controle == Controle::lblpiste) lignes.push_back(std::to_string(e.index));
        return lignes;
    }
};

TEST_F(FrmCorpusTest, RowControlsLeadWhereTheySay) {
    clic(Controle::ImgPlay, 2);
    QTest::mouseClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::lblfich, 1));
    QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::lblfich, 3));
    EXPECT_EQ(fenetres.journal(), (Lignes{"OuvrirEntretien 2 AvecFondu", "OuvrirEntretien 3 SansFondu"}));
    EXPECT_EQ(session.corpus.EntretienCourant, 0) << "names and play buttons choose nothing by themselves";
    clic(Controle::ImgEnt, 4);
    EXPECT_EQ(session.corpus.EntretienCourant, 4);
    clic(Controle::Lblthm, 3); // two bars a row, its mark of the empty row included: extract 1 of interview 2
    EXPECT_EQ(session.corpus.EntretienCourant, 2);
}

TEST_F(FrmCorpusTest, SwitchesOfRows) {
    clic(Controle::ImgOnOff, 2);
    EXPECT_EQ(visibles(), (Lignes{"1", "3", "4"}));
    QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::ImgOnOff, 3));
    EXPECT_EQ(visibles(), Lignes{"3"});
    cliquer(fenetre, "ImgOnOffent"); // one active: all on
    EXPECT_EQ(visibles().size(), 4U);
    cliquer(fenetre, "ImgOnOffent");
    EXPECT_EQ(visibles(), Lignes{});
    EXPECT_EQ(fenetres.journal(), Lignes(4, "RedessinerPistes"));
    fenetre.RedessinerPistes();
    EXPECT_EQ(texte("etq1"), "Entretiens  (0/4)");
}

TEST_F(FrmCorpusTest, SwitchesOfThematics) {
    const auto appuyer = [&](int rang, Qt::MouseButton bouton) {
        QTest::mouseClick(&thematiques(), bouton, {}, lieu(thematiques(), Controle::LblCoul, rang));
    };
    const auto etats = [&] { // rows 1 to 3
        std::string suite;
        for (std::size_t rang = 1; rang <= 3; ++rang)
            suite += std::to_string(session.corpus.ThmVisible[rang]);
        return suite;
    };
    appuyer(2, Qt::LeftButton);
    EXPECT_EQ(etats(), "101");
    appuyer(2, Qt::LeftButton);
    EXPECT_EQ(etats(), "111");
    appuyer(3, Qt::RightButton);
    EXPECT_EQ(etats(), "001");
    fenetre.RedessinerPistes();
    EXPECT_EQ(texte("etq0"), "Thématiques  (1/3)");
    cliquer(fenetre, "ImgOnOffthm0");
    EXPECT_EQ(etats(), "111");
    QTest::keyClick(&thematiques(), Qt::Key_Home);
    QTest::keyClick(&thematiques(), Qt::Key_Down);
    QTest::keyClick(&thematiques(), Qt::Key_Space);
    EXPECT_EQ(etats(), "101");
    QTest::keyClick(&thematiques(), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(etats(), "010");
}

TEST_F(FrmCorpusTest, DraggedRowsMove) {
    tirer(3, 1);
    EXPECT_EQ(fenetres.journal(), Lignes{"DeplacerEntretien 3 1"});
    EXPECT_EQ(session.corpus.LigneSource, 3);
    EXPECT_EQ(session.corpus.LigneCible, 1);
    fenetres.effacerJournal();
    tirer(2, 2);
    EXPECT_EQ(fenetres.journal(), Lignes{}) << "a row dropped on itself stays";

    // Pulled away by its switch and back again, a row neither moves nor switches.
    const QPoint ici = rangee(Controle::ImgOnOff, 2);
    QTest::mousePress(&rangees(), Qt::LeftButton, {}, ici);
    QTest::mouseMove(&rangees(), rangee(Controle::lblfich, 4));
    EXPECT_EQ(rangees().elements().back().controle, Controle::ImgSurlig) << "the line of insertion";
    QTest::mouseMove(&rangees(), ici);
    QTest::mouseRelease(&rangees(), Qt::LeftButton, {}, ici);
    EXPECT_EQ(fenetres.journal(), Lignes{});
    EXPECT_EQ(visibles().size(), 4U);
    EXPECT_NE(rangees().elements().back().controle, Controle::ImgSurlig);
}

TEST_F(FrmCorpusTest, KeysOnTheRows) {
    rangees().setFocus();
    const auto choix = [&] { return session.corpus.EntretienCourant; };
    touche(Qt::Key_Return);
    touche(Qt::Key_Space);
    touche(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(fenetres.journal(), Lignes{}) << "nothing is chosen yet";
    const std::pair<int, int> pas[] = {{Qt::Key_Down, 1}, {Qt::Key_Down, 2}, {Qt::Key_Up, 1},
                                       {Qt::Key_Up, 1},   {Qt::Key_End, 4},  {Qt::Key_Down, 4},
                                       {Qt::Key_Home, 1}};
    for (const auto& [code, attendu] : pas) {
        touche(code);
        EXPECT_EQ(choix(), attendu);
    }
    touche(Qt::Key_Space);
    EXPECT_EQ(visibles(), (Lignes{"2", "3", "4"}));
    touche(Qt::Key_Up, Qt::AltModifier);
    touche(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(choix(), 2) << "a moved row stays chosen";
    touche(Qt::Key_Enter);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"RedessinerPistes", "DeplacerEntretien 1 2", "OuvrirEntretien 2 AvecFondu"}));
}

TEST_F(GrandCorpusTest, OnlyTheRowsInViewAreLaidOutAndHitWhereverTheScrollStands) {
    EXPECT_EQ(enVue().front(), "1");
    EXPECT_LT(enVue().size(), 60U);
    touche(Qt::Key_End);
    EXPECT_EQ(enVue().back(), "500");
    EXPECT_LT(enVue().size(), 60U);
    clic(Controle::ImgEnt, 495);
    EXPECT_EQ(session.corpus.EntretienCourant, 495);
    touche(Qt::Key_PageUp);
    EXPECT_LT(session.corpus.EntretienCourant, 490);

    QWheelEvent cran({100, 100}, rangees().mapToGlobal(QPointF(100, 100)), {}, {0, 120 * 600}, Qt::NoButton,
                     {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&rangees(), &cran);
    EXPECT_EQ(rangees().vue().defilement, 0) << "held at the top";
}

TEST_F(GrandCorpusTest, WhatIsKeptOfThePictureIsWhatAWholePaintWouldShow) {
    const auto verifier = [&](const char* apres) {
        QImage entiere(rangees().size(), QImage::Format_RGB32);
        QPainter peintre(&entiere);
        rangees().peindre(peintre, rangees().rect());
        EXPECT_TRUE(rangees().grab().toImage().convertToFormat(QImage::Format_RGB32) == entiere) << apres;
    };
    verifier("nothing");
    rangees().defiler(700);
    verifier("a step down");
    rangees().defiler(655);
    verifier("three pixels up");
    rangees().defiler(200000);
    verifier("a leap");
    touche(Qt::Key_Down);
    verifier("a choice out of view");
    touche(Qt::Key_Down);
    verifier("a choice in view");
    rangees().defiler(2000);
    touche(Qt::Key_Up);
    verifier("a choice and a scroll in one");
    session.corpus.Entretiens[3].Visible = false;
    fenetre.RedessinerPistes();
    verifier("a switch");
}

TEST_F(GrandCorpusTest, TheThumbRunsOverTheWholeSurface) {
    auto* pouce = membre<Toile>(fenetre, "LblScroll");
    ASSERT_TRUE(pouce->isVisible());
    const QPoint prise(pouce->width() / 2, 10);
    QTest::mousePress(pouce, Qt::LeftButton, {}, prise);
    QTest::mouseMove(pouce, prise + QPoint(0, pouce->height() / 2));
    EXPECT_NEAR(rangees().vue().defilement, 250000, 20000);
    QTest::mouseMove(pouce, prise + QPoint(0, 5000));
    EXPECT_EQ(enVue().back(), "500");
    EXPECT_TRUE(session.corpus.DefilementActif);
    QTest::mouseRelease(pouce, Qt::LeftButton, {}, prise);
    EXPECT_FALSE(session.corpus.DefilementActif);
    QTest::mouseMove(pouce, prise);
    EXPECT_EQ(enVue().back(), "500") << "released: no longer follows";
}

TEST_F(FrmCorpusTest, ZoomHasItsBounds) {
    auto& hauteur = session.corpus.HauteurEntretien;
    cliquer(fenetre, "ImgZoom0");
    EXPECT_FLOAT_EQ(hauteur, 1500);
    EXPECT_EQ(fenetres.journal(), (Lignes{"RedessinerFrise", "RedessinerPistes"}));
    touche(Qt::Key_Minus);
    EXPECT_FLOAT_EQ(hauteur, 1000);
    // The whole gesture of the mouse: the first click acts, the second press is the double click.
    for (const auto& [nom, attendu] : {std::pair("ImgZoom1", 450.F), std::pair("ImgZoom0", 3600.F)}) {
        cliquer(fenetre, nom);
        QTest::mouseDClick(membre<QWidget>(fenetre, nom), Qt::LeftButton);
        EXPECT_FLOAT_EQ(hauteur, attendu);
    }
    EXPECT_TRUE(rangees().isVisible());
    EXPECT_EQ(hote.ecran.pointeurCourant, Pointeur::Normal);
}

TEST_F(FrmCorpusTest, MenusButtonsAndKeysOfTheWindow) {
    session.EtatFondu = 250;
    cliquer(fenetre, "lblmenu1");
    EXPECT_EQ(session.EtatFondu, 1) << "a title's panel fades in";
    QTest::keyClick(&fenetre, Qt::Key_T, Qt::AltModifier);
    session.EtatFondu = 250;
    QTest::mouseMove(membre<QWidget>(fenetre, "PictVol"), {5, 5});
    EXPECT_EQ(session.EtatFondu, 250);
    cliquer(fenetre, "Imgbtn7");
    cliquer(fenetre, "Imgbtn3");
    for (const char* inactif : {"Imgbtn0", "Imgbtn1", "Imgbtn4", "Imgbtn5", "Imgbtn6", "Imgbtn8"}) {
        EXPECT_FALSE(membre<QWidget>(fenetre, inactif)->toolTip().isEmpty()) << inactif;
        cliquer(fenetre, inactif);
    }
    auto* croix = membre<QWidget>(fenetre, "ImgCroix0");
    QTest::mouseMove(croix, {4, 10});
    EXPECT_EQ(croix->toolTip(), QStringLiteral("Réduire la fenêtre"));
    QTest::mouseClick(croix, Qt::LeftButton, {}, {4, 10});
    EXPECT_TRUE(fenetre.isMinimized());
    QTest::mouseClick(croix, Qt::LeftButton, {}, {croix->width() - 4, 10});
    EXPECT_EQ(croix->toolTip(), QStringLiteral("Quitter Vermo"));
    EXPECT_EQ(fenetres.journal(), (Lignes{"OuvrirMenu 1", "OuvrirMenu 2", "OuvrirMenu 5", "ImporterEntretien",
                                          "BasculerTailleReelle redessiner", "finir"}));
}

TEST_F(FrmCorpusTest, NothingOfTheOldCorpusIsLeft) {
    touche(Qt::Key_Down);
    fenetre.viderAffichage();
    EXPECT_TRUE(rangees().elements().empty());
    EXPECT_TRUE(thematiques().elements().empty());
    EXPECT_EQ(texte("etq1"), "");
    session.corpus = {};
    fenetre.RedessinerFrise();
    EXPECT_EQ(texte("LblVide"), "Menu Corpus : créez ou ouvrez un corpus");
    session.corpus = corpusDEssai(0).corpus;
    fenetre.RedessinerFrise();
    EXPECT_EQ(texte("LblVide"), "Ajoutez un entretien (+)");
}

TEST_F(FrmCorpusTest, AVolumeThatWasNotReadIsThePlayers) {
    hote.media.volume(40);
    session.audio.VolumeLecture = 0;
    fenetre.DessinerVolume();
    EXPECT_FLOAT_EQ(session.audio.VolumeLecture, 40);
    EXPECT_EQ(membre<QWidget>(fenetre, "PictVol")->toolTip(), QStringLiteral("Volume : 40 %"));
}

} // namespace
} // namespace vermo
