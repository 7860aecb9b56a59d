#include "formats/FichierCorpus.h"

#include "formats/EnTeteWav.h"
#include "formats/Projets.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::crp;

namespace {

const std::string CORPUS =
    depuisUtf8("Projet crée le 03/04/2009 à 14:05:06\r\n<|THEM|\r\n000,&H0, Pas de thématique\r\n"
               "001,255,Famille, enfance\r\n>|THEM|\r\n<|POS|\r\n4,Profession\r\n>|POS|\r\n<|DIC|\r\n"
               "4,1,Enseignant, chercheur\r\n>|DIC|\r\n<|ENTR|\r\na.wav\r\n>|ENTR|\r\n");

/// As an editor of another system leaves it.
std::string enLf(std::string octets) {
    std::erase(octets, '\r');
    return octets;
}

TEST(CorpusFile, OfAnotherSystemsEditorIsReadWholeAndRewrittenInItsNormalForm) {
    const std::vector<Thematique> rangs = {{"001", "255", "Un"}};
    EXPECT_EQ(lireThematiques(enLf(CORPUS), ""), lireThematiques(CORPUS, ""));
    EXPECT_EQ(lireEntretiens(enLf(CORPUS)), lireEntretiens(CORPUS));
    EXPECT_EQ(ecrireThematiques(enLf(CORPUS), rangs), ecrireThematiques(CORPUS, rangs));
    EXPECT_EQ(ecrireEntretiens(enLf(CORPUS), {"b.wav"}), ecrireEntretiens(CORPUS, {"b.wav"}));
    EXPECT_EQ(ecrireEntretiens("<|ENTR|\r>|ENTR|\ra\nb", {}), "<|ENTR|\r\n>|ENTR|\r\n\"a\nb\"\r\n");
}

TEST(CorpusFile, ReadsItsFourSections) {
    using Textes = std::vector<Texte>;
    EXPECT_EQ(lireThematiques(CORPUS, "c.Crp"),
              (std::vector<Thematique>{{"000", "&H0", " Pas de th\xE9matique"},
                                       {"001", "255", "Famille, enfance"}}));
    EXPECT_EQ(lirePos(CORPUS, "c.Crp"), (std::vector<LigneVariable>{{"4", "Profession"}}));
    EXPECT_EQ(lireDic(CORPUS, "c.Crp"), (std::vector<LigneModalite>{{4, 1, "Enseignant, chercheur"}}));
    const std::pair<std::string, std::optional<Textes>> cas[] = {
        {CORPUS, Textes{"a.wav"}},
        {"<|THEM|\r\n>|THEM|\r\na.wav\r\n>|ENTR|\r\n", std::nullopt},
        {"xx<|ENTR|yy\ra.wav\r\r\nb.wav\rz>|ENTR|z\rc.wav\r", Textes{"a.wav", "b.wav"}},
        {"<|ENTR|\r\na.wav", Textes{"a.wav"}},
        {"<|ENTR|", Textes{}}};
    for (const auto& [octets, entretiens] : cas)
        EXPECT_EQ(lireEntretiens(octets), entretiens) << octets;
}

/// `ligne` many times.
std::string fois(int nombre, const std::string& ligne) {
    std::string toutes;
    while (nombre-- > 0)
        toutes += ligne;
    return toutes;
}

TEST(CorpusFile, RefusesWithTheLine) {
    const std::tuple<std::string, std::string, std::size_t> cas[] = {
        {"THEM", "000,0,a\r\n\r\n001 0 b\r\n", 4},
        {"THEM", "000,0 a\r\n", 2},
        {"THEM", fois(999, "000,0,a\r\n"), 0},
        {"THEM", "000,rouge,a\r\n", 2},
        {"THEM", std::string("000,0,a\0b\r\n", 11), 2},
        {"THEM", fois(1000, "000,0,a\r\n"), 1001},
        {"POS", "Sexe\r\n", 2},
        {"POS", "1,Sexe\r\n99,Age\r\n100,Lieu\r\n", 4},
        {"POS", "1,Sexe\r\n0,Age\r\n", 3},
        {"DIC", "4,1\r\n", 2},
        {"DIC", "4,0,Non\r\n", 2},
        {"DIC", "4,99999999999,Non\r\n", 2},
        {"ENTR", fois(1000, "a.wav\r\n"), 1001},
        {"ENTR", std::string("a\0.wav", 6), 2}};
    for (const auto& [section, contenu, ligne] : cas) {
        const std::string octets = "<|" + section + "|\r\n" + contenu;
        std::size_t fautive = 0;
        try {
            lireThematiques(octets, "c.Crp", 999);
            lirePos(octets, "c.Crp");
            lireDic(octets, "c.Crp");
            lireEntretiens(octets, "c.Crp", 999);
        } catch (const FauteExecution& faute) {
            EXPECT_EQ(faute.fichier(), "c.Crp");
            fautive = faute.ligne();
        }
        EXPECT_EQ(fautive, ligne) << contenu.substr(0, 40);
    }
}

TEST(CorpusFile, RewritingThematicsKeepsNamesAndDropsEmptyCodes) {
    const std::vector<Thematique> rangs = {{"000", "&H0", " Pas de th\xE9matique"},
                                           {"", "255", "perdue"},
                                           {"002", "16711680", " \"La\", vie \"dite\"\" bonne\""},
                                           {"003", "1", "\"Jo\", boulanger"}};
    const std::string ecrit = CORPUS.substr(0, CORPUS.find("001,255")) +
                              "002,16711680, \"La\", vie \"dite\"\" bonne\"\r\n003,1,\"Jo\", boulanger\r\n" +
                              CORPUS.substr(CORPUS.find(">|THEM|"));
    EXPECT_EQ(ecrireThematiques(CORPUS, rangs), ecrit);
    EXPECT_EQ(ecrireThematiques(ecrit, lireThematiques(ecrit, "").value()), ecrit);
    // The head alone is split at its commas.
    EXPECT_EQ(ecrireThematiques(
                  "Projet, dit  test\r \"entre, guillemets\"\rx <|THEM|\rvieux\r>|THEM|\r a, \"b\"\r\rfin",
                  {{"000", "0", "n"}}),
              "Projet\r\ndit  test\r\nentre, guillemets\r\nx <|THEM|\r\n000,0,n\r\n>|THEM|\r\n a, "
              "\"b\"\r\n\r\nfin\r\n");
    EXPECT_EQ(ecrireThematiques("sans balise\r\n", {}), std::nullopt);
}

TEST(CorpusFile, RewritingInterviewsQuotesWhatFollows) {
    const std::string ecrit = "Projet, le 3\r\n<|THEM|\r\n>|THEM|\r\n<|ENTR|\r\na, b.wav\r\n\"c\".mp3\r\n"
                              ">|ENTR|\r\n\"une, note\"\r\n\"\"\r\n";
    EXPECT_EQ(ecrireEntretiens("Projet, le 3\r<|THEM|\r>|THEM|\r<|ENTR|\rvieux.wav\r>|ENTR|\rune, note\r\r",
                               {"a, b.wav", "", "\"c\".mp3"}),
              ecrit);
    EXPECT_EQ(lireEntretiens(ecrit), (std::vector<Texte>{"a, b.wav", "\"c\".mp3"}));
    EXPECT_EQ(ecrireEntretiens("<|ENTR|\r\na.wav", {"b.wav"}), "<|ENTR|\r\nb.wav\r\n>|ENTR|\r\n");
    EXPECT_FALSE(ecrireEntretiens("", {"a.wav"}));
    const auto liste = [](const std::string& noms) { return "<|ENTR|\r\n" + noms + ">|ENTR|\r\n"; };
    const std::string ancienne = liste("/etc/x\r\na.wav\r\n\r\n..\r\nb..wav\r\nc\\d.wav\r\n");
    EXPECT_EQ(ecrireEntretiens(ancienne, {"b..wav", "a.wav"}),
              liste("/etc/x\r\nb..wav\r\n..\r\na.wav\r\nc\\d.wav\r\n"));
    EXPECT_EQ(ecrireEntretiens(ancienne, {}), liste("/etc/x\r\n..\r\nc\\d.wav\r\n"));
}

TEST(RecentFile, IsReadByItemsAndKeepsTheOthers) {
    const auto lus = projets::lire("/a/\xE9t\xE9.Crp\r\n\r\n\"/b, c.Crp\"\r\n/d,/e\r/a/\xE9t\xE9.Crp");
    EXPECT_EQ(lus, (std::vector<Utf8>{"/a/été.Crp", "/b, c.Crp", "/d", "/e", "/a/été.Crp"}));
    EXPECT_EQ(projets::lire("/a.Crp\n\n\"/b, c.Crp\""), (std::vector<Utf8>{"/a.Crp", "/b, c.Crp"}));
    for (const char* chemin : {"/a/été.Crp", "/a/e\u0301te\u0301.Crp"})
        EXPECT_EQ(projets::ecrire(chemin, lus), "/a/\xE9t\xE9.Crp\r\n/b, c.Crp\r\n/d\r\n/e\r\n");
    EXPECT_THROW(projets::ecrire("/中.Crp", {}), FauteExecution);
}

TEST(WaveHeader, FieldsStandAtTheirPlacesAndAreZeroBehindTheEnd) {
    const std::string octets("RIFF\x24\x01\x00\x00WAVEfmt \x10\x00\x00\x00\x01\x00\x02\x00\x44\xAC\x00\x00"
                             "\x10\xB1\x02\x00\x04\x00\x10\x00"
                             "data\xFE\xFF\xFF\xFFsuite",
                             49);
    const std::pair<std::size_t, EnTeteWav> cas[] = {
        {49, {"RIFF", 292, "WAVE", "fmt ", 16, 1, 2, 44100, 176400, 4, 16, "data", -2}},
        {25, {"RIFF", 292, "WAVE", "fmt ", 16, 1, 2, 0x44, 0, 0, 0, "", 0}},
        {0, {}}};
    for (const auto& [taille, attendu] : cas)
        EXPECT_EQ(lireEnTeteWav(octets.substr(0, taille)), attendu) << taille;
}

} // namespace
