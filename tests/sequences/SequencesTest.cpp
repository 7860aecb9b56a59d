// A sequence as a program without a screen runs it: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"

#include <gtest/gtest.h>

using namespace vermo;

TEST(Sequences, AnOpeningReadsAllAndShowsEachStep) {
    essai::CorpusDEssai essai;
    essai.ecrireCorpus("000,&H0, Sans\r\n001,255, Travail\r\n", "a.wav\r\nb.wav\r\n");
    essai.ajouterEntretien("a", essai::ENTETE);
    essai.ajouterEntretien("b", "100\r\n<|ATTR|\r\n3,7\r\n>|ATTR|\r\n::1::001\r\nmot\r\n::2::\r\n");
    essai.corpus().CheminCorpus = essai.dossier().chemin("c/Essai.Crp");
    essai.corpus().OuvertureDirecte = true;
    std::vector<Etape> etapes;
    ASSERT_EQ(ouvrirCorpus(essai.session, essai.hote, {3000, [&](Etape e) { etapes.push_back(e); }}),
              IssueOuverture::Ouverte);
    EXPECT_EQ(etapes,
              (std::vector{Etape::Debut, Etape::Vide, Etape::Thematiques, Etape::Frise, Etape::Pistes}));
    EXPECT_EQ(essai.corpus().Entretiens[2].Attributs[2], 7);
    EXPECT_EQ(essai::decrireExtraits(essai.session, 1), "");
    EXPECT_EQ(essai::decrireExtraits(essai.session, 2), "1;2;001;mot/;");
}
