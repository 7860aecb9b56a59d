#include "audio_ui/EntretienDEssai.h"
#include "textfile/fichier.h"
#include "transcription/Retranscription.h"

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

const Element* element(const Toile& toile, Controle controle, int index = 0) {
    for (const Element& e : toile.elements())
        if (e.controle == controle && e.index == index) return &e;
    return nullptr;
}

constexpr double PIXEL = 60.0 / 1648; ///< seconds a pixel of the zoom band, at the most

} // namespace

TEST(FrmVisu, OpensOnTheFirstMinuteAndKeepsItsPicture) {
    EntretienDEssai essai(610);
    essai.session.corpus.Entretiens[1].Reprise = 42;
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.FacteurZoom, 10);
    EXPECT_EQ(essai.plateforme.media.currentPosition(), 42);

    const Utf8 cache = essai.plateforme.dossier.chemin("entretien1.Bmp");
    const QImage image(QString::fromStdString(cache));
    EXPECT_EQ(image.size(), essai.toile("Picture1").size());
    EXPECT_EQ(image.depth(), 8);

    // The cache alone decides: a recording that changed keeps its picture.
    const std::string octets = lireFichier(cache);
    essai.plateforme.dossier.ecrire("entretien1.wav", wav(1, 8, std::string(5000, '\x80')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(lireFichier(cache), octets);
    EXPECT_EQ(essai.toile("Picture1").image().convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32));
}

TEST(FrmVisu, ARecordingWithoutSamplesShowsARulerAndIsNeverProbed) {
    EntretienDEssai essai(125, "entretien1.Mp3"); // no question is expected
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.EnteteWav, EnTeteWav());
    const QImage cache(QString::fromStdString(essai.plateforme.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(cache.depth(), 8);
    const int minute = qRound(60.0 / 125 * cache.width());
    EXPECT_NE(cache.pixel(minute, 40), cache.pixel(minute + 10, 40));
}

TEST(FrmVisu, ADurationThatNeverComesEndsInTheQuestion) {
    EntretienDEssai essai(60);
    essai.session.corpus.Entretiens[1].Duree = 0;
    essai.plateforme.media.lent = true;
    essai.plateforme.media.URL(essai.chemin);
    essai.plateforme.progression.patience = 5; // then the person gives up, twice
    essai.plateforme.dialogues.repondre(Reponse::Oui, "Voulez-vous réessayer?").repondre(Reponse::Non);
    EXPECT_FALSE(essai.ouvrir());
    essai.plateforme.media.URL("");
    essai.plateforme.dialogues.repondre(Reponse::Ok, "Le fichier spécifié est introuvable.\n\nVous l'avez");
    EXPECT_FALSE(essai.ouvrir());
}

TEST(FrmVisu, EscapeFadesTheWindowAndTheSoundAndThenItGoes) {
    EntretienDEssai essai(60);
    ASSERT_TRUE(essai.ouvrir());
    essai.session.audio.VolumeLecture = 80;
    QTest::keyClick(essai.touches(), Qt::Key_Escape);
    EXPECT_EQ(essai.fenetres.journal(), std::vector<std::string>{"quitterVisu"});
    EXPECT_EQ(essai.visu->alpha(), 240);
    for (int i = 0; i < 24; ++i)
        essai.visu->Timer3_Tick();
    EXPECT_EQ(essai.plateforme.media.volume(), 4);
    EXPECT_EQ(essai.fenetres.journal().size(), 1U); // not from within the tick
    QApplication::processEvents();
    EXPECT_EQ(essai.fenetres.journal(), (std::vector<std::string>{"quitterVisu", "decharger FrmVisu"}));
}

TEST(FrmVisu, FollowsThePlayerAndTurnsThePage) {
    EntretienDEssai essai(610);
    essai.plateforme.media.sansSon = true;
    ASSERT_TRUE(essai.ouvrir());
    essai.plateforme.media.currentPosition(30);
    essai.visu->Timer1_Tick();
    EXPECT_EQ(essai.texte("LblCompteur"), "00:30");
    EXPECT_EQ(essai.texte("lblEtat"), "Pas de sortie son : la lecture est silencieuse");

    essai.fenetres.montrer(Fenetre::FrmSaisie); // typing: the counter stands still
    essai.plateforme.media.currentPosition(60.9);
    essai.visu->Timer1_Tick();
    EXPECT_EQ(essai.texte("LblCompteur"), "00:30");
    essai.fenetres.cacher(Fenetre::FrmSaisie);
    essai.visu->Timer1_Tick();
    EXPECT_EQ(essai.session.audio.DebutZoom, 60.9);
    EXPECT_EQ(essai.session.corpus.Entretiens[1].Reprise, 61);
}

TEST(FrmVisu, FollowsThePlayerOnlyWhileItPlays) {
    EntretienDEssai essai(60);
    ASSERT_TRUE(essai.ouvrir());
    const auto* timer = essai.visu->findChild<QTimer*>(QStringLiteral("Timer1"));
    for (const bool joue : {false, true, false}) {
        joue ? essai.plateforme.media.play() : essai.plateforme.media.pause();
        EXPECT_TRUE(timer->isActive()) << "once more, to show what the change brought";
        essai.visu->Timer1_Tick();
        EXPECT_EQ(timer->isActive(), joue);
    }
}

TEST(FrmVisu, KeysDriveThePlayerAndTheZoom) {
    EntretienDEssai essai(600);
    ASSERT_TRUE(essai.ouvrir());
    const auto presser = [&](Qt::Key touche) { QTest::keyClick(essai.touches(), touche); };
    presser(Qt::Key_Space);
    EXPECT_FALSE(essai.plateforme.media.enLecture());
    presser(Qt::Key_Right);
    EXPECT_EQ(essai.session.audio.DebutZoom, 3);
    EXPECT_TRUE(essai.plateforme.media.enLecture()); // on release
    presser(Qt::Key_Plus);
    EXPECT_EQ(essai.session.audio.FacteurZoom, 20);
    presser(Qt::Key_Minus);
    EXPECT_EQ(essai.session.audio.FacteurZoom, 10);
}

TEST(FrmVisu, DraggingOnTheZoomMarksAnExtract) {
    EntretienDEssai essai(60);
    essai.transcrire({{20, 30}, {40, 45}});
    ASSERT_TRUE(essai.ouvrir());
    essai.glisser("Pict_zoom", essai.ici(5), essai.ici(10));
    EXPECT_NEAR(essai.session.transcription.SaisieDebut, 5, PIXEL);
    EXPECT_NEAR(essai.session.transcription.SaisieDuree, 5, 2 * PIXEL);
    EXPECT_EQ(essai.fenetres.journal(), std::vector<std::string>{"PreparerSaisie"});
    essai.glisser("Pict_zoom", essai.ici(15), essai.ici(25)); // its end is pulled back
    EXPECT_EQ(essai.session.transcription.SaisieFin, 20);

    essai.fenetres.effacerJournal();
    essai.plateforme.dialogues.repondre(Reponse::Ok, "Un extrait ne peut pas en englober un autre!");
    essai.glisser("Pict_zoom", essai.ici(35), essai.ici(50));
    EXPECT_TRUE(essai.fenetres.journal().empty());
}

TEST(FrmVisu, ShortAndBackwardDragsSeekAndPan) {
    EntretienDEssai essai(600);
    ASSERT_TRUE(essai.ouvrir());
    essai.plateforme.media.currentPosition(0);
    essai.glisser("Pict_zoom", essai.ici(30), essai.ici(30) + QPoint(1, 0)); // 15 twips
    EXPECT_NEAR(essai.plateforme.media.currentPosition(), 30, 2 * PIXEL);
    const QPoint vers = essai.ici(10);
    essai.glisser("Pict_zoom", essai.ici(40), vers);
    EXPECT_NEAR(essai.session.audio.DebutZoom, 30, 2 * PIXEL);
    EXPECT_NEAR(essai.plateforme.media.currentPosition(), 40, 2 * PIXEL);
    EXPECT_TRUE(essai.fenetres.journal().empty());
}

TEST(FrmVisu, TheOverviewChoosesTheSpan) {
    EntretienDEssai essai(600);
    ASSERT_TRUE(essai.ouvrir());
    const double largeur = essai.toile("Picture1").width();
    const auto pixel = [&](double t) { return QPoint(qRound(t / 600 * largeur), 90); };
    essai.glisser("Picture1", pixel(100), pixel(140));
    EXPECT_EQ(essai.session.audio.DebutZoom, 90);
    EXPECT_NEAR(essai.session.audio.FinZoom, 140, 0.4);
    EXPECT_EQ(essai.plateforme.media.currentPosition(), 90);
}

TEST(FrmVisu, AHandleMovesABoundAndALaterEndIsTyped) {
    EntretienDEssai essai(60);
    essai.transcrire({{10, 20}, {30, 40}});
    ASSERT_TRUE(essai.ouvrir());
    const auto tirer = [&](int membre, double vers) {
        const Rectangle poignee = element(essai.toile("Pict_zoom"), Controle::ImgBulleInt, membre)->cadre;
        essai.glisser("Pict_zoom", QPoint(qRound(poignee.gauche / 15) + 2, 450), essai.ici(vers));
    };
    tirer(1, 5);
    EXPECT_NEAR(secondesDebut(essai.session, 1), 5, 2 * PIXEL);
    EXPECT_TRUE(essai.fenetres.journal().empty());
    tirer(2, 35); // into the second: pulled back, and longer than before
    EXPECT_EQ(secondesFin(essai.session, 1), 30);
    EXPECT_EQ(essai.fenetres.journal(), std::vector<std::string>{"OuvrirExtrait 1"});
    EXPECT_NE(lireFichier(essai.plateforme.dossier.chemin("entretien1.Rtr")).find("30.00"),
              std::string::npos);

    essai.plateforme.dialogues.repondre(Reponse::Ok, "Un extrait ne peut pas en englober un autre!");
    tirer(2, 50);
    EXPECT_NEAR(secondesFin(essai.session, 1), 50, 2 * PIXEL); // stays in the arrays
    EXPECT_EQ(lireFichier(essai.plateforme.dossier.chemin("entretien1.Rtr")).find("50."), std::string::npos);
}

TEST(FrmVisu, TellsTheExtractUnderTheMouseAndOpensIt) {
    EntretienDEssai essai(60);
    essai.transcrire({{10, 20}, {30, 40}}, "Premier\r\nsecond");
    ASSERT_TRUE(essai.ouvrir());
    Toile& vue = essai.toile("Picture1");
    const QPoint barre(qRound(35.0 / 60 * vue.width()), 10);
    essai.survoler("Picture1", barre);
    EXPECT_EQ(essai.texte("LblXtrBulle"), "Premier\nsecond\n");
    QTest::mouseClick(&vue, Qt::LeftButton, {}, barre);
    EXPECT_EQ(essai.session.audio.DebutZoom, 25);
    EXPECT_EQ(essai.plateforme.media.currentPosition(), 30);
    QTest::mouseDClick(&vue, Qt::LeftButton, {}, barre);
    EXPECT_EQ(essai.fenetres.journal().back(), "OuvrirExtrait 2");
}
