#include "formats/FichierRtr.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::rtr;

namespace {

const Reglages POINT{.separateurDecimal = '.'};
const Reglages VIRGULE{.separateurDecimal = ','};

const std::string TETE = " 125.5 \r\n<|OBS|\r\nEntretien r\xE9"
                         "alis\xE9\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n3,1\r\n>|ATTR|\r\n";
const std::string EXEMPLE = TETE +
                            "::10.00::001\r\nBonjour.\r\n::12.50::\r\n::20.25::004 Famille\r\nMes parents\r\n"
                            "habitaient ici.\r\n::31.00::\r\n";

TEST(TranscriptFile, AbsorbsEmptyLines) {
    const Lecture lecture = lire(EXEMPLE, "a.Rtr");
    ASSERT_EQ(lecture.extraits.size(), 3U);
    EXPECT_EQ(lecture.extraits[2], (Extrait{"20.25", "31.00", "004", "Mes parents\rhabitaient ici.\r"}));
    EXPECT_NO_THROW(verifier(EXEMPLE, lecture, "a.Rtr", POINT));
    const std::pair<std::string, std::string> cas[] = {{"", ""},
                                                       {"\r\n\r\n\r\n", "\r"},
                                                       {"a\r\r\n\r\rb\r", "a\rb\r"},
                                                       {"\r\na\r\n", "\ra\r"},
                                                       {"une\nseule\r\n", "une\nseule\r"},
                                                       {" : \r\n", " : \r"}};
    for (const auto& [corps, texte] : cas)
        EXPECT_EQ(lire("1\r\n::1::000\r\n" + corps + "::2::\r\n", "").extraits.at(1).texte, texte) << corps;
    const Lecture marque = lire("1\r::1::000\ra\rx::9::y\rb\r::2::\rc\r::3::\r", "");
    ASSERT_EQ(marque.extraits.size(), 3U);
    EXPECT_EQ(marque.extraits[1], (Extrait{"1", "9", "000", "a\rb\r"}));
    EXPECT_EQ(marque.extraits[2], (Extrait{"2", "3", "", "c\r"}));
}

TEST(TranscriptFile, OfThisProgramComesBackByteForByte) {
    const std::vector<Extrait> extraits = {
        {}, {"0,00", "1,5", "001", "\r"}, {"1,5", "12", "", "un\rdeux\r"}, {"3", "2", "01", "\r"}};
    const std::pair<std::string, Reglages> cas[] = {
        {nouveau(0.5F, VIRGULE), VIRGULE},
        {ecrireApres(nouveau(62.25F, VIRGULE), extraits, {}, VIRGULE), VIRGULE},
        {TETE + "::1.25::000\r\na\r\r\n::2.00::\r\n", POINT},
        // A header that this program doesn't write is kept as it stands.
        {" 60\r<|OBS|\rnote\n\r>|OBS|\r\n::1.00::001\r\nt\r\r\n::2.00::\r\n", POINT},
        {"::1.00::001\r\nt\r\r\n::2.00::\r\n", POINT}};
    for (const auto& [octets, reglages] : cas) {
        const Lecture lecture = lire(octets, "a.Rtr");
        EXPECT_EQ(ecrireApres(lecture.enTete, lecture.extraits, {}, reglages), octets);
    }
}

/// "/" stands for a line end of the normal form.
TEST(TranscriptFile, RewritesItsHeaderAndLeavesTheLinesOfNoSection) {
    const auto octets = [](std::string lignes) {
        for (std::size_t p = 0; (p = lignes.find('/', p)) != std::string::npos; p += 2)
            lignes.replace(p, 1, "\r\n");
        return lignes;
    };
    const std::string vides = "<|OBS|//>|OBS|/<|ATTR|/>|ATTR|/";
    const std::pair<std::string, std::string> cas[] = {
        {"60/::1.00::0/t/::2.00::/", " 60 /" + vides},
        {" 60 /<|OBS|/\r/Note\rfin/>|OBS|/<|ATTR|/3,0/99,41//1,2/>|ATTR|/",
         " 60 /<|OBS|/Note\rfin\r/>|OBS|/<|ATTR|/1,2/99,41/>|ATTR|/"},
        {"60/avant/<|OBS|/>|OBS|/entre//<|ATTR|/>|ATTR|/fin/",
         " 60 /avant/<|OBS|//>|OBS|/entre//<|ATTR|/>|ATTR|/fin/"},
        {"60/note/<|ATTR|/1,2/>|ATTR|/", " 60 /note/<|ATTR|/1,2/>|ATTR|/<|OBS|//>|OBS|/"},
        {"60/" + vides + "<|OBS|/autre/>|OBS|/", " 60 /" + vides + "<|OBS|/autre/>|OBS|/"}};
    for (const auto& [avant, apres] : cas)
        EXPECT_EQ(reecrireEnTete(octets(avant), "", POINT), octets(apres)) << avant;
}

TEST(TranscriptFile, OfAnotherSystemsEditorIsReadWholeAndRewrittenInItsNormalForm) {
    std::string lf = EXEMPLE;
    std::erase(lf, '\r');
    const Lecture lecture = lire(lf, "");
    EXPECT_NO_THROW(verifier(lf, lecture, "", POINT));
    EXPECT_EQ(lecture.extraits, lire(EXEMPLE, "").extraits);
    EXPECT_EQ(lecture.enTete, TETE);
    EXPECT_EQ(lireAttributs(lf, ""), lireAttributs(EXEMPLE, ""));
    const Extrait nouvel{"11.00", "12.00", "002", "un\rdeux\r"};
    EXPECT_EQ(inserer(lf, nouvel, 11, POINT, ""), inserer(EXEMPLE, nouvel, 11, POINT, ""));
}

TEST(TranscriptFile, RefusesEveryTextThatItCouldNotReadBack) {
    for (const Texte& texte : {Texte("a ::b"), Texte("a\rb\0", 4)}) {
        const Extrait extrait{"1", "2", "000", texte};
        EXPECT_THROW(exigerTexte(texte, "Les observations"), FauteExecution) << texte;
        EXPECT_THROW(ecrireApres({}, {{}, extrait}, {}, POINT), FauteExecution) << texte;
        EXPECT_THROW(inserer(EXEMPLE, extrait, 1, POINT, ""), FauteExecution) << texte;
        EXPECT_THROW(creerAvec(60, extrait, POINT), FauteExecution) << texte;
    }
    EXPECT_THROW(creerAvec(60, {"1", "2", "0\r0", "a : b:"}, POINT), FauteExecution);
    EXPECT_NO_THROW(ecrireApres({}, {{}, {"1", "2", "001 Ici::et", "a : b:"}}, {}, POINT));
}

TEST(TranscriptFile, WritesRoundedTimesAndTheChosenExtracts) {
    const std::vector<Extrait> extraits = {{},
                                           {"-0.5", "1", "000", ""},
                                           {"1.005", "12", "004 Vie", "t"},
                                           {"2e1", "3", "", "\r"},
                                           {"0", "4", "000", "z"}};
    const std::string tete = " 0.5 \r\n";
    const std::string un = "::-0.50::000\r\n\r\n::1.00::\r\n", deux = "::1.01::004 Vie\r\nt\r\n::12.00::\r\n",
                      trois = "::20.00::\r\n\r\r\n::3.00::\r\n::0.00::000\r\nz\r\n::4.00::\r\n";
    EXPECT_EQ(ecrireApres(tete, extraits, {}, POINT), tete + un + deux + trois);
    EXPECT_EQ(ecrireApres(tete, extraits, {.sauterNegatifs = true}, POINT), tete + deux + trois);
    EXPECT_EQ(ecrireApres(tete, extraits, {.exclu = 2}, POINT), tete + un + trois);
    EXPECT_THROW(ecrireApres({}, {{}, {"", "1", "000", ""}}, {}, POINT), FauteExecution);
}

TEST(TranscriptFile, InsertsBeforeTheFirstGreaterStart) {
    const Extrait nouvel{"20.25", "25.00", "002", "un\rdeux\r"};
    const std::string bloc = "::20.25::002\r\nun\r\ndeux\r\n\r\n::25.00::\r\n";
    // The start, and what the extract is to stand before; empty: the end.
    const std::pair<double, const char*> cas[] = {
        {9.99, "::10.00::"}, {10, "::20.25::"}, {20.249, "::20.25::"}, {20.25, ""}, {99, ""}};
    for (const auto& [debut, avant] : cas) {
        std::string attendu = EXEMPLE;
        attendu.insert(!*avant ? attendu.size() : attendu.find(avant), bloc);
        EXPECT_EQ(inserer(EXEMPLE, nouvel, debut, POINT, ""), attendu) << debut;
    }
    EXPECT_EQ(inserer("1\r::5,5::000\ra\r::6::\r::2::000\r::3::", nouvel, 5.4, VIRGULE, ""),
              "1\r\n" + bloc + "::5,5::000\r\na\r\n::6::\r\n::2::000\r\n::3::\r\n");
}

TEST(TranscriptFile, RefusesWithTheLineAndKeepsWhatIsRead) {
    std::string dixMille = "1\r\n";
    for (int n = 0; n < 10000; ++n)
        dixMille += "::1.00::000\r\n::2.00::\r\n";
    const std::tuple<std::string, std::size_t, std::size_t> cas[] = {
        // line 0: accepted
        {EXEMPLE, 0, 2},
        {" 60 \r\n::1.00::001\r::2.00::\r\n", 0, 1},
        {"1\r\n::1.00::000\r\na\r\n::2.00::\r\nstd::string\r\n::3.00::000\r\n", 5, 1},
        {"1\r\n::1.00::000\r\n::\r\n", 3, 1},
        {"1\r\n:::1.00::000\r\n", 2, 0},
        {dixMille, 20000, 9999},
        {std::string("1\r\na\0b\r\n", 8), 2, 0},
        {"", 1, 0},
        {"bonjour\r\n", 1, 0},
        {"::1.00::000\r\n::2.00::\r\n", 1, 1},
        {"1\r\n<|OBS|\r\nx\r\n::1.00::000\r\n::2.00::\r\n", 2, 1},
        {"1\r\n>|OBS|\r\n", 2, 0},
        {"1\r\n<|ATTR|\r\n1,2\r\n", 2, 0},
        {"1\r\n<|ATTR|\r\n1\r\n>|ATTR|\r\n", 3, 0},
        {"1\r\n::1.00::000\r\ntexte\r\n", 2, 1},
        {"1\r\n:: ::000\r\n::2.00::\r\n", 2, 1},
        {"1\r\n::1.00::000\r\n::fin::\r\n", 3, 1},
        {"1" + std::string(39, ' ') + "\r\n", 0, 0},
        {"1" + std::string(40, ' ') + "\r\n", 1, 0},
        {"1\r\n::1.00::000\r\n::" + std::string(900000, '1') + "::\r\n", 3, 1}};
    for (const auto& [octets, ligne, lus] : cas) {
        Lecture lecture;
        std::size_t fautive = 0;
        try {
            lire(octets, "a.Rtr", lecture);
            verifier(octets, lecture, "a.Rtr", POINT);
        } catch (const FauteExecution& faute) {
            EXPECT_EQ(faute.fichier(), "a.Rtr");
            fautive = faute.ligne();
            EXPECT_LT(faute.quoi().size(), 200U);
        }
        EXPECT_EQ(fautive, ligne) << octets.substr(0, 60);
        EXPECT_EQ(lecture.extraits.size(), lus + 1) << octets.substr(0, 60);
    }
}

TEST(TranscriptFile, AttributesAreTakenAllOrNone) {
    for (const char* ligne : {"100,1", "0,1", "1", "1,100", "1,-1", "1,un", ",1"})
        EXPECT_THROW(lireAttributs(std::string("1\r\n<|ATTR|\r\n2,3\r\n") + ligne, ""), FauteExecution)
            << ligne;
}

} // namespace
