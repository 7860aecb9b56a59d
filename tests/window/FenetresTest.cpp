#include "window/DatesFichier.h"
#include "window/Detourage.h"
#include "window/Placement.h"

#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"

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

/// Local time of a place that keeps summer time.
class FileDates : public testing::Test {
  protected:
    void SetUp() override { fuseau("CET-1CEST,M3.5.0,M10.5.0/3"); }
    void TearDown() override { fuseau(nullptr); }
    static void fuseau(const char* nom) {
        nom ? setenv("TZ", nom, 1) : unsetenv("TZ");
        tzset();
    }
    static std::int64_t local(int an, int mois, int jour, int heure, int minute) {
        std::tm champs{};
        champs.tm_year = an - 1900, champs.tm_mon = mois - 1, champs.tm_mday = jour;
        champs.tm_hour = heure, champs.tm_min = minute;
        return timegm(&champs);
    }
    essai::DossierTemporaire dossier;
    essai::DialoguesScriptees dialogues;
};

TEST_F(FileDates, GiveTheLocalTimeOfTheLastWrite) {
    const Utf8 chemin = dossier.ecrire("entretien été.wav", "RIFF");
    // 2009-01-03 12:30 and 2009-07-03 12:30, universal time.
    for (const auto& [universel, attendu] : {std::pair{1230985800L, local(2009, 1, 3, 13, 30)},
                                             std::pair{1246624200L, local(2009, 7, 3, 14, 30)}}) {
        const timespec temps[2] = {{universel, 0}, {universel, 999999999}};
        ASSERT_EQ(utimensat(AT_FDCWD, chemin.c_str(), temps, 0), 0);
        const auto dates = LireDatesFichier(chemin, dialogues);
        ASSERT_TRUE(dates);
        EXPECT_EQ(dates->modification.secondes, attendu);
        EXPECT_GE(dates->creation.secondes, attendu);
    }
}

TEST_F(FileDates, OfAFileThatDoesNotOpenAreTold) {
    for (const Utf8& nom : {Utf8("absent.wav"), Utf8("dossier.wav/")}) {
        mkdir(dossier.chemin("dossier.wav").c_str(), 0700);
        dialogues.repondre(Reponse::Ok);
        EXPECT_FALSE(LireDatesFichier(dossier.chemin(nom), dialogues));
        EXPECT_EQ(dialogues.dernier(),
                  "|Impossible ouvrir le fichier : " + dossier.chemin(nom) + "|Ok|Exclamation -> Ok");
    }
}

} // namespace
} // namespace vermo
