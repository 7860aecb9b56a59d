#include "corpus/Import.h"
#include "support/PlateformeDeTest.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

struct Import : testing::Test {
    essai::PlateformeDeTest hote;
    Session session;
    void SetUp() override {
        session.corpus.RepCorpus = hote.dossier.chemin("c/");
        session.corpus.CheminCorpus = hote.dossier.chemin("c/E.Crp");
        session.corpus.Entretiens.resize(1);
        hote.dossier.ecrire("c/la.wav", "ancien");
    }
};

TEST_F(Import, OffersAndStartsTheConverterThatIsThere) {
    EnTeteWav stereo;
    stereo.NbCanaux = 2;
    hote.dialogues.repondre(Reponse::Non).repondre(Reponse::Non);
    demanderFormat(stereo, hote);
    EXPECT_NE(hote.dialogues.dernier().find("|OuiNonAnnuler:Non|"), std::string::npos);
    const Utf8 chemin = hote.dossier.ecrire("donnees/Convertisseur.exe", "");
    demanderFormat(stereo, hote);
    EXPECT_NE(hote.dialogues.dernier().find("|OuiNonAnnuler:Oui|"), std::string::npos);
    lancerConvertisseur(hote);
    EXPECT_EQ(hote.lanceur.lances, std::vector<Utf8>{chemin});
}

TEST_F(Import, CopiesAfterAYes) {
    const Utf8 ailleurs = hote.dossier.ecrire("ailleurs/LA.wav", "neuf");
    EXPECT_TRUE(apporterDansCorpus(session, hote, hote.dossier.chemin("c/../c/la.wav")));
    EXPECT_TRUE(hote.dialogues.journal().empty());

    hote.media.URL(hote.dossier.chemin("c/la.wav"));
    hote.dialogues.repondre(Reponse::Ok).repondre(Reponse::Oui).repondre(Reponse::Ok);
    EXPECT_EQ(apporterDansCorpus(session, hote, ailleurs), "la.wav") << "the file that is there";
    EXPECT_EQ(hote.dossier.lire("c/la.wav"), "neuf");
    EXPECT_EQ(hote.media.URL(), "");
    EXPECT_EQ(hote.dialogues.dernier(),
              "Vermo|Le fichier a été copié dans le répertoire.\\n" + session.corpus.RepCorpus +
                  "\\nIl va maintenant être ajouté au projet.|Ok|Information -> Ok");
}

TEST_F(Import, NeverMakesTwoInterviewsWithTheSameCompanions) {
    session.corpus.Entretiens.emplace_back().Fichier = "b.wav";
    for (const char* nom : {"c/b.wav", "c/b.mp3", "c/B.WAV", "c/B 2.Rtr", "c/\u00C9.wav", "ailleurs/B.mp3",
                            "ailleurs/e\u0301.wav"})
        hote.dossier.ecrire(nom, "son");
    const std::tuple<std::string, std::vector<std::pair<Reponse, std::string>>, std::optional<Texte>> cas[] =
        {{"c/b.mp3", {{Reponse::Ok, "b.mp3 ne peut pas être ajouté au projet : sa retr"}}, {}},
         {"c/B.WAV", {{Reponse::Ok, "celle de l'entretien b.wav"}}, {}},
         {"ailleurs/B.mp3", {{Reponse::Ok, "hors"}, {Reponse::Non, "sous le nom B 3.mp3"}}, {}},
         {"ailleurs/B.mp3",
          {{Reponse::Ok, ""}, {Reponse::Oui, "l'entretien b.wav"}, {Reponse::Ok, ""}},
          "B 3.mp3"},
         {"ailleurs/e\u0301.wav", {{Reponse::Ok, ""}, {Reponse::Non, "(É.wav ) existe"}}, "\xC9.wav"}};
    for (const auto& [chemin, reponses, nom] : cas) {
        for (const auto& [reponse, extrait] : reponses)
            hote.dialogues.repondre(reponse, extrait);
        EXPECT_EQ(apporterDansCorpus(session, hote, hote.dossier.chemin(chemin)), nom) << chemin;
    }
    EXPECT_EQ(hote.dossier.lire("c/B 3.mp3"), "son");
}

TEST_F(Import, ACopyThatFailsIsToldAndADurationThatNeverComesIsGivenUp) {
    hote.dialogues.repondre(Reponse::Ok)
        .repondre(Reponse::Ok,
                  "La copie du fichier est impossible.\nLe fichier est peut-être en cours d'écoute.")
        .repondre(Reponse::Ok, "absent.wav");
    EXPECT_FALSE(apporterDansCorpus(session, hote, hote.dossier.chemin("ailleurs/absent.wav")));
    hote.media.lent = true;
    hote.dialogues.repondre(Reponse::Ok);
    EXPECT_EQ(mesurerDuree(hote, hote.dossier.chemin("c/la.wav")), 0);
    EXPECT_LE(hote.progression.patience, 0);
}

TEST_F(Import, AddsTheInterviewAndItsTranscript) {
    ajouterEntretien(session, "la.wav", 12.5);
    creerRetranscription(session, hote, 1);
    EXPECT_EQ(hote.dossier.lire("c/la.Rtr"), " 12,5 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n");
    hote.dossier.ecrire("c/la.Rtr", "gardee");
    creerRetranscription(session, hote, 1);
    EXPECT_EQ(hote.dossier.lire("c/la.Rtr"), "gardee");

    for (const char* nom : {"/x/łódź.wav", "/x/a\rb.wav", "/x/a\\b.wav"})
        EXPECT_THROW(nomImporte(nom), FauteExecution);
    hote.dialogues.repondre(Reponse::Ok, "Le fichier la.wav est déjà présent dans le projet.");
    EXPECT_TRUE(!dejaDansCorpus(session, hote, "LA.wav") && dejaDansCorpus(session, hote, "la.wav"));
    while (session.corpus.NbEntretiens < 999)
        ajouterEntretien(session, "x.wav", 1);
    EXPECT_THROW(ajouterEntretien(session, "y.wav", 1), FauteExecution);
}

} // namespace
} // namespace vermo
