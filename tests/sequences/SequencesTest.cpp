// A sequence as a program without a screen runs it: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"

using namespace vermo;

TEST(Sequences, AnOpeningShowsEachStep) {
    essai::CorpusDEssai essai;
    essai.ecrireCorpus("000,&H0, Sans\r\n", "");
    essai.corpus().CheminCorpus = essai.dossier().chemin("c/Essai.Crp");
    essai.corpus().OuvertureDirecte = true;
    std::vector<Etape> etapes;
    ouvrirCorpus(essai.session, essai.hote, {3000, [&](Etape e) { etapes.push_back(e); }});
    EXPECT_EQ(etapes,
              (std::vector{Etape::Debut, Etape::Vide, Etape::Thematiques, Etape::Frise, Etape::Pistes}));
}
