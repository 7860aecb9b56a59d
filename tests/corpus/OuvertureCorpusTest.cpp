#include "corpus/EcritureCorpus.h"
#include "corpus/Ordre.h"
#include "support/CorpusDEssai.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

using essai::CorpusDEssai;
using essai::ENTETE;
using essai::ordre;

constexpr const char* PAS = "000,&H0, Pas de thematique\r\n";

TEST(Opening, ReadsWhatIsThere) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", ENTETE);
    essai.ajouterEntretien("b", ENTETE);
    essai.ecrireCorpus(PAS + std::string("\r\n001,255, Ecole, travail\r\n"),
                       "b.wav\r\n\r\nparti.wav\r\nA.Wav\r\n");
    essai.dialogues().repondre(Reponse::Ok);
    ASSERT_TRUE(essai.ouvrir(3660));
    EXPECT_EQ(essai.dialogues().dernier(), "Fichier introuvable|Le fichier parti.wav est introuvable.\\n"
                                           "Il ne sera pas ajouté au projet.|Ok|Exclamation -> Ok");
    EXPECT_EQ(ordre(essai.corpus()), "b.wav A.Wav ");
    EXPECT_EQ(essai.corpus().ThmNom[2], " Ecole, travail");
}

TEST(Opening, TellsInOneBoxEachWhatIsMissingAndWhatLeavesTheDirectory) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", ENTETE);
    essai.dossier().ecrire("secret.wav", "");
    std::string lignes = "../secret.wav\r\na.wav\r\n.\r\n";
    for (int i = 1; i <= 1000; ++i)
        lignes += "m" + std::to_string(i) + ".wav\r\n";
    essai.ecrireCorpus(PAS, lignes);
    essai.dialogues()
        .repondre(Reponse::Ok, "dans Essai.Crp :\n\nligne 10 : ../secret.wav\nligne 12 : .")
        .repondre(Reponse::Ok,
                  "1000 fichiers sont introuvables.\nIls ne seront pas ajoutés au projet.\n\nm1.wav\n");
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_NE(essai.dialogues().dernier().find("m20.wav\\net 980 de plus|"), std::string::npos);
    EXPECT_EQ(ordre(essai.corpus()), "a.wav ");
    for (int i = 1; i <= 1000; ++i)
        essai.dossier().ecrire("c/m" + std::to_string(i) + ".wav", "");
    EXPECT_THROW(lireEntretiens(essai.session, essai.hote), FauteExecution) << "now they exist";
}

TEST(Opening, RefusesWhatItCannotRead) {
    const std::pair<std::string, std::string> cas[] = {
        {"<|ENTR|\r\n>|ENTR|\r\n",
         "thématiques|Impossible de trouver la balise d'ouverture des thématiques.|Ok|Information -> Ok"},
        {"<|THEM|\r\n>|THEM|\r\n",
         "entretiens|Impossible de trouver la balise d'ouverture des entretiens.|Ok|Information -> Ok"},
        {"", "Impossible d'ouvrir le corpus|Le corpus suivant est inaccessible :\\n"}};
    for (const auto& [octets, message] : cas) {
        CorpusDEssai essai;
        if (!octets.empty()) essai.dossier().ecrire("c/Essai.Crp", octets);
        essai.corpus().NbEntretiens = 4;
        essai.dialogues().repondre(Reponse::Ok);
        EXPECT_FALSE(essai.ouvrir());
        EXPECT_NE(essai.dialogues().dernier().find(message), std::string::npos) << message;
        EXPECT_EQ(essai.corpus().NbEntretiens, 4);
        // The window stays emptied, and what was not read is never rewritten.
        EXPECT_EQ(preparerFrise(essai.session, essai.hote), 0);
        EXPECT_THROW(EcrireEntretiens(essai.session, essai.hote), FauteExecution);
        EXPECT_THROW(EcrireThematiques(essai.session, essai.hote), FauteExecution);
    }
}

TEST(Opening, MakesACorpus) {
    CorpusDEssai essai;
    const Utf8 chemin = essai.dossier().ecrire("neuf/N.Crp", "ancien");
    essai.dialogues().choisir("").choisir(chemin);
    EXPECT_FALSE(creerCorpus(essai.session, essai.hote));
    EXPECT_TRUE(creerCorpus(essai.session, essai.hote));
    EXPECT_EQ(essai.dossier().lire("neuf/N.Crp"),
              depuisUtf8("Projet crée le 03/04/2009 à 14:05:06\r\n<|THEM|\r\n000,&H0, Pas de thématique\r\n"
                         ">|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n>|DIC|\r\n<|ENTR|\r\n>|ENTR|\r\n"));
    EXPECT_EQ(essai.corpus().CheminCorpus, chemin);
}

TEST(CorpusRewriting, ThematicsThenInterviews) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", ENTETE);
    essai.ajouterEntretien("b", ENTETE);
    essai.ecrireCorpus(PAS + std::string("001,255, Un\r\n002,9,Deux\r\n"), "a.wav\r\nparti.wav\r\nb.wav\r\n");
    essai.dialogues().repondre(Reponse::Ok);
    ASSERT_TRUE(essai.ouvrir());
    essai.corpus().ThmCode[2].clear();
    essai.corpus().ThmNom[3] = " Deux, \"trois\"";
    essai.dossier().ecrire("c/Essai.Crp.$$$", "reste");
    EcrireThematiques(essai.session, essai.hote);
    const std::string attendu = "Projet\r\n<|THEM|\r\n" + std::string(PAS) + "002,9, Deux, \"trois\"\r\n" +
                                ">|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n>|DIC|\r\n<|ENTR|\r\n";
    EXPECT_EQ(essai.dossier().lire("c/Essai.Crp"), attendu + "a.wav\r\nparti.wav\r\nb.wav\r\n>|ENTR|\r\n");
    EXPECT_FALSE(essai.dossier().existe("c/Essai.Crp.$$$"));
    DeplacerEntretien(essai.session, 1, 2);
    EcrireEntretiens(essai.session, essai.hote);
    EXPECT_EQ(essai.dossier().lire("c/Essai.Crp"), attendu + "b.wav\r\na.wav\r\n>|ENTR|\r\n");
    essai.corpus().Entretiens[1].Fichier.clear();
    EcrireEntretiens(essai.session, essai.hote);
    for (const char* nom : {"c/Essai.Crp", "c/Essai.Crp.$$$"})
        EXPECT_EQ(essai.dossier().lire(nom), attendu + "a.wav\r\n>|ENTR|\r\n");

    essai.dossier().ecrire("c/Essai.Crp", "rien\r\n");
    essai.dialogues().repondre(Reponse::Ok, "des thématiques").repondre(Reponse::Ok, "des entretiens");
    EcrireThematiques(essai.session, essai.hote);
    EcrireEntretiens(essai.session, essai.hote);
    EXPECT_EQ(essai.dossier().lire("c/Essai.Crp"), "rien\r\n");
}

TEST(Order, MovesInterviewsWithTheirExtracts) {
    const std::tuple<int, int, std::string> cas[] = {{3, 1, "3 1 2 4 "}, {1, 3, "2 3 1 4 "},
                                                     {2, 2, "1 2 3 4 "}, {4, 3, "1 2 4 3 "},
                                                     {0, 2, "1 2 3 4 "}, {1, 5, "1 2 3 4 "}};
    for (const auto& [source, cible, attendu] : cas) {
        Session session = essai::corpusDEssai(4);
        for (std::size_t i = 1; i <= 4; ++i)
            session.corpus.Entretiens[i].Fichier = session.corpus.extraits[i].chemin = std::to_string(i);
        DeplacerEntretien(session, source, cible);
        EXPECT_EQ(ordre(session.corpus), attendu);
        for (std::size_t i = 1; i <= 4; ++i)
            EXPECT_EQ(session.corpus.Entretiens[i].Fichier, session.corpus.extraits[i].chemin);
    }
}

} // namespace
} // namespace vermo
