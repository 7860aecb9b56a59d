#include "audio/Suivi.h"

#include "support/LecteurSimule.h"

#include <gtest/gtest.h>

using namespace vermo;

TEST(Following, FollowsThePositionAndTheMark) {
    EtatAudio audio{.DureeFichier = 200, .DebutZoom = 50, .FinZoom = 70, .DureeZoom = 20, .EnteteWav = {}};
    const SuiviLecture suivi = suivreLecture(audio, 60.4, 4000, 2000);
    EXPECT_EQ(suivi.LblCompteur, "01:00");
    EXPECT_NEAR(suivi.largeurCurseurZoom, 10.4 / 20 * 2120, 1e-6);
    EXPECT_NEAR(suivi.gaucheCurseur, 1208 + 30, 1e-6);
    EXPECT_EQ(suivi.Reprise, 60);
    EXPECT_FALSE(suivi.TotalSelect);
    EXPECT_FALSE(suivreLecture(audio, 68.867, 4000, 2000).pageFinie); // 20 x 2000 / 2120
    EXPECT_TRUE(suivreLecture(audio, 68.868, 4000, 2000).pageFinie);
    audio.MarqueDebut = 55;
    const SuiviLecture marquee = suivreLecture(audio, 60, 4000, 2000);
    EXPECT_EQ(marquee.TotalSelect, (Etendue{1100, 100}));
    EXPECT_EQ(marquee.ZoomSelect, (Etendue{500, 1060 - 500}));
}

TEST(Following, TheSoundFadesFromTheVolumeThatWasSet) {
    EXPECT_EQ(volumeFondu(0.8F, 80), std::nullopt);
    EXPECT_EQ(volumeFondu(0.5F, 80), 50);
    EXPECT_EQ(volumeFondu(0.5F, 0), std::nullopt); // not known yet
}

TEST(Following, TheVolumeIsLearntOnceAndThenGiven) {
    EtatAudio audio;
    essai::LecteurSimule media;
    media.volume(70);
    suivreVolume(audio, media);
    EXPECT_EQ(audio.VolumeLecture, 70);
    media.volume(10); // a fade has left it low
    suivreVolume(audio, media);
    EXPECT_EQ(media.volume(), 70);
}
