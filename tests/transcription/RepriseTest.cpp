#include "transcription/Reprise.h"
#include "support/DossierTemporaire.h"
#include "textfile/faute.h"
#include "transcription/Entretien.h"

#include <gtest/gtest.h>

namespace vermo::essai {
namespace {

const saisie::Reprise LAISSEE{{.source = {}, .numero = 2, .debut = 0.1, .fin = 1e22 / 3, .texte = "Un.\n"},
                              {.source = {},
                               .numero = 2,
                               .debut = 0.1,
                               .fin = 12.34,
                               .thematique = {"007", "007 M\xE9tier", 255},
                               .texte = "→::\n"}};

TEST(TakingUpTest, WhatWasTypedSurvivesItsDraft) {
    const Brouillon brouillon = saisie::brouillonDe({}, LAISSEE);
    EXPECT_EQ(saisie::repriseDe(lireBrouillon(ecrireBrouillon(brouillon), "x")), LAISSEE);
    for (const auto& [champ, valeur] : brouillon.champs) {
        Brouillon mutile = brouillon;
        mutile.champs.erase(champ);
        EXPECT_THROW(saisie::repriseDe(mutile), FauteExecution) << champ;
    }
    Brouillon faux = brouillon;
    faux.champs["fin"] = "12,34";
    EXPECT_THROW(saisie::repriseDe(faux), FauteExecution);
}

TEST(TakingUpTest, FindsItsExtractOrTheOneThatHoldsItAlready) {
    EntretienOuvert essai(" 9 \r\n::1.00::000\r\nUn.\r\n::2.00::\r\n::3.00::000\r\nDeux.\r\n::4.00::\r\n");
    const auto reprise = [](int numero, double debut, const char* ouvert, const char* tape) {
        return saisie::Reprise{
            {.source = {}, .numero = numero, .debut = debut, .fin = debut + 1, .texte = ouvert},
            {.source = {}, .numero = numero, .debut = debut, .fin = debut + 1, .texte = tape}};
    };
    EXPECT_EQ(saisie::retrouver(essai.session, reprise(1, 3, "Deux.\n", "Trois.")), 2);
    EXPECT_EQ(saisie::retrouver(essai.session, reprise(1, 3, "Autre.\n", "Trois.")), 0);
    EXPECT_EQ(saisie::retrouver(essai.session, reprise(1, 1, "Autre.\n", "Un.")), 1);
    EXPECT_EQ(saisie::retrouver(essai.session, reprise(0, 3, "", "Deux.")), 2);
    EXPECT_EQ(saisie::retrouver(essai.session, reprise(0, 3, "", "Trois.")), 0);
}

} // namespace
} // namespace vermo::essai
