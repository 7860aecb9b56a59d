#include "sequences/Ouverture.h"

#include "corpus/AnalyserEntretiens.h"
#include "corpus/EcritureCorpus.h"
#include "corpus/Frise.h"
#include "corpus/Ordre.h"
#include "corpus/OuvertureCorpus.h"
#include "corpus/Pistes.h"
#include "corpus/Porte.h"
#include "data/Variables.h"
#include "platform/Sablier.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

#include <filesystem>
#include <system_error>

namespace vermo {
namespace {

/// False when the corpus could not be opened: the window stays emptied and its pointer the hourglass.
bool lireCorpus(Session& session, Plateforme& plateforme, const Spectateur& spectateur) {
    spectateur.montrer(Etape::Debut);
    nommerCorpus(session);
    if (session.histoire.corpus != session.corpus.CheminCorpus)
        session.histoire = {.corpus = session.corpus.CheminCorpus, .faits = {}, .defaits = {}};
    retirerAbandonnes(session.corpus.RepCorpus);
    MettreAJourProjets(session, plateforme);
    viderCorpus(session);
    spectateur.montrer(Etape::Vide);
    if (!corpusAccessible(session, plateforme)) return false;
    if (!lireThematiques(session, plateforme)) return false;
    spectateur.montrer(Etape::Thematiques);
    if (!lireEntretiens(session, plateforme)) return false;
    toutActiver(session);
    calculerHauteur(session, spectateur.hauteurCadre);
    preparerFrise(session, plateforme);
    spectateur.montrer(Etape::Frise);
    signalerDureesNulles(session, plateforme, 1, session.corpus.NbEntretiens);
    spectateur.montrer(Etape::Pistes);
    LireVariables(session, plateforme);
    for (int slot = 1; slot <= session.corpus.NbEntretiens; ++slot)
        lireAttributs(session, plateforme, slot);
    return true;
}

IssueOuverture demanderEtLire(Session& session, Plateforme& plateforme, const Spectateur& spectateur) {
    if (!demanderCorpus(session, plateforme)) {
        spectateur.montrer(Etape::Pistes); // no interview is chosen any more
        return IssueOuverture::Renoncee;
    }
    return lireCorpus(session, plateforme, spectateur) ? IssueOuverture::Ouverte : IssueOuverture::Echouee;
}

/// The state in which a transcript stands; as `connu` says where its identity proves it.
EtatLu etatActuel(const Utf8& chemin, const EtatLu& connu) {
    const IdentiteFichier identite = identiteFichier(chemin);
    if (certainementMeme(connu.identite, identite)) return connu;
    if (identite == IdentiteFichier{}) return {};
    EtatLu lu{chemin, identite, {}};
    try {
        lireRetranscription({0, chemin}, lu);
    } catch (const FauteExecution&) {
        return lu; // what is wrong with it is told by who reads it for itself
    }
    return lu;
}

/// Writes the list as memory holds it; `nom` says to people what was done to it.
SuiteListe enregistrerListe(Session& session, Plateforme& plateforme, const Utf8& nom) {
    SuiteListe suite{.aRouvrir = true, .faute = {}};
    try {
        EcrireEntretiens(session, plateforme, nom);
    } catch (const FauteExecution& faute) {
        suite.faute = faute;
    }
    return suite;
}

} // namespace

IssueOuverture ouvrirCorpus(Session& session, Plateforme& plateforme, const Spectateur& spectateur) {
    session.corpus.EntretienCourant = 0;
    Sablier sablier(plateforme.ecran);
    const IssueOuverture issue = demanderEtLire(session, plateforme, spectateur);
    if (issue == IssueOuverture::Echouee) sablier.laisser();
    return issue;
}

bool nouveauCorpus(Session& session, Plateforme& plateforme) {
    if (!creerCorpus(session, plateforme)) return false;
    session.corpus.OuvertureDirecte = true;
    return true;
}

Utf8 nomVerrou(const Emplacements& emplacements, const EtatCorpus& corpus) {
    if (emplacements.execution.empty()) return {};
    std::error_code erreur;
    const Utf8 repertoire = std::filesystem::canonical(corpus.RepCorpus, erreur).string();
    const Empreinte empreinte = empreinteDe(erreur ? corpus.RepCorpus : repertoire);
    return emplacements.execution + "vermo-" + std::to_string(empreinte.haut) + "-" +
           std::to_string(empreinte.bas) + ".verrou";
}

void lireAttributs(Session& session, Plateforme& plateforme, int slot) {
    try {
        LireAttributs(session, slot);
    } catch (const FauteExecution& faute) {
        if (ligneDe(session.corpus.extraits, slot).fauteDite.nouveau())
            direFaute(plateforme.dialogues, faute);
    }
}

void actualiserEntretien(Session& session, Plateforme& plateforme, int slot) {
    EtatLu& lu = ligneDe(session.corpus.extraits, slot).lu;
    const EtatLu actuel = etatActuel(cheminCompagnon(session, slot, "Rtr"), lu);
    if (actuel == lu) {
        lu.identite = actuel.identite; // which proves more by now
        return;
    }
    RelireEntretien(session, plateforme, slot);
    lireAttributs(session, plateforme, slot);
    plateforme.annonces.annoncer({Sujet::Entretiens, slot});
}

SuiteListe retirerEntretien(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    if (corpus.EntretienCourant == 0) return {};
    const Reponse reponse =
        plateforme.dialogues.demander({.texte = "Etes-vous sûre de vouloir retirer cet entretien du corpus?",
                                       .titre = "Vermo",
                                       .boutons = Boutons::OuiNon,
                                       .icone = Icone::Question});
    if (reponse != Reponse::Oui) return {};
    const Utf8 nom = "Retirer l'entretien " + nomEntretien(corpus, corpus.EntretienCourant);
    entretienDe(corpus, corpus.EntretienCourant).Fichier.clear();
    return enregistrerListe(session, plateforme, nom);
}

SuiteListe deplacerDansListe(Session& session, Plateforme& plateforme, int source, int cible) {
    if (source == cible) return {};
    DeplacerEntretien(session, source, cible);
    return enregistrerListe(session, plateforme,
                            "Déplacer l'entretien " + nomEntretien(session.corpus, cible));
}

} // namespace vermo
