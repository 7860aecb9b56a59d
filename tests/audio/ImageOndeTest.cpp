#include "audio/ImageOnde.h"

#include "audio/OndeDEssai.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// First and last black row of a column; {-1, -1} when it has none.
std::pair<int, int> noirs(const Bitmap8& image, int x) {
    std::pair<int, int> resultat{-1, -1};
    for (int y = 0; y < image.hauteur(); ++y)
        if (image.pixel(x, y) == 0) resultat = {resultat.first < 0 ? y : resultat.first, y};
    return resultat;
}

DemandeOnde demande(Vue vue, const Utf8& fichier, Twips largeur, Twips hauteur, double densite) {
    return {vue, fichier, {}, largeur, hauteur, 1500, densite};
}

} // namespace

/// Two levels, left and right in stereo and one after the other in mono, in pictures of one pixel a twip.
TEST(WavePicture, LevelsStandAtTheirRows) {
    const DossierTemporaire dossier;
    // 16 bits, 1500 high: a level is divided by 43.69, so 44, toward zero. 8 bits: a real division by 0.169.
    const struct {
        int canaux, bits, un, deux;
        Vue vue;
        Twips hauteur;
        std::pair<int, int> aGauche, aDroite; ///< rows of columns 300 and 1200
    } cas[] = {{1, 16, 32767, -32768, Vue::Picture1, 1500, {6, 6}, {1494, 1494}},
               {1, 16, 43, -44, Vue::Picture1, 1500, {750, 750}, {751, 751}},
               {2, 16, 0, 20000, Vue::Picture1, 1500, {375, 896}, {375, 896}},
               {2, 16, 0, 20000, Vue::Pict_zoom, 6000, {2000, 2000}, {2000, 2000}},  // one trace
               {2, 16, 0, 20000, Vue::Pict_zoom, 12000, {6000, 6000}, {6000, 6000}}, // else below the band
               {1, 8, 128, 254, Vue::Picture1, 1500, {744, 744}, {0, 0}},
               {2, 8, 128, 1, Vue::Picture1, 1500, {372, 1497}, {372, 1497}}};
    for (const auto& c : cas) {
        const auto sons = echantillons(
            6000, c.bits, [&](int i) { return (c.canaux == 2 ? i % 2 == 0 : i < 3000) ? c.un : c.deux; });
        const Utf8 chemin = dossier.ecrire("a.wav", wav(c.canaux, c.bits, sons));
        PointsOnde points;
        Bitmap8 image = fondUni(1500, c.hauteur, 1, BLANC);
        dessinerOnde(image, 0, demande(c.vue, chemin, 1500, c.hauteur, 1), points);
        EXPECT_EQ(noirs(image, 300), c.aGauche) << c.canaux << " x " << c.bits << ", " << c.un;
        EXPECT_EQ(noirs(image, 1200), c.aDroite) << c.canaux << " x " << c.bits << ", " << c.deux;
    }
    EXPECT_THROW(calculerEchelles({}, 1), FauteExecution) << "no division by zero";
}
