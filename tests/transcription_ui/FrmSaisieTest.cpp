#include "transcription/ui/FrmSaisie.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"
#include "window/ui/Glace.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>
#include <gtest/gtest.h>

namespace vermo {
namespace {

using essai::DossierTemporaire;

constexpr auto CRP =
    "Corpus\r\n<|THEM|\r\n000,&H0, Rien\r\n001,255, Travail\r\n>|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n"
    ">|DIC|\r\n<|ENTR|\r\na.mp3\r\n>|ENTR|\r\n";
constexpr auto RTR =
    " 60 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n2,3\r\n>|ATTR|\r\n::10.00::001\r\nUn.\r\nDeux.\r\n::20.00::\r\n";

/// A corpus of one MP3 interview on the disk, open in FrmSaisie's sense: the player has the file.
class FrmSaisieTest : public testing::Test {
  protected:
    FrmSaisieTest() {
        dossier.ecrire("c.Crp", CRP);
        dossier.ecrire("a.mp3", "x");
        dossier.ecrire("a.Rtr", RTR);
        auto& c = session.corpus;
        session.reglages.separateurDecimal = '.';
        c.CheminCorpus = dossier.chemin("c.Crp"), c.RepCorpus = dossier.chemin();
        c.Entretiens.resize(2);
        c.Entretiens[1].Fichier = "a.mp3", c.Entretiens[1].Duree = 60, c.Entretiens[1].Attributs[1] = 3;
        c.NbEntretiens = c.EntretienCourant = 1;
        c.ThmCode = {"", "000", "001"}, c.ThmCouleur = {"", "&H0", "255"},
        c.ThmNom = {"", " Rien", " Travail"};
        c.ThmVisible = {0, 1, 1}, c.NbThm = 2;
        session.audio.DureeFichier = 60;
        hote.media.URL(dossier.chemin("a.mp3"));
        LireRetranscription(session, hote.plateforme);
        hote.annonces.surAvis = [this](const Avis& avis) { fenetres.annoncer(avis); };
        fenetre = std::make_unique<FrmSaisie>(session, hote.plateforme, fenetres);
    }

    void nouveau(double debut, double fin) {
        auto& t = session.transcription;
        t.SaisieDebut = debut, t.SaisieFin = fin, t.SaisieDuree = fin - debut, t.NouvelExtrait = true;
        fenetre->PreparerSaisie();
    }
    template <class T = QWidget>
    T& controle(const char* nom) {
        return *fenetre->findChild<T*>(QLatin1String(nom));
    }
    QPlainTextEdit& texte() { return controle<QPlainTextEdit>("TextRtr"); }
    void cliquer(const char* nom) { QTest::mouseClick(&controle(nom), Qt::LeftButton); }
    bool demande(const char* ligne) const {
        const auto& journal = fenetres.journal();
        return std::find(journal.begin(), journal.end(), ligne) != journal.end();
    }

    DossierTemporaire dossier;
    Session session;
    essai::PlateformeDeTest hote;
    essai::FenetresMuettes fenetres;
    std::unique_ptr<FrmSaisie> fenetre;
};

TEST_F(FrmSaisieTest, aNewExtractIsInsertedInTheTranscript) {
    nouveau(30, 35);
    for (const QChar c : QString::fromUtf8("Déjà\u00A0là"))
        QTest::sendKeyEvent(QTest::Click, &texte(), Qt::Key(c.toUpper().unicode()), QString(c),
                            Qt::NoModifier);
    QTest::keyClick(&texte(), Qt::Key_Return);
    QTest::keyClicks(&texte(), QStringLiteral("ligne 2"));
    cliquer("Imgbtn0");
    EXPECT_FALSE(fenetre->isVisible());
    EXPECT_EQ(dossier.lire("a.Rtr"),
              std::string(RTR) + "::30.00::000\r\nD\xE9j\xE0\xA0l\xE0\r\nligne 2\r\n::35.00::\r\n");
    EXPECT_TRUE(demande("annoncer Extraits"));
}

TEST_F(FrmSaisieTest, anEditedExtractKeepsAttributesAndTakesTheCaption) {
    fenetre->OuvrirExtrait(1);
    EXPECT_EQ(texte().toPlainText(), QStringLiteral("Un.\nDeux.\n"));
    texte().moveCursor(QTextCursor::End);
    QTest::keyClicks(&texte(), QStringLiteral("Trois."));
    QTest::keyClick(&texte(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dossier.lire("a.Rtr"), " 60 \r\n<|OBS|\r\n\r\n>|OBS|\r\n<|ATTR|\r\n2,3\r\n>|ATTR|\r\n"
                                     "::10.00::001  Travail\r\nUn.\rDeux.\rTrois.\r\n::20.00::\r\n");
}

TEST_F(FrmSaisieTest, escapeLosesTheTextWithoutAQuestion) {
    nouveau(30, 35);
    QTest::keyClicks(&texte(), QStringLiteral("perdu"));
    QTest::keyClick(&controle("TxtThema"), Qt::Key_Escape);
    EXPECT_TRUE(fenetre->isVisible()) << "folds the panel";
    QTest::keyClick(&texte(), Qt::Key_Escape);
    EXPECT_FALSE(fenetre->isVisible());
    EXPECT_EQ(dossier.lire("a.Rtr"), RTR);
}

TEST_F(FrmSaisieTest, lengtheningEndsWithItsExtract) {
    nouveau(30, 35);
    cliquer("ImgPlus0");
    EXPECT_TRUE(controle("ImgPlus1").isVisible());
    cliquer("Imgbtn0");
    nouveau(50, 52);
    EXPECT_FALSE(controle("ImgPlus1").isVisible());
}

TEST_F(FrmSaisieTest, whatTheFileCantHoldIsNamedAndStaysOnTheScreen) {
    nouveau(30, 35);
    texte().setPlainText(QString::fromUtf8("a\nb→c::d\u2028") + QChar(u'\0'));
    EXPECT_EQ(texte().extraSelections().size(), 3);
    hote.dialogues.repondre(
        Reponse::Ok,
        "« → » (ligne 2, caractère 2)\n« ␀ » (ligne 2, caractère 8)\n« :: » (ligne 2, caractère 4)");
    cliquer("Imgbtn0");
    EXPECT_TRUE(fenetre->isVisible());
    EXPECT_EQ(dossier.lire("a.Rtr"), RTR);
}

TEST_F(FrmSaisieTest, aFailedWriteKeepsTheTextOnTheScreen) {
    fenetre->OuvrirExtrait(1);
    std::filesystem::remove(dossier.chemin("a.Rtr"));
    hote.dialogues.repondre(Reponse::Ok, "Enregistrement impossible!!");
    cliquer("Imgbtn0");
    EXPECT_TRUE(fenetre->isVisible());
    EXPECT_EQ(session.transcription.SaisieDuree, 10);
}

TEST_F(FrmSaisieTest, enterTypesALineOrMovesThePortion) {
    nouveau(30, 50);
    hote.media.currentPosition(30);
    const QSize replie = controle("BtnOpt1").size();
    const auto fond = [&] { return controle("BtnOpt1").grab().toImage().pixelColor(3, replie.height() / 2); };
    const QColor eteint = fond();
    EXPECT_TRUE(controle("LblSec").visibleRegion().isEmpty());
    cliquer("BtnOpt1");
    EXPECT_NE(fond(), eteint) << "a toggle that is on is seen";
    EXPECT_FALSE(controle("LblSec").visibleRegion().isEmpty());
    QTest::keyClick(&texte(), Qt::Key_Return);
    EXPECT_EQ(texte().toPlainText(), QString());
    EXPECT_EQ(session.transcription.PortionDebut, 35);
    EXPECT_EQ(hote.media.currentPosition(), 34) << "one second before, to find the thread again";
}

TEST_F(FrmSaisieTest, aDragOnTheWaveformSelectsAPortionAndSwitchesDictationOn) {
    nouveau(30, 40);
    QWidget& onde = controle("Pict_saisie");
    QTest::mousePress(&onde, Qt::LeftButton, {}, {onde.width() / 5, 10});
    QTest::mouseMove(&onde, {onde.width() / 2, 10});
    QTest::mouseRelease(&onde, Qt::LeftButton, {}, {onde.width() / 2, 10});
    EXPECT_TRUE(session.transcription.DicteeActive);
    EXPECT_NEAR(session.transcription.PortionDebut, 32, 0.1);
    EXPECT_EQ(session.transcription.PortionFin, 35);
    EXPECT_NEAR(hote.media.currentPosition(), 32, 0.1);

    session.transcription.DicteeActive = false; // the whole span comes back to its start and pauses
    hote.media.currentPosition(40.2);
    fenetre->Timer1_Tick();
    EXPECT_EQ(hote.media.currentPosition(), 30);
    EXPECT_EQ(hote.media.playState(), EtatLecture::EnPause);
}

TEST_F(FrmSaisieTest, anAddedThematicCodesTheExtractAndReachesTheCorpus) {
    nouveau(30, 35);
    auto& nom = controle<QLineEdit>("TxtThema");
    hote.dialogues.repondre(Reponse::Ok, "Vous n'avez pas choisi de couleur...");
    cliquer("Imgbtn2");
    nom.setText(QString::fromUtf8("Métier, \"vrai\""));
    cliquer("LblCoulThm12");
    cliquer("Imgbtn2");
    EXPECT_NE(dossier.lire("c.Crp").find("002,255,M\xE9tier, \"vrai\"\r\n>|THEM|"), std::string::npos);
    EXPECT_TRUE(demande("annoncer Thematiques"));
    cliquer("Imgbtn0");
    EXPECT_NE(dossier.lire("a.Rtr").find("::30.00::002\r\n"), std::string::npos);
}

} // namespace
} // namespace vermo
