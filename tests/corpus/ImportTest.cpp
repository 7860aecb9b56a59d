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
    EXPECT_TRUE(apporterDansCorpus(session, hote, ailleurs));
    EXPECT_EQ(hote.dossier.lire("c/la.wav"), "neuf");
    EXPECT_EQ(hote.media.URL(), "");
    EXPECT_EQ(hote.dialogues.dernier(),
              "Vermo|Le fichier a été copié dans le répertoire.\\n" + session.corpus.RepCorpus +
                  "\\nIl va maintenant être ajouté au projet.|Ok|Information -> Ok");
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

    for (const char* nom : {"/x/łódź.wav", "/x/a\rb.wav"})
        EXPECT_THROW(nomImporte(nom), FauteExecution);
    hote.dialogues.repondre(Reponse::Ok, "Le fichier la.wav est déjà présent dans le projet.");
    EXPECT_TRUE(!dejaDansCorpus(session, hote, "LA.wav") && dejaDansCorpus(session, hote, "la.wav"));
    while (session.corpus.NbEntretiens < 999)
        ajouterEntretien(session, "x.wav", 1);
    EXPECT_THROW(ajouterEntretien(session, "y.wav", 1), FauteExecution);
}

} // namespace
} // namespace vermo
