#include "corpus/BrouillonTenu.h"
#include "support/CorpusDEssai.h"
#include "support/Pannes.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo::essai {
namespace {

namespace fs = std::filesystem;

const Brouillon PLEIN{.genre = "extrait",
                      .corpus = "/c/É=.Crp",
                      .enregistrement = "été.wav",
                      .empreinte = "1-2",
                      .instant = "2009-04-03 14:05:06",
                      .texte = std::string("L'un\\nl'autre →\n\n=\r\\") + '\0',
                      .champs = {{"debut", "1.5"}, {"ouvert-texte", "a\nb"}}};

TEST(DraftTest, SurvivesItsFile) {
    EXPECT_EQ(lireBrouillon(ecrireBrouillon(PLEIN), "x"), PLEIN);
    EXPECT_EQ(lireBrouillon(ecrireBrouillon({}), "x"), Brouillon{});
}

TEST(DraftTest, WhatIsNoDraftIsRefusedByItsLine) {
    const std::string bon = ecrireBrouillon(PLEIN);
    const auto avec = [&](const std::string& de, const std::string& vers) {
        return std::string(bon).replace(bon.find(de), de.size(), vers);
    };
    const std::tuple<std::string, const char*, std::size_t> FAUX[] = {
        {"", "coupé", 1},
        {"Bonjour\n", "ce n'est pas un brouillon", 1},
        {bon.substr(0, bon.size() - 1), "coupé", 10},
        {avec("instant=", "moment="), "« instant » manque", 10},
        {avec("debut=", "genre="), "vient deux fois", 8},
        {avec("debut=", "debut"), "sans « = »", 8},
        {avec("a\\nb", "a\\b"), "oblique", 9},
        {bon + "suite\n", "après sa fin", 10}};
    for (const auto& [octets, quoi, ligne] : FAUX)
        try {
            lireBrouillon(octets, "d.brouillon");
            ADD_FAILURE() << quoi;
        } catch (const FauteExecution& faute) {
            EXPECT_NE(faute.quoi().find(quoi), std::string::npos) << faute.what();
            EXPECT_EQ(std::pair(faute.fichier(), faute.ligne()),
                      std::pair(std::string("d.brouillon"), ligne));
        }
}

/// The corpus c/Essai.Crp of two interviews, opened, and a draft typed about the second.
class HeldDraftTest : public testing::Test, protected CorpusDEssai {
  protected:
    Emplacements& lieux = hote.plateforme.emplacements;
    std::unique_ptr<BrouillonTenu> tenu;
    std::vector<std::string> fautes;

    HeldDraftTest() {
        lieux.etat = dossier().chemin("etat/Vermo/");
        dossier().ecrire("c/a.wav", "a"), dossier().ecrire("c/b.wav", "b");
        ecrireCorpus("", "a.wav\r\nb.wav\r\n");
        ouvrirIci("c/");
        tenu = std::make_unique<BrouillonTenu>(lieux);
        garder("Bonjour");
    }
    void ouvrirIci(const std::string& ou) {
        EtatCorpus& c = corpus();
        c.RepCorpus = dossier().chemin(ou), c.CheminCorpus = c.RepCorpus + "Essai.Crp";
        c.NbEntretiens = 2, c.Entretiens.resize(3);
        c.Entretiens[1].Fichier = "a.wav", c.Entretiens[2].Fichier = "b.wav";
    }
    void garder(const Utf8& texte) {
        Brouillon brouillon = nouveauBrouillon(session, 2, "extrait");
        brouillon.texte = texte;
        tenu->garder(brouillon, [this](const Utf8& faute) { fautes.push_back(faute); });
    }
    std::vector<BrouillonLibre> libres() {
        return brouillonsLibres(session, lieux, [this](const Utf8& faute) { fautes.push_back(faute); });
    }
    std::vector<fs::path> fichiers() const {
        std::vector<fs::path> vus;
        for (const auto& entree : fs::recursive_directory_iterator(dossier().chemin("etat/")))
            vus.push_back(entree.path());
        return vus;
    }
};

TEST_F(HeldDraftTest, IsTheUsersAloneAndOfferedOnceByOneProgramWhenItsOwnIsGone) {
    tenu->ecrire();
    for (const fs::path& chemin : fichiers())
        EXPECT_EQ(int(fs::status(chemin).permissions()), fs::is_directory(chemin) ? 0700 : 0600) << chemin;
    EXPECT_TRUE(libres().empty());
    tenu.reset();
    auto trouves = libres();
    ASSERT_EQ(trouves.size(), 1U);
    EXPECT_EQ(trouves[0].brouillon.texte, "Bonjour");
    EXPECT_EQ(trouves[0].slot, 2);
    EXPECT_TRUE(libres().empty());
    trouves[0].tenu->retirer();
    trouves.clear();
    EXPECT_EQ(fichiers().size(), 2U) << "the directories";
}

TEST_F(HeldDraftTest, IsOfItsCorpusWhereverThatLiesNow) {
    tenu.reset();
    fs::copy(dossier().chemin("c"), dossier().chemin("d"));
    ouvrirIci("d/");
    EXPECT_TRUE(libres().empty()) << "a copy, while its own corpus stands";
    fs::rename(dossier().chemin("c/b.wav"), dossier().chemin("c/x.wav"));
    EXPECT_EQ(libres().size(), 1U) << "which its recording has left";
    fs::rename(dossier().chemin("c/x.wav"), dossier().chemin("c/b.wav"));
    fs::rename(dossier().chemin("c"), dossier().chemin("e"));
    EXPECT_EQ(libres().size(), 1U);
    dossier().ecrire("d/b.wav", "another");
    EXPECT_TRUE(libres().empty());
    fs::remove(dossier().chemin("d/b.wav"));
    EXPECT_TRUE(libres().empty());
    ouvrirIci("e/");
    EXPECT_EQ(libres().size(), 1U);
    EXPECT_TRUE(fautes.empty());
}

TEST_F(HeldDraftTest, WhatIsNoDraftIsSetAsideAndToldOnce) {
    tenu.reset();
    const Utf8 chemin = dossier().ecrire("etat/Vermo/brouillons/1.brouillon", "Bonjour");
    for (int fois = 0; fois < 2; ++fois)
        EXPECT_EQ(libres().size(), 1U);
    ASSERT_EQ(fautes.size(), 1U);
    EXPECT_NE(fautes[0].find(chemin + ".1"), std::string::npos);
}

TEST_F(HeldDraftTest, AWritingThatFailsIsToldAndLeavesWhatStood) {
    tenu->ecrire();
    {
        const Pannes pannes({1, ENOSPC, "write", true});
        garder("Bonjour à tous");
        tenu->ecrire();
    }
    EXPECT_EQ(fautes.size(), 1U);
    tenu.reset();
    EXPECT_EQ(libres().at(0).brouillon.texte, "Bonjour");
}

} // namespace
} // namespace vermo::essai
