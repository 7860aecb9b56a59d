#include "corpus/Import.h"
#include "support/PlateformeDeTest.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

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
    std::string dernier() const { return hote.dialogues.dernier(); }
};

TEST_F(Import, AsksAboutTheFormat) {
    // Bits, channels, and the format's name in the question; empty: nothing is asked.
    const std::tuple<std::int16_t, std::int16_t, std::string> cas[] = {
        {8, 1, ""}, {24, 1, ""}, {16, 1, "Mono - 16 bits"}, {8, 2, "Stereo - 8 bits"}};
    for (const auto& [bits, canaux, nom] : cas) {
        EnTeteWav enTete;
        enTete.BitsParEchantillon = bits;
        enTete.NbCanaux = canaux;
        for (const auto& [reponse, choix] : {std::pair(Reponse::Non, ChoixFormat::Garder),
                                             {Reponse::Oui, ChoixFormat::Convertir},
                                             {Reponse::Annuler, ChoixFormat::Annuler}}) {
            if (!nom.empty()) hote.dialogues.repondre(reponse, " est au format : \n" + nom + " \n\nPour ");
            EXPECT_EQ(demanderFormat(enTete, hote), nom.empty() ? ChoixFormat::Garder : choix) << nom;
        }
    }
}

TEST_F(Import, StartsTheConverter) {
    hote.dialogues.repondre(Reponse::Ok);
    lancerConvertisseur(hote);
    EXPECT_EQ(dernier(), "Vermo|Impossible de lancer le convertisseur!\\nLe fichier " +
                             hote.dossier.chemin("programme/Convertisseur.exe") +
                             " est introuvable|Ok|Exclamation -> Ok");
    const Utf8 chemin = hote.dossier.ecrire("donnees/Convertisseur.exe", "");
    lancerConvertisseur(hote);
    EXPECT_EQ(hote.lanceur.lances, std::vector<Utf8>{chemin});
}

TEST_F(Import, CopiesAfterAYes) {
    const Utf8 ailleurs = hote.dossier.ecrire("ailleurs/LA.wav", "neuf");
    EXPECT_TRUE(apporterDansCorpus(session, hote, hote.dossier.chemin("c/../c/la.wav")));
    EXPECT_TRUE(hote.dialogues.journal().empty());

    hote.dialogues.repondre(Reponse::Annuler, "hors du répertoire");
    EXPECT_FALSE(apporterDansCorpus(session, hote, ailleurs));
    hote.dialogues.repondre(Reponse::Ok).repondre(Reponse::Non);
    EXPECT_TRUE(apporterDansCorpus(session, hote, ailleurs));
    EXPECT_EQ(dernier(), "|Le fichier que vous souhaitez importer (LA.wav ) existe déjà.\\n"
                         "Voulez-vous l'écraser?|OuiNon|Question -> Non");
    EXPECT_EQ(hote.dossier.lire("c/la.wav"), "ancien");

    hote.media.URL(hote.dossier.chemin("c/la.wav"));
    hote.dialogues.repondre(Reponse::Ok).repondre(Reponse::Oui).repondre(Reponse::Ok);
    EXPECT_TRUE(apporterDansCorpus(session, hote, ailleurs));
    EXPECT_EQ(hote.dossier.lire("c/la.wav"), "neuf");
    EXPECT_EQ(hote.media.URL(), "");
    EXPECT_EQ(dernier(), "Vermo|Le fichier a été copié dans le répertoire.\\n" + session.corpus.RepCorpus +
                             "\\nIl va maintenant être ajouté au projet.|Ok|Information -> Ok");
}

TEST_F(Import, TellsACopyThatFailsAndTakesBackOneGivenUp) {
    const Utf8 source = hote.dossier.ecrire("ailleurs/x.wav", "neuf");
    hote.dialogues.repondre(Reponse::Ok)
        .repondre(Reponse::Ok,
                  "La copie du fichier est impossible.\nLe fichier est peut-être en cours d'écoute.")
        .repondre(Reponse::Ok, "absent.wav");
    EXPECT_FALSE(apporterDansCorpus(session, hote, hote.dossier.chemin("ailleurs/absent.wav")));
    hote.progression.patience = 0;
    hote.dialogues.repondre(Reponse::Ok);
    EXPECT_FALSE(apporterDansCorpus(session, hote, source));
    EXPECT_FALSE(hote.dossier.existe("c/x.wav"));
    EXPECT_EQ(hote.ecran.pointeurCourant, Pointeur::Normal);
}

TEST_F(Import, MeasuresTheDuration) {
    hote.media.durees["la.wav"] = 12.5;
    EXPECT_EQ(mesurerDuree(hote, hote.dossier.chemin("c/la.wav")), 12.5);
    hote.media.durees["la.wav"] = 0;
    hote.dialogues.repondre(Reponse::Ok).repondre(Reponse::Ok);
    EXPECT_EQ(mesurerDuree(hote, hote.dossier.chemin("c/la.wav")), 0);
    EXPECT_EQ(dernier(), "|ça ne fonctionne pas !|Ok|Aucune -> Ok");
    hote.media.lent = true; // never ready: the person gives up
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
    EXPECT_FALSE(dejaDansCorpus(session, hote, "LA.wav"));
    hote.dialogues.repondre(Reponse::Ok);
    EXPECT_TRUE(dejaDansCorpus(session, hote, "la.wav"));
    EXPECT_EQ(dernier(), "|Le fichier la.wav est déjà présent dans le projet.|Ok|Exclamation -> Ok");
    while (session.corpus.NbEntretiens < 999)
        ajouterEntretien(session, "x.wav", 1);
    EXPECT_THROW(ajouterEntretien(session, "y.wav", 1), FauteExecution);
    EXPECT_EQ(session.corpus.Entretiens.size(), 1000U);
}

} // namespace
} // namespace vermo
