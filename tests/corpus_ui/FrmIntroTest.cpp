#include "corpus/ui/FrmIntro.h"

#include "corpus_ui/Gestes.h"
#include "window/ui/Lien.h"

#include <QLabel>
#include <filesystem>
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
    }
    Lien* ligne(int index) { return fenetre->findChild<Lien*>(QStringLiteral("lblcorpus%1").arg(index)); }
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Session session;
    std::unique_ptr<FrmIntro> fenetre;
};

TEST_F(FrmIntroTest, ListsFiveRecentCorporaAtMost) {
    ouvrir("/a.Crp\r\n/b,c.Crp\r\n/d.Crp\r\n/e.Crp\r\n/f.Crp\r\n");
    EXPECT_EQ(ligne(8), nullptr);
    EXPECT_EQ(ligne(4)->text(), QStringLiteral("/b")) << "a comma ends an item";
    EXPECT_EQ(ligne(7)->text(), QStringLiteral("/e.Crp"));
    EXPECT_EQ(fenetre->alpha(), 249);
}

TEST_F(FrmIntroTest, AListThatCantBeReadIsSaidAndTheWindowOpens) {
    std::filesystem::create_directories(hote.dossier.chemin("programme/Projets.ini"));
    hote.dialogues.repondre(Reponse::Ok, "Projets.ini");
    ouvrir("");
    EXPECT_EQ(ligne(3), nullptr);
    EXPECT_NE(ligne(1), nullptr);
}

TEST_F(FrmIntroTest, TheSoundTestPlaysOrSaysWhyNot) {
    ouvrir("");
    hote.dialogues.repondre(Reponse::Ok, "Vermo de Vermo.mp3");
    cliquer(*fenetre, "ImgTestSon");
    hote.dossier.ecrire("donnees/Vermo de Vermo.mp3", "son");
    hote.media.sansSon = true;
    cliquer(*fenetre, "ImgTestSon");
    EXPECT_TRUE(hote.media.URL().ends_with("Vermo de Vermo.mp3") && hote.media.enLecture());
    fenetre->TimerSon_Tick();
    EXPECT_TRUE(membre<QLabel>(*fenetre, "LblSon")->text().contains(QStringLiteral("silencieuse")));
}

} // namespace
} // namespace vermo
