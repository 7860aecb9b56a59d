#include "data/Variables.h"

#include "corpus/AnalyserEntretiens.h"
#include "support/PlateformeDeTest.h"

using namespace vermo;
using namespace vermo::essai;

namespace {

struct Variables : testing::Test {
    PlateformeDeTest hote;
    Session session;
    rtr::Attributs* attributs = nullptr;
    void SetUp() override {
        session.corpus.RepCorpus = hote.dossier.chemin();
        session.corpus.NbEntretiens = 1;
        session.corpus.Entretiens.resize(2);
        session.corpus.Entretiens[1].Fichier = "a.mp3";
        attributs = &session.corpus.Entretiens[1].Attributs;
        hote.dossier.ecrire("a.mp3", "");
    }
    bool lire(const std::string& octets) {
        session.corpus.CheminCorpus = hote.dossier.ecrire("c.Crp", octets);
        return LireVariables(session, hote);
    }
};

TEST_F(Variables, StandAtTheirNumbersAndEmptyAfterAFault) {
    const std::string bon = "<|DIC|\r\n12,99,Enseignant, chercheur\r\n>|DIC|\r\n<|POS|\r\n12,M\xE9tier\r\n3,"
                            "\xC2ge\r\n>|POS|\r\n";
    const std::pair<std::string, std::string> cas[] = {
        {"<|DIC|\r\n>|DIC|\r\n", "Impossible de trouver la balise d'ouverture du POS."},
        {"<|POS|\r\n1,Sexe\r\n>|POS|\r\n", "Impossible de trouver la balise d'ouverture du DIC."},
        {"<|POS|\r\n1,Sexe\r\n>|POS|\r\n<|DIC|\r\n1,100,x\r\n", "ligne 5"}};
    for (const auto& [octets, texte] : cas) {
        EXPECT_TRUE(lire(bon));
        const EtatDonnees& donnees = session.donnees;
        EXPECT_EQ(donnees.NbVariables, 2);
        EXPECT_EQ(donnees.VariableNom[12] + donnees.VariableNumero[3], "M\xE9tier3");
        EXPECT_EQ(donnees.ModaliteNom[12][99], "Enseignant, chercheur");
        hote.dialogues.repondre(Reponse::Ok, texte);
        EXPECT_FALSE(lire(octets));
        EXPECT_EQ(session.donnees, EtatDonnees{}) << octets;
    }
}

TEST_F(Variables, AttributesWithoutALineStay) {
    for (const std::size_t note : {0, 8000, 8160, 8180, 20000}) { // the section across the first read
        *attributs = {};
        (*attributs)[4] = 6;
        hote.dossier.ecrire("a.Rtr", "60\r\n<|OBS|\r\n" + std::string(note, 'n') +
                                         "\r\n>|OBS|\r\n<|ATTR|\r\n1,2\r\n\r\n"
                                         "99,41\r\n>|ATTR|\r\n7,7\r\n" +
                                         std::string(9000, 't'));
        LireAttributs(session, 1);
        const auto& lus = *attributs;
        EXPECT_EQ((std::vector{lus[0], lus[4], lus[6], lus[98]}), (std::vector{2.F, 6.F, 0.F, 41.F})) << note;
    }
}

TEST_F(Variables, AttributesOfTheScanServeWhileTheFileIsTheSame) {
    for (const std::string modalite : {"2", "41"}) {
        hote.dossier.ecrire("a.Rtr", "60\r\n<|ATTR|\r\n1," + modalite + "\r\n>|ATTR|\r\n");
        if (modalite == "2") AnalyserEntretiens(session, hote, 1, 1);
        for (int fois = 0; fois < 2; ++fois) {
            *attributs = {};
            LireAttributs(session, 1);
            EXPECT_EQ((*attributs)[0], std::stof(modalite));
        }
    }
}

} // namespace
