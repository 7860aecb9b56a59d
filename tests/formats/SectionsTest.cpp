#include "formats/Sections.h"

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

} // namespace
} // namespace vermo
