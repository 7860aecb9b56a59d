#include "audio/Gestes.h"

#include "audio/Zoom.h"

#include <gtest/gtest.h>
#include <vector>

using namespace vermo;

namespace {

constexpr Twips W = 10000;

Element piece(Controle controle, int index, Twips gauche, const char* extrait = "7") {
    return {.controle = controle, .index = index, .cadre = {gauche, 0, 100, 100}, .tag = extrait};
}

} // namespace

TEST(Gestures, ThePressOnTheOverviewTellsWhatItsReleaseMeans) {
    const Element barre = piece(Controle::LblXtr, 1, 400);
    using Choix = std::optional<GesteVue>;
    const struct {
        const Element* sous;
        Twips presse, bouge;
        std::optional<Etendue> montre;
        Twips relache;
        Choix choix;
    } cas[] = {{nullptr, 500, 531, Etendue{500, 31}, 531, GesteVue{500, 531}},
               {nullptr, 500, 530, {}, 530, GesteVue{500, 530}}, // not shown yet, and a drag all the same
               {nullptr, 500, 480, Etendue{480, 20}, 480, GesteVue{500, 480}},
               {nullptr, 0, 900, {}, 900, GesteVue{0, 900}}, // from X = 0 nothing shows
               {nullptr, 500, 600, Etendue{500, 100}, W, GesteVue{500, W}},
               {nullptr, 500, 600, Etendue{500, 100}, W + 1, {}},
               {nullptr, 500, 400, Etendue{400, 100}, -1, {}},
               {&barre, 450, 600, {}, 600, {}}};
    for (const auto& c : cas) {
        PriseVue prise;
        EXPECT_EQ(relacher(prise, c.relache, W), std::nullopt); // pressed elsewhere
        presser(prise, c.sous, c.presse);
        EXPECT_EQ(selectionVue(prise, c.bouge), c.montre) << c.presse << ' ' << c.bouge;
        EXPECT_EQ(relacher(prise, c.relache, W), c.choix) << c.presse << ' ' << c.relache;
        const bool restePrise = !c.sous && !c.choix; // beyond the ends the drag stays set
        EXPECT_EQ(prise, (PriseVue{.GlisseVueDebut = restePrise ? c.presse : 0}));
    }
}

TEST(Gestures, ThePressOnTheZoomBandTellsWhatItsReleaseMeans) {
    const Element debut = piece(Controle::ImgBulleInt, 3, 200), fin = piece(Controle::ImgBulleInt, 4, 290);
    const Element bord = piece(Controle::ImgBulleInt, 1, 0), avant = piece(Controle::ImgBulleInt, 1, -50);
    const Element texte = piece(Controle::LbltxtXtrZ, 2, 220), titre = piece(Controle::LbltitreXtrZ, 2, 220);
    const Element label = piece(Controle::LblXtrZ, 2, 210);
    const GesteZoom rien, ecoute{.acte = ActeZoom::Ecouter, .x = 250};
    const auto cherche = [](Twips x) { return GesteZoom{.acte = ActeZoom::Chercher, .x = x}; };
    const auto creer = [](Twips de, Twips a) {
        return GesteZoom{.acte = ActeZoom::Creer, .debut = de, .x = a};
    };
    const auto borne = [](bool laquelle, Twips x) {
        return GesteZoom{.acte = ActeZoom::Borner, .x = x, .extrait = 7, .borneDebut = laquelle};
    };
    const struct {
        const Element* sous;
        Twips presse;
        GesteZoom aussitot;
        Twips relache;
        GesteZoom geste;
        bool marque = false;
    } cas[] = {{nullptr, 250, rien, 280, creer(250, 280)},
               {nullptr, 250, rien, 279, cherche(279)},
               {nullptr, 250, rien, 220, cherche(220)},
               {nullptr, 250, rien, 219, {.acte = ActeZoom::Defiler, .debut = 250, .x = 219}},
               {nullptr, 250, rien, 900, cherche(900), true}, // a span is being marked by the keyboard
               {nullptr, 0, rien, 900, cherche(900)},         // from X = 0 there is no drag
               {nullptr, 250, rien, 0, {.acte = ActeZoom::Defiler, .debut = 250, .x = 0}},
               {nullptr, 250, rien, -1, rien},
               {&debut, 250, rien, 900, borne(true, 900)},
               {&fin, 300, rien, -40, borne(false, 0)}, // held at the band's left edge
               {&bord, 20, rien, 900, rien},            // a handle at X = 0 counts as none
               {&avant, 20, rien, 900, borne(true, 900)},
               {&texte, 250, ecoute, 900, rien},
               {&titre, 250, rien, 250, rien},
               {&label, 250, rien, 900, {.acte = ActeZoom::Elargir, .x = 690, .index = 2}},
               {&label, 250, rien, 210, rien}};
    for (const auto& c : cas) {
        PriseZoom prise;
        EXPECT_EQ(relacher(prise, c.relache, c.marque), rien); // pressed elsewhere
        EXPECT_EQ(presser(prise, c.sous, c.presse), c.aussitot) << c.presse;
        EXPECT_EQ(relacher(prise, c.relache, c.marque), c.geste) << c.presse << ' ' << c.relache;
        EXPECT_EQ(prise.GlisseZoomDebut, !c.sous && c.relache < 0 ? c.presse : 0);
    }
    PriseZoom prise{.GlisseZoomDebut = 250}; // was released beyond the left edge
    presser(prise, &titre, 300);
    relacher(prise, 300, false);
    EXPECT_EQ(prise.GlisseZoomDebut, 250);
    EXPECT_EQ(extraitOuvert(&titre, false), 7);
    EXPECT_EQ(extraitOuvert(&texte, true), 7);
    EXPECT_EQ(extraitOuvert(&titre, true) + extraitOuvert(&texte, false) + extraitOuvert(nullptr, true), 0);
}

TEST(Gestures, MovesSelectOrDrawAHandle) {
    PriseZoom prise{.GlisseZoomDebut = 250};
    EXPECT_FALSE(selectionne(prise, 280, false));
    EXPECT_TRUE(selectionne(prise, 281, false));
    EXPECT_FALSE(selectionne(prise, 281, true));
    EXPECT_FALSE(selectionne({}, 281, false));

    EtatAudio audio;
    audio.DureeFichier = 100, audio.DebutZoom = 10, audio.FinZoom = 30, audio.DureeZoom = 20;
    EXPECT_EQ(selectionZoom(audio, 250, 750, 1000, W), (SelectionZoom{{250, 500}, {1500, 1000}}));

    const Element debut = piece(Controle::ImgBulleInt, 3, 200), fin = piece(Controle::ImgBulleInt, 4, 800);
    presser(prise, &debut, 205);
    EXPECT_EQ(bandeTiree(prise, {320, 500}, {440, 380}, 150), (Etendue{270, 550}));
    presser(prise, &fin, 805);
    EXPECT_EQ(bandeTiree(prise, {320, 500}, {440, 380}, 900), (Etendue{320, 480}));
    EXPECT_EQ(bandeTiree(prise, {320, 500}, {440, 380}, 420), (Etendue{320, 500})); // nothing is left of it
}
