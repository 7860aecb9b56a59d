#include "corpus/ui/FrmMenu.h"

#include "corpus_ui/Gestes.h"

namespace vermo {
namespace {

using namespace essai;

class FrmMenuTest : public testing::Test {
  protected:
    FrmMenuTest() : session(corpusDEssai(2)), fenetre(session, hote, fenetres) {}
    void ouvrir(Panneau panneau, Rectangle ancre = {3000, 3000, 900, 300}) {
        fenetre.OuvrirMenu(panneau, ancre);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    }
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    FrmMenu fenetre;
};

TEST_F(FrmMenuTest, ShowsOnePanelUnderItsAnchorWithinTheScreen) {
    ouvrir(Panneau::Entretiens);
    EXPECT_EQ(fenetre.pos(), QPoint(200, 220));
    ouvrir(Panneau::Corpus, {28700, 16100, 100, 100});
    EXPECT_EQ(fenetre.geometry().right(), 1919);
    EXPECT_EQ(fenetre.geometry().bottom(), 1079);
}

TEST_F(FrmMenuTest, TheRecentListIsThatOfTheMoment) {
    ouvrir(Panneau::Corpus);
    hote.dossier.ecrire("programme/Projets.ini", "/1.Crp\r\n/2.Crp\r\n");
    ouvrir(Panneau::Corpus);
    cliquer(fenetre, "lblcorpus2");
    EXPECT_EQ(session.corpus.CheminCorpus, "/2.Crp");
    EXPECT_TRUE(session.corpus.OuvertureDirecte);
    EXPECT_EQ(fenetres.journal(), Lignes{"OuvrirCorpus"});
}

TEST_F(FrmMenuTest, FadesInFromTheSharedCounter) {
    session.EtatFondu = 1;
    ouvrir(Panneau::Corpus);
    session.EtatFondu = 1;
    for (int i = 0; i < 24; ++i)
        fenetre.Timer1_Tick();
    EXPECT_EQ(fenetre.alpha(), 241);
    session.EtatFondu = 10240; // what another window's fade left
    ouvrir(Panneau::Volume);
    EXPECT_EQ(fenetre.alpha(), 250);
}

} // namespace
} // namespace vermo
