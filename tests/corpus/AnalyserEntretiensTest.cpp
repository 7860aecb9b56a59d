#include "support/CorpusDEssai.h"

#include <filesystem>

using namespace vermo;
using namespace vermo::essai;

namespace {

TEST(Analysis, RowsAndFaults) {
    const std::string ok = "::1::001\r\nt\r\n::2::\r\n";
    const std::tuple<std::string, std::string, std::string> cas[] = {
        {ENTETE + std::string("::1,50::001\r\nun\r\ndeux\r\n::2,50::\r\n"), "1,50;2,50;001;un/deux/;", ""},
        // Empty lines stay, lone CRs are line ends, a lone LF is none.
        {ENTETE + std::string("::1::\r\na\r\r\n\rb\nc\r\n::2::"), "1;2;;a///b\nc/;", ""},
        // What follows a closing line belongs to the extract that it closed, also without a line end.
        {ENTETE + std::string("::1::001\rdans\r::2,25::suite\rapres\r::3::002\r::4::\rfin"),
         "1;2,25;001;dans/apres/;|3;4;002;fin/;", ""},
        // A text line that holds marks closes the extract, and what should close it opens another.
        {ENTETE + std::string("::1::001\r\nil dit ::5:: oui\r\n::2::\r\n::3::\r\n"), "1;5;001;;|2;3;;;", ""},
        {"", "", "1: Fichier vide : la durée manque."},
        {"abc\r\n" + ok, "", "1: La durée « abc » n'est pas un nombre."},
        {"-5\r\n" + ok, "", "1: La durée est négative."},
        {" 0 \r\n" + ok, "1;2;001;t/;", ""},
        {ENTETE + ok + "::3::002\r\ncoup", "1;2;001;t/;|3;;002;coup/;",
         "9: L'extrait 2 n'a pas de ligne de fin : la retranscription est coupée."},
        {ENTETE + ok + "heure :: non\r\n" + ok, "1;2;001;t/;",
         "9: Ligne de repère coupée : le second « :: » manque."},
        {ENTETE + ok + ":: ::001\r\n", "1;2;001;t/;", "9: Le début «   » n'est pas un nombre."},
        {ENTETE + std::string("::1::001\r\nt\r\n::x::\r\n"), "1;;001;t/;",
         "8: La fin « x » n'est pas un nombre."},
        {ENTETE + ok + "::1e300::001\r\n", "1;2;001;t/;", "9: Le début est hors de toute mesure."},
        {ENTETE + ok + std::string("a\0b\r\n", 5) + ok, "1;2;001;t/;",
         "9: Octet nul dans un fichier de texte."}};
    for (const auto& [octets, lignes, faute] : cas) {
        Session session;
        const LectureRtr lecture = analyser(octets, session.reglages, "e.Rtr");
        session.corpus.extraits = {{}, lecture.extraits};
        EXPECT_EQ(decrireExtraits(session, 1), lignes) << octets;
        EXPECT_EQ(lecture.faute ? std::to_string(lecture.faute->ligne()) + ": " + lecture.faute->quoi() : "",
                  faute)
            << octets;
    }
}

/// Three interviews: a good one, one under test, a good one.
struct Scan : testing::Test {
    CorpusDEssai essai;
    void ouvrir(const std::string& rtr) {
        essai.ajouterEntretien("a", ENTETE + std::string("::1::001\r\n::3::\r\n"));
        essai.ajouterEntretien("b", rtr);
        essai.ajouterEntretien("z", ENTETE + std::string("::1::001\r\n::2::\r\n"));
        essai.ecrireCorpus("000,&H0, Pas\r\n", "a.wav\r\nB.WAV\r\nz.wav\r\n");
        ASSERT_TRUE(essai.ouvrir());
    }
    const Entretien& entretien(std::size_t slot) { return essai.corpus().Entretiens[slot]; }
};

TEST_F(Scan, FillsTheInterviews) {
    ouvrir(" 50,0 \r\nx\r\n <|OBS| \r\nun\r\n\r\ndeux\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n>|ATTR|\r\n"
           "::10,00::001\r\nt\r\n::17,50::\r\n::20::002\r\n::17,5::\r\n");
    essai.analyser();
    EXPECT_FLOAT_EQ(entretien(2).Duree, 50);
    EXPECT_FLOAT_EQ(entretien(2).NbExtraits, 2);
    EXPECT_FLOAT_EQ(entretien(2).PrcRtr, 0.1F);
    EXPECT_EQ(entretien(2).Observations, "un\rdeux\r");
    EXPECT_GT(entretien(2).DateModif.secondes, 0);
    EXPECT_EQ(decrireExtraits(essai.session, 2), "10,00;17,50;001;t/;|20;17,5;002;;");
}

TEST_F(Scan, AnInterviewWithoutItsFilesIsToldAndKeepsWhatIsKnown) {
    ouvrir(ENTETE + std::string("::1::001\r\n::3::\r\n"));
    essai.analyser();
    for (const char* nom : {"c/b.wav", "c/b.Rtr"})
        std::filesystem::remove(essai.dossier().chemin(nom));
    essai.dialogues()
        .repondre(Reponse::Ok, "Impossible ouvrir le fichier : " + essai.dossier().chemin("c/B.WAV"))
        .repondre(Reponse::Ok, "l'entretien suivant : \nB.WAV\nSon fichier Rtr est introuvable");
    const DateHeure avant = entretien(2).DateModif;
    essai.analyser();
    EXPECT_EQ(entretien(2).DateModif, avant);
    EXPECT_FLOAT_EQ(entretien(2).Duree, 100);
    RelireEntretien(essai.session, essai.hote, 2);
    EXPECT_EQ(decrireExtraits(essai.session, 2), "");
    EXPECT_FLOAT_EQ(entretien(2).NbExtraits, 0);
}

TEST_F(Scan, AnUnchangedFileIsNotReadAgain) {
    const auto rtr = [](const char* texte) {
        return ENTETE + ("::1::001\r\n" + std::string(texte)) + "\r\n::2::\r\n";
    };
    ouvrir(rtr("un texte assez long"));
    essai.analyser();
    const std::filesystem::path chemin = essai.dossier().chemin("c/b.Rtr");
    const auto date = std::filesystem::last_write_time(chemin);
    const auto tampon = essai.corpus().extraits[2].tampon;
    // After a reopening in another order the same buffer serves.
    essai.ecrireCorpus("000,&H0, Pas\r\n", "z.wav\r\na.wav\r\nB.WAV\r\n");
    ASSERT_TRUE(essai.ouvrir());
    essai.analyser();
    EXPECT_EQ(essai.corpus().extraits[3].tampon, tampon);
    EXPECT_TRUE(essai.corpus().anciensExtraits.empty());
    EXPECT_EQ(decrireExtraits(essai.session, 3), "1;2;001;un texte assez long/;");
    EXPECT_FLOAT_EQ(entretien(3).Duree, 100);
    // Other bytes are seen even where their number and their date are the old ones.
    essai.dossier().ecrire("c/b.Rtr", rtr("UN TEXTE ASSEZ LONG"));
    std::filesystem::last_write_time(chemin, date);
    essai.analyser();
    EXPECT_EQ(decrireExtraits(essai.session, 3), "1;2;001;UN TEXTE ASSEZ LONG/;");
    const DateHeure avant = entretien(3).DateModif;
    std::filesystem::last_write_time(essai.dossier().chemin("c/b.wav"), date + std::chrono::hours(48));
    essai.analyser();
    EXPECT_GT(entretien(3).DateModif.secondes, avant.secondes + 86400);
}

TEST_F(Scan, AFaultIsToldOnceForEachStateOfItsFile) {
    ouvrir(ENTETE);
    std::filesystem::remove(essai.dossier().chemin("c/b.Rtr"));
    std::filesystem::create_directory(essai.dossier().chemin("c/b.Rtr"));
    const auto analyserDeuxFois = [&](const char* faute) {
        essai.dialogues().repondre(Reponse::Ok, faute);
        essai.analyser();
        essai.analyser();
    };
    analyserDeuxFois("c'est un répertoire");
    std::filesystem::remove(essai.dossier().chemin("c/b.Rtr"));
    essai.dossier().ecrire("c/b.Rtr", ENTETE + std::string("::1::001\r\n"));
    analyserDeuxFois("coupée");
    essai.dossier().ecrire("c/b.Rtr", ENTETE + std::string("::1::002\r\nautre\r\n"));
    analyserDeuxFois("coupée");
}

TEST(Analysis, FaultsAreToldInTheOrderOfTheRows) {
    CorpusDEssai essai;
    std::string liste;
    for (int i = 0; i < 60; ++i) {
        const std::string nom = "e" + std::to_string(i);
        // The first of them take longest to read.
        essai.ajouterEntretien(nom, "duree\r\n" + std::string(i < 2 ? 2'000'000 : 0, '\r'));
        essai.dialogues().repondre(Reponse::Ok, "/" + nom + ".Rtr");
        liste += nom + ".wav\r\n";
    }
    essai.ecrireCorpus("000,&H0, Sans\r\n", liste);
    ASSERT_TRUE(essai.ouvrir());
    essai.analyser();
    essai.analyser(); // each once
}

} // namespace
