// A sequence as a program without a screen runs it: no window, no Qt.
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "textfile/fichier.h"

using namespace vermo;

namespace {

/// Two interviews, the first without a transcript and the second with one that can't be read, opened.
struct Defaillant : essai::CorpusDEssai {
    Defaillant() {
        ecrireCorpus("000,&H0, Sans\r\n", "a.wav\r\nb.wav\r\n");
        ajouterEntretien("b", "100\r\n::x::001\r\nmot\r\n::2::\r\n");
        dossier().ecrire("c/a.wav", "");
        corpus().CheminCorpus = dossier().chemin("c/Essai.Crp");
        corpus().OuvertureDirecte = true;
        dialogues()
            .repondre(Reponse::Ok, "a.wav")
            .repondre(Reponse::Ok, "b.Rtr")
            .repondre(Reponse::Ok, "Un problème est survenu lors de l'ouverture de l'entretien a.wav");
    }
    void ouvrir() {
        ASSERT_EQ(ouvrirCorpus(session, hote, {3000, [](Etape) {}}), IssueOuverture::Ouverte);
    }
};

} // namespace

TEST(Sequences, ATranscriptThatWasMendedCountsFromItsNextUseOn) {
    Defaillant essai;
    essai.ouvrir();
    for (const int slot : {1, 2}) {
        const std::string nom = slot == 1 ? "c/a.Rtr" : "c/b.Rtr";
        essai.dossier().ecrire(
            nom,
            "50\r\n<|OBS|\r\nNote\r\n>|OBS|\r\n<|ATTR|\r\n3,7\r\n>|ATTR|\r\n::1::001\r\nmot\r\n::2::\r\n");
        actualiserEntretien(essai.session, essai.hote, slot);
        const Entretien& entretien = entretienDe(essai.corpus(), slot);
        EXPECT_EQ(entretien.Duree, 50);
        EXPECT_EQ(entretien.Observations, "Note\r");
        EXPECT_EQ(entretien.Attributs[2], 7);
        EXPECT_EQ(essai::decrireExtraits(essai.session, slot), "1;2;001;mot/;");
    }
}

TEST(Sequences, WhatKilledWritersLeftGoesAtTheNextOpeningAndWhatOthersWriteStays) {
    Defaillant essai;
    essai.dossier().ecrire("c/.vermo-1-1.tmp", "x");
    const VerrouFichier autre(essai.dossier().ecrire("c/.vermo-2-1.tmp", "y"));
    essai.ouvrir();
    EXPECT_FALSE(essai.dossier().existe("c/.vermo-1-1.tmp"));
    EXPECT_TRUE(essai.dossier().existe("c/.vermo-2-1.tmp"));
}

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
