#include "data/Variables.h"

#include "support/PlateformeDeTest.h"
#include "textfile/faute.h"

#include <gtest/gtest.h>

namespace vermo::essai {
namespace {

struct Corpus {
    PlateformeDeTest hote;
    Session session;
    explicit Corpus(const std::string& octets) {
        session.corpus.CheminCorpus = hote.dossier.ecrire("c.Crp", octets);
        session.corpus.RepCorpus = hote.dossier.chemin();
        session.corpus.Entretiens.resize(2);
        session.corpus.Entretiens[1].Fichier = "a.mp3";
    }
};

TEST(LireVariables, RangeParNumeroQuelQueSoitLOrdreDesSections) {
    Corpus c("<|DIC|\r\n12,99,Enseignant, chercheur\r\n\r\n>|DIC|\r\n<|POS|\r\n12,M\xE9tier, "
             "r\xF4le\r\n3,\xC2ge\r\n"
             ">|POS|\r\n4,hors section\r\n");
    EXPECT_TRUE(LireVariables(c.session, c.hote));
    const EtatDonnees& donnees = c.session.donnees;
    EXPECT_EQ(donnees.NbVariables, 2);
    EXPECT_EQ(donnees.VariableNom[12], "M\xE9tier, r\xF4le");
    EXPECT_EQ(donnees.VariableNumero[3] + donnees.VariableNom[1] + donnees.VariableNom[4], "3");
    EXPECT_EQ(donnees.ModaliteNom[12][99], "Enseignant, chercheur");
}

TEST(LireVariables, DitCeQuiManqueEtLaisseDesTablesVides) {
    const std::string titre = "Erreur lors de la recherche des informations sur la base de données|";
    const std::pair<std::string, std::string> cas[] = {
        {"<|DIC|\r\n>|DIC|\r\n", "Impossible de trouver la balise d'ouverture du POS."},
        {"<|POS|\r\n1,Sexe\r\n>|POS|\r\n", "Impossible de trouver la balise d'ouverture du DIC."},
        {"<|POS|\r\n1,Sexe\r\n>|POS|\r\n<|DIC|\r\n1,100,x\r\n", "ligne 5"},
        {"<|POS|\r\nSexe\r\n", "ligne 2"}};
    for (const auto& [octets, texte] : cas) {
        Corpus c("<|POS|\r\n1,Ancien\r\n>|POS|\r\n<|DIC|\r\n");
        EXPECT_TRUE(LireVariables(c.session, c.hote));
        c.hote.dossier.ecrire("c.Crp", octets);
        c.hote.dialogues.repondre(Reponse::Ok, texte);
        EXPECT_FALSE(LireVariables(c.session, c.hote));
        EXPECT_EQ(c.hote.dialogues.dernier().substr(0, titre.size()), titre);
        EXPECT_EQ(c.session.donnees, EtatDonnees{}) << octets;
    }
}

TEST(LireAttributs, GardeCeQuiNAPasDeLigne) {
    Corpus c("");
    rtr::Attributs& attributs = c.session.corpus.Entretiens[1].Attributs;
    attributs[4] = 6;
    c.hote.dossier.ecrire("a.Rtr", "60\r\n<|ATTR|\r\n1,2\r\n\r\n99,41\r\n>|ATTR|\r\n7,7\r\n");
    LireAttributs(c.session, 1);
    EXPECT_EQ((std::array{attributs[0], attributs[4], attributs[6], attributs[98]}),
              (std::array{2.F, 6.F, 0.F, 41.F}));

    c.hote.dossier.ecrire("a.Rtr", "60\r\n<|ATTR|\r\n1,5\r\n100,1\r\n");
    EXPECT_THROW(LireAttributs(c.session, 1), FauteExecution);
    EXPECT_EQ(attributs[0], 2);
}

} // namespace
} // namespace vermo::essai
