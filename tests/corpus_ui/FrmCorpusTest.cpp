#include "corpus/ui/FrmCorpus.h"

#include "corpus/ui/ToileEntretiens.h"
#include "corpus_ui/Gestes.h"

#include <QPainter>
#include <algorithm>

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
    std::string visibles() const {
        std::string suite;
        for (std::size_t i = 1; i < session.corpus.Entretiens.size(); ++i)
            if (session.corpus.Entretiens[i].Visible) suite += std::to_string(i);
        return suite;
    }

    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    FrmCorpus fenetre;
};

struct GrandCorpusTest : FrmCorpusTest {
    GrandCorpusTest() : FrmCorpusTest(500) {}
};

TEST_F(FrmCorpusTest, RowControlsLeadWhereTheySay) {
    clic(Controle::ImgPlay, 2);
    QTest::mouseClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::lblfich, 1));
    QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::lblfich, 3));
    EXPECT_EQ(fenetres.journal(), (Lignes{"ouvrirEntretien 2 AvecFondu", "ouvrirEntretien 3 SansFondu"}));
    clic(Controle::ImgEnt, 4);
    EXPECT_EQ(session.corpus.EntretienCourant, 4);
    clic(Controle::Lblthm, 3); // two bars a row, its mark of the empty row included: extract 1 of interview 2
    EXPECT_EQ(session.corpus.EntretienCourant, 2);
}

TEST_F(FrmCorpusTest, SwitchesOfRows) {
    clic(Controle::ImgOnOff, 2);
    EXPECT_EQ(visibles(), "134");
    QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, rangee(Controle::ImgOnOff, 3));
    EXPECT_EQ(visibles(), "3");
    cliquer(fenetre, "ImgOnOffent"); // one active: all on
    EXPECT_EQ(visibles(), "1234");
    EXPECT_EQ(fenetres.journal(), Lignes(3, "RedessinerPistes"));
}

TEST_F(FrmCorpusTest, SwitchesOfThematics) {
    const auto appuyer = [&](int rang, Qt::MouseButton bouton) {
        QTest::mouseClick(&thematiques(), bouton, {}, lieu(thematiques(), Controle::LblCoul, rang));
    };
    using Etats = std::vector<std::int16_t>;
    const auto etats = [&] {
        return Etats(session.corpus.ThmVisible.begin() + 1, session.corpus.ThmVisible.end());
    };
    appuyer(2, Qt::LeftButton);
    EXPECT_EQ(etats(), (Etats{1, 0, 1}));
    appuyer(3, Qt::RightButton);
    EXPECT_EQ(etats(), (Etats{0, 0, 1}));
    cliquer(fenetre, "ImgOnOffthm0");
    EXPECT_EQ(etats(), (Etats{1, 1, 1}));
}

TEST_F(FrmCorpusTest, DraggedRowsMove) {
    tirer(3, 1);
    EXPECT_EQ(fenetres.journal(), Lignes{"DeplacerEntretien 3 1"});
    fenetres.effacerJournal();
    tirer(2, 2);
    EXPECT_EQ(fenetres.journal(), Lignes{}) << "a row dropped on itself stays";
}

TEST_F(FrmCorpusTest, KeysOnTheRows) {
    rangees().setFocus();
    const auto choix = [&] { return session.corpus.EntretienCourant; };
    touche(Qt::Key_Return); // nothing is chosen yet
    using Pas = std::pair<int, int>;
    for (const auto& [code, attendu] :
         {Pas{Qt::Key_Down, 1}, {Qt::Key_End, 4}, {Qt::Key_Down, 4}, {Qt::Key_Home, 1}}) {
        touche(code);
        EXPECT_EQ(choix(), attendu);
    }
    touche(Qt::Key_Space);
    EXPECT_EQ(visibles(), "234");
    touche(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(choix(), 2) << "a moved row stays chosen";
    touche(Qt::Key_Enter);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"RedessinerPistes", "DeplacerEntretien 1 2", "ouvrirEntretien 2 AvecFondu"}));
}

TEST_F(GrandCorpusTest, OnlyTheRowsInViewAreLaidOutAndHitWhereverTheScrollStands) {
    touche(Qt::Key_End);
    EXPECT_LT(std::ranges::count(rangees().elements(), Controle::lblpiste, &Element::controle), 60);
    clic(Controle::ImgEnt, 495);
    EXPECT_EQ(session.corpus.EntretienCourant, 495);
    auto* pouce = membre<Toile>(fenetre, "LblScroll");
    QTest::mousePress(pouce, Qt::LeftButton, {}, {5, pouce->height() - 5});
    QTest::mouseMove(pouce, {5, -5000});
    EXPECT_EQ(rangees().vue().defilement, 0) << "held at the top";
}

TEST_F(GrandCorpusTest, WhatIsKeptOfThePictureIsWhatAWholePaintWouldShow) {
    const auto verifier = [&](const char* apres) {
        QImage entiere(rangees().size(), QImage::Format_RGB32);
        QPainter peintre(&entiere);
        rangees().peindre(peintre, rangees().rect());
        EXPECT_TRUE(rangees().grab().toImage().convertToFormat(QImage::Format_RGB32) == entiere) << apres;
    };
    rangees().defiler(700);
    verifier("a step down");
    touche(Qt::Key_Down);
    verifier("a choice in view");
    rangees().defiler(200000);
    touche(Qt::Key_Up);
    verifier("a choice and a scroll in one");
    session.corpus.Entretiens[3].Visible = false;
    fenetre.RedessinerPistes();
    verifier("a switch");
}

TEST_F(FrmCorpusTest, ZoomHasItsBounds) {
    auto& hauteur = session.corpus.HauteurEntretien;
    cliquer(fenetre, "ImgZoom0");
    EXPECT_FLOAT_EQ(hauteur, 1500);
    EXPECT_EQ(fenetres.journal(), (Lignes{"RedessinerFrise", "RedessinerPistes"}));
    // The whole gesture of the mouse: the first click acts, the second press is the double click.
    for (const auto& [nom, attendu] : {std::pair("ImgZoom1", 450.F), std::pair("ImgZoom0", 3600.F)}) {
        cliquer(fenetre, nom);
        QTest::mouseDClick(membre<QWidget>(fenetre, nom), Qt::LeftButton);
        EXPECT_FLOAT_EQ(hauteur, attendu);
    }
}

TEST_F(FrmCorpusTest, MenusButtonsAndKeysOfTheWindow) {
    cliquer(fenetre, "lblmenu1");
    QTest::keyClick(&fenetre, Qt::Key_T, Qt::AltModifier);
    QTest::mouseMove(membre<QWidget>(fenetre, "PictVol"), {5, 5});
    cliquer(fenetre, "Imgbtn7");
    cliquer(fenetre, "Imgbtn3");
    auto* croix = membre<QWidget>(fenetre, "ImgCroix0");
    QTest::mouseClick(croix, Qt::LeftButton, {}, {4, 10});
    EXPECT_TRUE(fenetre.isMinimized());
    QTest::mouseClick(croix, Qt::LeftButton, {}, {croix->width() - 4, 10});
    EXPECT_EQ(fenetres.journal(), (Lignes{"OuvrirMenu 1", "OuvrirMenu 2", "OuvrirMenu 5", "ImporterEntretien",
                                          "basculerTailleReelle redessiner", "finir"}));
}

} // namespace
} // namespace vermo
