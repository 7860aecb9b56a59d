// The sequences as a program without a screen runs them: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "transcription/Retranscription.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

struct Sequences : testing::Test {
    essai::CorpusDEssai essai;

    void SetUp() override {
        essai.session.reglages.separateurDecimal = '.';
        essai.ecrireCorpus("000,&H0, Sans\r\n001,255, Travail\r\n", "a.wav\r\nb.wav\r\n");
        for (const char* nom : {"a", "b"})
            essai.ajouterEntretien(nom, essai::ENTETE);
        viser();
    }
    void viser() {
        essai.corpus().CheminCorpus = essai.dossier().chemin("c/Essai.Crp");
        essai.corpus().OuvertureDirecte = true;
    }
};

TEST_F(Sequences, OpenInsertAndList) {
    ASSERT_EQ(ouvrirCorpus(essai.session, essai.hote), IssueOuverture::Ouverte);
    essai.corpus().EntretienCourant = 2;
    LireRetranscription(essai.session, essai.hote);
    essai.hote.media.URL(cheminEnregistrement(essai.session, 2));
    essai.session.transcription.SaisieDebut = 12.5;
    essai.session.transcription.SaisieFin = 20;
    Texte dit = "bonjour";
    ASSERT_TRUE(AjouterExtrait(essai.session, essai.hote, retranscriptionDuLecteur(essai.session, essai.hote),
                               dit, "001"));
    viser();
    ASSERT_EQ(ouvrirCorpus(essai.session, essai.hote), IssueOuverture::Ouverte);
    EXPECT_EQ(essai::decrireExtraits(essai.session, 1), "");
    EXPECT_EQ(essai::decrireExtraits(essai.session, 2), "12.50;20.00;001;bonjour/;");
}

TEST_F(Sequences, AnOpeningShowsItsStepsAsFarAsItComes) {
    const std::string entier = essai.dossier().lire("c/Essai.Crp");
    const std::tuple<std::string, IssueOuverture, std::string, Pointeur> cas[] = {
        {entier, IssueOuverture::Ouverte, "01234", Pointeur::Normal},
        {entier.substr(0, entier.find("<|ENTR|")), IssueOuverture::Echouee, "012", Pointeur::Sablier},
        {"Projet\r\n", IssueOuverture::Echouee, "01", Pointeur::Sablier}};
    for (const auto& [octets, issue, montrees, pointeur] : cas) {
        essai.dossier().ecrire("c/Essai.Crp", octets);
        if (issue == IssueOuverture::Echouee) essai.dialogues().repondre(Reponse::Ok);
        std::string etapes;
        const auto noter = [&](Etape etape) { etapes += std::to_string(static_cast<int>(etape)); };
        EXPECT_EQ(ouvrirCorpus(essai.session, essai.hote, {3000, noter}), issue) << octets;
        EXPECT_EQ(etapes, montrees) << octets;
        EXPECT_EQ(essai.hote.ecran.pointeurCourant, pointeur);
        viser();
    }
}

} // namespace
} // namespace vermo
