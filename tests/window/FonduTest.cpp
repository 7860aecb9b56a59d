#include "window/Fondu.h"

#include <gtest/gtest.h>
#include <vector>

using namespace vermo;

namespace {

/// Opacities until the timer is done; -1 when the window goes with it.
std::vector<int> jouer(const Fondu& fondu, float compteur) {
    for (std::vector<int> alphas;;) {
        const PasFondu pas = avancer(fondu, compteur);
        if (pas.alpha) alphas.push_back(*pas.alpha);
        if (pas.decharger) alphas.push_back(-1);
        if (pas.arreter || alphas.size() > 99) return alphas;
    }
}

} // namespace

TEST(Fade, OpensInItsTicksAndClosesFromItsOwnBase) {
    const Fondu visu{.base = 10000}, infos{.base = 3000}, saisie{.pas = 50};
    EXPECT_EQ(jouer(saisie, -50), (std::vector{0, 50, 100, 150, 200, 250}));
    EXPECT_EQ(jouer(visu, 7).size(), 24U);
    EXPECT_EQ(jouer(visu, 7).back(), 247);
    EXPECT_EQ(jouer(visu, 240), std::vector{250});
    EXPECT_TRUE(jouer(visu, 3000).empty()); // another window's closing
    for (const Fondu& fondu : {visu, infos}) {
        const std::vector<int> alphas = jouer(fondu, fondu.base);
        ASSERT_EQ(alphas.size(), 24U);
        EXPECT_EQ(alphas.front(), 230);
        EXPECT_EQ(alphas[22], 10);
        EXPECT_EQ(alphas.back(), -1);
    }
    float milieu = 3110;
    EXPECT_EQ(avancer(infos, milieu).reste, 0.5F);
}
