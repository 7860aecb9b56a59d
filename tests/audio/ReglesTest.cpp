#include "audio/Regles.h"

#include <gtest/gtest.h>

using namespace vermo;

namespace {

std::string textes(const Dessin& dessin) {
    std::string resultat;
    for (const Inscription& inscription : dessin.inscriptions)
        resultat += inscription.texte + " ";
    return resultat;
}

} // namespace

TEST(Rulers, MinutesAreNumberedByTheLengthOfTheRecording) {
    const std::tuple<double, std::size_t, const char*> cas[] = {{59, 1, "1 "},
                                                                {59.5, 2, "1 2 "}, // 60 to the even second
                                                                {599, 10, "1 2 3 4 5 6 7 8 9 10 "},
                                                                {600, 11, ""},
                                                                {1800, 31, ""},
                                                                {1860, 32, "10 20 30 "},
                                                                {0, 0, ""}};
    for (const auto& [duree, marques, numeros] : cas) {
        EXPECT_EQ(dessinerRegleMinutes(duree, 25000).traits.size(), marques) << duree;
        EXPECT_EQ(textes(dessinerRegleMinutes(duree, 25000)), numeros) << duree;
    }
    EXPECT_EQ(textes(dessinerRegleMinutes(119, 25000, "Mp3")), "Mp3 Mp3 ");
    EXPECT_EQ(dessinerRegleMinutes(300, 0), Dessin());
    const Dessin courte = dessinerRegleMinutes(300, 3000);
    EXPECT_EQ(courte.traits[0], (Trait{600, 200, 600, 1140, rvb(64, 64, 64)}));
    EXPECT_EQ(courte.inscriptions[1], (Inscription{1080, -10, "2", rvb(64, 64, 64), 7}));
}

TEST(Rulers, SecondsAreLabelledByTheSpan) {
    const Dessin dessin = dessinerRegleSecondes(3595, 20, 2000);
    EXPECT_EQ(dessin.traits.size(), 21U);
    EXPECT_EQ(dessin.traits[1], (Trait{200, 0, 200, 120, rvb(64, 64, 64)}));
    ASSERT_EQ(textes(dessin), "1:00:05 1:00:15 ");
    EXPECT_EQ(dessin.inscriptions[0], (Inscription{880, 330, "1:00:05", rvb(64, 64, 64), 7}));
    // Marks stand a twip apart at least.
    for (const auto& [duree, marques] : {std::pair(300, 301U), {301, 151}, {600, 201}, {0, 0}})
        EXPECT_EQ(dessinerRegleSecondes(0, duree, 300).traits.size(), marques) << duree;
    EXPECT_EQ(dessinerRegleSecondes(0, 20, 0), Dessin());
    for (const auto& [duree, pas] :
         {std::pair(300, 10), {600, 15}, {601, 30}, {2400, 60}, {2401, 120}, {4801, 300}})
        EXPECT_EQ(pasEtiquettes(duree), pas) << duree;
}
