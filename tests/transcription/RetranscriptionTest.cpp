#include "transcription/Retranscription.h"

#include "support/CorpusDEssai.h"
#include "textfile/faute.h"
#include "transcription/Entretien.h"
#include "transcription/Marquage.h"
#include "transcription/Saisie.h"

#include <filesystem>

using namespace vermo;
using namespace vermo::essai;

namespace {

const std::string TETE = " 125.5 \r\n<|OBS|\r\nNote\r\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n99,41\r\n>|ATTR|\r\n";
const std::string UN = "::10.00::001\r\nBonjour.\r\r\n::12.50::\r\n";
const std::string DEUX = "::20.25::004\r\nMes parents\rici.\r\r\n::31.00::\r\n";
constexpr const char* IMPOSSIBLE = "Enregistrement impossible!!";

std::string plein(int extraits) {
    std::string octets = TETE;
    for (int n = 0; n < extraits; ++n)
        octets += "::1.00::000\r\n::2.00::\r\n";
    return octets;
}

TEST(Transcript, NeedsItsInterviewAndItsFile) {
    EntretienOuvert e(TETE + UN);
    const auto refuse = [&](std::initializer_list<const char*> messages) {
        e.attendre(messages);
        LireRetranscription(e.session, e.hote);
        EXPECT_EQ(e.etat.NbExtraits, 0);
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    };
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    refuse({IMPOSSIBLE});
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));
    std::filesystem::create_directory(e.hote.dossier.chemin("a.Rtr"));
    refuse({"a.Rtr", IMPOSSIBLE});
    for (const std::int16_t slot : {0, 2, -1}) {
        e.session.corpus.EntretienCourant = slot;
        refuse({"Lecture impossible!", "Lecture impossible!"});
    }
}

TEST(Transcript, WithAFaultIsToldOnceAndNeverRewritten) {
    const std::tuple<std::string, std::string, float> cas[] = {
        {TETE + UN + "::\r\n" + DEUX, "ligne 14", 1},
        {plein(10000), "9999", 9999},
        {TETE + "::10::000\r\n::11,5::\r\n", "d'une autre machine", 1},
        {" 125,5 \r\n", "d'une autre machine", 0}};
    for (const auto& [octets, cause, lus] : cas) {
        EntretienOuvert e(octets, [&](auto& hote) { hote.dialogues.repondre(Reponse::Ok, cause); });
        EXPECT_EQ(e.etat.NbExtraits, lus) << cause;
        EXPECT_NE(e.hote.dialogues.dernier().find("a.Rtr"), std::string::npos) << cause;
        LireRetranscription(e.session, e.hote);

        e.attendre({IMPOSSIBLE, IMPOSSIBLE});
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
        Texte saisi = "neuf";
        EXPECT_FALSE(e.ajouter(saisi, "001"));
        e.hote.dialogues.repondre(Reponse::Oui).repondre(Reponse::Ok, IMPOSSIBLE);
        EXPECT_EQ(SupprimerExtrait(e.session, e.hote, e.cible()), Suppression::Echec);
        EXPECT_TRUE(e.disque() == octets) << cause;
    }
}

TEST(Transcript, IsRewrittenUnderItsNameWithTheMachinesCommaAndNoNegativeStart) {
    EntretienOuvert e("60\r\n::1,5::000\r\na\r\n::2::\r\n::3::001\r\n::4::\r\n", {}, ',', "A.RTR");
    e.etat.ExtraitDebut[2] = -1.0;
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    const std::string ecrit = e.hote.dossier.lire("A.RTR");
    EXPECT_EQ(ecrit.substr(0, 9) + ecrit.substr(ecrit.find("::")),
              " 60 \r\n<|O::1,50::000\r\na\r\r\n::2,00::\r\n");
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));
}

TEST(Extract, IsDeletedAndTheOthersStay) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.etat.ExtraitCourant = 1;
    e.etat.ExtraitDebut[2] = -20.0;
    const auto supprimer = [&] {
        e.hote.dialogues.repondre(Reponse::Oui);
        return SupprimerExtrait(e.session, e.hote, e.cible());
    };
    EXPECT_EQ(supprimer(), Suppression::Supprime);
    EXPECT_EQ(e.disque(), TETE + "::-20.00" + DEUX.substr(7));
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    EXPECT_EQ(supprimer(), Suppression::Supprime) << "there is none";
    e.hote.media.URL("");
    EXPECT_THROW(supprimer(), FauteExecution) << "of no recording";
}

TEST(Extract, MakesItsFileAndKeepsToTheLimit) {
    EntretienOuvert e(TETE);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    e.etat.SaisieFin = 2;
    Texte saisi = "a\rb\r\r\r";
    EXPECT_TRUE(e.ajouter(saisi, "0025"));
    EXPECT_EQ(saisi, "a\rb\r");
    EXPECT_EQ(e.disque(), " 60 \r\n::0.00::002\ra\rb\r\r::2.00::\r\n");
    EXPECT_EQ(e.session.corpus.Entretiens[1].Duree, 60);

    e.hote.dossier.ecrire("a.Rtr", plein(9998));
    EXPECT_TRUE(e.ajouter(saisi, "000"));
    const std::string avant = e.disque();
    e.attendre({"9999", "Aucun enregistrement"});
    EXPECT_FALSE(e.ajouter(saisi, "000"));
    EXPECT_TRUE(e.disque() == avant);
    e.hote.media.URL("");
    EXPECT_FALSE(e.ajouter(saisi, "000"));
}

TEST(Extract, LineEndsAreTrimmedAndTimesReadBothWays) {
    const std::pair<Texte, Texte> cas[] = {{"", ""},         {"\r", "\r"},       {"\r\r", "\r\r"},
                                           {"a\r", "a\r"},   {"a\r\r\r", "a\r"}, {"\r\r\r", "\r\r"},
                                           {"a\rb", "a\rb"}, {"a\r\n", "a\r"}};
    for (auto [avant, apres] : cas) {
        rognerFins(avant);
        EXPECT_EQ(avant, apres);
    }
    const Reglages point{.separateurDecimal = '.'}, virgule{.separateurDecimal = ','};
    EXPECT_EQ(valeurTexte({"12,75", virgule}, virgule), 12);
    EXPECT_EQ(valeurTexte(12.75, virgule), 12);
    EXPECT_EQ(valeurTexte(12.75, point), 12.75);
    EXPECT_EQ(secondes({"12,75", virgule}, virgule), 12.75);
}

TEST(Marking, ANewSpanMeetsItsNeighbours) {
    const std::vector<Bornes> extraits{{10, 20}, {30, 40}, {35, 50}};
    const struct {
        Bornes voulues;
        Marquage attendu;
    } cas[] = {{{2, 8}, {{2, 8}, false}},     {{2, 15}, {{2, 10}, false}}, // its end pulled back
               {{15, 25}, {{20, 25}, false}},                              // its start pushed on
               {{15, 32}, {{20, 30}, false}},                              // both
               {{2, 25}, {{2, 25}, true}},                                 // encloses
               {{12, 18}, {{12, 18}, true}},                               // lies inside
               {{10, 20}, {{10, 20}, false}},                              // identical spans pass
               {{10, 18}, {{10, 18}, false}},                              // one bound equal matches no test
               {{2, 20}, {{2, 20}, false}},   {{20, 30}, {{20, 30}, false}}, // touching both
               {{37, 60}, {{50, 60}, false}}, // seen by the third as the second left it
               {{25, 38}, {{25, 30}, false}}};
    for (const auto& [voulues, attendu] : cas)
        EXPECT_EQ(bornerNouvelExtrait(voulues, extraits), attendu) << voulues.debut << ".." << voulues.fin;
    // A bound that is moved stops at the first that it hits.
    const std::vector<Bornes> autres{{10, 20}, {18, 40}};
    EXPECT_EQ(bornerExtraitDeplace({5, 12}, autres), (Marquage{{5, 10}, false}));
    EXPECT_EQ(bornerExtraitDeplace({15, 30}, autres), (Marquage{{20, 30}, false})); // the second would refuse
    EXPECT_EQ(bornerExtraitDeplace({5, 30}, autres), (Marquage{{5, 30}, true}));
    EXPECT_EQ(bornerExtraitDeplace({20, 30}, autres), (Marquage{{20, 30}, true}));
}

TEST(Marking, ABoundThatIsMovedStopsAtItsNeighbour) {
    // Under a decimal comma at whole seconds.
    for (const auto& [virgule, fin] : {std::pair('.', 30.6), {',', 30.0}}) {
        std::string octets = "100\r\n::10.60::000\r\n::20.00::\r\n::30.60::000\r\n::40.00::\r\n";
        std::ranges::replace(octets, '.', virgule);
        EntretienOuvert e(octets, {}, virgule);
        EXPECT_EQ(deplacerBorne(e.session, 1, false, 35), (Deplacement{.allonge = true}));
        EXPECT_EQ(bornesExtrait(e.session, 1), (Bornes{10.6, fin}));
        EXPECT_EQ(bornesExtrait(e.session, 2), (Bornes{30.6, 40}));
        EXPECT_THROW(deplacerBorne(e.session, 3, false, 35), FauteExecution);
    }
}

TEST(Dictation, PortionsAreWholeAndHaveTheirBounds) {
    using namespace saisie;
    Session session;
    EtatTranscription& etat = session.transcription;
    etat.SaisieDebut = 10;
    allonger(session, 20);
    EXPECT_FALSE(suivreBoucle(session, 20, 1000).pause);
    EXPECT_EQ(suivreBoucle(session, 10, 1000, true).position, std::nullopt) << "the span is behind its end";
    activerDictee(session, 10.6, 5);
    EXPECT_EQ(suivreBoucle(session, 16, 1000).position, std::nullopt);
    EXPECT_EQ(portionSuivante(session, 4), 15);
    EXPECT_EQ(std::pair(etat.PortionDebut, etat.PortionFin), std::pair(16.0, std::int16_t(20)));
    etat.Compteur = 2;
    EXPECT_EQ(portionSuivante(session, 5), std::nullopt) << "the span's end is reached";
    EXPECT_EQ(etat.Compteur, 0);
    for (const double debut : {32763.0, -32773.0})
        EXPECT_THROW(demarrerPortion(session, debut, 5), FauteExecution);
    EXPECT_EQ(etat.PortionDebut, 16);
    demarrerPortion(session, 32762, 5);
    EXPECT_EQ(selectionnerPortion(session, 200, 240, 1000), 1);
    EXPECT_EQ(std::pair(etat.PortionDebut, etat.PortionFin), std::pair(12.0, std::int16_t(13)));
}

TEST(Thematics, WhatAnExtractShowsAndWhatMayBeAdded) {
    using namespace saisie;
    EtatCorpus corpus;
    EXPECT_EQ(thematiqueDeCode(corpus, "001").caption, depuisUtf8("000 - Pas de thématique"));
    corpus = corpusDEssai(1).corpus;
    EXPECT_EQ(thematiqueDeCode(corpus, "002 Famille").caption, "002  Famille");
    EXPECT_EQ(thematiqueDeCode(corpus, "777").caption, "000  Sans");
    for (const int rang : {0, 4})
        EXPECT_THROW(thematiqueDuRang(corpus, rang), FauteExecution);

    CorpusDEssai essai;
    essai.ecrireCorpus("000,&H0, Sans\r\n", "");
    ASSERT_TRUE(essai.ouvrir());
    std::string pleine;
    for (int code = 0; code < 999; ++code)
        pleine += std::to_string(code) + ",0,n\r\n";
    essai.ecrireCorpus(pleine, "");
    EXPECT_THROW(ajouterThematique(essai.session, essai.hote, {"999", "n", "0"}), FauteExecution);
}

} // namespace
