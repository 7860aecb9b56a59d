#include "window/Commande.h"

#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

constexpr Commande COMMANDES[] = {
    {.id = "lire", .bulle = "Lire ({})", .indice = "lecture", .touches = {{"Espace"}, {"Alt + Espace"}}},
    {.id = "reculer", .indice = "déplacer", .touches = {{"←"}}},
    {.id = "avancer", .indice = "déplacer", .touches = {{"→"}}},
    {.id = "valider", .texte = "  Valider {+}", .touches = {{"Ctrl + Maj + Entrée", "Texte Liste", ALT}}},
    {.id = "muette"},
    {.id = "plus", .indice = "zoom", .aide = "Plus grand", .touches = {{"Ctrl + +"}}},
};

TEST(Commande, TextsTakeTheirKeysFromTheTable) {
    const std::pair<std::string_view, const char*> textes[] = {
        {"sans touche", "sans touche"},
        {"{} et {+}", "Ctrl + Maj + Entrée et Ctrl+Maj+Entrée"},
        {"{lire} puis {plus}.", "Espace puis Ctrl + +."}};
    for (const auto& [texte, attendu] : textes)
        EXPECT_EQ(avecTouches(COMMANDES, texte, &COMMANDES[3]), attendu);
    EXPECT_THROW(avecTouches(COMMANDES, "{partie}"), FauteExecution);
    EXPECT_EQ(ligneIndices(COMMANDES), "Espace : lecture    ← → : déplacer    Ctrl + + : zoom");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[0]), "Lire");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[3]), "Valider Ctrl+Maj+Entrée");
    EXPECT_EQ(aideDe(COMMANDES, COMMANDES[5]), "Plus grand");
}

TEST(Commande, AKeyHoldsWithItsModifiersAndInItsControls) {
    const Raccourci valider = COMMANDES[3].touches[0], lire = COMMANDES[0].touches[0];
    EXPECT_TRUE(valider.vaut("Ctrl + Alt + Maj + Entrée") && lire.vaut("Maj + Espace"));
    EXPECT_FALSE(valider.vaut("Ctrl + Entrée") || lire.vaut("Ctrl + Espace") || Raccourci().vaut({}));
    EXPECT_TRUE(valider.tientDans("Liste") && lire.tientDans(""));
    EXPECT_FALSE(valider.tientDans("List") || valider.tientDans("") || lire.tientDans("Liste"));
}

} // namespace
} // namespace vermo
