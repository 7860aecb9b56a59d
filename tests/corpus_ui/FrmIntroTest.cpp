#include "corpus/ui/FrmIntro.h"

#include "corpus_ui/CorpusDEssai.h"
#include "window/ui/Lien.h"

#include <QLabel>
#include <memory>

namespace vermo {
namespace {

using namespace essai;

class FrmIntroTest : public testing::Test {
  protected:
    void ouvrir(const std::string& projets) {
        if (!projets.empty()) hote.dossier.ecrire("programme/Projets.ini", projets);
        fenetre = std::make_unique<FrmIntro>(session, hote, fenetres);
        fenetre->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    }
    Lien* ligne(int index) { return fenetre->findChild<Lien*>(QStringLiteral("lblcorpus%1").arg(index)); }
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    std::unique_ptr<FrmIntro> fenetre;
};

TEST_F(FrmIntroTest, ListsFiveRecentCorporaAtMost) {
    ouvrir("/a.Crp\r\n/b,c.Crp\r\n/d.Crp\r\n/e.Crp\r\n/f.Crp\r\n");
    ASSERT_NE(ligne(7), nullptr);
    EXPECT_EQ(ligne(8), nullptr);
    EXPECT_EQ(ligne(4)->text(), QStringLiteral("/b")) << "a comma ends an item";
    EXPECT_EQ(ligne(7)->text(), QStringLiteral("/e.Crp"));
    EXPECT_EQ(ligne(7)->geometry().top(), ligne(6)->geometry().bottom() + 1);
    EXPECT_EQ(membre<Toile>(*fenetre, "Picture1")->elements().size(), 5U) << "one bullet a corpus";
    EXPECT_EQ(fenetre->alpha(), 249);
}

TEST_F(FrmIntroTest, WithoutAListOnlyTheThreeFirstLines) {
    ouvrir("");
    EXPECT_EQ(ligne(3), nullptr);
    EXPECT_FALSE(ligne(2)->isEnabled());
}

TEST_F(FrmIntroTest, LinesLeadToTheCorpusWindow) {
    ouvrir("/a.Crp\r\n");
    QTest::mouseClick(ligne(0), Qt::LeftButton);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"montrer FrmCorpus", "NouveauCorpus", "montrer FrmCorpus", "decharger FrmIntro"}));
    fenetres.effacerJournal();
    QTest::keyClick(ligne(1), Qt::Key_Return);
    EXPECT_EQ(fenetres.journal(),
              (Lignes{"montrer FrmCorpus", "OuvrirCorpus", "montrer FrmCorpus", "decharger FrmIntro"}));
    EXPECT_FALSE(session.corpus.OuvertureDirecte);
    fenetres.effacerJournal();
    QTest::mouseClick(ligne(3), Qt::LeftButton);
    EXPECT_EQ(fenetres.journal(), (Lignes{"OuvrirCorpus", "montrer FrmCorpus", "decharger FrmIntro"}));
    EXPECT_TRUE(session.corpus.OuvertureDirecte);
    EXPECT_EQ(session.corpus.CheminCorpus, "/a.Crp");
    fenetres.effacerJournal();
    cliquer(*fenetre, "ImgBtn1");
    cliquer(*fenetre, "Image1");
    EXPECT_EQ(fenetres.journal(), (Lignes{"montrer FrmCorpus", "decharger FrmIntro", "finir"}));
}

TEST_F(FrmIntroTest, OneLineIsUnderlinedAtATime) {
    ouvrir("/a.Crp\r\n");
    const auto soulignees = [&] {
        std::string indexes;
        for (int i : {0, 1, 2, 3})
            if (ligne(i)->souligne()) indexes += std::to_string(i);
        return indexes;
    };
    QTest::mouseMove(ligne(0), {20, 10});
    EXPECT_EQ(soulignees(), "0");
    QTest::mouseMove(ligne(3), {20, 10});
    EXPECT_EQ(soulignees(), "3");
    QTest::mouseMove(membre<QWidget>(*fenetre, "Picture1"), {5, 200});
    EXPECT_EQ(soulignees(), "");
}

TEST_F(FrmIntroTest, TheSoundTestPlaysOrSaysWhyNot) {
    ouvrir("");
    hote.dialogues.repondre(Reponse::Ok, "Vermo de Vermo.mp3");
    cliquer(*fenetre, "ImgTestSon");
    EXPECT_TRUE(hote.media.journal().empty()) << "no sound file, nothing to play";
    hote.dossier.ecrire("donnees/Vermo de Vermo.mp3", "son");
    hote.media.sansSon = true;
    cliquer(*fenetre, "ImgTestSon");
    EXPECT_EQ(hote.media.journal(), (Lignes{"URL Vermo de Vermo.mp3", "play"}));
    fenetre->TimerSon_Tick();
    EXPECT_TRUE(membre<QLabel>(*fenetre, "LblSon")->text().contains(QStringLiteral("silencieuse")));
}

} // namespace
} // namespace vermo
