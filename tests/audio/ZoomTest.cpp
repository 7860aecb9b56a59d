#include "audio/Zoom.h"

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

TEST(ZoomSpan, DoublesAndHalvesWithinItsBounds) {
    EtatAudio audio = place(10000, 50, 50 + 10000.0 / 256);
    EXPECT_TRUE(zoomer(audio));
    EXPECT_EQ(audio.FacteurZoom, 512);
    EXPECT_DOUBLE_EQ(audio.FinZoom, 50 + 10000.0 / 512);
    EXPECT_FALSE(zoomer(audio));
    audio.FacteurZoom = 1.5F;
    EXPECT_TRUE(dezoomer(audio));
    EXPECT_FALSE(dezoomer(audio));
    audio.FacteurZoom = 1;
    EXPECT_FALSE(dezoomer(audio));
}

TEST(ZoomSpan, MovesByATwentieth) {
    EtatAudio audio = place(100, 1, 41);
    reculerEmpan(audio);
    EXPECT_EQ(empan(audio), (std::pair(0.0, 40.0)));
    audio = place(100, 97, 137);
    avancerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 99); // beyond the last whole span, within the recording
    avancerEmpan(audio);
    EXPECT_EQ(empan(audio), (std::pair(60.0, 100.0)));
}

TEST(ZoomSpan, TheOverviewLandsOnAGridOf15Seconds) {
    EtatAudio audio = place(100, 10, 30);
    EXPECT_EQ(choisirSurVue(audio, 3700, 3700, 10000), 30); // 37 s
    EXPECT_EQ(empan(audio), (std::pair(30.0, 50.0)));
    EXPECT_EQ(choisirSurVue(audio, 5000, 4450, 10000), 30); // to the left: a click; 44.5 counts as 44
    EXPECT_EQ(choisirSurVue(audio, 3700, 3729, 10000), 30); // too short for a drag
    EXPECT_EQ(audio.FinZoom, 50);

    EXPECT_EQ(choisirSurVue(audio, 3700, 6250, 10000), 30);
    EXPECT_EQ(audio.FinZoom, 62.5); // where the mouse was, off the grid
    EXPECT_FLOAT_EQ(audio.FacteurZoom, 100 / 32.5F);

    audio = place(100, 10, 30);
    EXPECT_EQ(choisirSurVue(audio, 1455, 1490, 10000), 15); // would end before its start on the grid
    EXPECT_EQ(audio.FinZoom, 35);
}

TEST(ZoomSpan, DragsPanAndScroll) {
    EtatAudio audio = place(100, 10, 30);
    deplacerEmpan(audio, 800, 300, 1000);
    EXPECT_EQ(audio.DebutZoom, 20);
    deplacerEmpan(audio, 300, 800, 200);
    EXPECT_EQ(audio.DebutZoom, 0);

    Twips glisse = 500;
    EXPECT_TRUE(defilerSelection(audio, glisse, 1000));
    EXPECT_EQ(audio.DebutZoom, 1);
    EXPECT_EQ(glisse, 450); // still 10 s
    audio = place(100, 99.5, 119.5);
    EXPECT_FALSE(defilerSelection(audio, glisse, 1000));
    EXPECT_EQ(glisse, 450);
}
