#include "transcription/PisteExtraits.h"

#include "support/Fiches.h"
#include "support/MetriquesFixes.h"
#include "transcription/Entretien.h"
#include "transcription/Marquage.h"

using namespace vermo;
using namespace vermo::essai;

namespace {

/// An interview of 100 s that shows `debut` to `fin`, its extracts those of `rtr`.
struct Vue : EntretienOuvert {
    Vue(double debut, double fin, const std::string& rtr) : EntretienOuvert("100\r\n" + rtr) {
        session.audio.DureeFichier = 100;
        session.audio.DebutZoom = debut;
        session.audio.FinZoom = fin;
        session.audio.DureeZoom = fin - debut;
    }
    Elements bulles(Twips largeur = 15000) const {
        return disposerBulles(session, largeur, 6000, metriquesFixes);
    }
};

TEST(ExtractTrack, BarsStandWhereTheirTimesDoInTheirColours) {
    Vue vue(0, 100, "::10.00::002\r\n::30.00::\r\n::60.00::777\r\n::50.00::\r\n");
    redresserBornes(vue.session);
    const Elements piste = disposerPiste(vue.session, 15000);
    comparerFiche("piste-extraits", decrire(piste));
    EXPECT_EQ(secondesDebut(vue.session, 2), 50);
    EXPECT_EQ(secondesFin(vue.session, 2), 60);
    EXPECT_EQ(sous(piste, 1600, 100)->index, 1);
    vue.session.audio.DureeFichier = 0;
    EXPECT_TRUE(disposerPiste(vue.session, 15000).empty());
}

TEST(Bubbles, ShowWhatTheSpanReallyTouches) {
    const std::tuple<double, double, bool> cas[] = {
        {10, 20, false}, {5, 10, false}, {20, 25, false}, {5, 10.01, true}, {19.99, 25, true}, {9, 21, true},
        {10, 19, true},  {9, 20, false}, {12, 13, true},  {30, 40, false},  {15, 1e300, true}};
    for (const auto& [debut, fin, vu] : cas) {
        Vue vue(10, 20, "::1.00::000\r\n::2.00::\r\n");
        vue.session.transcription.ExtraitDebut[1] = debut;
        vue.session.transcription.ExtraitFin[1] = fin;
        EXPECT_EQ(!vue.bulles(9000).empty(), vu) << debut << " " << fin;
    }
}

TEST(Bubbles, HoldTheirTitleAndTheirWords) {
    const Vue vue(10, 60, "::5.00::001\r\n::6.00::\r\n::20.00::002\r\nun deux\r\n::30.00::\r\n");
    comparerFiche("bulles", decrire(vue.bulles()));
    EXPECT_EQ(sous(vue.bulles(), 3050, 5500)->controle, Controle::ImgBulleInt);
    EXPECT_EQ(sous(vue.bulles(), 3500, 600)->controle, Controle::LbltxtXtrZ);
}

TEST(Bubbles, NarrowOnesAndThoseBeyondTheEdge) {
    Vue vue(10, 20,
            "::12.00::777\r\nmot\r\n::12.10::\r\n::15.00::001\r\nmot encore \r\n::95.00::\r\n"
            "::14.00::000\r\n::19.00::\r\n");
    vue.session.transcription.ExtraitFin[3] = {"fin", vue.session.reglages}; // no number: not shown
    comparerFiche("bulles-bord", decrire(vue.bulles(9000)));
}

} // namespace
