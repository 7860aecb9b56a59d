#include "audio_ui/EntretienDEssai.h"
#include "textfile/fichier.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// Ten minutes, the first shown; extracts at 0, 20 and 40 seconds.
std::unique_ptr<EntretienDEssai> ouvert() {
    auto essai = std::make_unique<EntretienDEssai>(600);
    essai->transcrire({{0, 5}, {20, 30}, {40, 45}});
    EXPECT_TRUE(essai->ouvrir());
    essai->faire("position 10; tic Timer1");
    return essai;
}

} // namespace

TEST(FrmVisu, EveryGestureHasItsEffectAndNoOther) {
    couvrir("FrmVisu", FrmVisu::commandes(), jouerTable("audio_ui/entretien.gestes", ouvert));
}

TEST(FrmVisu, WhatIsRefusedLeavesEverything) {
    jouerTable("audio_ui/entretien-refus.gestes", ouvert);
}

TEST(FrmVisu, OpensOnTheFirstMinuteAndKeepsItsPicture) {
    EntretienDEssai essai(610);
    essai.session.corpus.Entretiens[1].Reprise = 42;
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.FacteurZoom, 10);
    EXPECT_EQ(essai.hote.media.currentPosition(), 42);

    const Toile& vue = essai.controle<Toile>("Picture1");
    const QImage image(QString::fromStdString(essai.hote.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(image.size(), vue.size());
    EXPECT_EQ(image.depth(), 8);

    // The cache alone decides: a recording that changed keeps its picture.
    const std::string octets = essai.hote.dossier.lire("entretien1.Bmp");
    essai.hote.dossier.ecrire("entretien1.wav", wav(1, 8, std::string(5000, '\x80')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.hote.dossier.lire("entretien1.Bmp"), octets);
    EXPECT_EQ(essai.controle<Toile>("Picture1").image().convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32));
}

TEST(FrmVisu, ARecordingWithoutSamplesShowsARulerAndIsNeverProbed) {
    EntretienDEssai essai(125, "entretien1.Mp3"); // no question is expected
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.EnteteWav, EnTeteWav());
    const QImage cache(QString::fromStdString(essai.hote.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(cache.depth(), 8);
    const int minute = qRound(60.0 / 125 * cache.width());
    EXPECT_NE(cache.pixel(minute, 40), cache.pixel(minute + 10, 40));
}

TEST(FrmVisu, ARecordingWhoseWaveCantBeDrawnIsShownWithoutOneAndKeepsNoPicture) {
    EntretienDEssai essai(60);
    essai.hote.dossier.ecrire("entretien1.wav", wav(1, 24, std::string(6000, 'x')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_FALSE(essai.hote.dossier.existe("entretien1.Bmp"));
    const QImage vue = essai.controle<Toile>("Picture1").grab().toImage();
    int noirs = 0;
    for (int x = 20; x < 400; ++x)
        noirs += qGray(vue.pixel(x, 30)) < 60; // through the letters of the line that says why
    EXPECT_TRUE(noirs > 20 && noirs < 200) << noirs;
}

TEST(FrmVisu, AnOpeningThatIsGivenUpLeavesTheSession) {
    EntretienDEssai essai(60);
    essai.session.corpus.Entretiens[1].Duree = 0;
    essai.hote.media.lent = true;
    essai.hote.media.URL(essai.chemin);
    essai.hote.progression.patience = 5; // then the person gives up, twice
    essai.hote.dialogues.repondre(Reponse::Oui, "Voulez-vous réessayer?").repondre(Reponse::Non);
    EXPECT_FALSE(essai.ouvrir());
    essai.hote.media.URL("");
    essai.hote.dialogues.repondre(Reponse::Ok, "Le fichier spécifié est introuvable.\n\nVous l'avez");
    EXPECT_FALSE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.DureeFichier, 0);
    EXPECT_FALSE(essai.visu->isVisible());
}
