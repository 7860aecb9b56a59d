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
const std::string DEUX = "::20.25::004 Famille\r\nMes parents\r\nici.\r\n::31.00::\r\n";
const std::string DEUX_RELU = "::20.25::004\r\nMes parents\rici.\r\r\n::31.00::\r\n";
constexpr const char* IMPOSSIBLE = "|Enregistrement impossible!!|Ok|Aucune -> Ok";

TEST(LireRetranscription, SansFichierNiEntretien) {
    EntretienOuvert e(TETE + UN);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.NbExtraits, 0);
    EXPECT_EQ(e.hote.ecran.pointeurCourant, Pointeur::Sablier);
    EXPECT_TRUE(e.hote.dialogues.journal().empty());

    e.hote.dialogues.repondre(Reponse::Ok, "Enregistrement impossible!!");
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));

    for (const std::int16_t slot : {0, 2, -1}) {
        e.session.corpus.EntretienCourant = slot;
        e.hote.dialogues.repondre(Reponse::Ok).repondre(Reponse::Ok);
        LireRetranscription(e.session, e.hote);
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
        EXPECT_EQ(e.hote.dialogues.dernier(), "|Lecture impossible!|Ok|Aucune -> Ok");
    }
}

TEST(LireRetranscription, UnFichierFautifEstDitUneFoisEtJamaisReecrit) {
    std::string dixMille = TETE;
    for (int n = 0; n < 10000; ++n)
        dixMille += "::1.00::000\r\n::2.00::\r\n";
    const std::tuple<std::string, std::string, float> cas[] = {
        {TETE + UN + "::\r\n" + DEUX, "ligne 14", 1},
        {TETE + UN + "::20.25::004\r\ncoup", "ligne 14", 2},
        {dixMille, "9999", 9999},
        {TETE + UN + std::string("\0\r\n", 3), "nul", 1},
        {"", "vide", 0},
        {"1\r\n<|OBS|\r\n" + UN, "manque", 1},
        {"-5\r\n" + UN, "négative", 1},
        {"1E39\r\n" + UN, "hors de toute mesure", 1},
        {TETE + "::10,5::000\r\n::11,5::\r\n", "d'une autre machine", 1}};
    for (const auto& [octets, cause, lus] : cas) {
        EntretienOuvert e(octets,
                          [&](PlateformeDeTest& hote) { hote.dialogues.repondre(Reponse::Ok, cause); });
        EXPECT_EQ(e.session.transcription.NbExtraits, lus) << cause;
        EXPECT_NE(e.hote.dialogues.dernier().find("a.Rtr"), std::string::npos) << cause;
        LireRetranscription(e.session, e.hote);

        for (const Reponse reponse : {Reponse::Ok, Reponse::Ok, Reponse::Oui, Reponse::Ok})
            e.hote.dialogues.repondre(reponse);
        EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
        Texte saisi = "neuf";
        EXPECT_FALSE(AjouterExtrait(e.session, e.hote, saisi, "001"));
        EXPECT_EQ(e.hote.dialogues.dernier(), IMPOSSIBLE);
        EXPECT_EQ(SupprimerExtrait(e.session, e.hote), Suppression::Echec);
        EXPECT_TRUE(e.hote.dossier.lire("a.Rtr") == octets) << cause;
    }
}

TEST(LireRetranscription, UnRepertoireASaPlace) {
    EntretienOuvert e(TETE + UN);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    std::filesystem::create_directory(e.hote.dossier.chemin("a.Rtr"));
    e.hote.dialogues.repondre(Reponse::Ok, "a.Rtr").repondre(Reponse::Ok, "Enregistrement impossible!!");
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.NbExtraits, 0);
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
}

TEST(LireRetranscription, LAutreSeparateurSeLitCommeLaMachineLeLit) {
    EntretienOuvert e(
        "125\r\n::10.75::001\r\n::12.50::\r\n",
        [](PlateformeDeTest& hote) { hote.dialogues.repondre(Reponse::Ok, "10.75"); }, ',');
    EXPECT_EQ(secondesDebut(e.session, 1), 10);
    EXPECT_EQ(e.session.transcription.ExtraitFin[1], Temps(Texte("12.50")));
    EXPECT_TRUE(e.session.transcription.lectureEntiere);
}

TEST(EnregistrerExtraits, UnExtraitModifieLaisseLesAttributs) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.ExtraitDebut[1] = 9.996;
    e.session.transcription.ExtraitCode[1] = "002 Travail";
    e.session.transcription.ExtraitTexte[1] = "";
    EXPECT_EQ(secondesFin(e.session, 1), 12.5);
    EXPECT_EQ(e.session.transcription.ExtraitTexte[0],
              " 125.5 \r<|OBS|\rNote\r>|OBS|\r<|ATTR|\r1,2\r99,41\r>|ATTR|\r");
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::10.00::002 Travail\r\n\r\n::12.50::\r\n" + DEUX_RELU);
    LireRetranscription(e.session, e.hote);
    EXPECT_EQ(e.session.transcription.ExtraitCode[1], "002");

    e.session.transcription.ExtraitDebut[2] = -1.0;
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::10.00::002\r\n\r\r\n::12.50::\r\n");
}

TEST(EnregistrerExtraits, EcritSousLeNomDuDisqueAvecLaVirgule) {
    EntretienOuvert e("60\r\n::1,5::000\r\na\r\n::2::\r\n", {}, ',', "A.RTR");
    EXPECT_TRUE(EnregistrerExtraits(e.session, e.hote));
    EXPECT_EQ(e.hote.dossier.lire("A.RTR"),
              " 125,5 \r\n<|OBS|\r\nNote\r\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n99,41\r\n"
              ">|ATTR|\r\n::1,50::000\r\na\r\r\n::2,00::\r\n");
    EXPECT_FALSE(e.hote.dossier.existe("a.Rtr"));
}

TEST(EnregistrerExtraits, UnDisquePleinSeDit) {
    EntretienOuvert e(TETE + UN);
    const Pannes pannes({.rang = 1, .erreur = ENOSPC, .appel = "write", .toujours = true});
    e.hote.dialogues.repondre(Reponse::Ok, "Enregistrement impossible!!")
        .repondre(Reponse::Ok, "disque plein");
    EXPECT_FALSE(EnregistrerExtraits(e.session, e.hote));
    Texte saisi = "neuf";
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, saisi, "001"));
}

TEST(SupprimerExtrait, OteLExtraitCourantApresAccord) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.ExtraitCourant = 1;
    e.session.transcription.ExtraitDebut[2] = -20.0;
    e.hote.dialogues.repondre(Reponse::Non);
    EXPECT_EQ(SupprimerExtrait(e.session, e.hote), Suppression::Annule);
    EXPECT_EQ(e.hote.dialogues.dernier(),
              "Confirmation|Etes-vous sûr(e) de vouloir supprimer cet extrait?|OuiNon|Question -> Non");
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + UN + DEUX);

    e.hote.dialogues.repondre(Reponse::Oui);
    EXPECT_EQ(SupprimerExtrait(e.session, e.hote), Suppression::Supprime);
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), TETE + "::-20.00" + DEUX_RELU.substr(7));

    e.session.transcription.NbExtraits = 0;
    e.hote.dialogues.repondre(Reponse::Oui).repondre(Reponse::Ok, "Enregistrement impossible!!");
    EXPECT_EQ(SupprimerExtrait(e.session, e.hote), Suppression::Echec);

    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    e.hote.dialogues.repondre(Reponse::Oui);
    EXPECT_EQ(SupprimerExtrait(e.session, e.hote), Suppression::Supprime);
}

TEST(AjouterExtrait, InsereEtRogneLeTexteDuControle) {
    EntretienOuvert e(TETE + UN + DEUX);
    e.session.transcription.SaisieDebut = 10.0;
    e.session.transcription.SaisieFin = 11.005;
    Texte saisi = "Oui.\r\r\r";
    EXPECT_TRUE(AjouterExtrait(e.session, e.hote, saisi, "0025"));
    EXPECT_EQ(saisi, "Oui.\r");
    const std::string relu = TETE.substr(0, TETE.find('\r')) +
                             "\r\n<|OBS|\r\nNote\r\n\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n"
                             "99,41\r\n>|ATTR|\r\n::10.00::001\r\nBonjour.\r\n\r\n::12.50::\r\n";
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), relu + "::10.00::002\r\nOui.\r\n\r\n::11.01::\r\n" + DEUX);
}

TEST(AjouterExtrait, CreeLeFichierEtTientLaLimite) {
    EntretienOuvert e(TETE);
    std::filesystem::remove(e.hote.dossier.chemin("a.Rtr"));
    e.session.transcription.SaisieFin = 2;
    Texte saisi = "a\rb";
    EXPECT_TRUE(AjouterExtrait(e.session, e.hote, saisi, "000"));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr"), " 60 \r\n::0.00::000\ra\rb\r::2.00::\r\n");

    std::string plein = TETE;
    for (int n = 0; n < 9999; ++n)
        plein += "::1.00::000\r\n::2.00::\r\n";
    e.hote.dossier.ecrire("a.Rtr", plein);
    e.hote.dialogues.repondre(Reponse::Ok, "9999").repondre(Reponse::Ok, "Aucun enregistrement");
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, saisi, "000"));
    EXPECT_EQ(e.hote.dossier.lire("a.Rtr").size(), plein.size());
    e.hote.media.URL("");
    EXPECT_FALSE(AjouterExtrait(e.session, e.hote, saisi, "000"));
}

TEST(Temps, RognerFinsEtFormeTexte) {
    const std::pair<Texte, Texte> cas[] = {{"", ""},         {"\r", "\r"},       {"\r\r", "\r\r"},
                                           {"a\r", "a\r"},   {"a\r\r\r", "a\r"}, {"\r\r\r", "\r\r"},
                                           {"a\rb", "a\rb"}, {"a\r\n", "a\r"}};
    for (auto [avant, apres] : cas) {
        rognerFins(avant);
        EXPECT_EQ(avant, apres);
    }
    const Reglages point{.separateurDecimal = '.'}, virgule{.separateurDecimal = ','};
    EXPECT_EQ(valeurTexte(Texte("12,75"), virgule), 12);
    EXPECT_EQ(valeurTexte(12.75, virgule), 12);
    EXPECT_EQ(valeurTexte(12.75, point), 12.75);
    EXPECT_EQ(secondes(Texte("12,75"), virgule), 12.75);
    EXPECT_EQ(valeurTexte(Texte("12.75"), virgule), 12.75);
}

} // namespace
} // namespace vermo::essai
