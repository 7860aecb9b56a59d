#include "audio/Gestes.h"

#include "audio/Vues.h"
#include "audio/Zoom.h"

#include <gtest/gtest.h>

using namespace vermo;

namespace {

Element piece(Controle controle, int index, Twips gauche) {
    return {.controle = controle, .index = index, .cadre = {gauche, 0, 100, 100}, .tag = "7"};
}

EtatAudio place(double duree, double debut, double fin) {
    EtatAudio audio;
    ouvrirZoom(audio, duree);
    audio.DebutZoom = debut, audio.FinZoom = fin, audio.DureeZoom = fin - debut;
    audio.FacteurZoom = static_cast<float>(duree / audio.DureeZoom);
    return audio;
}

std::pair<double, double> empan(const EtatAudio& audio) {
    return {audio.DebutZoom, audio.FinZoom};
}

} // namespace

TEST(Gestures, TheOverviewShowsADragAndTakesItsRelease) {
    const Element barre = piece(Controle::LblXtr, 1, 200), cadre = piece(Controle::ShpXtr, 1, 200);
    const struct {
        const Element* sous;
        Twips presse, relache;
        std::optional<Etendue> montree;
        std::optional<GesteVue> geste;
    } cas[] = {{nullptr, 250, 280, {}, GesteVue{250, 280}},
               {&cadre, 250, 281, Etendue{250, 31}, GesteVue{250, 281}},
               {nullptr, 250, 250, {}, GesteVue{250, 250}},
               {nullptr, 250, 0, Etendue{0, 250}, GesteVue{250, 0}},
               {nullptr, 250, -1, Etendue{-1, 251}, {}},
               {nullptr, 250, 1000, Etendue{250, 750}, GesteVue{250, 1000}}, // its right edge
               {nullptr, 250, 1001, Etendue{250, 751}, {}},
               {nullptr, 0, 900, {}, GesteVue{0, 900}},
               {&barre, 250, 900, {}, {}}};
    for (const auto& [sous, presse, relache, montree, geste] : cas) {
        PriseVue prise;
        EXPECT_EQ(relacher(prise, relache, 1000), std::nullopt); // pressed elsewhere
        presser(prise, sous, presse);
        EXPECT_EQ(selectionVue(prise, relache), montree) << presse << ' ' << relache;
        EXPECT_EQ(relacher(prise, relache, 1000), geste) << presse << ' ' << relache;
    }
}

TEST(Gestures, ThePressOnTheZoomBandTellsWhatItsReleaseMeans) {
    const Element debut = piece(Controle::ImgBulleInt, 3, 200), fin = piece(Controle::ImgBulleInt, 4, 290),
                  bord = piece(Controle::ImgBulleInt, 1, 0), avant = piece(Controle::ImgBulleInt, 1, -50),
                  label = piece(Controle::LblXtrZ, 2, 210);
    const auto cherche = [](Twips x) { return GesteZoom{.acte = ActeZoom::Chercher, .x = x}; };
    const auto borne = [](bool laquelle, Twips x) {
        return GesteZoom{.acte = ActeZoom::Borner, .x = x, .extrait = 7, .borneDebut = laquelle};
    };
    const struct {
        const Element* sous;
        Twips presse, relache;
        bool selectionne;
        GesteZoom geste;
    } cas[] = {{nullptr, 250, 280, false, {.acte = ActeZoom::Creer, .debut = 250, .x = 280}},
               {nullptr, 250, 281, true, {.acte = ActeZoom::Creer, .debut = 250, .x = 281}},
               {nullptr, 250, 279, false, cherche(279)},
               {nullptr, 250, 220, false, cherche(220)},
               {nullptr, 250, 219, false, {.acte = ActeZoom::Defiler, .debut = 250, .x = 219}},
               {nullptr, 0, 900, false, cherche(900)}, // from X = 0 there is no drag
               {nullptr, 40, 0, false, {.acte = ActeZoom::Defiler, .debut = 40, .x = 0}},
               {nullptr, 250, -1, false, {}},
               {&debut, 250, 900, false, borne(true, 900)},
               {&fin, 300, -40, false, borne(false, 0)}, // held at the band's left edge
               {&bord, 20, 900, false, {}},              // a handle at X = 0 counts as none
               {&avant, 20, 900, false, borne(true, 900)},
               {&label, 250, 900, false, {.acte = ActeZoom::Elargir, .x = 690, .index = 2}},
               {&label, 250, 210, false, {}}};
    for (const auto& c : cas) {
        PriseZoom prise;
        EXPECT_EQ(relacher(prise, c.relache, false), GesteZoom()); // pressed elsewhere
        presser(prise, c.sous, c.presse);
        EXPECT_EQ(selectionne(prise, c.relache, false), c.selectionne) << c.presse << ' ' << c.relache;
        EXPECT_FALSE(selectionne(prise, c.relache, true));
        EXPECT_EQ(relacher(prise, c.relache, false), c.geste) << c.presse << ' ' << c.relache;
    }
    // A handle drawn to 310: its band, and the text that it holds.
    const std::tuple<int, Etendue, Etendue> bandes[] = {{1, {320, 500}, {310, 510}},
                                                        {2, {320, 500}, {180, 610}},
                                                        {2, {320, -110}, {180, 70}},
                                                        {2, {320, -109}, {180, 1}}};
    for (const auto& [index, texte, attendue] : bandes)
        EXPECT_EQ(bandeTiree({.index = index, .gauche = 200}, {180, 70}, texte, 310), attendue) << index;
}

TEST(ZoomSpan, StopsAtItsBoundsAndAtTheEndsOfTheRecording) {
    EtatAudio audio = place(10000, 50, 50 + 10000.0 / 256);
    EXPECT_TRUE(zoomer(audio));
    EXPECT_DOUBLE_EQ(audio.FinZoom, 50 + 10000.0 / 512);
    EXPECT_FALSE(zoomer(audio));
    for (const auto& [facteur, recule] : {std::pair(1.0F, false), {1.5F, true}, {0.75F, false}}) {
        audio.FacteurZoom = facteur;
        EXPECT_EQ(dezoomer(audio), recule) << facteur;
    }

    audio = place(100, 97, 137);
    avancerEmpan(audio);
    EXPECT_EQ(audio.DebutZoom, 99); // beyond the last whole span, within the recording
    avancerEmpan(audio);
    EXPECT_EQ(empan(audio), (std::pair(60.0, 100.0)));
    tournerPage(audio, 100);
    EXPECT_EQ(empan(audio), (std::pair(100.0, 140.0)));
    Twips glisse = 500;
    audio = place(100, 97, 137);
    EXPECT_TRUE(defilerSelection(audio, glisse, 1000));
    audio.DebutZoom = 98;
    EXPECT_TRUE(defilerSelection(audio, glisse, 1000)) << "to the end itself";
    EXPECT_FALSE(defilerSelection(audio, glisse, 1000));
    EXPECT_EQ(empan(audio), (std::pair(100.0, 140.0)));
    EXPECT_EQ(glisse, 400);
}

TEST(ZoomSpan, TheOverviewLandsOnAGridOf15Seconds) {
    const struct {
        Twips presse, relache;
        double lecture, fin;
    } cas[] = {{3700, 3700, 30, 50},   {5000, 4450, 30, 50}, // to the left: a click; 44.5 counts as 44
               {3700, 3729, 30, 50},                         // too short for a drag
               {3700, 3730, 30, 37.3},                       // where the mouse was, off the grid
               {3700, 6250, 30, 62.5}, {2970, 3000, 30, 50}, // would end on its start
               {1455, 1490, 15, 35}};                        // or before it
    for (const auto& c : cas) {
        EtatAudio audio = place(100, 10, 30);
        EXPECT_EQ(choisirSurVue(audio, c.presse, c.relache, 10000), c.lecture) << c.presse;
        EXPECT_EQ(empan(audio), std::pair(c.lecture, c.fin)) << c.presse << ' ' << c.relache;
        EXPECT_FLOAT_EQ(audio.FacteurZoom, static_cast<float>(100 / (c.fin - c.lecture)));
    }
    const DemandeOnde zoom = demandeZoom(place(200, 50, 75), "/a/b.wav", 3000, 1500, 0.1);
    EXPECT_EQ(std::pair(zoom.empan.debut, zoom.empan.part), std::pair(0.25, 0.125));
}

TEST(Fading, AVolumeThatIsntKnownYetIsLeft) {
    EXPECT_EQ(volumeFondu(0.8F, 80), std::nullopt);
    EXPECT_EQ(volumeFondu(0.5F, 80), 50);
    EXPECT_EQ(volumeFondu(0.5F, 0), std::nullopt);
}
