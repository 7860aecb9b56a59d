#pragma once
#include "support/Scene.h"
#include "window/ui/Commandes.h"

namespace vermo::essai {

/// As rows of gestures write a key: "Alt+Right", "Ctrl+Space", "C".
inline std::string toucheDeGestes(const Touche& touche) {
    static const std::map<std::string_view, std::string> NOMS = {{"Entrée", "Return"},
                                                                 {"Échap", "Escape"},
                                                                 {"Espace", "Space"},
                                                                 {"←", "Left"},
                                                                 {"→", "Right"},
                                                                 {"↑", "Up"},
                                                                 {"↓", "Down"},
                                                                 {"Origine", "Home"},
                                                                 {"Fin", "End"},
                                                                 {"Page précédente", "PgUp"},
                                                                 {"Page suivante", "PgDown"},
                                                                 {"Suppr", "Del"}};
    std::string suite;
    for (const auto& [bit, mot] : {std::pair(CTRL, "Ctrl+"), {ALT, "Alt+"}, {MAJ, "Shift+"}})
        if (touche.avec & bit) suite += mot;
    const auto nom = NOMS.find(touche.cle);
    return suite + (nom == NOMS.end() ? std::string(touche.cle) : nom->second);
}

/// Each command of the window that something answers was tried by its button, its row and each of its keys,
/// and each control that answers was acted on.
inline void couvrir(const std::string& fenetre, TableCommandes commandes, Essais essais) {
    std::set<std::string>& voulus = essais.offerts[fenetre];
    EXPECT_FALSE(voulus.empty()) << fenetre << " was never seen";
    for (const TableCommandes table : {commandes, Commandes::communes()})
        for (const Commande& commande : table) {
            if (!commande.faire) continue;
            voulus.insert(std::string(commande.bouton));
            if (table.data() == commandes.data()) voulus.insert(std::string(commande.ligne));
            for (const Raccourci& raccourci : commande.touches)
                voulus.insert(toucheDeGestes(raccourci.touche));
        }
    voulus.erase("");
    for (const std::string& voulu : voulus)
        EXPECT_TRUE(essais.faits.contains(voulu)) << "no row of " << fenetre << " tries " << voulu;
}

} // namespace vermo::essai
