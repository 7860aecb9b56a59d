#include "window/Commande.h"
#include "window/DatesFichier.h"
#include "window/Detourage.h"
#include "window/Fondu.h"
#include "window/Placement.h"
#include "window/Rangs.h"

#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"

#include <cstdlib>
#include <fcntl.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// Rows of a picture, one character a pixel; segments as "start-end@y".
std::string region(const std::vector<std::string>& lignes) {
    const int largeur = lignes.empty() ? 0 : static_cast<int>(lignes[0].size());
    const auto pixel = [&](int x, int y) {
        return static_cast<std::uint32_t>(lignes.at(std::size_t(y)).at(std::size_t(x)));
    };
    std::string texte;
    for (const Segment& s : RegionDepuisImage(largeur, static_cast<int>(lignes.size()), pixel))
        texte += std::to_string(s.debut) + "-" + std::to_string(s.fin) + "@" + std::to_string(s.y) + " ";
    return texte;
}

TEST(ShapeFromPicture, RunsOfOtherColoursThanTheCorners) {
    for (const auto& vide : {std::vector<std::string>{}, {""}, {"....", "...."}})
        EXPECT_EQ(region(vide), "");
    EXPECT_EQ(region({"......", ".ab.c.", ".bbb.."}), "1-3@1 4-5@1 1-4@2 ") << "two runs on one row";
    EXPECT_EQ(region({".....", ".aaaa", "....a"}), "1-4@1 ") << "the last column is left out";
    EXPECT_EQ(region({"a..a.", "aaaa."}), "1-3@0 ") << "the corner's colour is a hole wherever it stands";
}

TEST(Placement, KeepsToTheScreen) {
    const ZoneTravail zone{
        .gauche = -6000, .haut = 600, .largeur = 20000, .hauteur = 12000, .barreDesTaches = 40};
    const std::pair<Rectangle, Rectangle> cas[] = {{{-100, 700, 5000, 4000}, {-100, 700, 5000, 4000}},
                                                   {{-6300, 580, 5000, 4000}, {-6000, 600, 5000, 4000}},
                                                   {{12000, 9600, 5000, 4000}, {9000, 8000, 5000, 4000}},
                                                   {{40, 1305, 30000, 20000}, {-6000, 600, 20000, 11400}}};
    for (const auto& [voulu, obtenu] : cas)
        EXPECT_EQ(dansEcran(voulu, zone), obtenu) << voulu.gauche << "," << voulu.haut;
}

TEST(Rows, AreFoundByPlaceAndByPage) {
    const Rangs inegaux({100, 50, 0, 200}, 30);
    const std::pair<Twips, int> places[] = {{0, 0},   {29, 0},  {30, 1},  {129, 1}, {130, 2},
                                            {179, 2}, {180, 4}, {379, 4}, {380, 5}};
    for (const auto& [place, rang] : places)
        EXPECT_EQ(inegaux.a(place), rang) << place << ": a row without height holds nothing";
    const auto entre = inegaux.entre(-50, 130), aucune = inegaux.entre(1000, 2000);
    EXPECT_EQ(std::pair(entre.premier, entre.dernier), std::pair(1, 2));
    EXPECT_GT(aucune.premier, aucune.dernier);

    const Rangs egaux = Rangs::egaux(100, 40, 20);
    const std::tuple<int, int, Twips, int> pages[] = {{1, 1, 400, 9},    {50, -1, 400, 9}, {50, 1, 439, 9},
                                                      {50, -1, 440, 10}, {5, 1, 30, 1},    {5, -1, 30, 1}};
    for (const auto& [rang, sens, longueur, pas] : pages)
        EXPECT_EQ(egaux.page(rang, longueur, sens), pas) << rang << " " << longueur;
    EXPECT_EQ(Rangs().a(10), 0);
}

/// Opacities until the timer is done; -1 when the window goes with it.
std::vector<int> jouer(const Fondu& fondu, float compteur) {
    for (std::vector<int> alphas;;) {
        const PasFondu pas = avancer(fondu, compteur);
        if (pas.alpha) alphas.push_back(*pas.alpha);
        if (pas.decharger) alphas.push_back(-1);
        if (pas.arreter || alphas.size() > 99) return alphas;
    }
}

TEST(Fade, OpensInItsTicksAndClosesFromItsOwnBase) {
    const Fondu visu{.base = 10000}, infos{.base = 3000}, saisie{.pas = 50};
    EXPECT_EQ(jouer(saisie, -50), (std::vector{0, 50, 100, 150, 200, 250}));
    EXPECT_TRUE(jouer(visu, 3000).empty()); // another window's closing
    for (const Fondu& fondu : {visu, infos}) {
        const std::vector<int> alphas = jouer(fondu, fondu.base);
        ASSERT_EQ(alphas.size(), 24U);
        EXPECT_EQ((std::vector{alphas[0], alphas[22], alphas[23]}), (std::vector{230, 10, -1}));
        EXPECT_EQ(jouer(fondu, fondu.base - fondu.pas).size(), 25U) << "from the base itself on";
    }
}

TEST(FileDates, GiveTheLocalTimeOfTheLastWriteOrTellWhatDoesNotOpen) {
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1); // a place that keeps summer time
    tzset();
    const DossierTemporaire dossier;
    DialoguesScriptees dialogues;
    const Utf8 chemin = dossier.ecrire("dossier/entretien été.wav", "RIFF");
    // 2009-01-03 12:30 and 2009-07-03 12:30, universal time; an hour and two later there.
    for (const auto& [universel, decalage] : {std::pair{1230985800L, 3600}, {1246624200L, 7200}}) {
        const timespec temps[2] = {{universel, 0}, {universel, 999999999}};
        ASSERT_EQ(utimensat(AT_FDCWD, chemin.c_str(), temps, 0), 0);
        const auto dates = LireDatesFichier(chemin, dialogues).value();
        EXPECT_EQ(dates.modification.secondes, universel + decalage);
        EXPECT_GE(dates.creation.secondes, universel + decalage);
    }
    for (const Utf8& faux : {dossier.chemin("absent.wav"), dossier.chemin("dossier/")}) {
        dialogues.repondre(Reponse::Ok);
        EXPECT_FALSE(LireDatesFichier(faux, dialogues));
        EXPECT_EQ(dialogues.dernier(), "|Impossible ouvrir le fichier : " + faux + "|Ok|Exclamation -> Ok");
    }
}

constexpr Commande COMMANDES[] = {
    {.id = "lire", .bulle = "Lire ({})", .indice = "lecture", .touches = {{"Espace"}, {"Alt + Espace"}}},
    {.id = "reculer", .indice = "déplacer", .touches = {{"←"}}},
    {.id = "avancer", .indice = "déplacer", .touches = {{"→"}}},
    {.id = "valider", .texte = "  Valider {+}", .touches = {{"Ctrl + Maj + Entrée", "Texte Liste", ALT}}},
    {.id = "muette"},
    {.id = "plus", .indice = "zoom", .aide = "Plus grand", .touches = {{"Ctrl + +"}}},
};

TEST(Commande, TextsTakeTheirKeysFromTheTable) {
    EXPECT_EQ(avecTouches(COMMANDES, "{lire} puis {}.", &COMMANDES[3]), "Espace puis Ctrl + Maj + Entrée.");
    EXPECT_THROW(avecTouches(COMMANDES, "{partie}"), FauteExecution);
    EXPECT_EQ(ligneIndices(COMMANDES), "Espace : lecture    ← → : déplacer    Ctrl + + : zoom");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[0]), "Lire");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[3]), "Valider Ctrl+Maj+Entrée");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[5]), "Plus grand");
}

TEST(Commande, AKeyHoldsWithItsModifiersAndInItsControls) {
    const Raccourci valider = COMMANDES[3].touches[0], lire = COMMANDES[0].touches[0];
    EXPECT_TRUE(valider.vaut("Ctrl + Alt + Maj + Entrée") && lire.vaut("Maj + Espace"));
    EXPECT_FALSE(valider.vaut("Ctrl + Entrée") || lire.vaut("Ctrl + Espace") || Raccourci().vaut({}));
    EXPECT_TRUE(valider.tientDans("Liste") && lire.tientDans(""));
    EXPECT_FALSE(valider.tientDans("List") || valider.tientDans("") || lire.tientDans("Liste"));
}

} // namespace
