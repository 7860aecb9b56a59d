#include "platform/Emplacements.h"
#include "support/DossierTemporaire.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/jetons.h"
#include "textfile/lignes.h"

#include <gtest/gtest.h>
#include <set>

namespace vermo {
namespace {

using Suite = std::vector<std::string>;

TEST(Texte, ChaqueOctetSurvitALAllerRetour) {
    std::string tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    EXPECT_EQ(depuisUtf8(versUtf8(tous)), tous);
    EXPECT_EQ(versUtf8("\x80\x8C\x92\x99\x9F\xE9\xFF"), "€Œ’™Ÿéÿ");
    EXPECT_EQ(versUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    std::set<char32_t> points;
    for (int i = 0; i < 256; ++i)
        points.insert(pointDeCode(static_cast<unsigned char>(i)));
    EXPECT_EQ(points.size(), 256u);
}

TEST(Texte, CaracteresRefusesSontNommes) {
    EXPECT_EQ(caracteresRefuses("été → 日€😀\u0080"),
              (std::vector<CaractereRefuse>{{4, "→"}, {6, "日"}, {8, "😀"}, {9, "\u0080"}}));
    EXPECT_TRUE(caracteresRefuses("Œuvre — « naïve »…").empty());
    try {
        depuisUtf8("été→");
        FAIL();
    } catch (const FauteExecution& f) {
        EXPECT_EQ(f.quoi(), "Le caractère « → » (position 4) ne peut pas être enregistré");
    }
    // Stray, cut, overlong, surrogate, beyond the last code point: never taken for a character.
    for (const char* faux : {"\xE9", "\x80", "\xC3", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                             "\xF4\x90\x80\x80"}) {
        EXPECT_THROW(depuisUtf8(faux), FauteExecution);
        EXPECT_EQ(caracteresRefuses(faux).front(), (CaractereRefuse{0, "\uFFFD"}));
    }
}

TEST(Texte, Majuscules) {
    EXPECT_EQ(majuscules(depuisUtf8("aàâæçéèêëîïôœùûüÿšžñøþ÷ßµƒ×Éz€")),
              depuisUtf8("AÀÂÆÇÉÈÊËÎÏÔŒÙÛÜŸŠŽÑØÞ÷ßµƒ×ÉZ€"));
    EXPECT_EQ(majusculesUtf8("été œ日\xE9z"), "ÉTÉ Œ日\xE9Z");
}

TEST(Lignes, Fins) {
    const struct {
        std::string texte;
        Suite lignes;
    } cas[] = {{"", {}},
               {"a", {"a"}},
               {"a\r\nb\r\n", {"a", "b"}},
               {"a\rb", {"a", "b"}},
               {"a\r\r\n\rb\r", {"a", "", "", "b"}},
               {"a\nb\r\n", {"a\nb"}},
               {"\r\n", {""}},
               {"a\r\n\n", {"a", "\n"}},
               {std::string("a\0b\r\n", 5), {std::string("a\0b", 3)}}};
    for (const auto& c : cas) {
        Lignes lignes(c.texte);
        Suite lues;
        std::string_view ligne;
        while (lignes.suivante(ligne))
            lues.emplace_back(ligne);
        EXPECT_EQ(lues, c.lignes) << c.texte;
        EXPECT_EQ(lignes.numero(), c.lignes.size());
    }
}

TEST(Lignes, JusquaLaBalise) {
    Lignes lignes("1\r\nxx<|THEM|yy\r\nsuite\r\n");
    EXPECT_TRUE(lignes.jusqua("<|THEM|"));
    EXPECT_EQ(lignes.numero(), 2u);
    EXPECT_EQ(lignes.reste(), "suite\r\n");
    EXPECT_FALSE(lignes.jusqua("<|THEM|"));
    EXPECT_EQ(lignes.reste(), "");
}

TEST(Jetons, Items) {
    const struct {
        std::string texte;
        Suite items;
    } cas[] = {{"", {}},
               {"  ", {}},
               {"a,b\r\nc", {"a", "b", "c"}},
               {" a b , c\r\n", {"a b ", "c"}},
               {"a,\r\n,b\r", {"a", "", "", "b"}},
               {"\"a,b\"\r\n\"c\",d", {"a,b", "c", "d"}},
               {"\"dit \"oui\" et non\"\r\nx", {"dit \"oui\" et non", "x"}},
               {"\"\",x", {"", "x"}},
               {"\"sans fin, ni guillemet\r\nsuite", {"sans fin, ni guillemet", "suite"}},
               {"\"", {""}},
               {"a\"b,c\"", {"a\"b", "c\""}}};
    for (const auto& c : cas) {
        Jetons jetons(c.texte);
        Suite lus;
        for (Texte item; jetons.suivant(item);)
            lus.push_back(item);
        EXPECT_EQ(lus, c.items) << c.texte;
    }
}

TEST(Jetons, EcritureEntreGuillemetsSeRelit) {
    for (const std::string texte : {"001,255,Nom \"rare\"", "", "a,b", "\"x\"", "une \"fin\""}) {
        std::string sortie;
        ecrireEntreGuillemets(sortie, texte);
        ecrireLigne(sortie, "apres");
        Jetons jetons(sortie);
        Texte item;
        ASSERT_TRUE(jetons.suivant(item));
        EXPECT_EQ(item, texte);
        ASSERT_TRUE(jetons.suivant(item));
        EXPECT_EQ(item, "apres");
    }
}

TEST(Chemins, Morceaux) {
    EXPECT_EQ(repertoireDe("/a/b.c/d"), "/a/b.c/");
    EXPECT_EQ(repertoireDe("d"), "");
    EXPECT_EQ(nomDe("/a/b.c/d"), "d");
    EXPECT_EQ(nomDe("d"), "d");
    EXPECT_EQ(compagnon("a b.wav", "Rtr"), "a b.Rtr");
    EXPECT_EQ(compagnon("son.flac", "Rtr"), "son.fRtr");
    EXPECT_EQ(compagnon("ab", "Rtr"), "Rtr");
    EXPECT_EQ(extension3("x.Wav"), "WAV");
    EXPECT_EQ(extension3("ab"), "AB");
}

TEST(Chemins, TrouveMalgreLaCasse) {
    const essai::DossierTemporaire dossier;
    for (const char* nom : {"Entretien Été.WAV", "a.rtr", "A.Rtr", "a.rtR", "日\xE9.Rtr"})
        dossier.ecrire(nom, "");
    const IndexRepertoire index(dossier.chemin().substr(0, dossier.chemin().size() - 1));
    const std::pair<std::string, std::string> cas[] = {{"entretien éTÉ.wav", "Entretien Été.WAV"},
                                                       {"a.rtr", "a.rtr"},
                                                       {"a.RTR", "A.Rtr"},
                                                       {"日\xE9.RTR", "日\xE9.Rtr"},
                                                       {"entretien ete.wav", ""},
                                                       {"absent", ""}};
    for (const auto& [cherche, nom] : cas) {
        const auto attendu = nom.empty() ? std::nullopt : std::optional(dossier.chemin(nom));
        EXPECT_EQ(trouver(dossier.chemin(cherche)), attendu) << cherche;
        EXPECT_EQ(index.trouver(cherche), attendu) << cherche;
        EXPECT_EQ(cheminReel(dossier.chemin(cherche)), attendu.value_or(dossier.chemin(cherche)));
    }
    EXPECT_EQ(trouver("/absent/a.rtr"), std::nullopt);
    EXPECT_EQ(IndexRepertoire("/absent").trouver("a.rtr"), std::nullopt);
}

TEST(Emplacements, OuLireEtOuEcrire) {
    const essai::DossierTemporaire dossier;
    dossier.ecrire("donnees/Vermo.mp3", "");
    dossier.ecrire("prog/Projets.ini", "");
    Emplacements e{dossier.chemin("prog/"), dossier.chemin("donnees/"), dossier.chemin("moi/share/vermo/")};
    EXPECT_EQ(e.fichierLu("vermo.mp3"), dossier.chemin("donnees/Vermo.mp3"));
    dossier.ecrire("prog/Vermo.mp3", "");
    EXPECT_EQ(e.fichierLu("Vermo.mp3"), dossier.chemin("prog/Vermo.mp3"));
    EXPECT_EQ(e.fichierLu("absent"), "");
    EXPECT_EQ(e.fichierEcrit("projets.INI"), dossier.chemin("prog/Projets.ini"));
    EXPECT_EQ(e.fichierEcrit("neuf"), dossier.chemin("prog/neuf"));
    EXPECT_FALSE(dossier.existe("moi"));
    e.programme = dossier.chemin("absent/");
    EXPECT_EQ(e.fichierEcrit("Projets.ini"), dossier.chemin("moi/share/vermo/Projets.ini"));
    EXPECT_TRUE(dossier.existe("moi/share/vermo"));
    e.donneesPersonne = dossier.chemin("prog/Projets.ini/x/");
    EXPECT_THROW(e.fichierEcrit("Projets.ini"), FauteExecution);
}

} // namespace
} // namespace vermo
