#include "window/DatesFichier.h"
#include "window/Detourage.h"
#include "window/Placement.h"

#include "support/PlateformeDeTest.h"
#include "window/Fenetres.h"

#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vermo {
namespace {

/// Rows of a picture, one character a pixel; segments as "start-end@y".
std::string region(const std::vector<std::string>& lignes) {
    const int largeur = lignes.empty() ? 0 : static_cast<int>(lignes[0].size());
    const auto segments = RegionDepuisImage(largeur, static_cast<int>(lignes.size()), [&](int x, int y) {
        return static_cast<std::uint32_t>(lignes[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    });
    std::string texte;
    for (const Segment& s : segments)
        texte += std::to_string(s.debut) + "-" + std::to_string(s.fin) + "@" + std::to_string(s.y) + " ";
    return texte;
}

TEST(ShapeFromPicture, RunsOfOtherColoursThanTheCorners) {
    EXPECT_EQ(region({"....", "...."}), "");
    EXPECT_EQ(region({"......", ".ab.c.", ".bbb.."}), "1-3@1 4-5@1 1-4@2 ") << "two runs on one row";
    EXPECT_EQ(region({".....", ".aaaa", "....a"}), "1-4@1 ") << "the last column is left out";
    EXPECT_EQ(region({"a..a.", "aaaa."}), "1-3@0 ") << "the corner's colour is a hole wherever it stands";
}

TEST(Placement, KeepsToTheScreen) {
    const ZoneTravail zone{
        .gauche = -6000, .haut = 600, .largeur = 20000, .hauteur = 12000, .barreDesTaches = 40};
    struct Cas {
        Rectangle voulu, obtenu;
    };
    for (const Cas& cas : {Cas{{-100, 700, 5000, 4000}, {-100, 700, 5000, 4000}},
                           {{-6300, 580, 5000, 4000}, {-6000, 600, 5000, 4000}},
                           {{12000, 9600, 5000, 4000}, {9000, 8000, 5000, 4000}},
                           {{40, 1305, 30000, 20000}, {-6000, 600, 20000, 11400}}})
        EXPECT_EQ(dansEcran(cas.voulu, zone), cas.obtenu) << cas.voulu.gauche << "," << cas.voulu.haut;
}

/// In a place that keeps summer time.
TEST(FileDates, GiveTheLocalTimeOfTheLastWrite) {
    const essai::DossierTemporaire dossier;
    essai::DialoguesScriptees dialogues;
    const auto fuseau = [](const char* nom) {
        nom ? setenv("TZ", nom, 1) : unsetenv("TZ");
        tzset();
    };
    fuseau("CET-1CEST,M3.5.0,M10.5.0/3");
    const Utf8 chemin = dossier.ecrire("entretien été.wav", "RIFF");
    // 2009-01-03 12:30 and 2009-07-03 12:30, universal time.
    for (const auto& [universel, heures] : {std::pair{1230985800L, 1}, {1246624200L, 2}}) {
        const timespec temps[2] = {{universel, 0}, {universel, 999999999}};
        ASSERT_EQ(utimensat(AT_FDCWD, chemin.c_str(), temps, 0), 0);
        const auto dates = LireDatesFichier(chemin, dialogues);
        ASSERT_TRUE(dates);
        EXPECT_EQ(dates->modification.secondes, universel + heures * 3600);
        EXPECT_GE(dates->creation.secondes, universel + heures * 3600);
    }
    fuseau(nullptr);
}

TEST(Player, AListenerMayLeaveWhileItIsTold) {
    essai::LecteurSimule lecteur;
    std::string dit;
    Ecoute seconde;
    const Ecoute premiere = lecteur.ecouter([&](EtatLecture etat) {
        dit += "1:" + std::to_string(static_cast<int>(etat)) + " ";
        if (etat == EtatLecture::EnPause) seconde.reset();
    });
    seconde = lecteur.ecouter([&](EtatLecture) { dit += "2 "; });
    lecteur.URL("a.wav", Fenetre::FrmVisu);
    lecteur.play();
    lecteur.pause();
    EXPECT_EQ(lecteur.proprietaire(), Fenetre::FrmVisu);
    lecteur.URL("");
    EXPECT_EQ(lecteur.proprietaire(), std::nullopt);
    EXPECT_EQ(dit, "1:9 2 1:1 2 1:3 2 1:2 1:0 ");
}

} // namespace
} // namespace vermo
