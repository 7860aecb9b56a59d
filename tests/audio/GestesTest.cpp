#include "audio/Gestes.h"

#include <gtest/gtest.h>

using namespace vermo;

namespace {

Element piece(Controle controle, int index, Twips gauche) {
    return {.controle = controle, .index = index, .cadre = {gauche, 0, 100, 100}, .tag = "7"};
}

} // namespace

TEST(Gestures, ThePressOnTheZoomBandTellsWhatItsReleaseMeans) {
    const Element rien = piece(Controle::Aucun, 0, 0), debut = piece(Controle::ImgBulleInt, 3, 200),
                  fin = piece(Controle::ImgBulleInt, 4, 290), bord = piece(Controle::ImgBulleInt, 1, 0),
                  avant = piece(Controle::ImgBulleInt, 1, -50), label = piece(Controle::LblXtrZ, 2, 210),
                  bulle = piece(Controle::ImgBulleBas, 5, 200);
    const auto cherche = [](Twips x) { return GesteZoom{.acte = ActeZoom::Chercher, .x = x}; };
    const auto borne = [](bool laquelle, Twips x) {
        return GesteZoom{.acte = ActeZoom::Borner, .x = x, .extrait = 7, .borneDebut = laquelle};
    };
    const struct {
        const Element& sous;
        Twips presse, relache;
        GesteZoom geste;
    } cas[] = {{rien, 250, 280, {.acte = ActeZoom::Creer, .debut = 250, .x = 280}},
               {rien, 250, 279, cherche(279)},
               {rien, 250, 220, cherche(220)},
               {rien, 250, 219, {.acte = ActeZoom::Defiler, .debut = 250, .x = 219}},
               {rien, 0, 900, cherche(900)}, // from X = 0 there is no drag
               {rien, 250, -1, {}},
               {debut, 250, 900, borne(true, 900)},
               {fin, 300, -40, borne(false, 0)}, // held at the band's left edge
               {bord, 20, 900, borne(true, 900)},
               {avant, 20, 900, borne(true, 900)},
               {label, 250, 900, {.acte = ActeZoom::Elargir, .x = 690, .index = 2}},
               {label, 250, 210, {}},
               {bulle, 250, 279, {.acte = ActeZoom::Ouvrir, .extrait = 7}},
               {bulle, 250, 220, cherche(220)}};
    for (const auto& c : cas) {
        PriseZoom prise;
        EXPECT_EQ(relacher(prise, c.relache, false), GesteZoom()); // pressed elsewhere
        presser(prise, &c.sous == &rien ? nullptr : &c.sous, c.presse);
        EXPECT_EQ(relacher(prise, c.relache, false), c.geste) << c.presse << ' ' << c.relache;
    }
}
