#include "audio/Onde.h"

#include "audio/OndeDEssai.h"
#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

TEST(Onde, TheProbeTellsOfWhatItCannotOpen) {
    const DossierTemporaire dossier;
    DialoguesScriptees dialogues;
    const std::string octets = wav(2, 16, std::string(8, '\0'));
    for (const char* nom : {"a.wav", "b.Wav", "c.WAV"})
        EXPECT_EQ(LireEnteteWav(dossier.ecrire(nom, octets), dialogues).NbCanaux, 2) << nom;
    dialogues.repondre(Reponse::Ok).repondre(Reponse::Ok);
    EXPECT_EQ(LireEnteteWav(dossier.ecrire("x.mp3", octets), dialogues), EnTeteWav());
    EXPECT_EQ(LireEnteteWav(dossier.chemin("absent.wav"), dialogues), EnTeteWav());
    EXPECT_EQ(dialogues.dernier(), "|Le fichier spécifié ne peut être ouvert (Format non traité ou fichier "
                                   "inexistant).|Ok|Critique -> Ok");

    EXPECT_EQ(LireEnteteWav(dossier.ecrire("coupe.wav", octets.substr(0, 26)), dialogues).NbCanaux, 2);
}

TEST(Onde, TheDataTagIsFoundInTheFirst255BytesOnly) {
    const DossierTemporaire dossier;
    const auto lieu = [&](const std::string& octets) {
        return localiserDonnees(FichierOnde(dossier.ecrire("a.wav", octets)));
    };
    const std::string sons(100, 'x');
    EXPECT_EQ(lieu(wav(1, 8, sons)), (LieuDonnees{100, 41}));
    EXPECT_EQ(lieu(wav(1, 8, sons, "zz")), (LieuDonnees{100, 43}));
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(215, 'z'))), (LieuDonnees{100, 256})); // tag at 252 to 255
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(216, 'z'))).PosDonnees, 4);
    EXPECT_EQ(lieu(""), (LieuDonnees{0, 4}));
}

TEST(Onde, StepsAndPositionsAreRoundedAndMadeEven) {
    EnTeteWav entete;
    const auto pas = [&](int canaux, int bits, LieuDonnees lieu, Empan empan, long largeur) {
        entete.NbCanaux = std::int16_t(canaux), entete.BitsParEchantillon = std::int16_t(bits);
        return pasDeLecture(lieu, entete, empan, largeur);
    };
    EXPECT_EQ(pas(1, 8, {1000, 41}, {}, 300), (PasLecture{45, 3}));
    EXPECT_EQ(pas(1, 16, {1000, 41}, {}, 300), (PasLecture{45, 4}));
    EXPECT_EQ(pas(2, 16, {1000, 41}, {}, 300), (PasLecture{45, 2}));
    EXPECT_EQ(pas(1, 16, {1000, 42}, {}, 300), (PasLecture{47, 4}));          // 46 is raised
    EXPECT_EQ(pas(1, 8, {1001, 41}, {0.5, 0.25}, 100), (PasLecture{546, 2})); // 545.5 to the even one
    EXPECT_EQ(pas(1, 8, {99, 41}, {}, 100), (PasLecture{45, 0}));
    EXPECT_EQ(pas(1, 16, {2000000000, 41}, {0.999, 0.001}, 100), (PasLecture{1998000045, 20000}));
}

TEST(Onde, PointsAreReadByPositionAndKeepTheirValueBehindTheEnd) {
    const DossierTemporaire dossier;
    const auto seize = echantillons(40, 16, [](int i) { return i % 2 ? -100 * i : 100 * i; });
    const Utf8 chemin = dossier.ecrire("a.wav", wav(2, 16, seize));
    const EnTeteWav entete = avecDefauts(sonderEnteteWav(chemin));
    PointsOnde points;
    points.points.assign(20, 7);
    lirePoints(FichierOnde(chemin), entete, {}, 10, points); // every fourth sample
    for (std::size_t i = 0; i < 20; ++i)                     // the last of each channel is never read
        EXPECT_EQ(points.points[i], i % 10 == 9 ? 7
                                    : i < 10    ? 400 * int(i)
                                                : -100 - 400 * (int(i) - 10))
            << i;

    const std::string octets = wav(2, 16, seize);
    const Utf8 coupe = dossier.ecrire("coupe.wav", octets.substr(0, octets.size() - 46));
    points.points.assign(20, 7);
    lirePoints(FichierOnde(coupe), entete, {}, 10, points);
    EXPECT_EQ(points.points[4], 1600);
    EXPECT_EQ(points.points[5], 7);
    EXPECT_EQ(points.points[14], 7); // its first byte alone is there

    const Utf8 huit = dossier.ecrire("b.wav", wav(1, 8, "abcdefghij"));
    lirePoints(FichierOnde(huit), avecDefauts(sonderEnteteWav(huit)), {0.5, 0.5}, 5, points);
    EXPECT_EQ(std::string(points.octets.begin(), points.octets.begin() + 4), "fghi");
}
