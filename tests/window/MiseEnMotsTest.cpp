#include "window/MiseEnMots.h"

#include "support/MetriquesFixes.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// "line left,top caption" of each word, "(…)" around hidden ones, "\" for a carriage return.
std::string decrire(const MotsDisposes& disposes) {
    std::string texte;
    for (const Mot& mot : disposes.mots) {
        std::string legende = disposes.texte.substr(mot.debut, mot.longueur);
        if (legende.back() == CR) legende.back() = '\\';
        const std::string lieu = std::to_string(mot.ligne) + " " + std::to_string(std::lround(mot.gauche)) +
                                 "," + std::to_string(std::lround(mot.haut)) + " ";
        texte += (mot.visible ? lieu + legende : "(" + legende + ")") + "|";
    }
    return texte;
}

TEST(WordLayout, OneColumn) {
    // 1740 wide: words may reach 1500.
    const ReglagesMots reglages{.LargeurTexte = 1740, .PasListe = 195};
    const std::pair<const char*, const char*> cas[] = {
        {"a", ""},
        {"aaa bbb ccc ddd eee\r", // the gap is shared
         "1 0,0 aaa |1 550,0 bbb |1 1100,0 ccc |2 0,195 ddd |2 430,195 eee\\|( )|"},
        {"aaa bbb ccc dd \r", "1 0,0 aaa |1 430,0 bbb |1 860,0 ccc |1 1290,0 dd |1 1620,0 \\|"},
        {"a\r\rb cc\r", "1 0,0 a\\|2 0,195 \\|3 0,390 b |3 230,390 cc\\|( )|"},
        {"a  b\r", "1 0,0 a |1 230,0  |1 360,0 b\\|( )|"}, // a double blank is a word
        {"aaaaaaaaaaaaaaaaaaaa b\r", "2 0,195 aaaaaaaaaaaaaaaaaaaa |3 0,390 b\\|( )|"},
        {"aaaaaaaaaa bbbbbbbbbb\r", "1 0,0 aaaaaaaaaa |2 0,195 bbbbbbbbbb\\|( )|"}, // no spreading
        {"aaa bbb", "(aaa )|(bbb )|"}, // no line end shows nothing
        {"aaa\rb c", "1 0,0 aaa\\|(b )|"}};
    for (const auto& [texte, attendu] : cas)
        EXPECT_EQ(decrire(disposerMots(texte, reglages, metriquesFixes)), attendu) << texte;
}

TEST(WordLayout, ColumnsFromTenLinesOn) {
    for (const auto& [lignes, colonnes, parColonne] :
         {std::tuple(9, 2, 9), {10, 2, 5}, {11, 2, 6}, {10, 3, 4}, {10, 0, 5}}) {
        Texte texte;
        for (int n = 0; n < lignes; ++n)
            texte += "a\r";
        const ReglagesMots reglages{.LargeurTexte = 40000, .ColonnesTexte = colonnes, .PasListe = 195};
        const MotsDisposes disposes = disposerMots(texte, reglages, metriquesFixes);
        EXPECT_EQ(disposes.lignesParColonne, parColonne) << lignes << " lines, " << colonnes;
    }
}

TEST(WordLayout, TheSecondColumnStartsAtItsWidth) {
    Texte texte;
    for (char c = 'a'; c < 'a' + 11; ++c)
        texte += Texte{c} + " x\r";
    const ReglagesMots reglages{
        .depart = 5000, .haut = 300, .LargeurTexte = 6000, .ColonnesTexte = 2, .PasListe = 195};
    const MotsDisposes disposes = disposerMots(texte, reglages, metriquesFixes);
    const Mot &finColonne = disposes.mots[11], &second = disposes.mots[12];
    EXPECT_EQ((std::vector{finColonne.gauche, finColonne.haut}), (std::vector<Twips>{5230, 300 + 5 * 195}));
    EXPECT_EQ((std::vector{second.gauche, second.haut}), (std::vector<Twips>{8000, 300}));
}

} // namespace
