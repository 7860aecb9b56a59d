#include "audio/ImageOnde.h"

#include "audio/OndeDEssai.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>
#include <set>

using namespace vermo;
using namespace vermo::essai;

namespace {

EnTeteWav entete(int canaux, int bits) {
    EnTeteWav resultat;
    resultat.NbCanaux = std::int16_t(canaux), resultat.BitsParEchantillon = std::int16_t(bits);
    return resultat;
}

/// First and last black row of a column; {-1, -1} when it has none.
std::pair<int, int> noirs(const Bitmap8& image, int x) {
    std::pair<int, int> resultat{-1, -1};
    for (int y = 0; y < image.hauteur(); ++y)
        if (image.pixel(x, y) == 0) resultat = {resultat.first < 0 ? y : resultat.first, y};
    return resultat;
}

DemandeOnde demande(Vue vue, const Utf8& fichier, Twips largeur, Twips hauteur, double densite = 1.0 / 15) {
    return {vue, fichier, {}, largeur, hauteur, 1500, densite};
}

} // namespace

TEST(WavePicture, SamplesBecomeHeights) {
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
    EXPECT_THROW(calculerEchelles(entete(1, 16), 1), FauteExecution) << "no division by zero";
}

TEST(WavePicture, StereoHasTwoTracesInTheOverviewAndOneInTheZoom) {
    const DossierTemporaire dossier;
    // Silence left, a level right.
    const auto sons = echantillons(6000, 16, [](int i) { return i % 2 ? 20000 : 0; });
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

TEST(WavePicture, APeakFillsItsColumnsAndNothingElse) {
    const DossierTemporaire dossier;
    const auto sons = echantillons(3000, 16, [](int i) { return i == 1507 ? 32767 : 0; });
    const Utf8 chemin = dossier.ecrire("a.wav", wav(1, 16, sons));
    PointsOnde points;
    Bitmap8 image = fondUni(3000, 1500, 2.0 / 15, BLANC); // a dense screen: 400 x 200
    DessinerOnde(image, 0, demande(Vue::Picture1, chemin, 3000, 1500, 2.0 / 15), points);
    std::set<int> hautes;
    for (int x = 0; x < 399; ++x)
        if (noirs(image, x).first < 99) hautes.insert(x);
    EXPECT_EQ(hautes, (std::set{200, 201}));
}
