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
    FrmCorpusTest() {
        fenetre.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
        fenetre.ConstruireThematiques();
        fenetre.montrerFrise();
    }
    ToileEntretiens& rangees() { return *membre<ToileEntretiens>(fenetre, "Frm_entretiens"); }
    void touche(Qt::Key touche) { QTest::keyClick(&rangees(), touche); }

    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session = corpusDEssai(500);
    FrmCorpus fenetre{session, hote, fenetres};
};

TEST_F(FrmCorpusTest, OnlyTheRowsInViewAreLaidOutAndHitWhereverTheScrollStands) {
    touche(Qt::Key_End);
    EXPECT_LT(std::ranges::count(rangees().elements(), Controle::lblpiste, &Element::controle), 60);
    QTest::mouseClick(&rangees(), Qt::LeftButton, {},
                      lieu(rangees(), Controle::ImgEnt, 495, rangees().vue().defilement));
    EXPECT_EQ(session.corpus.EntretienCourant, 495);
    auto* pouce = membre<Toile>(fenetre, "LblScroll");
    QTest::mousePress(pouce, Qt::LeftButton, {}, {5, pouce->height() - 5});
    QTest::mouseMove(pouce, {5, -5000});
    EXPECT_EQ(rangees().vue().defilement, 0) << "held at the top";
}

TEST_F(FrmCorpusTest, WhatIsKeptOfThePictureIsWhatAWholePaintWouldShow) {
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
    fenetre.montrerPistes();
    verifier("a switch");
}

} // namespace
} // namespace vermo
