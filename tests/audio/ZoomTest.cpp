#include "audio/Zoom.h"

#include "audio/Suivi.h"
#include "audio/Vues.h"

#include <gtest/gtest.h>

using namespace vermo;

namespace {

EtatAudio place(double duree, double debut, double fin) {
    EtatAudio audio;
    ouvrirZoom(audio, duree);
    audio.DebutZoom = debut, audio.FinZoom = fin, audio.DureeZoom = fin - debut;
    audio.FacteurZoom = static_cast<float>(duree / audio.DureeZoom);
    return audio;
}

std::pair<double, double> empan(const EtatAudio& audio) {
    return {audio.DebutZoom, audio.FinZoom};
}

} // namespace

TEST(ZoomSpan, StopsAtItsBoundsAndAtTheEndsOfTheRecording) {
    EtatAudio audio = place(10000, 50, 50 + 10000.0 / 256);
    EXPECT_TRUE(zoomer(audio));
    EXPECT_DOUBLE_EQ(audio.FinZoom, 50 + 10000.0 / 512);
    EXPECT_FALSE(zoomer(audio));
    audio.FacteurZoom = 1.5F;
    EXPECT_TRUE(dezoomer(audio));
    EXPECT_FALSE(dezoomer(audio));

    audio = place(100, 97, 137);
    avancerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 99); // beyond the last whole span, within the recording
    avancerEmpan(audio);
    EXPECT_EQ(empan(audio), (std::pair(60.0, 100.0)));
}

TEST(ZoomSpan, TheOverviewLandsOnAGridOf15Seconds) {
    const struct {
        Twips presse, relache;
        double lecture, fin;
    } cas[] = {{3700, 3700, 30, 50},
               {5000, 4450, 30, 50},   // to the left: a click; 44.5 counts as 44
               {3700, 3729, 30, 50},   // too short for a drag
               {3700, 6250, 30, 62.5}, // where the mouse was, off the grid
               {1455, 1490, 15, 35}};  // would end before its start on the grid
    for (const auto& c : cas) {
        EtatAudio audio = place(100, 10, 30);
        EXPECT_EQ(choisirSurVue(audio, c.presse, c.relache, 10000), c.lecture) << c.presse;
        EXPECT_EQ(empan(audio), std::pair(c.lecture, c.fin)) << c.presse << ' ' << c.relache;
        EXPECT_FLOAT_EQ(audio.FacteurZoom, static_cast<float>(100 / (c.fin - c.lecture)));
    }
}

TEST(ZoomSpan, ItsPictureReadsIt) {
    const DemandeOnde zoom = demandeZoom(place(200, 50, 75), "/a/b.wav", 3000, 1500, 0.1);
    EXPECT_EQ(zoom.empan.debut, 0.25);
    EXPECT_EQ(zoom.empan.part, 0.125);
}

TEST(Fading, AVolumeThatIsntKnownYetIsLeft) {
    EXPECT_EQ(volumeFondu(0.8F, 80), std::nullopt);
    EXPECT_EQ(volumeFondu(0.5F, 80), 50);
    EXPECT_EQ(volumeFondu(0.5F, 0), std::nullopt);
}
