#include "transcription/Saisie.h"

#include "support/CorpusDEssai.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo::saisie {
namespace {

/// A span from 10 to 20 seconds, no file.
Session span() {
    Session session;
    session.transcription.SaisieDebut = 10;
    allonger(session, 20);
    return session;
}

TEST(Dictation, PortionsGoOnWholeAndStartASecondEarlier) {
    Session session = span();
    EXPECT_FALSE(suivreBoucle(session, 20, 1000).pause);
    EXPECT_EQ(suivreBoucle(session, 10, 1000, true).position, std::nullopt) << "the span is behind its end";
    activerDictee(session, 10.6, 5);
    EXPECT_EQ(session.transcription.PortionFin, 16);
    EXPECT_EQ(portionSuivante(session, 5), 15);
    EXPECT_EQ(session.transcription.PortionDebut, 16);
    EXPECT_EQ(session.transcription.PortionFin, 21);
    session.transcription.Compteur = 2;
    EXPECT_EQ(portionSuivante(session, 5), std::nullopt);
    EXPECT_EQ(session.transcription.Compteur, 0);
    EXPECT_EQ(avancerPortion(session, 5), 20);
    EXPECT_EQ(session.transcription.PortionFin, 26);
    EXPECT_THROW(demarrerPortion(session, 32765, 5), FauteExecution);
    EXPECT_EQ(session.transcription.PortionDebut, 21);
}

TEST(Thematics, WhatAnExtractShowsAndWhatMayBeAdded) {
    EtatCorpus corpus;
    EXPECT_EQ(thematiqueDeCode(corpus, "001").caption, depuisUtf8("000 - Pas de thématique"));
    corpus = essai::corpusDEssai(1).corpus;
    EXPECT_EQ(thematiqueDeCode(corpus, "002 Famille").caption, "002  Famille");
    EXPECT_EQ(thematiqueDeCode(corpus, "777").caption, "000  Sans");
    EXPECT_THROW(thematiqueDuRang(corpus, 4), FauteExecution);

    const Refus refus = verifierThematique(corpus, {"a", "n", "1"}).value_or(Refus{});
    EXPECT_TRUE(refus.message.texte.starts_with("Le code 'a' existe déjà")) << "it would be 000";
    EXPECT_TRUE(refus.codeFautif);
    const EtatCorpus avant = corpus;
    const NouvelleThematique bonne{"8", "Vie, travail", "255"};
    EXPECT_EQ(ajouterThematique(corpus, bonne), 4);
    EXPECT_EQ(thematiqueDeCode(corpus, "008").caption, "008 Vie, travail");
    retirerDerniereThematique(corpus);
    EXPECT_EQ(corpus, avant);
    corpus.NbThm = 999;
    EXPECT_THROW(ajouterThematique(corpus, bonne), FauteExecution);
}

} // namespace
} // namespace vermo::saisie
