#include "window/Rangs.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(Rangs, FindsTheRowThatHoldsAPlaceAndWhatAPageShows) {
    const Rangs inegaux({100, 50, 0, 200}, 30);
    const std::pair<Twips, int> places[] = {{0, 0},   {29, 0},  {30, 1},  {129, 1}, {130, 2},
                                            {179, 2}, {180, 4}, {379, 4}, {380, 5}};
    for (const auto& [place, rang] : places)
        EXPECT_EQ(inegaux.a(place), rang) << place << ": a row without height holds nothing";
    const auto entre = inegaux.entre(-50, 130);
    EXPECT_EQ(std::pair(entre.premier, entre.dernier), std::pair(1, 2));
    const auto aucune = inegaux.entre(1000, 2000);
    EXPECT_GT(aucune.premier, aucune.dernier);

    const Rangs egaux = Rangs::egaux(100, 40, 20);
    const std::tuple<int, int, Twips, int> pages[] = {{1, 1, 400, 9},    {50, -1, 400, 9}, {50, 1, 439, 9},
                                                      {50, -1, 440, 10}, {5, 1, 30, 1},    {5, -1, 30, 1}};
    for (const auto& [rang, sens, longueur, pas] : pages)
        EXPECT_EQ(egaux.page(rang, longueur, sens), pas) << rang << " " << longueur;
    EXPECT_EQ(Rangs().a(10), 0);
}

} // namespace
} // namespace vermo
