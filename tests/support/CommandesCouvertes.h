#pragma once
#include "window/Commande.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>

namespace vermo::essai {

/// As tables of gestures write a key: "Alt+Right", "Ctrl+Space", "C".
inline std::string toucheDeTable(const Touche& touche) {
    static const std::map<std::string_view, const char*> NOMS = {{"Entrée", "Return"},
                                                                 {"Échap", "Esc"},
                                                                 {"Espace", "Space"},
                                                                 {"←", "Left"},
                                                                 {"→", "Right"},
                                                                 {"↑", "Up"},
                                                                 {"↓", "Down"},
                                                                 {"Page précédente", "PgUp"},
                                                                 {"Page suivante", "PgDown"},
                                                                 {"Origine", "Home"}};
    const auto nom = NOMS.find(touche.cle);
    std::string suite;
    for (const auto& [bit, mot] : {std::pair(CTRL, "Ctrl+"), {ALT, "Alt+"}, {MAJ, "Shift+"}})
        if (touche.avec & bit) suite += mot;
    return suite + (nom == NOMS.end() ? std::string(touche.cle) : nom->second);
}

/// Each command that something answers is tried by the gestures (words, blanks or semicolons between): every
/// button, row and key of it is among them.
inline void couvrir(TableCommandes commandes, std::string gestes) {
    std::ranges::replace_if(
        gestes, [](char c) { return c == ';' || c == ','; }, ' ');
    std::istringstream lecture(gestes);
    std::set<std::string> mots{std::istream_iterator<std::string>(lecture), {}};
    if (mots.contains("Escape")) mots.insert("Esc");
    const auto exiger = [&](const Commande& commande, const std::string& mot) {
        EXPECT_TRUE(mot.empty() || mots.contains(mot)) << "nothing tries " << commande.id << " by " << mot;
    };
    for (const Commande& commande : commandes) {
        if (!commande.faire) continue;
        exiger(commande, std::string(commande.bouton));
        exiger(commande, std::string(commande.ligne));
        for (const Raccourci& raccourci : commande.touches)
            exiger(commande, toucheDeTable(raccourci.touche));
    }
}

} // namespace vermo::essai
