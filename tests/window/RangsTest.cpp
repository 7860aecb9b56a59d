#include "window/Rangs.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(Rangs, FindsTheRowThatHoldsAPlaceAndWhatAPageShows) {
    const Rangs inegaux({100, 50, 0, 200}, 30);
    struct Cas {
        Twips place;
        int rang;
    };
    for (const Cas& cas :
         {Cas{0, 0}, {29, 0}, {30, 1}, {129, 1}, {130, 2}, {179, 2}, {180, 4}, {379, 4}, {380, 5}})
        EXPECT_EQ(inegaux.a(cas.place), cas.rang) << cas.place << ": a row without height holds nothing";
    EXPECT_EQ(inegaux.fin(4), 380);
    const auto entre = inegaux.entre(-50, 130);
    EXPECT_EQ(std::pair(entre.premier, entre.dernier), std::pair(1, 2));
    const auto aucune = inegaux.entre(1000, 2000);
    EXPECT_GT(aucune.premier, aucune.dernier);

    const Rangs egaux = Rangs::egaux(100, 40, 20);
    EXPECT_EQ(egaux.debut(100), 20 + 99 * 40);
    struct Page {
        int rang, sens;
        Twips longueur;
        int pas;
    };
    for (const Page& page : {Page{1, 1, 400, 9},
                             {50, -1, 400, 9},
                             {50, 1, 439, 9},
                             {50, -1, 440, 10},
                             {5, 1, 30, 1},
                             {5, -1, 30, 1}})
        EXPECT_EQ(egaux.page(page.rang, page.longueur, page.sens), page.pas)
            << page.rang << " " << page.longueur;
    EXPECT_EQ(Rangs().a(10), 0);
    EXPECT_EQ(Rangs().nombre(), 0);
}

} // namespace
} // namespace vermo
