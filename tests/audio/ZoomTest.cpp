#include "audio/Zoom.h"

#include <gtest/gtest.h>

using namespace vermo;

namespace {

EtatAudio ouvert(double duree) {
    EtatAudio audio;
    ouvrirZoom(audio, duree);
    return audio;
}

EtatAudio place(double duree, double debut, double fin) {
    EtatAudio audio = ouvert(duree);
    audio.DebutZoom = debut;
    audio.FinZoom = fin;
    audio.DureeZoom = fin - debut;
    audio.FacteurZoom = static_cast<float>(duree / audio.DureeZoom);
    return audio;
}

} // namespace

TEST(Zoom, OpensOnAboutAMinute) {
    const std::pair<double, float> cas[] = {{59, 1}, {59.4, 1}, {125, 2}, {3600, 60}, {0.5, 1}};
    for (const auto& [duree, facteur] : cas) {
        const EtatAudio audio = ouvert(duree);
        EXPECT_EQ(audio.FacteurZoom, facteur) << duree;
        EXPECT_DOUBLE_EQ(audio.FinZoom, duree / facteur);
    }
}

TEST(Zoom, DoublesAndHalvesWithinItsBounds) {
    EtatAudio audio = ouvert(10000);
    audio.DebutZoom = 50;
    audio.FacteurZoom = 256;
    EXPECT_TRUE(zoomer(audio));
    EXPECT_EQ(audio.FacteurZoom, 512);
    EXPECT_DOUBLE_EQ(audio.FinZoom, 50 + 10000.0 / 512);
    EXPECT_FALSE(zoomer(audio));
    audio.FacteurZoom = 1.5F;
    EXPECT_TRUE(dezoomer(audio));
    EXPECT_EQ(audio.FacteurZoom, 0.75F);
    EXPECT_FALSE(dezoomer(audio));
}

TEST(Zoom, MovesByATwentieth) {
    EtatAudio audio = place(100, 1, 41);
    reculerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 0);
    EXPECT_EQ(audio.FinZoom, 40);
    audio = place(100, 97, 137);
    avancerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 99); // beyond the last whole span, within the recording
    avancerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 60);
    EXPECT_EQ(audio.FinZoom, 100);
    tournerPage(audio, 80);
    EXPECT_EQ(audio.DebutZoom, 80);
}

TEST(Zoom, TheOverviewLandsOnAGridOf15Seconds) {
    EtatAudio audio = place(100, 10, 30);
    EXPECT_EQ(choisirSurVue(audio, 3700, 3700, 10000), 30); // 37 s
    EXPECT_EQ(audio.DebutZoom, 30);
    EXPECT_EQ(audio.FinZoom, 50);
    EXPECT_EQ(audio.EchelleVue, 100);
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

TEST(Zoom, AnExtractIsShownWithItsSurroundings) {
    EtatAudio audio = ouvert(100);
    zoomerSurExtrait(audio, 3, 20);
    EXPECT_EQ(audio.DebutZoom, 0);
    EXPECT_EQ(audio.FinZoom, 25);
    zoomerSurExtrait(audio, 80, 98);
    EXPECT_EQ(audio.DebutZoom, 75);
    EXPECT_EQ(audio.FinZoom, 100);
    EXPECT_EQ(audio.FacteurZoom, 4);
}

TEST(Zoom, DragsPanAndScroll) {
    EtatAudio audio = place(100, 10, 30);
    deplacerEmpan(audio, 800, 300, 1000);
    EXPECT_EQ(audio.DebutZoom, 20);
    deplacerEmpan(audio, 300, 800, 200);
    EXPECT_EQ(audio.DebutZoom, 0);

    Twips glisse = 500;
    EXPECT_TRUE(defilerSelection(audio, glisse, 1000));
    EXPECT_EQ(audio.DebutZoom, 1);
    EXPECT_EQ(glisse, 450); // still 10 s
    EXPECT_EQ(tempsZoom(audio, glisse, 1000), 10);
    audio = place(100, 99.5, 119.5);
    EXPECT_FALSE(defilerSelection(audio, glisse, 1000));
    EXPECT_EQ(glisse, 450);
}

TEST(Zoom, PositionsAndTimesAreInverse) {
    const EtatAudio audio = place(200, 50, 75);
    EXPECT_EQ(xVue(audio, 50, 3000), 750);
    EXPECT_EQ(tempsVue(audio, 750, 3000), 50);
    EXPECT_EQ(xZoom(audio, 60, 3000), 1200);
    EXPECT_EQ(tempsZoom(audio, 1200, 3000), 60);
    EXPECT_EQ(cadreShpVisu(audio, 3000), (Rectangle{750, 0, 375, 0}));
}
