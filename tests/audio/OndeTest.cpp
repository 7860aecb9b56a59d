#include "audio/Onde.h"
#include "audio/ImageOnde.h"

#include "audio/OndeDEssai.h"
#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"

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

struct Wave : testing::Test {
    DossierTemporaire dossier;
    LieuDonnees lieu(const std::string& octets) const {
        return localiserDonnees(FichierOnde(dossier.ecrire("a.wav", octets)));
    }
};

} // namespace

TEST_F(Wave, TheProbeTellsOfWhatItCannotOpen) {
    DialoguesScriptees dialogues;
    const std::string octets = wav(2, 16, std::string(8, '\0'));
    for (const char* nom : {"a.wav", "b.Wav", "c.WAV"})
        EXPECT_EQ(LireEnteteWav(dossier.ecrire(nom, octets), dialogues).NbCanaux, 2) << nom;
    for (const Utf8& chemin : {dossier.ecrire("x.mp3", octets), dossier.chemin("absent.wav")}) {
        dialogues.repondre(Reponse::Ok, "ne peut être ouvert (Format non traité ou fichier inexistant).");
        EXPECT_EQ(LireEnteteWav(chemin, dialogues), EnTeteWav());
    }
}

TEST_F(Wave, TheDataTagIsFoundInTheFirst255BytesOnly) {
    const std::string sons(100, 'x');
    EXPECT_EQ(lieu(wav(1, 8, sons)), (LieuDonnees{100, 41}));
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(215, 'z'))), (LieuDonnees{100, 256})); // tag at 252 to 255
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(216, 'z'))).PosDonnees, 4);
    EXPECT_EQ(lieu(""), (LieuDonnees{0, 4}));
}

TEST_F(Wave, WhatCantBeDrawnFromItsBytesIsToldApart) {
    const std::string bon = wav(2, 16, std::string(400, '\0'));
    const auto avec = [&](std::size_t place, const std::string& octets) {
        return std::string(bon).replace(place, octets.size(), octets);
    };
    const std::string extensible = avec(20, "\xFE\xFF").insert(36, std::string(24, '\0'));
    const std::pair<std::string, std::string> cas[] = {
        {bon + "LIST", ""},
        {bon.substr(0, bon.size() - 44), ""},
        {std::string(extensible).replace(44, 1, "\x01"), ""},
        {"", "pas un fichier WAV"},
        {avec(12, "LIST"), "« fmt »"},
        {avec(20, "\x55"), "(format 85)"},
        {extensible, "(format 65534)"},
        {wav(1, 24, "sons"), "24 bits"},
        {avec(22, std::string(1, '\0')), "aucun canal"},
        {wav(1, 8, "sons", std::string(216, 'z')), "255 premiers octets"},
        {bon.substr(0, bon.size() - 45), "la taille qu'il annonce"},
        {avec(40, std::string(4, '\0')), "la taille qu'il annonce"},
        {avec(40, "\xFF\xFF\xFF\xFF"), "la taille qu'il annonce"}};
    for (const auto& [octets, cause] : cas) {
        const Utf8 refus = refusOnde(FichierOnde(dossier.ecrire("a.wav", octets)));
        EXPECT_TRUE(cause.empty() ? refus.empty() : refus.find(cause) != Utf8::npos)
            << cause << ": " << refus;
    }
}

/// Points of one channel or two, whatever the step and wherever the reading's blocks of 4,096 bytes end: each
/// is the sample at its place. The last of each channel is never read.
TEST_F(Wave, EveryPointIsTheSampleAtItsPlace) {
    constexpr long largeur = 700;
    constexpr std::int16_t absent = -1;
    const struct {
        int canaux, bits, pas;
    } cas[] = {{1, 8, 1},  {1, 8, 13},  {2, 8, 6},    {1, 16, 2},  {1, 16, 14},
               {2, 16, 4}, {2, 16, 20}, {1, 16, 512}, {1, 16, 514}};
    for (const auto& [canaux, bits, pas] : cas) {
        const int nombre = static_cast<int>(largeur) * pas / (bits / 8);
        const auto son = [](std::size_t i) { return static_cast<std::int16_t>(i * 31 % 32749); };
        const Utf8 chemin = dossier.ecrire("a.wav", wav(canaux, bits, echantillons(nombre, bits, son)));
        PointsOnde points;
        points.points.assign(2 * largeur, absent);
        points.octets.assign(2 * largeur, 0);
        lirePoints(FichierOnde(chemin), avecDefauts(sonderEnteteWav(chemin)), {}, largeur, points);
        for (std::size_t i = 0; i < 2 * largeur; ++i) {
            const std::size_t colonne = i % largeur;
            const bool lu = colonne != largeur - 1;
            const std::size_t place = colonne * std::size_t(pas) / std::size_t(bits / 8) + i / largeur;
            const int attendu = bits == 16 ? (lu ? son(place) : absent) : lu ? son(place) & 255 : 0;
            ASSERT_EQ(bits == 16 ? points.points[i] : points.octets[i], attendu)
                << canaux << " x " << bits << ", step " << pas << ", point " << i;
        }
    }
}

TEST_F(Wave, PointsBehindTheEndKeepTheirValue) {
    const std::string octets = wav(2, 16, echantillons(40, 16, [](int i) { return 100 * i; }));
    const Utf8 coupe = dossier.ecrire("coupe.wav", octets.substr(0, octets.size() - 46));
    PointsOnde points;
    points.points.assign(20, 7);
    lirePoints(FichierOnde(coupe), avecDefauts(sonderEnteteWav(coupe)), {}, 10, points);
    const auto& lus = points.points;
    EXPECT_EQ((std::vector{lus[4], lus[5], lus[14]}), (std::vector<std::int16_t>{1600, 7, 7}))
        << "of the last the first byte alone is there";
}

/// Two levels, left and right in stereo and one after the other in mono, in pictures of one pixel a twip.
TEST_F(Wave, LevelsStandAtTheirRowsOfThePicture) {
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
        dessinerOnde(image, 0, {c.vue, chemin, {}, 1500, c.hauteur, 1500, 1}, points);
        EXPECT_EQ(noirs(image, 300), c.aGauche) << c.canaux << " x " << c.bits << ", " << c.un;
        EXPECT_EQ(noirs(image, 1200), c.aDroite) << c.canaux << " x " << c.bits << ", " << c.deux;
    }
    EXPECT_THROW(calculerEchelles({}, 1), FauteExecution) << "no division by zero";
}

TEST(WavePicture, TheGroundOfTheZoomBrightensToItsMiddle) {
    const Bitmap8 fond = fondZoom(10, 250, 1);
    const std::pair<int, int> rangees[] = {{0, 1},    {1, 2},    {2, 3},   {124, 64},
                                           {125, 64}, {126, 64}, {248, 3}, {249, 2}};
    for (const auto& [y, teinte] : rangees)
        EXPECT_EQ(fond.pixel(9, y), teinte) << y;
    EXPECT_EQ(fond.palette().size(), 202U);
    EXPECT_EQ(fond.palette()[64], rvb(88, 87, 88));
    EXPECT_EQ(fondZoom(10, 100, 1).pixel(0, 50), 52) << "a row a shade at least";
}
