#include "transcription/Marquage.h"

#include "textfile/faute.h"
#include "transcription/Entretien.h"
#include "transcription/Retranscription.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace vermo;

TEST(Marking, ANewSpanMeetsItsNeighbours) {
    const std::vector<Bornes> extraits{{10, 20}, {30, 40}, {35, 50}};
    const struct {
        Bornes voulues;
        Marquage attendu;
    } cas[] = {{{2, 8}, {{2, 8}, false}},     {{2, 15}, {{2, 10}, false}}, // its end pulled back
               {{15, 25}, {{20, 25}, false}},                              // its start pushed on
               {{15, 32}, {{20, 30}, false}},                              // both
               {{2, 25}, {{2, 25}, true}},                                 // encloses
               {{12, 18}, {{12, 18}, true}},                               // lies inside
               {{10, 20}, {{10, 20}, false}},                              // identical spans pass
               {{10, 18}, {{10, 18}, false}},                              // one bound equal matches no test
               {{2, 20}, {{2, 20}, false}},   {{20, 30}, {{20, 30}, false}}, // touching both
               {{37, 60}, {{50, 60}, false}}, // seen by the third as the second left it
               {{25, 38}, {{25, 30}, false}}};
    for (const auto& [voulues, attendu] : cas)
        EXPECT_EQ(bornerNouvelExtrait(voulues, extraits), attendu) << voulues.debut << ".." << voulues.fin;
}

TEST(Marking, AMovedBoundStopsAtTheFirstHit) {
    const std::vector<Bornes> autres{{10, 20}, {18, 40}};
    EXPECT_EQ(bornerExtraitDeplace({5, 12}, autres), (Marquage{{5, 10}, false}));
    EXPECT_EQ(bornerExtraitDeplace({15, 30}, autres), (Marquage{{20, 30}, false})); // the second would refuse
    EXPECT_EQ(bornerExtraitDeplace({5, 30}, autres), (Marquage{{5, 30}, true}));
    EXPECT_EQ(bornerExtraitDeplace({20, 30}, autres), (Marquage{{20, 30}, true}));
}

TEST(Marking, ABoundThatIsMovedStopsAtItsNeighbour) {
    // Under a decimal comma at whole seconds.
    for (const auto& [virgule, fin] : {std::pair('.', 30.6), {',', 30.0}}) {
        std::string octets = "100\r\n::10.60::000\r\n::20.00::\r\n::30.60::000\r\n::40.00::\r\n";
        std::replace(octets.begin(), octets.end(), '.', virgule);
        essai::EntretienOuvert e(octets, {}, virgule);
        EXPECT_EQ(deplacerBorne(e.session, 1, false, 35), (Deplacement{.allonge = true}));
        EXPECT_EQ(bornesExtrait(e.session, 1), (Bornes{10.6, fin}));
        EXPECT_EQ(bornesExtrait(e.session, 2), (Bornes{30.6, 40}));
        EXPECT_THROW(deplacerBorne(e.session, 3, false, 35), FauteExecution);
    }
}
