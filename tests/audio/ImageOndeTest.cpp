#include "audio/ImageOnde.h"

#include "audio/OndeDEssai.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace vermo;
using namespace vermo::essai;

namespace {

EnTeteWav entete(int canaux, int bits) {
    EnTeteWav resultat;
    resultat.NbCanaux = static_cast<std::int16_t>(canaux);
    resultat.BitsParEchantillon = static_cast<std::int16_t>(bits);
    return resultat;
}

/// First and last black row of a column; {-1, -1} when it has none.
std::pair<int, int> noirs(const Bitmap8& image, int x) {
    std::pair<int, int> resultat{-1, -1};
    for (int y = 0; y < image.hauteur(); ++y)
        if (image.pixel(x, y) == 0) resultat = {resultat.first < 0 ? y : resultat.first, y};
    return resultat;
}

DemandeOnde demande(Vue vue, const Utf8& fichier, Twips largeur, Twips hauteur) {
    return {.vue = vue,
            .fichier = fichier,
            .empan = {},
            .largeur = largeur,
            .hauteur = hauteur,
            .hauteurVue = 1500};
}

} // namespace

TEST(ImageOnde, MidLinesAndScales) {
    const Echelles mono = calculerEchelles(entete(1, 16), 1501);
    EXPECT_EQ(mono.MilieuCanal, (std::array<std::int32_t, 2>{750, 750}));
    EXPECT_EQ(mono.AmplitudeMax, 32767);
    const Echelles stereo = calculerEchelles(entete(2, 8), 1503);
    EXPECT_EQ(stereo.MilieuCanal, (std::array<std::int32_t, 2>{375, 1125}));
    EXPECT_DOUBLE_EQ(stereo.Echelle, 127.0 / 375);
    EXPECT_THROW(calculerEchelles(entete(1, 16), 1), FauteExecution);

    EXPECT_EQ(hauteurCibleZoom(entete(2, 16), 8165, 1500), 2721);
    EXPECT_EQ(hauteurCibleZoom(entete(1, 16), 8165, 1500), 1500);
}

TEST(ImageOnde, SamplesBecomeHeights) {
    struct Cas {
        int canaux, bits;
        long hauteur;
        std::vector<int> echantillons;      ///< two rows of 3
        std::vector<std::int16_t> attendus; ///< the last of the last row is no point
    };
    // 16 bits, 1500 high: 32767 / 750 = 43.69, so 44; integer division runs toward zero.
    // 8 bits, 500 high: 127 / 250 = 0.508, a real division; silence is 252 below the doubled mid line.
    for (const Cas& cas : {Cas{1, 16, 1500, {32767, -32768, 43, 9, 9, 9}, {6, 1494}},
                           Cas{2, 16, 1500, {-43, 44, 0, 88, -88, 9}, {375, 375, 375, 1124, 1126}},
                           Cas{1, 8, 500, {128, 0, 255, 9, 9, 9}, {248, 500}},
                           Cas{2, 8, 1000, {128, 255, 0, 128, 1, 9}, {248, -2, 500, 748, 998}}}) {
        PointsOnde points;
        points.allouer(6);
        for (std::size_t i = 0; i < 6; ++i) {
            points.points[i] = static_cast<std::int16_t>(cas.echantillons[i]);
            points.octets[i] = static_cast<std::uint8_t>(cas.echantillons[i]);
        }
        ConvertirPoints(points, entete(cas.canaux, cas.bits),
                        calculerEchelles(entete(cas.canaux, cas.bits), cas.hauteur), 3);
        points.points.resize(cas.attendus.size());
        EXPECT_EQ(points.points, cas.attendus) << cas.canaux << " x " << cas.bits;
    }
    PointsOnde points;
    points.allouer(6);
    EXPECT_THROW(ConvertirPoints(points, entete(1, 16), calculerEchelles(entete(1, 16), 200000), 3),
                 FauteExecution);
    EXPECT_NO_THROW(ConvertirPoints(points, entete(6, 16), calculerEchelles(entete(6, 16), 1500), 3));
}

TEST(ImageOnde, SilenceIsAStraightLine) {
    const DossierTemporaire dossier;
    const Utf8 chemin = dossier.ecrire("a.wav", wav(1, 8, std::string(5000, '\x80')));
    for (const Vue vue : {Vue::Picture1, Vue::Pict_zoom, Vue::Pict_saisie}) {
        Bitmap8 image = fondUni(3000, 1500, 1.0 / 15, BLANC);
        PointsOnde points;
        DessinerOnde(image, 0, demande(vue, chemin, 3000, 1500), points);
        for (int x = 0; x < 199; ++x) {
            EXPECT_NEAR(noirs(image, x).first, 50, 1) << x;
            EXPECT_NEAR(noirs(image, x).second, 50, 1) << x;
        }
    }
}

TEST(ImageOnde, StereoHasTwoTracesInTheOverviewAndOneInTheZoom) {
    const DossierTemporaire dossier;
    const auto sons =
        echantillons(6000, 16, [](int i) { return i % 2 ? 20000 : 0; }); // silence left, level right
    const Utf8 chemin = dossier.ecrire("a.wav", wav(2, 16, sons));
    PointsOnde points;
    Bitmap8 vue = fondUni(1500, 1500, 1.0 / 15, BLANC);
    DessinerOnde(vue, 0, demande(Vue::Picture1, chemin, 1500, 1500), points);
    EXPECT_EQ(noirs(vue, 50), (std::pair{25, 59})); // 375 and 1125 - 20000 / 87
    EXPECT_EQ(vue.pixel(50, 40), 1);
    EXPECT_EQ(vue.pixel(99, 40), 0); // one line joins the rows at the right edge

    points.allouer(0);
    Bitmap8 zoom = fondUni(1500, 6000, 1.0 / 15, BLANC);
    DessinerOnde(zoom, 0, demande(Vue::Pict_zoom, chemin, 1500, 6000), points);
    EXPECT_EQ(noirs(zoom, 50), (std::pair{133, 133})); // 6000 / 3 / 4, brought from 1500 to 6000 high
}

TEST(ImageOnde, APeakFillsItsColumnsAndNothingElse) {
    const DossierTemporaire dossier;
    const auto sons = echantillons(3000, 16, [](int i) { return i == 1507 ? 32767 : 0; });
    const Utf8 chemin = dossier.ecrire("a.wav", wav(1, 16, sons));
    PointsOnde points;
    Bitmap8 image = fondUni(3000, 1500, 2.0 / 15, BLANC); // a dense screen: 400 x 200
    EXPECT_EQ(image.largeur(), 400);
    DemandeOnde dense = demande(Vue::Picture1, chemin, 3000, 1500);
    dense.densite = 2.0 / 15;
    DessinerOnde(image, 0, dense, points);
    std::set<int> hautes;
    for (int x = 0; x < 399; ++x)
        if (noirs(image, x).first < 99) hautes.insert(x);
    EXPECT_EQ(hautes, (std::set{200, 201}));
    EXPECT_LE(std::min(noirs(image, 200).first, noirs(image, 201).first), 1);
}

TEST(ImageOnde, AFaultLeavesTheOldPoints) {
    PointsOnde points;
    points.points = {1, 2, 3};
    Bitmap8 image = fondUni(3000, 1500, 1.0 / 15, BLANC);
    EXPECT_THROW(DessinerOnde(image, 0, demande(Vue::Pict_zoom, "/nulle/part.wav", 3000, 1500), points),
                 FauteExecution);
    EXPECT_EQ(points.points, (std::vector<std::int16_t>{1, 2, 3}));
}

TEST(ImageOnde, TheZoomBackdropLightensTowardTheMiddle) {
    const Bitmap8 image = fondZoom(150, 6000, 1.0 / 15);
    const auto teinte = [&](int y) { return image.palette()[image.pixel(5, y)]; };
    EXPECT_EQ(teinte(0), rvb(26, 25, 26));
    EXPECT_EQ(teinte(199), rvb(88, 87, 88)); // 2999 / 48
    for (int y = 1; y < 199; ++y) {
        EXPECT_GE(teinte(y), teinte(y - 1)) << y;
        EXPECT_GE(teinte(398 - y), teinte(399 - y)) << y;
    }
}

TEST(Bitmap8, TheFileIsAnEightBitBitmapByteForByte) {
    Bitmap8 image(3, 2, {rvb(0, 0, 0), rvb(1, 2, 3)}, 1);
    image.pixel(0, 0, 0);
    const std::string attendu = "BM" + entier(70, 4) + entier(0, 4) + entier(62, 4) + entier(40, 4) +
                                entier(3, 4) + entier(2, 4) + entier(1, 2) + entier(8, 2) + entier(0, 4) +
                                entier(8, 4) + entier(0, 4) + entier(0, 4) + entier(2, 4) + entier(0, 4) +
                                entier(0, 4) + std::string("\3\2\1\0", 4) + std::string("\1\1\1\0", 4) +
                                std::string("\0\1\1\0", 4);
    EXPECT_EQ(ecrireBmp(image), attendu);
    EXPECT_THROW(Bitmap8(0, 2, {0}, 0), FauteExecution);
    EXPECT_THROW(Bitmap8(40000, 2, {0}, 0), FauteExecution);
}
