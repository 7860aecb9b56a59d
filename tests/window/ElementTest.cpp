#include "window/Element.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(Element, DecrireDitTout) {
    Element piste{.controle = Controle::lblpiste, .index = 1, .cadre = {60, 365.5, 300, 210}, .texte = "1"};
    Element barre{.controle = Controle::LblXtr,
                  .index = 2,
                  .cadre = {1.0 / 3, -0.001, 15, 30},
                  .tag = "12",
                  .bulle = "a\rb",
                  .fond = rvb(255, 128, 0),
                  .encre = Encre::Fusion,
                  .rempli = true,
                  .visible = false};
    Element mot{.controle = Controle::LblMot,
                .cadre = {},

                .texte = "\xE9t\xE9 \r",
                .encreTexte = rvb(1, 2, 3),
                .gras = true};
    EXPECT_EQ(decrire({piste, barre, mot}),
              "lblpiste[1] 60,365.5 300x210 \"1\"\n"
              "LblXtr[2] 0.33,0 15x30 tag=12 bulle=a\\rb fond=FF8000 fusion cache\n"
              "LblMot[0] 0,0 0x0 \"été \\r\" encre=010203 gras\n");
    EXPECT_EQ(nomControle(Controle::Shape2), "Shape2");
}

TEST(Element, SousPrendLePlusHautDesSensibles) {
    auto element = [](int index, Rectangle cadre, bool sensible, bool visible = true) {
        Element e{.index = index, .cadre = cadre};
        e.sensible = sensible, e.visible = visible;
        return e;
    };
    const Elements elements = {element(1, {0, 0, 100, 100}, true), element(2, {50, 0, 100, 100}, true),
                               element(3, {0, 0, 300, 300}, false),
                               element(4, {0, 0, 300, 300}, true, false)};
    auto index = [&](Twips x, Twips y) {
        const Element* e = sous(elements, x, y);
        return e ? e->index : 0;
    };
    EXPECT_EQ(index(49, 50), 1);
    EXPECT_EQ(index(60, 50), 2) << "the later one lies on top";
    EXPECT_EQ(index(100, 50), 2) << "right edge of the first is outside it";
    EXPECT_EQ(index(200, 200), 0);
}

} // namespace
} // namespace vermo
