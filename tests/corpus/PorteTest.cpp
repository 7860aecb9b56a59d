#include "corpus/Porte.h"

#include "support/CorpusDEssai.h"
#include "support/Pannes.h"
#include "textfile/faute.h"

#include <cerrno>
#include <sys/file.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// A corpus of two interviews, scanned; the notices that are sent.
struct Door : testing::Test {
    CorpusDEssai essai;
    std::vector<Avis> avis;

    void SetUp() override {
        essai.ajouterEntretien("a", ENTETE);
        essai.ajouterEntretien("b", "100\r\n");
        essai.ecrireCorpus("000,&H0, Pas\r\n", "a.wav\r\nb.wav\r\n");
        ASSERT_TRUE(essai.ouvrir());
        essai.analyser();
        essai.hote.annonces.surAvis = [this](const Avis& a) { avis.push_back(a); };
    }
    Utf8 rtr(int slot) { return cheminCompagnon(essai.session, slot, "Rtr"); }
    bool changer(const std::vector<FichierAChanger>& fichiers) {
        return changerFichiers(essai.session, essai.hote, "Essai", fichiers, Avis{Sujet::Extraits, 2}) ==
               IssueChangement::Fait;
    }
    static std::function<Octets(const Octets&)> ajouter(const std::string& fin) {
        return [fin](const Octets& avant) { return avant.value_or("rien") + fin; };
    }
};

TEST_F(Door, AChangeOfSeveralFilesIsOneAndIsRemembered) {
    std::filesystem::remove(rtr(1));
    ASSERT_TRUE(changer({{rtr(2), ajouter("x"), nullptr, Temporaire::Reste}, {rtr(1), ajouter("y")}}));
    EXPECT_EQ(essai.dossier().lire("c/b.Rtr"), "100\r\nx");
    EXPECT_EQ(essai.dossier().lire("c/b.Rtr.$$$"), "100\r\nx");
    EXPECT_EQ(essai.dossier().lire("c/a.Rtr"), "rieny");
    const std::vector<Changement> attendu{{"Essai",
                                           {{rtr(2), "100\r\n", empreinteDe("100\r\nx"), Temporaire::Reste},
                                            {rtr(1), std::nullopt, empreinteDe("rieny")}}}};
    EXPECT_EQ(essai.session.histoire.faits, attendu);
    EXPECT_EQ(avis, (std::vector<Avis>{{Sujet::Extraits, 2}}));

    // One refusal or one fault, in whichever place, and nothing is written, remembered or told.
    const FichierAChanger refus{rtr(1), [](const Octets&) { return Octets(); }, nullptr, Temporaire::Disparu},
        faute{rtr(1), [](const Octets&) -> Octets { throw FauteExecution("non"); }},
        bon{rtr(2), ajouter("z"), nullptr, Temporaire::Disparu};
    for (const auto& fichiers : {std::vector{bon, refus}, std::vector{refus, bon}})
        EXPECT_FALSE(changer(fichiers));
    EXPECT_THROW(changer({bon, faute}), FauteExecution);
    EXPECT_EQ(essai.dossier().lire("c/b.Rtr"), "100\r\nx");
    EXPECT_TRUE(essai.dossier().existe("c/b.Rtr.$$$"));
    EXPECT_EQ(essai.session.histoire.faits, attendu);
    EXPECT_EQ(avis.size(), 1U);

    ASSERT_TRUE(changer({bon}));
    EXPECT_FALSE(essai.dossier().existe("c/b.Rtr.$$$"));
}

TEST_F(Door, WhatTheDiskDoesntConfirmCountsAndIsToldOnce) {
    EtatLu& lu = essai.corpus().extraits[2].lu;
    {
        const Pannes panne({1, EIO, "fsync"});
        essai.dialogues().repondre(Reponse::Ok, "n'a pas confirmé qu'il résisterait à une coupure");
        ASSERT_TRUE(changer({{rtr(2), ajouter("x"), &lu}}));
    }
    EXPECT_TRUE(changer({{rtr(2), ajouter("y"), &lu}})) << "memory follows the file";
    EXPECT_EQ(essai.dossier().lire("c/b.Rtr"), "100\r\nxy");
}

TEST_F(Door, WhatAnInterruptedRewriteLeftIsNeverLostAndBlocksNothing) {
    const std::string copie = "100\r\n::1.00::001\r\nmot\r\n::2.00::\r\n";
    essai.dossier().ecrire("c/b.Rtr.$$$", copie);
    std::filesystem::create_directory(rtr(1) + ".$$$");
    essai.dialogues().repondre(Reponse::Ok, "Une copie plus complète que son fichier a été mise de côté");
    EXPECT_TRUE(changer({{rtr(2), ajouter("x"), nullptr, Temporaire::Disparu},
                         {rtr(1), ajouter("y"), nullptr, Temporaire::Reste}}));
    EXPECT_EQ(essai.dossier().lire("c/b.Rtr.$$$.1"), copie);
    EXPECT_FALSE(essai.dossier().existe("c/b.Rtr.$$$"));
    EXPECT_EQ(essai.dossier().lire("c/a.Rtr"), ENTETE + std::string("y"));
    EXPECT_TRUE(std::filesystem::is_directory(rtr(1) + ".$$$"));
}

TEST_F(Door, GoesOnWhereTheSystemRefusesTheLockAndNotWhereItRefusesTheFile) {
    const std::pair<Panne, bool> cas[] = {{{1, ENOLCK, "flock"}, true},  {{1, EWOULDBLOCK, "flock"}, true},
                                          {{1, EACCES, "open"}, true},   {{1, EIO, "fstat"}, false},
                                          {{1, ENOSPC, "write"}, false}, {{2, EACCES, "open"}, false}};
    std::string attendu = "100\r\n";
    for (const auto& [panne, ecrit] : cas) {
        const Pannes pannes(panne);
        avis.clear();
        if (ecrit) attendu += "x";
        try {
            EXPECT_TRUE(changer({{rtr(2), ajouter("x")}}) && ecrit) << panne.appel << panne.erreur;
        } catch (const FauteExecution&) {
            EXPECT_FALSE(ecrit) << panne.appel << panne.erreur;
        }
        EXPECT_EQ(essai.dossier().lire("c/b.Rtr"), attendu) << panne.appel << panne.erreur;
        EXPECT_EQ(avis.size(), ecrit ? 1U : 0U) << panne.appel << panne.erreur;
    }
    // Another one that asks for the directory while the bytes are read and written waits.
    static int demandes;
    demandes = 0;
    const AppelsSysteme vraie = appelsSysteme();
    appelsSysteme().flock = [](int d, int operation) {
        errno = ENOLCK;
        return ++demandes > 3 ? -1 : ::flock(d, operation);
    };
    const auto tenu = [&](const Octets& avant) {
        const VerrouRepertoire second(essai.corpus().RepCorpus);
        return avant;
    };
    EXPECT_TRUE(changer({{rtr(2), tenu}}));
    appelsSysteme() = vraie;
    EXPECT_EQ(demandes, 5);
}

} // namespace
