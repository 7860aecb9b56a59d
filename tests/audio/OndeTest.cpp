#include "audio/Onde.h"

#include "audio/OndeDEssai.h"
#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

TEST(Wave, TheProbeTellsOfWhatItCannotOpen) {
    const DossierTemporaire dossier;
    DialoguesScriptees dialogues;
    const std::string octets = wav(2, 16, std::string(8, '\0'));
    for (const char* nom : {"a.wav", "b.Wav", "c.WAV"})
        EXPECT_EQ(LireEnteteWav(dossier.ecrire(nom, octets), dialogues).NbCanaux, 2) << nom;
    dialogues.repondre(Reponse::Ok, "ne peut être ouvert (Format non traité ou fichier inexistant).")
        .repondre(Reponse::Ok);
    EXPECT_EQ(LireEnteteWav(dossier.ecrire("x.mp3", octets), dialogues), EnTeteWav());
    EXPECT_EQ(LireEnteteWav(dossier.chemin("absent.wav"), dialogues), EnTeteWav());
}

TEST(Wave, TheDataTagIsFoundInTheFirst255BytesOnly) {
    const DossierTemporaire dossier;
    const auto lieu = [&](const std::string& octets) {
        return localiserDonnees(FichierOnde(dossier.ecrire("a.wav", octets)));
    };
    const std::string sons(100, 'x');
    EXPECT_EQ(lieu(wav(1, 8, sons)), (LieuDonnees{100, 41}));
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(215, 'z'))), (LieuDonnees{100, 256})); // tag at 252 to 255
    EXPECT_EQ(lieu(wav(1, 8, sons, std::string(216, 'z'))).PosDonnees, 4);
    EXPECT_EQ(lieu(""), (LieuDonnees{0, 4}));
}

TEST(Wave, WhatCantBeDrawnFromItsBytesIsToldApart) {
    const DossierTemporaire dossier;
    const std::string bon = wav(2, 16, std::string(400, '\0'));
    const auto avec = [&](std::size_t place, const std::string& octets) {
        return std::string(bon).replace(place, octets.size(), octets);
    };
    const std::string extensible = avec(20, "\xFE\xFF").insert(36, std::string(24, '\0'));
    const std::pair<std::string, std::string> cas[] = {
        {bon, ""},
        {wav(1, 8, "x"), ""},
        {bon + "LIST", ""},
        {bon.substr(0, bon.size() - 44), ""},
        {std::string(extensible).replace(44, 1, "\x01"), ""},
        {"", "pas un fichier WAV"},
        {avec(0, "ID3"), "pas un fichier WAV"},
        {avec(12, "LIST"), "« fmt »"},
        {avec(20, std::string("\x55\0", 2)), "(format 85)"},
        {extensible, "(format 65534)"},
        {wav(1, 24, std::string(400, '\0')), "24 bits"},
        {avec(22, std::string(2, '\0')), "aucun canal"},
        {wav(1, 8, "sons", std::string(216, 'z')), "255 premiers octets"},
        {bon.substr(0, bon.size() - 45), "la taille qu'il annonce"},
        {avec(40, std::string(4, '\0')), "la taille qu'il annonce"},
        {avec(40, "\xFF\xFF\xFF\xFF"), "la taille qu'il annonce"}};
    for (const auto& [octets, cause] : cas) {
        const Utf8 refus = refusOnde(FichierOnde(dossier.ecrire("a.wav", octets)));
        EXPECT_NE(refus.find(cause), std::string::npos) << cause << " in: " << refus;
        EXPECT_EQ(refus.empty(), cause.empty()) << refus;
    }
}

/// Points of one channel or two, whatever the step and wherever the reading's blocks of 4,096 bytes end: each
/// is the sample at its place. The last of each channel is never read.
TEST(Wave, EveryPointIsTheSampleAtItsPlace) {
    const DossierTemporaire dossier;
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

TEST(Wave, PointsBehindTheEndKeepTheirValue) {
    const DossierTemporaire dossier;
    const std::string octets = wav(2, 16, echantillons(40, 16, [](int i) { return 100 * i; }));
    const Utf8 coupe = dossier.ecrire("coupe.wav", octets.substr(0, octets.size() - 46));
    PointsOnde points;
    points.points.assign(20, 7);
    lirePoints(FichierOnde(coupe), avecDefauts(sonderEnteteWav(coupe)), {}, 10, points);
    EXPECT_EQ(points.points[4], 1600);
    EXPECT_EQ(points.points[5], 7);
    EXPECT_EQ(points.points[14], 7); // its first byte alone is there
}
