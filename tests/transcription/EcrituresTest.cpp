#include "corpus/EcritureCorpus.h"
#include "corpus/Import.h"
#include "corpus/OuvertureCorpus.h"
#include "support/Pannes.h"
#include "textfile/fichier.h"
#include "transcription/Entretien.h"

using namespace vermo;
using namespace vermo::essai;

namespace {

/// Each file that the program writes, under every fault of every system call on the way and under a kill at
/// each: the old file or the new one.
TEST(Writing, LeavesTheOldFileOrTheNewOneWhateverFails) {
    EntretienOuvert e(" 125.5 \r\n::10.00::001\r\nBonjour.\r\r\n::12.50::\r\n");
    PlateformeDeTest& hote = e.hote;
    const DossierTemporaire& dossier = hote.dossier;
    Session& session = e.session;
    Session autre;
    hote.dialogues.accord = dossier.chemin("Neuf.Crp");
    hote.progression.patience = 1'000'000;
    const std::string corpus = "Projet\r\n<|THEM|\r\n000,0,Pas\r\n>|THEM|\r\n<|ENTR|\r\n>|ENTR|\r\n";
    const std::string rtr = e.disque();
    const Utf8 source = dossier.ecrire("ailleurs/son.wav", std::string(5000, 's'));
    const auto apporter = [&] { apporterDansCorpus(session, hote, source); };
    const auto ajouter = [&] {
        Texte saisi = "neuf";
        AjouterExtrait(session, hote, e.cible(), saisi, "001");
    };
    const auto lire = [&] { LireRetranscription(session, hote); };
    const auto lireCorpus = [&] {
        session.corpus.luThematiques =
            session.corpus.luEntretiens = {session.corpus.CheminCorpus, {}, empreinteDe(corpus)};
    };
    const struct {
        const char* nom;
        std::optional<std::string> ancien; ///< none: the file is made
        std::function<void()> action;
    } cas[] = {{"E.Crp", corpus, [&] { lireCorpus(), EcrireThematiques(session, hote); }},
               {"E.Crp", corpus, [&] { lireCorpus(), EcrireEntretiens(session, hote); }},
               {"Neuf.Crp", {}, [&] { creerCorpus(autre, hote); }},
               {"programme/Projets.ini", "/ancien.Crp\r\n", [&] { MettreAJourProjets(session, hote); }},
               {"son.wav", {}, apporter},
               {"son.wav", "ancien", apporter},
               {"a.Rtr", {}, [&] { InsererEntretien(session, hote, 1, ""); }},
               {"a.Rtr", {}, ajouter},
               {"a.Rtr", rtr, ajouter},
               {"a.Rtr", rtr, [&] { lire(), EnregistrerExtraits(session, hote); }},
               {"a.Rtr", rtr, [&] { lire(), SupprimerExtrait(session, hote, e.cible()); }}};
    session.transcription.SaisieFin = 2;
    session.transcription.ExtraitCourant = 1;
    for (const auto& c : cas) {
        SCOPED_TRACE(c.nom);
        dossier.ecrire("E.Crp", corpus);
        session.corpus.CheminCorpus = dossier.chemin("E.Crp");
        hote.media.URL(dossier.chemin("a.wav"));
        c.ancien ? void(dossier.ecrire(c.nom, *c.ancien)) : supprimerFichier(dossier.chemin(c.nom));
        survitAuxPannes(dossier, c.nom, c.action);
    }
}

} // namespace
