// The sequences as a program without a screen runs them: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "transcription/Retranscription.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(Sequences, OpenInsertAndList) {
    essai::CorpusDEssai essai;
    essai.session.reglages.separateurDecimal = '.';
    essai.ecrireCorpus("000,&H0, Sans\r\n001,255, Travail\r\n", "a.wav\r\nb.wav\r\n");
    for (const char* nom : {"a", "b"})
        essai.ajouterEntretien(nom, essai::ENTETE);
    const auto viser = [&] {
        essai.corpus().CheminCorpus = essai.dossier().chemin("c/Essai.Crp");
        essai.corpus().OuvertureDirecte = true;
    };
    viser();
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

} // namespace
} // namespace vermo
