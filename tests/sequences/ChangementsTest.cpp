#include "corpus/AnalyserEntretiens.h"
#include "corpus/EcritureCorpus.h"
#include "corpus/Import.h"
#include "sequences/Histoire.h"
#include "sequences/Ouverture.h"
#include "support/CorpusDEssai.h"
#include "textfile/faute.h"
#include "transcription/Retranscription.h"
#include "transcription/Saisie.h"

#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

namespace vermo::essai {
namespace {

constexpr const char* UN = "::10.00::001\r\nBonjour.\r\r\n::12.50::\r\n";
constexpr const char* DEUX = "::20.00::001\r\nAu revoir.\r\r\n::30.00::\r\n";

/// A person who agrees to everything; the messages about another program's change are counted.
struct Accord : Dialogues {
    int conflits = 0;
    Reponse demander(const Message& message) override {
        if (message.texte.find("changé par un autre programme") != Utf8::npos) ++conflits;
        return message.boutons == Boutons::OuiNon ? Reponse::Oui : Reponse::Ok;
    }
    Utf8 choisirFichier(const DemandeFichier&) override { return {}; }
};

/// A program without a screen, with a corpus of two interviews open and the first one current.
struct Programme : CorpusDEssai {
    Accord accord;
    PlateformeDeTest& p = CorpusDEssai::hote;
    Plateforme hote{accord,  p.media,       p.horloge,  p.lanceur,
                    p.ecran, p.progression, p.annonces, {dossier().chemin(), {}, {}}};

    Programme() {
        session.reglages.separateurDecimal = '.';
        ecrireCorpus("000,&H0, Sans\r\n001,255, Vie\r\n", "a.wav\r\nb.wav\r\n");
        for (const char* nom : {"a", "b", "c"})
            ajouterEntretien(nom, std::string(ENTETE) + UN + DEUX);
        dossier().ecrire("c/d.wav", "");
        hote.annonces.surAvis = [this](const Avis& avis) {
            if (avis.sujet == Sujet::Extraits) LireRetranscription(session, hote);
        };
        corpus().CheminCorpus = dossier().chemin("c/Essai.Crp");
        rouvrir();
    }
    void rouvrir() {
        corpus().OuvertureDirecte = true;
        ouvrirCorpus(session, hote);
        corpus().EntretienCourant = 1;
        hote.media.URL(dossier().chemin("c/a.wav"));
        LireRetranscription(session, hote);
    }
    Retranscription cible() { return retranscriptionDuLecteur(session, hote); }
    void suivre(const SuiteListe& suite) {
        if (suite.aRouvrir) rouvrir();
    }
    /// What the windows show is made from.
    std::string memoire() {
        std::string texte = ordre(corpus()) + decrireExtraits(session, 1);
        for (int k = 1; k <= nombreThematiques(corpus()); ++k)
            texte += ligneDe(corpus().ThmCode, k) + ligneDe(corpus().ThmNom, k) + ";";
        for (int k = 1; k <= nombreExtraits(session); ++k)
            texte +=
                ligneDe(session.transcription.ExtraitTexte, k) + std::to_string(secondesDebut(session, k));
        return texte;
    }
    std::string disque() { return dossier().lire("c/Essai.Crp") + dossier().lire("c/a.Rtr") + presents(); }
    std::string presents() {
        std::string noms;
        for (const char* nom : {"c/c.Rtr", "c/d.Rtr"})
            noms += dossier().existe(nom) ? nom : "";
        return noms;
    }
};

/// Every kind of change of a corpus, the file that it concerns, and whether it goes through whatever another
/// hand wrote there: it needs nothing from memory.
const struct Sorte {
    const char* nom;
    const char* fichier;
    bool insertion;
    std::function<void(Programme&)> faire;
} SORTES[] = {
    {"add an extract", "c/a.Rtr", true,
     [](Programme& p) {
         p.session.transcription.SaisieDebut = 40, p.session.transcription.SaisieFin = 50;
         Texte texte = "neuf";
         AjouterExtrait(p.session, p.hote, p.cible(), texte, "001");
     }},
    {"edit an extract", "c/a.Rtr", false,
     [](Programme& p) {
         saisie::ouvrirSpan(p.session, 2);
         saisie::validerModification(p.session, p.hote, "001 Vie", "neuf");
     }},
    {"move a bound", "c/a.Rtr", false,
     [](Programme& p) {
         p.session.transcription.ExtraitFin.back() = 31.0;
         if (!EnregistrerExtraits(p.session, p.hote, "Borne")) LireRetranscription(p.session, p.hote);
     }},
    {"delete an extract", "c/a.Rtr", false,
     [](Programme& p) {
         p.session.transcription.ExtraitCourant = 1;
         SupprimerExtrait(p.session, p.hote, p.cible());
     }},
    {"add a thematic", "c/Essai.Crp", true,
     [](Programme& p) {
         saisie::ajouterThematique(p.session, p.hote, {"7", "Neuve", "255"});
     }},
    {"change thematics", "c/Essai.Crp", false,
     [](Programme& p) {
         p.corpus().ThmNom.at(1) = " Autre";
         EcrireThematiques(p.session, p.hote);
     }},
    {"bring an interview in", "c/Essai.Crp", true,
     [](Programme& p) {
         ajouterEntretien(p.session, "d.wav", 9);
         if (!InsererEntretien(p.session, p.hote, p.corpus().NbEntretiens, "Ajouter d")) p.rouvrir();
     }},
    {"take an interview out", "c/Essai.Crp", false,
     [](Programme& p) {
         p.corpus().EntretienCourant = 2;
         p.suivre(retirerEntretien(p.session, p.hote));
     }},
    {"move an interview", "c/Essai.Crp", false,
     [](Programme& p) { p.suivre(deplacerDansListe(p.session, p.hote, 2, 1)); }},
};

/// What the other hand leaves: an extract, or an interview and a thematic.
std::string parUnAutre(const std::string& fichier, std::string octets) {
    if (fichier.ends_with(".Rtr")) return octets + "::90.00::001\r\nD'ailleurs.\r\r\n::95.00::\r\n";
    octets.insert(octets.find(">|THEM|"), "009,0, D'ailleurs\r\n");
    return octets.insert(octets.find(">|ENTR|"), "c.wav\r\n");
}

/// The other hand, which writes once, between the reading and the writing.
struct AutreMain {
    static inline std::function<void()> ecrire;
    const AppelsSysteme vraie = appelsSysteme();
    explicit AutreMain(std::function<void()> action) {
        ecrire = std::move(action);
        appelsSysteme().fdatasync = [](int descripteur) {
            if (ecrire) std::exchange(ecrire, nullptr)();
            return ::fdatasync(descripteur);
        };
    }
    ~AutreMain() { appelsSysteme() = vraie; }
};

TEST(Changes, LoseNothingOfAnotherHand) {
    for (const Sorte& sorte : SORTES)
        for (const bool entreDeux : {false, true}) {
            SCOPED_TRACE(std::string(sorte.nom) + (entreDeux ? ", meanwhile" : ", before"));
            Programme p;
            const std::string ailleurs = parUnAutre(sorte.fichier, p.dossier().lire(sorte.fichier));
            const AutreMain autre([&] { std::ofstream(p.dossier().chemin(sorte.fichier)) << ailleurs; });
            if (!entreDeux) std::exchange(AutreMain::ecrire, nullptr)();
            sorte.faire(p);
            EXPECT_EQ(p.accord.conflits, sorte.insertion ? 0 : 1);
            EXPECT_EQ(p.dossier().lire(sorte.fichier) == ailleurs, !sorte.insertion);
            if (!sorte.insertion) sorte.faire(p);
            const std::string lu = p.dossier().lire(sorte.fichier);
            EXPECT_NE(lu, ailleurs);
            EXPECT_NE(lu.find("D'ailleurs"), std::string::npos);
            EXPECT_NE(p.memoire().find("D'ailleurs"), std::string::npos);
            EXPECT_EQ(p.accord.conflits, sorte.insertion ? 0 : 1);
        }
}

TEST(Changes, AreTakenBackAndMadeAgain) {
    for (const Sorte& sorte : SORTES) {
        SCOPED_TRACE(sorte.nom);
        Programme p;
        const std::string avant = p.disque(), vu = p.memoire();
        sorte.faire(p);
        RelireEntretien(p.session, p.hote, 1); // as the interview's window does when it is left
        const std::string apres = p.disque(), vuApres = p.memoire();
        ASSERT_NE(apres, avant);
        for (int fois = 0; fois < 2; ++fois) {
            if (parcourirHistoire(p.session, p.hote, Sens::Annuler)) p.rouvrir();
            EXPECT_EQ(p.disque(), avant);
            EXPECT_EQ(p.memoire(), vu);
            EXPECT_EQ(prochain(p.session, Sens::Annuler), nullptr);
            if (parcourirHistoire(p.session, p.hote, Sens::Refaire)) p.rouvrir();
            EXPECT_EQ(p.disque(), apres);
            EXPECT_EQ(p.memoire(), vuApres);
            EXPECT_EQ(prochain(p.session, Sens::Refaire), nullptr);
        }
        // Another hand's change stops it.
        const std::string ailleurs = parUnAutre(sorte.fichier, p.dossier().lire(sorte.fichier));
        p.dossier().ecrire(sorte.fichier, ailleurs);
        if (parcourirHistoire(p.session, p.hote, Sens::Annuler)) p.rouvrir();
        EXPECT_EQ(p.dossier().lire(sorte.fichier), ailleurs);
        EXPECT_EQ(p.accord.conflits, 1);
        EXPECT_EQ(prochain(p.session, Sens::Annuler), nullptr);
    }
}

} // namespace
} // namespace vermo::essai
