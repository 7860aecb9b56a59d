#include "corpus/EcritureCorpus.h"
#include "corpus/Import.h"
#include "corpus/Ordre.h"
#include "support/CorpusDEssai.h"
#include "textfile/faute.h"

using namespace vermo;
using namespace vermo::essai;

namespace {

const std::string PAS = "000,&H0, Pas de thematique\r\n";

TEST(Opening, ReadsWhatIsThere) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", ENTETE);
    essai.ajouterEntretien("b", ENTETE);
    essai.ecrireCorpus(PAS + "\r\n001,255, Ecole, travail\r\n", "b.wav\r\n\r\nparti.wav\r\nA.Wav\r\n");
    essai.dialogues().repondre(Reponse::Ok);
    ASSERT_TRUE(essai.ouvrir(3660));
    EXPECT_EQ(essai.dialogues().dernier(), "Fichier introuvable|Le fichier parti.wav est introuvable.\\n"
                                           "Il ne sera pas ajouté au projet.|Ok|Exclamation -> Ok");
    EXPECT_EQ(ordre(essai.corpus()), "b.wav A.Wav ");
    EXPECT_EQ(essai.corpus().ThmNom[2], " Ecole, travail");
    EXPECT_EQ(essai.corpus().HauteurEntretien, 1100) << "a third of 3660 - 360";
    essai.corpus().HauteurEntretien = 400;
    calculerHauteur(essai.session, 3660);
    EXPECT_EQ(essai.corpus().HauteurEntretien, 400) << "a height that was chosen stays";
}

TEST(Opening, TellsInOneBoxEachWhatIsMissingAndWhatLeavesTheDirectory) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", ENTETE);
    essai.dossier().ecrire("secret.wav", "");
    std::string lignes = "../secret.wav\r\na.wav\r\n.\r\n";
    for (int i = 1; i <= 1000; ++i)
        lignes += "m" + std::to_string(i) + ".wav\r\n";
    essai.ecrireCorpus(PAS, lignes);
    essai.dialogues()
        .repondre(Reponse::Ok, "dans Essai.Crp :\n\nligne 10 : ../secret.wav\nligne 12 : .")
        .repondre(Reponse::Ok,
                  "1000 fichiers sont introuvables.\nIls ne seront pas ajoutés au projet.\n\nm1.wav\n");
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_NE(essai.dialogues().dernier().find("m20.wav\\net 980 de plus|"), std::string::npos);
    EXPECT_EQ(ordre(essai.corpus()), "a.wav ");
    for (int i = 1; i <= 1000; ++i)
        essai.dossier().ecrire("c/m" + std::to_string(i) + ".wav", "");
    EXPECT_THROW(lireEntretiens(essai.session, essai.hote), FauteExecution) << "now they exist";
}

TEST(Opening, RefusesWhatItCannotRead) {
    const std::string ouverture = "|Impossible de trouver la balise d'ouverture des ";
    const std::pair<std::string, std::string> cas[] = {
        {"<|ENTR|\r\n>|ENTR|\r\n", "thématiques" + ouverture + "thématiques.|Ok|Information -> Ok"},
        {"<|THEM|\r\n>|THEM|\r\n", "entretiens" + ouverture + "entretiens.|Ok|Information -> Ok"},
        {"", "Impossible d'ouvrir le corpus|Le corpus suivant est inaccessible :\\n"}};
    for (const auto& [octets, message] : cas) {
        CorpusDEssai essai;
        if (!octets.empty()) essai.dossier().ecrire("c/Essai.Crp", octets);
        essai.corpus().NbEntretiens = 4;
        essai.session.donnees.NbVariables = 3;
        essai.session.transcription.source.slot = 2;
        essai.dialogues().repondre(Reponse::Ok);
        EXPECT_FALSE(essai.ouvrir());
        EXPECT_NE(essai.dialogues().dernier().find(message), std::string::npos) << message;
        EXPECT_EQ(essai.corpus().NbEntretiens, 4);
        // The window stays emptied, and what was not read is never rewritten.
        EXPECT_EQ(essai.session.donnees, EtatDonnees());
        EXPECT_EQ(essai.session.transcription.source.slot, 0);
        EXPECT_EQ(preparerFrise(essai.session, essai.hote), 0);
        EXPECT_THROW(EcrireEntretiens(essai.session, essai.hote), FauteExecution);
        EXPECT_THROW(EcrireThematiques(essai.session, essai.hote), FauteExecution);
    }
}

TEST(Order, MovesInterviewsWithTheirExtracts) {
    const std::tuple<int, int, std::string> cas[] = {
        {3, 1, "3 1 2 4 "}, {0, 2, "1 2 3 4 "}, {1, 5, "1 2 3 4 "}};
    for (const auto& [source, cible, attendu] : cas) {
        Session session = corpusDEssai(4);
        for (std::size_t i = 1; i <= 4; ++i)
            session.corpus.Entretiens[i].Fichier = session.corpus.extraits[i].lu.chemin = std::to_string(i);
        DeplacerEntretien(session, source, cible);
        EXPECT_EQ(ordre(session.corpus), attendu);
        for (std::size_t i = 1; i <= 4; ++i)
            EXPECT_EQ(session.corpus.Entretiens[i].Fichier, session.corpus.extraits[i].lu.chemin);
    }
}

TEST(Import, AsksForTheFormatThatIsntTheLightest) {
    PlateformeDeTest hote;
    const std::tuple<std::int16_t, std::int16_t, const char*> cas[] = {
        {1, 8, ""}, {1, 16, "Mono - 16 bits"}, {2, 8, "Stereo - 8 bits"}, {3, 16, "\n - 16 bits"}};
    for (const auto& [canaux, bits, format] : cas) {
        if (*format) hote.dialogues.repondre(Reponse::Non, format);
        EnTeteWav entete;
        entete.NbCanaux = canaux, entete.BitsParEchantillon = bits;
        EXPECT_EQ(demanderFormat(entete, hote), ChoixFormat::Garder);
    }
    EXPECT_NE(hote.dialogues.dernier().find("|OuiNonAnnuler:Non|"), std::string::npos) << "no converter";
    const Utf8 chemin = hote.dossier.ecrire("donnees/Convertisseur.exe", "");
    lancerConvertisseur(hote);
    EXPECT_EQ(hote.lanceur.lances, std::vector<Utf8>{chemin});
}

TEST(Import, KeepsATranscriptAndRefusesWhatTheListCannotHold) {
    for (const char* nom : {"/x/a\rb.wav", "/x/a\\b.wav"})
        EXPECT_THROW(nomImporte(nom), FauteExecution);
    Session session;
    while (session.corpus.NbEntretiens < 999)
        ajouterEntretien(session, "x.wav", 1);
    const DossierTemporaire dossier;
    dossier.ecrire("x.Rtr", "gardée");
    session.corpus.RepCorpus = dossier.chemin();
    EXPECT_FALSE(retranscriptionACreer(session, 1));
    EXPECT_THROW(ajouterEntretien(session, "y.wav", 1), FauteExecution);
}

} // namespace
