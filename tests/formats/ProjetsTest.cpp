#include "formats/Projets.h"
#include "formats/EnTeteWav.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(RecentFile, IsReadByItemsAndKeepsTheOthers) {
    const auto lus = projets::lire("/a/\xE9t\xE9.Crp\r\n\r\n\"/b, c.Crp\"\r\n/d,/e\r/a/\xE9t\xE9.Crp");
    EXPECT_EQ(lus, (std::vector<Utf8>{"/a/été.Crp", "/b, c.Crp", "/d", "/e", "/a/été.Crp"}));
    EXPECT_EQ(projets::lire("/a.Crp\n\n\"/b, c.Crp\"\n/d"), (std::vector<Utf8>{"/a.Crp", "/b, c.Crp", "/d"}));
    for (const char* chemin : {"/a/été.Crp", "/a/e\u0301te\u0301.Crp"})
        EXPECT_EQ(projets::ecrire(chemin, lus), "/a/\xE9t\xE9.Crp\r\n/b, c.Crp\r\n/d\r\n/e\r\n");
    EXPECT_THROW(projets::ecrire("/中.Crp", {}), FauteExecution);
}

TEST(WaveHeader, FieldsStandAtTheirPlacesAndAreZeroBehindTheEnd) {
    const std::string octets("RIFF\x24\x01\x00\x00WAVEfmt \x10\x00\x00\x00\x01\x00\x02\x00\x44\xAC\x00\x00"
                             "\x10\xB1\x02\x00\x04\x00\x10\x00"
                             "data\xFE\xFF\xFF\xFFsuite",
                             49);
    const EnTeteWav entier{"RIFF", 292, "WAVE", "fmt ", 16, 1, 2, 44100, 176400, 4, 16, "data", -2};
    EXPECT_EQ(lireEnTeteWav(octets), entier);
    EnTeteWav coupe = entier;
    coupe.Frequence = 0x44;
    coupe.OctetsParSeconde = coupe.TailleDonnees = 0;
    coupe.AlignementBloc = coupe.BitsParEchantillon = 0;
    coupe.Data = "";
    EXPECT_EQ(lireEnTeteWav(octets.substr(0, 25)), coupe);
    EXPECT_EQ(lireEnTeteWav(""), EnTeteWav{});
}

} // namespace
} // namespace vermo
