#include "audio/Vues.h"

#include "support/DossierTemporaire.h"
#include "textfile/fichier.h"

#include <gtest/gtest.h>

using namespace vermo;

TEST(OverviewPicture, TheOneThatWasKeptDecidesAndIsMadeOnce) {
    EXPECT_EQ(sourceVue("/a/b.wav", true), SourceVue::Cache);
    EXPECT_EQ(sourceVue("/a/b.WAV", false), SourceVue::Onde);
    EXPECT_EQ(sourceVue("/a/b.Mp3", true), SourceVue::Cache);
    EXPECT_EQ(sourceVue("/a/b.Mp3", false), SourceVue::Regle);
    EXPECT_EQ(etiquetteRegle("entretien.Mp3"), "Mp3");
    EXPECT_EQ(etiquetteRegle("a3"), "a3");

    essai::DossierTemporaire dossier;
    dossier.ecrire("b.wav", "son");
    const Utf8 cache = cheminCache(dossier.chemin("b.wav"));
    EXPECT_EQ(cache, dossier.chemin("b.Bmp"));
    const Bitmap8 image = fondUni(300, 150, 1.0 / 15, BLANC);
    garderCache(cache, image);
    EXPECT_EQ(lireFichier(cache), ecrireBmp(image));
    garderCache(cache, fondUni(300, 150, 1.0 / 15, 0));
    EXPECT_EQ(lireFichier(cache), ecrireBmp(image));
}

TEST(OverviewPicture, TheZoomReadsTheSpanOfItsState) {
    EtatAudio audio;
    audio.DureeFichier = 200, audio.DebutZoom = 50, audio.FacteurZoom = 8;
    const DemandeOnde zoom = demandeZoom(audio, "/a/b.wav", 3000, 1500, 0.1);
    EXPECT_EQ(zoom.empan.debut, 0.25);
    EXPECT_EQ(zoom.empan.part, 0.125);
    EXPECT_EQ(zoom.vue, Vue::Pict_zoom);
    EXPECT_EQ(demandeVue("/a/b.wav", 3000, 0.1).empan.part, 1);
}
