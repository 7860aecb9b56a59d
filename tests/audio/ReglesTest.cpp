#include "audio/Regles.h"

#include <gtest/gtest.h>

using namespace vermo;

TEST(Rulers, AreNumberedByTheLengthOfTheRecordingAndTheSpan) {
    const std::tuple<Dessin, std::size_t, const char*> cas[] = {
        {dessinerRegleMinutes(59, 25000), 1, "1 "},
        {dessinerRegleMinutes(59.5, 25000), 2, "1 2 "}, // 60 to the even second
        {dessinerRegleMinutes(599, 25000), 10, "1 2 3 4 5 6 7 8 9 10 "},
        {dessinerRegleMinutes(600, 25000), 11, ""},
        {dessinerRegleMinutes(1860, 25000), 32, "10 20 30 "},
        {dessinerRegleMinutes(0, 25000), 0, ""},
        {dessinerRegleMinutes(119, 25000, "Mp3"), 2, "Mp3 Mp3 "},
        {dessinerRegleSecondes(3595, 20, 2000), 21, "1:00:05 1:00:15 "}};
    for (const auto& [dessin, marques, numeros] : cas) {
        std::string textes;
        for (const Inscription& inscription : dessin.inscriptions)
            textes += inscription.texte + " ";
        EXPECT_EQ(dessin.traits.size(), marques) << numeros;
        EXPECT_EQ(textes, numeros);
    }
    for (const auto& [duree, pas] :
         {std::pair(300, 10), {600, 15}, {601, 30}, {2400, 60}, {2401, 120}, {4801, 300}})
        EXPECT_EQ(pasEtiquettes(duree), pas) << duree;
}
