#include "platform/Emplacements.h"
#include "support/DossierTemporaire.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/jetons.h"
#include "textfile/lignes.h"

using namespace vermo;
using namespace vermo::essai;

namespace {

TEST(Text, EveryByteSurvivesTheRoundTrip) {
    std::string tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    EXPECT_EQ(depuisUtf8(versUtf8(tous)), tous);
    EXPECT_EQ(versUtf8("\x80\x8C\x92\x99\x9F\xE9\xFF"), "€Œ’™Ÿéÿ");
    EXPECT_EQ(versUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Text, RefusedCharactersAreNamed) {
    EXPECT_EQ(caracteresRefuses("été → 日€😀\u0080e\u0301"),
              (std::vector<CaractereRefuse>{{4, "→"}, {6, "日"}, {8, "😀"}, {9, "\u0080"}, {11, "\u0301"}}));
    EXPECT_TRUE(caracteresRefuses("Œuvre — « naïve »…").empty());
    // Stray, cut, overlong, surrogate, beyond the last code point: never taken for a character.
    for (const char* faux : {"\xE9", "\x80", "\xC3", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                             "\xF4\x90\x80\x80"}) {
        EXPECT_THROW(depuisUtf8(faux), FauteExecution);
        EXPECT_EQ(caracteresRefuses(faux).front(), (CaractereRefuse{0, "\uFFFD"}));
    }
}

/// All that a reader of `texte` gives, each followed by "|".
template <class Lecteur, class Morceau>
std::string morceaux(const std::string& texte, bool (Lecteur::*suivant)(Morceau&)) {
    Lecteur lecteur(texte);
    Morceau morceau;
    std::string lus;
    while ((lecteur.*suivant)(morceau))
        lus += std::string(morceau) + "|";
    return lus;
}

TEST(Pieces, LinesAndItems) {
    const std::pair<std::string, std::string> lignes[] = {
        {"", ""},
        {"a\r\r\n\rb\r", "a|||b|"},
        {"a\nb\r\n", "a\nb|"},
        {"a\r\n\n", "a|\n|"},
        {"a\n\nb\n", "a||b|"},
        {"\na\tb", "|a\tb|"},
        {"fin", "fin|"},
        {std::string("a\0b\r\n", 5), std::string("a\0b|", 4)}};
    for (const auto& [texte, attendus] : lignes)
        EXPECT_EQ(morceaux(texte, &Lignes::suivante), attendus) << texte;
    const std::pair<std::string, std::string> jetons[] = {
        {"", ""},
        {" a b , c\r\n", "a b |c|"},
        {"a,\r\n,b\r", "a|||b|"},
        {"\"a,b\"\r\n\"c\",d", "a,b|c|d|"},
        {"\"dit \"oui\" et non\"\r\nx", "dit \"oui\" et non|x|"},
        {"\"\",x", "|x|"},
        {"\"sans fin, ni guillemet\r\nsuite", "sans fin, ni guillemet|suite|"},
        {"a\"b,c\"", "a\"b|c\"|"}};
    for (const auto& [texte, attendus] : jetons)
        EXPECT_EQ(morceaux(texte, &Jetons::suivant), attendus) << texte;
}

TEST(Paths, Parts) {
    EXPECT_EQ(repertoireDe("/a/b.c/d") + "|" + repertoireDe("d"), "/a/b.c/|");
    EXPECT_EQ(nomDe("/a/b.c/d") + nomDe("e"), "de");
    EXPECT_EQ(compagnon("a b.wav", "Rtr") + "|" + compagnon("son.flac", "Rtr"), "a b.Rtr|son.fRtr");
    EXPECT_EQ(compagnon("abc", "Rtr") + compagnon("ab", "Rtr"), "RtrRtr");
    EXPECT_EQ(extension3("x.Wav") + extension3("abc") + extension3("ab"), "WAVABCAB");
}

TEST(Paths, AreFoundWhateverTheirCaseAndAccents) {
    const DossierTemporaire dossier;
    for (const char* nom : {"Entretien Été.WAV", "a.rtr", "A.Rtr", "a.rtR", "B.wav", "b.wav", "sous/C.wav",
                            "日\xE9.Rtr", "Re\u0301el/Garc\u0327on.wav"})
        dossier.ecrire(nom, "");
    const std::pair<std::string, std::string> cas[] = {{"entretien éTÉ.wav", "Entretien Été.WAV"},
                                                       {"a.rtr", "a.rtr"},
                                                       {"a.RTR", "A.Rtr"},
                                                       {"b.WAV", "B.wav"},
                                                       {"sous/c.wav", "sous/C.wav"},
                                                       {"日\xE9.RTR", "日\xE9.Rtr"},
                                                       {"entretien E\u0301te\u0301.wav", "Entretien Été.WAV"},
                                                       {"Réel/garçon.WAV", "Re\u0301el/Garc\u0327on.wav"},
                                                       {"entretien ete.wav", ""},
                                                       {"absent", ""}};
    for (const Utf8& repertoire : {dossier.chemin(), dossier.chemin().substr(0, dossier.chemin().size() - 1)})
        for (const auto& [cherche, nom] : cas) {
            const auto attendu = nom.empty() ? std::nullopt : std::optional(dossier.chemin(nom));
            const Utf8 chemin = dossier.chemin(cherche), reel = attendu.value_or(chemin);
            EXPECT_EQ(trouver(chemin), attendu) << cherche;
            EXPECT_EQ(cheminReel(chemin), reel);
            const IndexRepertoire index(repertoire);
            EXPECT_EQ(index.trouver(cherche), attendu) << cherche;
            EXPECT_EQ(index.voir(cherche).value_or(FichierVu()).identite, identiteFichier(reel));
        }
    EXPECT_EQ(IndexRepertoire("/absent").trouver("a.rtr"), std::nullopt);
    EXPECT_EQ(IndexRepertoire("").trouver("absent.rtr"), std::nullopt);
}

TEST(Places, WhereToReadAndWhereToWrite) {
    const DossierTemporaire dossier;
    dossier.ecrire("donnees/Vermo.mp3", "");
    dossier.ecrire("prog/Projets.ini", "");
    Emplacements e{dossier.chemin("prog/"), dossier.chemin("donnees/"), dossier.chemin("moi/share/vermo/")};
    EXPECT_EQ(e.fichierLu("vermo.mp3"), dossier.chemin("donnees/Vermo.mp3"));
    EXPECT_EQ(e.fichierEcrit("projets.INI"), dossier.chemin("prog/Projets.ini"));
    e.programme = dossier.chemin("absent/");
    EXPECT_EQ(e.fichierEcrit("Projets.ini"), dossier.chemin("moi/share/vermo/Projets.ini"));
    EXPECT_TRUE(dossier.existe("moi/share/vermo"));
    e.donneesPersonne = dossier.chemin("prog/Projets.ini/x/");
    EXPECT_THROW(e.fichierEcrit("Projets.ini"), FauteExecution);
}

} // namespace
