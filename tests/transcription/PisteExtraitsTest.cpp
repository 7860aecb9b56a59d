#include "transcription/PisteExtraits.h"

#include "support/MetriquesFixes.h"
#include "transcription/Entretien.h"
#include "transcription/Marquage.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

using C = Controle;

/// An interview of 100 s that shows `debut` to `fin`, its extracts those of `rtr`.
struct Vue : EntretienOuvert {
    Vue(double debut, double fin, const std::string& rtr) : EntretienOuvert("100\r\n" + rtr) {
        thematiques({"001", "002", "003"});
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
    EXPECT_EQ(decrire(piste), R"(ShpXtr[1] 1500,60 3000x210 tag=1 fond=020000 bord=787878
ShpXtrInt[1] 1515,60 3000x210 tag=1 fond=020000 bord=787878
LblXtr[1] 1500,75 3000x180 tag=1 bulle=002 fond=020000
ShpXtr[2] 7500,60 1500x210 tag=2 fond=030000 bord=787878
ShpXtrInt[2] 7515,60 1500x210 tag=2 fond=030000 bord=787878
LblXtr[2] 7500,75 1500x180 tag=2 bulle=777 fond=636363
)");
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
    EXPECT_EQ(decrire(vue.bulles()), R"(ShpXtrZ[1] 3120,0 2760x6000 tag=2 bord=020000
ShpXtrIntZ[1] 3120,0 2760x6000 tag=2 fond=020000 fusion
ImgBulleBlanche[1] 3000,120 180x180 tag=2 fond=F4F4F6
ImgBulleInt[1] 3000,120 105x5880 tag=2 fond=F4F4F6
ImgBulleBas[1] 3000,4825 180x180 tag=2 fond=F4F4F6
ImgBulleBlanche[2] 3170,120 2640x180 tag=2 fond=F4F4F6
ImgBulleBlanche[3] 3170,299 2640x4525 tag=2 fond=F4F4F6
ImgBulleBas[2] 3170,4825 2640x180 tag=2 fond=F4F4F6
ImgBulleBlanche[4] 5800,120 180x180 tag=2 fond=F4F4F6
ImgBulleInt[2] 5860,120 105x5880 tag=2 fond=F4F4F6
ImgBulleBas[3] 5800,4825 180x180 tag=2 fond=F4F4F6
LblXtrZ[1] 3120,120 2760x4885 tag=2 bulle=002
LbltitreXtrZ[1] 3240,210 2600x255 "Nom 002" tag=2 encre=020000 gras
LbltxtXtrZ[1] 3240,495 2600x4420 tag=2
LblMot[1] 3240,495 300x200 "un " tag=1 encre=202024
LblMot[2] 3570,495 400x200 "deux" tag=1 encre=202024
)");
    EXPECT_EQ(sous(vue.bulles(), 3050, 5500)->controle, C::ImgBulleInt);
    EXPECT_EQ(sous(vue.bulles(), 3500, 600)->controle, C::LbltxtXtrZ);
}

TEST(Bubbles, NarrowOnesAndThoseBeyondTheEdge) {
    Vue vue(10, 20,
            "::12.00::777\r\nmot\r\n::12.10::\r\n::15.00::001\r\nmot encore \r\n::95.00::\r\n"
            "::14.00::000\r\n::19.00::\r\n");
    vue.session.transcription.ExtraitFin[3] = {"fin", vue.session.reglages}; // no number: not shown
    Elements bulles = vue.bulles(9000);
    std::erase_if(bulles, [](const Element& e) {
        return e.controle != C::ImgBulleBas && e.controle != C::LbltitreXtrZ && e.controle != C::LblMot;
    });
    EXPECT_EQ(decrire(bulles), R"(ImgBulleBas[1] 1800,4825 180x180 tag=1 fond=F4F4F6
ImgBulleBas[2] 1970,4825 15x180 tag=1 fond=F4F4F6
ImgBulleBas[3] 1975,4825 180x180 tag=1 fond=F4F4F6
LbltitreXtrZ[1] 2040,210 0x255 "Nom 003" tag=1 encre=030000 gras
ImgBulleBas[4] 4500,4825 180x180 tag=2 fond=F4F4F6
ImgBulleBas[5] 4670,4825 71640x180 tag=2 fond=F4F4F6
ImgBulleBas[6] 76300,4825 180x180 tag=2 fond=F4F4F6
LbltitreXtrZ[2] 4740,210 71600x255 "Nom 001" tag=2 encre=010000 gras
LblMot[1] 4740,495 400x200 "mot " tag=1 encre=202024
LblMot[2] 5170,495 700x200 "encore " tag=1 encre=202024
)");
}

} // namespace
