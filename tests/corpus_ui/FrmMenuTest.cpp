#include "corpus/ui/FrmMenu.h"

#include "corpus/ui/LblVol.h"
#include "corpus_ui/CorpusDEssai.h"
#include "window/JaugeVolume.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"

#include <QFrame>

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
    bool actif(int index) {
        return fenetre.findChild<QWidget*>(QStringLiteral("lblmenu%1").arg(index))->isEnabled();
    }
    void commande(Panneau panneau, int index) {
        ouvrir(panneau);
        cliquer(fenetre, ("lblmenu" + std::to_string(index)).c_str());
        EXPECT_FALSE(fenetre.isVisible()) << "closed by command " << index;
    }
    std::string cadres() const {
        std::string montres;
        for (const QFrame* cadre : fenetre.findChildren<QFrame*>())
            if (cadre->objectName().startsWith(QLatin1String("FrmMnu")) && cadre->isVisible())
                montres += utf8DepuisQt(cadre->objectName());
        return montres;
    }
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    FrmMenu fenetre;
};

TEST_F(FrmMenuTest, ShowsOnePanelUnderItsAnchorWithinTheScreen) {
    ouvrir(Panneau::Entretiens);
    EXPECT_EQ(cadres(), "FrmMnu1");
    EXPECT_EQ(fenetre.pos(), QPoint(200, 220));
    ouvrir(Panneau::Corpus, {28700, 16100, 100, 100});
    EXPECT_EQ(cadres(), "FrmMnu0");
    EXPECT_EQ(fenetre.geometry().right(), 1919);
    EXPECT_EQ(fenetre.geometry().bottom(), 1079);
}

TEST_F(FrmMenuTest, EachCommandThatIsThereLeadsWhereItSays) {
    std::string actifs;
    session.corpus.EntretienCourant = 2;
    ouvrir(Panneau::Entretiens);
    for (int i = 0; i <= 24; ++i)
        if (actif(i)) actifs += std::to_string(i) + " ";
    EXPECT_EQ(actifs, "0 1 3 9 10 12 ");
    session.corpus.OuvertureDirecte = true;
    commande(Panneau::Corpus, 0);
    commande(Panneau::Corpus, 1);
    EXPECT_FALSE(session.corpus.OuvertureDirecte) << "asks which corpus";
    for (int index : {3, 9, 10, 12})
        commande(Panneau::Entretiens, index);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"NouveauCorpus", "OuvrirCorpus", "ImporterEntretien", "BasculerTailleReelle",
                      "OuvrirEntretien 2 SansFondu", "RetirerEntretien"}));
    session.corpus.EntretienCourant = 0;
    ouvrir(Panneau::Entretiens);
    EXPECT_FALSE(actif(10));
    EXPECT_FALSE(actif(12));
    EXPECT_TRUE(actif(3));
}

TEST_F(FrmMenuTest, TheRecentListIsThatOfTheMoment) {
    ouvrir(Panneau::Corpus);
    EXPECT_EQ(fenetre.findChild<Lien*>(QStringLiteral("lblcorpus1")), nullptr);
    hote.dossier.ecrire("programme/Projets.ini",
                        "/1.Crp\r\n/2.Crp\r\n/3.Crp\r\n/4.Crp\r\n/5.Crp\r\n/6.Crp\r\n");
    ouvrir(Panneau::Corpus);
    EXPECT_EQ(fenetre.findChild<Lien*>(QStringLiteral("lblcorpus6")), nullptr);
    cliquer(fenetre, "lblcorpus5");
    EXPECT_EQ(session.corpus.CheminCorpus, "/5.Crp");
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
    fenetre.Timer1_Tick();
    EXPECT_EQ(fenetre.alpha(), 250);
    EXPECT_EQ(session.EtatFondu, 250);
    for (const float autre : {0.F, 10240.F}) { // the counter may hold what another window's fade left
        session.EtatFondu = autre;
        ouvrir(Panneau::Volume);
        EXPECT_EQ(fenetre.alpha(), 250);
        EXPECT_EQ(session.EtatFondu, autre);
    }
}

TEST_F(FrmMenuTest, ClosesByEscapeAndWhenAnotherWindowIsActivated) {
    ouvrir(Panneau::Thematiques);
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    EXPECT_FALSE(fenetre.isVisible());
    ouvrir(Panneau::Attributs);
    QWidget autre;
    autre.show();
    autre.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fenetre.isVisible(); }));
}

TEST_F(FrmMenuTest, VolumeSlider) {
    session.audio.VolumeLecture = 100;
    ouvrir(Panneau::Volume);
    auto* curseur = membre<QWidget>(fenetre, "ImgCurseur");
    auto* glissiere = membre<QWidget>(fenetre, "LblVol");
    EXPECT_EQ(curseur->y(), qRound(440 / 15.0));
    const QPoint prise = curseur->geometry().center();
    QTest::mousePress(glissiere, Qt::LeftButton, {}, prise);
    EXPECT_EQ(fenetres.journal(), Lignes{}) << "taking the cursor changes nothing";
    QTest::mouseMove(glissiere, prise + QPoint(0, 500));
    QTest::mouseRelease(glissiere, Qt::LeftButton, {}, prise);
    QTest::keyClick(glissiere, Qt::Key_Up);
    EXPECT_EQ(fenetres.journal(), (Lignes{"ReglerVolume 0", "ReglerVolume 5"}));
    for (int volume = 0; volume <= 100; ++volume)
        EXPECT_EQ(jauge::volumeImgCurseur(jauge::hautImgCurseur(static_cast<float>(volume))), volume);
}

} // namespace
} // namespace vermo
