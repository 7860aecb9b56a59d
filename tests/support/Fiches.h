#pragma once
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace vermo::essai {

/// References are written anew instead of compared.
inline bool aRefaire() {
    return std::getenv("VERMO_REFAIRE_TEMOINS") != nullptr;
}

/// With tests/vues/`nom`.txt.
inline void comparerFiche(const std::string& nom, const std::string& fiche) {
    const std::string fichier = VERMO_RACINE "/tests/vues/" + nom + ".txt";
    if (aRefaire()) return void(std::ofstream(fichier) << fiche);
    std::stringstream temoin;
    temoin << std::ifstream(fichier).rdbuf();
    EXPECT_EQ(fiche, temoin.str());
}

} // namespace vermo::essai
