// The sequences as a program without a screen runs them: no window, no Qt.
#include "corpus/Session.h"
#include "sequences/Import.h"
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "textfile/fichier.h"
#include "transcription/Retranscription.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

struct Sequences : testing::Test {
    essai::CorpusDEssai essai;
    std::vector<std::string> etapes;

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
    IssueOuverture ouvrir() {
        return ouvrirCorpus(
            essai.session, essai.hote,
            {3000, [this](Etape etape) {
                 constexpr const char* NOMS[] = {"debut", "vide", "thematiques", "frise", "pistes"};
                 etapes.push_back(NOMS[static_cast<int>(etape)]);
             }});
    }
    std::string crp() const { return lireFichier(essai.dossier().chemin("c/Essai.Crp")); }
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
    using Lignes = std::vector<std::string>;
    const std::string entier = crp();
    const std::tuple<std::string, IssueOuverture, Lignes, Pointeur> cas[] = {
        {entier,
         IssueOuverture::Ouverte,
         {"debut", "vide", "thematiques", "frise", "pistes"},
         Pointeur::Normal},
        {entier.substr(0, entier.find("<|ENTR|")),
         IssueOuverture::Echouee,
         {"debut", "vide", "thematiques"},
         Pointeur::Sablier},
        {"Projet\r\n", IssueOuverture::Echouee, {"debut", "vide"}, Pointeur::Sablier}};
    for (const auto& [octets, issue, montrees, pointeur] : cas) {
        essai.dossier().ecrire("c/Essai.Crp", octets);
        etapes.clear();
        if (issue == IssueOuverture::Echouee) essai.dialogues().repondre(Reponse::Ok);
        EXPECT_EQ(ouvrir(), issue) << octets;
        EXPECT_EQ(etapes, montrees) << octets;
        EXPECT_EQ(essai.hote.ecran.pointeurCourant, pointeur);
    }
    essai.corpus().OuvertureDirecte = false;
    etapes.clear();
    essai.dialogues().choisir({}); // given up
    EXPECT_EQ(ouvrir(), IssueOuverture::Renoncee);
    EXPECT_EQ(etapes, Lignes{"pistes"});
}

TEST_F(Sequences, AListThatCantBeWrittenIsToldAndOpenedAgain) {
    ouvrir();
    essai.corpus().EntretienCourant = 1;
    const std::string avant = crp();
    essai.dialogues().repondre(Reponse::Non);
    EXPECT_FALSE(retirerEntretien(essai.session, essai.hote).aRouvrir);
    EXPECT_FALSE(deplacerDansListe(essai.session, essai.hote, 2, 2).aRouvrir);
    EXPECT_EQ(crp(), avant);

    std::filesystem::create_directory(essai.dossier().chemin("c/Essai.Crp.$$$"));
    const SuiteListe suite = deplacerDansListe(essai.session, essai.hote, 1, 2);
    EXPECT_TRUE(suite.aRouvrir);
    ASSERT_TRUE(suite.faute);
    EXPECT_EQ(essai::ordre(essai.corpus()), "b.wav a.wav ");
    viser();
    ouvrir();
    EXPECT_EQ(essai::ordre(essai.corpus()), "a.wav b.wav ");
}

} // namespace
} // namespace vermo
