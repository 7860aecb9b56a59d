#include "window/ui/Glace.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(ImagesTest, EachIconDrawsSomethingAtAnySize) {
    int nombre = 0;
    for (const auto& fichier : std::filesystem::directory_iterator(VERMO_RACINE "/resources/icones"))
        for (const int cote : {16, 32}) {
            const std::string nom = fichier.path().filename();
            const QImage image = imageEtiree(":/icones/" + nom, {cote, cote});
            ASSERT_EQ(image.size(), QSize(cote, cote)) << nom << " is not among the resources";
            int encres = 0;
            for (int i = 0; i < cote * cote; ++i)
                encres += image.pixelColor(i % cote, i / cote).alpha() > 40;
            EXPECT_GT(encres, cote) << nom << " at " << cote;
            ++nombre;
        }
    EXPECT_GT(nombre, 60);
}

} // namespace
} // namespace vermo
