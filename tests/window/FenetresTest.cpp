#include "window/DatesFichier.h"
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
