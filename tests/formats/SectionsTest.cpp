#include "formats/Sections.h"
#include "formats/FichierRtr.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

const std::string NOTE = "une, \"note\"\r<|A|\rvieux\r\n>|A|\r\"b\", c\r\r";

TEST(Sections, RewritesOneSectionAndCopiesTheRestItsWay) {
    const struct {
        const char* octets;
        std::vector<Texte> lignes;
        Cadre cadre;
        std::optional<std::string> attendu;
    } cas[] = {{NOTE.c_str(), {"x,1"}, {}, "une, \"note\"\r\n<|A|\r\nx,1\r\n>|A|\r\n\"b\", c\r\n\r\n"},
               {NOTE.c_str(), {}, {copierParJetons}, "une\r\nnote\r\n<|A|\r\n>|A|\r\n\"b\", c\r\n\r\n"},
               {NOTE.c_str(),
                {"x"},
                {.queue = copierEntreGuillemets},
                "une, \"note\"\r\n<|A|\r\nx\r\n>|A|\r\n\"\"b\", c\"\r\n\"\"\r\n"},
               // One text of several lines, as observations are; a section that the end of the file closes.
               {"y<|A|y\rz", {"un\rdeux\r"}, {}, "y<|A|y\r\nun\rdeux\r\r\n>|A|\r\n"},
               {">|A|\r\n<|A\r\n", {"x"}, {}, std::nullopt}};
    for (const auto& [octets, lignes, cadre, attendu] : cas)
        EXPECT_EQ(reecrireSection(octets, {"<|A|", ">|A|"}, lignes, cadre), attendu) << octets;
}

TEST(RoundTrip, TranscriptsOfThisProgramComeBackByteForByte) {
    const Reglages virgule{.separateurDecimal = ','}, point{.separateurDecimal = '.'};
    const std::vector<rtr::Extrait> extraits = {
        {}, {"0,00", "1,5", "001", "\r"}, {"1,5", "12", "", "un\rdeux\r"}, {"3", "2", "01", "\r"}};
    const rtr::EnTete enTete{62.25F, "Note, \"dite\"\r\r> fin", {0, 2, 41}};
    const std::pair<std::string, Reglages> cas[] = {
        {rtr::nouveau(0.5F, virgule), virgule},
        {rtr::ecrire(enTete, extraits, {}, virgule), virgule},
        {rtr::ecrire({.duree = 60}, {{}, {"1.25", "2", "000", "a\r"}}, {}, point), point},
        // A header that this program doesn't write is kept as it stands.
        {" 60\r<|OBS|\rnote\n\r>|OBS|\r\n::1.00::001\r\nt\r\r\n::2.00::\r\n", point},
        {"::1.00::001\r\nt\r\r\n::2.00::\r\n", point}};
    for (const auto& [octets, reglages] : cas) {
        const rtr::Lecture lecture = rtr::lire(octets, "a.Rtr");
        EXPECT_EQ(rtr::ecrireApres(lecture.enTete, lecture.extraits, {}, reglages), octets);
    }
}

} // namespace
} // namespace vermo
