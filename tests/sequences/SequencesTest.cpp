// The sequences as a program without a screen runs them: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "transcription/Retranscription.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

TEST(Sequences, OpenInsertAndList) {
    essai::CorpusDEssai essai;
    Session& session = essai.session;
    session.reglages.separateurDecimal = '.';
    essai.ecrireCorpus("000,&H0, Sans\r\n001,255, Travail\r\n", "a.wav\r\nb.wav\r\n");
    essai.ajouterEntretien("a", essai::ENTETE);
    essai.ajouterEntretien("b", "100\r\n<|ATTR|\r\n3,7\r\n>|ATTR|\r\n");
    std::vector<Etape> etapes;
    const auto ouvrir = [&] {
        session.corpus.CheminCorpus = essai.dossier().chemin("c/Essai.Crp");
        session.corpus.OuvertureDirecte = true;
        etapes.clear();
        return ouvrirCorpus(session, essai.hote, {3000, [&](Etape etape) { etapes.push_back(etape); }});
    };
    ASSERT_EQ(ouvrir(), IssueOuverture::Ouverte);
    EXPECT_EQ(etapes,
              (std::vector{Etape::Debut, Etape::Vide, Etape::Thematiques, Etape::Frise, Etape::Pistes}));
    EXPECT_EQ(session.corpus.Entretiens[2].Attributs[2], 7);
    session.corpus.EntretienCourant = 2;
    essai.hote.media.URL(cheminEnregistrement(session, 2));
    session.transcription.SaisieDebut = 12.5;
    session.transcription.SaisieFin = 20;
    Texte dit = "bonjour";
    ASSERT_TRUE(
        AjouterExtrait(session, essai.hote, retranscriptionDuLecteur(session, essai.hote), dit, "001"));
    ASSERT_EQ(ouvrir(), IssueOuverture::Ouverte);
    EXPECT_EQ(essai::decrireExtraits(session, 1), "");
    EXPECT_EQ(essai::decrireExtraits(session, 2), "12.50;20.00;001;bonjour/;");
}

} // namespace
} // namespace vermo
