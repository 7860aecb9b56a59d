#include "corpus/Panneaux.h"
#include "corpus/Pistes.h"
#include "support/CorpusDEssai.h"

#include <gtest/gtest.h>

namespace vermo {
namespace {

using essai::corpusDEssai;

/// `nombre` interviews of 100 s; extracts of 10 s each at 0, 20, 40... in the first, coded "000", "001",
/// "002", "999".
Session sessionDe(int nombre) {
    Session session = corpusDEssai(nombre);
    session.corpus.HauteurEntretien = 400;
    session.corpus.extraits[1] =
        analyser("100\r\n::0::000\r\n::10::\r\n::20::001\r\n::30::\r\n::40::002\r\n::50::\r\n"
                 "::60::999\r\n::60::\r\n",
                 session.reglages, "e1.Rtr")
            .extraits;
    return session;
}

/// A bar of 1,000 twips.
const VueFrise VUE{.largeur = 3900, .defilement = 0, .hauteur = 2000};

std::string pistes(const Session& session) {
    Elements liste;
    disposerPistes(session, VUE, liste);
    std::erase_if(liste, [](const Element& e) { return e.controle != Controle::Lblthm; });
    return decrire(liste);
}

TEST(Timeline, RowsInViewAndUnderTheMouse) {
    const Session session = sessionDe(999);
    const std::tuple<Twips, int, int> cas[] = {{0, 1, 5}, {639, 1, 6}, {640, 2, 7}, {399000, 997, 999}};
    for (const auto& [defilement, premiere, derniere] : cas) {
        const LignesEnVue lignes = lignesEnVue(session, {3900, defilement, 2000});
        EXPECT_EQ(lignes.premiere, premiere) << defilement;
        EXPECT_EQ(lignes.derniere, derniere) << defilement;
    }
    const std::pair<Twips, int> sous[] = {{239, 0}, {240, 1}, {639, 1}, {640, 2}, {399839, 999}, {399840, 0}};
    for (const auto& [y, slot] : sous)
        EXPECT_EQ(slotSous(session, y), slot) << y;
}

TEST(Timeline, DurationsOfZeroAreTold) {
    essai::CorpusDEssai essai;
    essai.ajouterEntretien("a", " 0 \r\n");
    essai.ecrireCorpus("", "a.wav\r\n");
    ASSERT_TRUE(essai.ouvrir());
    essai.corpus().TailleReelle = true;
    essai.dialogues().repondre(Reponse::Ok);
    EXPECT_EQ(preparerFrise(essai.session, essai.hote), 0);
    EXPECT_EQ(essai.dialogues().dernier(), "|Durmax à Zéro|Ok|Aucune -> Ok");
    EXPECT_FALSE(essai.corpus().TailleReelle);
    essai.dialogues().repondre(Reponse::Annuler, "l'ouverture de l'entretien a.wav");
    for (int fois = 0; fois < 2; ++fois)
        signalerDureesNulles(essai.session, essai.hote, 1, 1);
    EXPECT_EQ(pistes(essai.session), "");
}

TEST(Bars, Fills) {
    Session session = sessionDe(1);
    session.corpus.ThmVisible[2] = 0;
    EXPECT_EQ(pistes(session), "Lblthm[1] 2600,250 100x260 tag=1 fond=000000\n"
                               "Lblthm[2] 2800,250 100x260 tag=2\n"
                               "Lblthm[3] 3000,250 100x260 tag=3 fond=00FF00 fusion\n"
                               "Lblthm[4] 3200,250 45x260 tag=4 fond=FFFFFF\n"
                               "Lblthm[5] 2600,250 45x260 tag=5 fond=FFFFFF\n");
    session.corpus.Entretiens[1].Visible = false;
    EXPECT_NE(pistes(session).find("tag=3 fond=808080"), std::string::npos);
}

TEST(Panels, AnActiveOneAloneCountsAsNoneAndNotAllAsNone) {
    EtatCorpus corpus = corpusDEssai(3).corpus;
    isolerEntretien(corpus, 3);
    basculerTousEntretiens(corpus);
    EXPECT_EQ(compteEntretiens(corpus), "Entretiens  (3/3)");
    basculerThematique(corpus, 1);
    basculerToutesThematiques(corpus);
    EXPECT_EQ(compteThematiques(corpus), depuisUtf8("Thématiques  (3/3)"));
}

} // namespace
} // namespace vermo
