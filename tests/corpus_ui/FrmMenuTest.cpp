#include "corpus/ui/FrmMenu.h"

#include "corpus/ui/LblVol.h"
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
    void commande(Panneau panneau, int index) {
        ouvrir(panneau);
        cliquer(fenetre, ("lblmenu" + std::to_string(index)).c_str());
        EXPECT_FALSE(fenetre.isVisible()) << "closed by command " << index;
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

TEST_F(FrmMenuTest, EachCommandThatIsThereLeadsWhereItSays) {
    session.corpus.EntretienCourant = 2;
    session.corpus.OuvertureDirecte = true;
    commande(Panneau::Corpus, 0);
    commande(Panneau::Corpus, 1);
    EXPECT_FALSE(session.corpus.OuvertureDirecte) << "asks which corpus";
    for (int index : {3, 9, 10, 12})
        commande(Panneau::Entretiens, index);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"NouveauCorpus", "OuvrirCorpus", "ImporterEntretien", "basculerTailleReelle",
                      "ouvrirEntretien 2 SansFondu", "retirerEntretien"}));
    session.corpus.EntretienCourant = 0;
    ouvrir(Panneau::Entretiens);
    EXPECT_FALSE(membre<QWidget>(fenetre, "lblmenu10")->isEnabled());
    EXPECT_FALSE(membre<QWidget>(fenetre, "lblmenu12")->isEnabled());
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

TEST_F(FrmMenuTest, ClosesByEscape) {
    ouvrir(Panneau::Thematiques);
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    EXPECT_FALSE(fenetre.isVisible());
}

TEST_F(FrmMenuTest, VolumeSlider) {
    session.audio.VolumeLecture = 100;
    ouvrir(Panneau::Volume);
    auto* curseur = membre<QWidget>(fenetre, "ImgCurseur");
    auto* glissiere = membre<QWidget>(fenetre, "LblVol");
    const QPoint prise = curseur->geometry().center();
    QTest::mousePress(glissiere, Qt::LeftButton, {}, prise);
    QTest::mouseMove(glissiere, prise + QPoint(0, 500));
    QTest::mouseRelease(glissiere, Qt::LeftButton, {}, prise);
    QTest::keyClick(glissiere, Qt::Key_Up);
    EXPECT_EQ(fenetres.journal(), (Lignes{"reglerVolume 0", "reglerVolume 5"}));
}

} // namespace
} // namespace vermo
