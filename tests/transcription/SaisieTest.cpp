#include "transcription/Saisie.h"

#include "textfile/faute.h"
#include "transcription/Entretien.h"

#include <gtest/gtest.h>
#include <sstream>

namespace vermo::saisie {
namespace {

using essai::EntretienOuvert;

/// A span from 10 to 20 seconds, no file.
Session span() {
    Session session;
    session.transcription.SaisieDebut = 10;
    allonger(session, 20);
    return session;
}

TEST(Loop, ReturnsToTheStartOfTheSpanOrThePortion) {
    // Whether dictating, whether looping, where: then position, pause, Timer3, cursor.
    const std::tuple<bool, bool, double, std::string> cas[] = {
        {false, false, 15, "- 0 0 500"},    {false, true, 20, "- 0 0 1000"},
        {false, true, 20.01, "10 1 0 0"},   {true, false, 14, "- 0 0 400"},
        {true, false, 14.01, "12 1 1 200"}, {true, true, 14.01, "12 0 1 401"},
        {true, true, 20.01, "12 0 0 200"},  {true, false, 20.01, "10 1 0 0"}};
    for (const auto& [dictee, boucle, position, attendu] : cas) {
        Session session = span();
        demarrerPortion(session, 12, 2);
        session.transcription.DicteeActive = dictee;
        session.transcription.BoucleDictee = boucle;
        const Boucle suite = suivreBoucle(session, position, 1000);
        std::ostringstream dit;
        suite.position ? dit << *suite.position : dit << "-";
        dit << " " << suite.pause << " " << suite.demarrerDecompte << " " << suite.curseur;
        EXPECT_EQ(dit.str(), attendu);
    }
    Session jusquAuBout = span();
    EXPECT_TRUE(suivreBoucle(jusquAuBout, 20, 1000, true).pause) << "the recording ends with the span";
}

TEST(Dictation, PortionsGoOnWholeAndStartASecondEarlier) {
    Session session = span();
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
    EXPECT_EQ(MontrerPortion(session, 12, 14.5, 1000), (Rectangle{.gauche = 200, .largeur = 250}));
}

TEST(Dictation, ASelectionBecomesThePortion) {
    Session session = span();
    EXPECT_EQ(selectionnerPortion(session, 220, 680, 1000), 5);
    EXPECT_DOUBLE_EQ(session.transcription.PortionDebut, 12.2);
    EXPECT_EQ(session.transcription.PortionFin, 17);
    EXPECT_EQ(selectionnerPortion(session, 220, 250, 1000), 1);
    EXPECT_EQ(session.transcription.PortionFin, 13);
    EXPECT_TRUE(estClic(100, 129));
    EXPECT_FALSE(estClic(100, 130));
    const std::tuple<int, Twips, int> cas[] = {{5, 254, 5},  {5, 255, 4},  {5, -254, 5},
                                               {5, -255, 6}, {5, 5000, 1}, {1, 0, 1}};
    for (const auto& [tag, y, attendu] : cas)
        EXPECT_EQ(secondesGlissees(tag, y, 255), attendu) << y;
}

TEST(Dictation, TheCountdownGoesOnAtTheThirdSecond) {
    Session session = span();
    demarrerPortion(session, 10, 5);
    EXPECT_FALSE(compter(session, true, 5).montrer);
    session.transcription.DicteeAuto = true;
    EXPECT_TRUE(compter(session, false, 5).arreter);
    EXPECT_EQ(compter(session, true, 5).LblTimer, "2");
    EXPECT_FALSE(compter(session, true, 5).position);
    const Decompte dernier = compter(session, true, 4);
    EXPECT_EQ(dernier.LblTimer, "0");
    EXPECT_EQ(dernier.position, 14);
    EXPECT_EQ(session.transcription.PortionFin, 19);
    EXPECT_EQ(session.transcription.Compteur, 0);
}

TEST(Speed, FollowsTheCursorInTheLabel) {
    Session session;
    for (const auto& [x, vitesse] : {std::pair(0.0, 0.75), std::pair(945.0, 1.0), std::pair(1890.0, 1.25)}) {
        EXPECT_TRUE(reglerVitesse(session, x, 1890));
        EXPECT_DOUBLE_EQ(session.audio.VitesseLecture, vitesse);
        EXPECT_DOUBLE_EQ(positionVitesse(session, 1890), x);
    }
    EXPECT_FALSE(reglerVitesse(session, -1, 1890) || reglerVitesse(session, 1891, 1890));
    EXPECT_EQ(session.audio.VitesseLecture, 1.25);
}

TEST(Thematics, WhatAnExtractShows) {
    EntretienOuvert e("100\r\n");
    EXPECT_EQ(thematiqueDeCode(e.session.corpus, "001").caption, depuisUtf8("000 - Pas de thématique"));
    e.thematiques({"001", "002"});
    const EtatCorpus& corpus = e.session.corpus;
    const ThematiqueAffichee deux = thematiqueDeCode(corpus, "002 Nom 002");
    EXPECT_EQ(deux.caption, "002 Nom 002");
    EXPECT_EQ(deux.couleur, 2U);
    EXPECT_EQ(thematiqueDeCode(corpus, "777").caption, depuisUtf8("000  Pas de thématique"));
    EXPECT_THROW(thematiqueDuRang(corpus, 4), FauteExecution);
    for (const auto& [tag, noir] : {std::pair("000", false), std::pair("007", true), std::pair("", false)})
        EXPECT_EQ(encreThematique(tag) == 0, noir) << tag;
}

TEST(Thematics, AreAddedUnlessAQuestionStands) {
    EntretienOuvert e("100\r\n");
    e.thematiques({"007"});
    EtatCorpus& corpus = e.session.corpus;
    EXPECT_EQ(codePropose(corpus), "002");
    const std::tuple<NouvelleThematique, std::string, bool> cas[] = {
        {{"7", "", ""},
         "Le code '7' existe déjà (nom :'Nom 007').\nChoisissez un code inutilisé. Merci.",
         true},
        {{"a", "n", "1"},
         "Le code 'a' existe déjà (nom :' Pas de thématique').\nChoisissez un code inutilisé. Merci.",
         true},
        {{"8", "", ""}, "Vous n'avez pas choisi de couleur...", false},
        {{"8", "", "255"}, "La thématique que vous souhaitez ajouter n'a pas de nom...", false}};
    for (const auto& [nouvelle, texte, fautif] : cas) {
        const Refus refus = verifierThematique(corpus, nouvelle).value_or(Refus{});
        EXPECT_EQ(refus.message.texte, texte);
        EXPECT_EQ(refus.codeFautif, fautif) << texte;
    }
    const NouvelleThematique bonne{"8", "Vie, travail", "255"};
    EXPECT_FALSE(verifierThematique(corpus, bonne));
    const EtatCorpus avant = corpus;
    EXPECT_EQ(ajouterThematique(corpus, bonne), 3);
    EXPECT_EQ(thematiqueDeCode(corpus, "008").caption, "008 Vie, travail");
    EXPECT_EQ(corpus.ThmVisible[3], 1);
    retirerDerniereThematique(corpus);
    EXPECT_EQ(corpus, avant);
    corpus.NbThm = 999;
    EXPECT_THROW(ajouterThematique(corpus, bonne), FauteExecution);
}

TEST(Validation, WritesTheExtractOrGivesTheArraysBack) {
    EntretienOuvert e("100\r\n::10.00::001\r\na\r\n::12.50::\r\n");
    ouvrirSpan(e.session, 1);
    EXPECT_EQ(e.session.transcription.SaisieDuree, 2.5);
    EXPECT_EQ(debutAllongement(e.session), 11.5);
    allonger(e.session, 14);
    EXPECT_EQ(e.session.transcription.SaisieDuree, 4);
    EXPECT_EQ(tempsSousX(e.session, 750, 1000), 13);
    EXPECT_TRUE(validerModification(e.session, e.hote, "002 Travail", "b\r\r\r"));
    const std::string ecrit = e.hote.dossier.lire("a.Rtr");
    EXPECT_EQ(ecrit.substr(ecrit.find("::")), "::10.00::002 Travail\r\nb\r\r\n::14.00::\r\n");

    LireRetranscription(e.session, e.hote);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    const EtatTranscription avant = e.session.transcription;
    e.hote.dialogues.repondre(Reponse::Ok, "Enregistrement impossible!!");
    EXPECT_FALSE(validerModification(e.session, e.hote, "003", "c"));
    EXPECT_EQ(e.session.transcription, avant);
    EXPECT_THROW(ouvrirSpan(e.session, 2), FauteExecution);
}

} // namespace
} // namespace vermo::saisie
