#include "transcription/Retranscription.h"

#include "support/Pannes.h"
#include "transcription/Entretien.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>

namespace vermo::essai {
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
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.NbExtraits, 0);
    EXPECT_EQ(e.hote.ecran.pointeurCourant, Pointeur::Sablier);
    e.hote.dialogues.repondre(Reponse::Ok, IMPOSSIBLE);
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));

    std::filesystem::create_directory(e.hote.dossier.chemin("a.Rtr"));
    e.hote.dialogues.repondre(Reponse::Ok, "a.Rtr").repondre(Reponse::Ok, IMPOSSIBLE);
    LireRetranscription(e.session, e.hote);
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    for (const std::int16_t slot : {0, 2, -1}) {
        e.session.corpus.EntretienCourant = slot;
        for (int fois = 0; fois < 2; ++fois)
            e.hote.dialogues.repondre(Reponse::Ok, "Lecture impossible!");
        LireRetranscription(e.session, e.hote);
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    }
}

TEST(Transcript, WithAFaultIsToldOnceAndNeverRewritten) {
    const std::tuple<std::string, std::string, float> cas[] = {
        {TETE + UN + "::\r\n" + DEUX, "ligne 14", 1},
        {plein(10000), "9999", 9999},
        {TETE + "::10,5::000\r\n::11,5::\r\n", "d'une autre machine", 1}};
    for (const auto& [octets, cause, lus] : cas) {
        EntretienOuvert e(octets, [&](auto& hote) { hote.dialogues.repondre(Reponse::Ok, cause); });
        EXPECT_EQ(e.session.transcription.NbExtraits, lus) << cause;
        EXPECT_NE(e.hote.dialogues.dernier().find("a.Rtr"), std::string::npos) << cause;
        LireRetranscription(e.session, e.hote);

        e.hote.dialogues.repondre(Reponse::Ok, IMPOSSIBLE).repondre(Reponse::Ok, IMPOSSIBLE);
        e.hote.dialogues.repondre(Reponse::Oui).repondre(Reponse::Ok, IMPOSSIBLE);
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
        Texte saisi = "neuf";
        EXPECT_FALSE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "001"));
        EXPECT_EQ(SupprimerExtrait(e.session, e.hote, e.cible()), Suppression::Echec);
        EXPECT_TRUE(e.hote.dossier.lire("a.Rtr") == octets) << cause;
    }
}

TEST(Transcript, IsRewrittenWithItsHeader) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.ExtraitDebut[1] = 0.0;
    e.session.transcription.ExtraitCode[1] = "002 Travail";
    e.session.transcription.ExtraitTexte[1] = "";
    EXPECT_EQ(secondesFin(e.session, 1), 12.5);
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::0.00::002 Travail\r\n\r\n::12.50::\r\n" + DEUX);
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.ExtraitCode[1], "002");

    e.session.transcription.ExtraitDebut[2] = -1.0;
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::0.00::002\r\n\r\r\n::12.50::\r\n");
}

TEST(Transcript, KeepsTheDisksNameAndTheMachinesComma) {
    EntretienOuvert e("60\r\n::1,5::000\r\na\r\n::2::\r\n", {}, ',', "A.RTR");
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    const std::string ecrit = e.hote.dossier.lire("A.RTR");
    EXPECT_EQ(ecrit.substr(0, 9) + ecrit.substr(ecrit.find("::")),
              " 125,5 \r\n::1,50::000\r\na\r\r\n::2,00::\r\n");
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));
}

TEST(Transcript, AFullDiskIsTold) {
    EntretienOuvert e(TETE + UN);
    const Pannes pannes({.rang = 1, .erreur = ENOSPC, .appel = "write", .toujours = true});
    e.hote.dialogues.repondre(Reponse::Ok, IMPOSSIBLE).repondre(Reponse::Ok, "disque plein");
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    Texte saisi = "neuf";
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "001"));
}

TEST(Extract, IsDeletedAfterAYes) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.ExtraitCourant = 1;
    e.session.transcription.ExtraitDebut[2] = -20.0;
    const auto supprimer = [&](Reponse reponse) {
        e.hote.dialogues.repondre(reponse, "Etes-vous sûr(e) de vouloir supprimer cet extrait?");
        return SupprimerExtrait(e.session, e.hote, e.cible());
    };
    EXPECT_EQ(supprimer(Reponse::Non), Suppression::Annule);
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + UN + DEUX);
    EXPECT_EQ(supprimer(Reponse::Oui), Suppression::Supprime);
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::-20.00" + DEUX.substr(7));

    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    EXPECT_EQ(supprimer(Reponse::Oui), Suppression::Supprime);
    e.hote.dossier.ecrire("a.Rtr", TETE);
    e.session.transcription.NbExtraits = 0;
    e.hote.dialogues.repondre(Reponse::Oui).repondre(Reponse::Ok, IMPOSSIBLE);
    EXPECT_EQ(SupprimerExtrait(e.session, e.hote, e.cible()), Suppression::Echec);
}

TEST(Extract, IsInsertedWithItsTextTrimmed) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.SaisieDebut = 10.0;
    e.session.transcription.SaisieFin = 11.005;
    Texte saisi = "Oui.\r\r\r";
    EXPECT_TRUE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "0025"));
    EXPECT_EQ(saisi, "Oui.\r");
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.NbExtraits, 3);
    EXPECT_NE(e.hote.dossier.lire("a.Rtr").find("::12.50::\r\n::10.00::002\r\nOui.\r\n\r\n::11.01::\r\n::20"),
              std::string::npos);
}

TEST(Extract, MakesItsFileAndKeepsToTheLimit) {
    EntretienOuvert e(TETE);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    e.session.transcription.SaisieFin = 2;
    Texte saisi = "a\rb";
    EXPECT_TRUE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "000"));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), " 60 \r\n::0.00::000\ra\rb\r::2.00::\r\n");
    EXPECT_EQ(e.session.corpus.Entretiens[1].Duree, 60);

    e.hote.dossier.ecrire("a.Rtr", plein(9998));
    EXPECT_TRUE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "000"));
    const std::string avant = e.hote.dossier.lire("a.Rtr");
    e.hote.dialogues.repondre(Reponse::Ok, "9999").repondre(Reponse::Ok, "Aucun enregistrement");
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "000"));
    EXPECT_TRUE(e.hote.dossier.lire("a.Rtr") == avant);
    e.hote.media.URL("");
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, e.cible(), saisi, "000"));
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

} // namespace
} // namespace vermo::essai
