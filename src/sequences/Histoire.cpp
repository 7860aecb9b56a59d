#include "sequences/Histoire.h"

#include "corpus/AnalyserEntretiens.h"
#include "corpus/OuvertureCorpus.h"
#include "corpus/Porte.h"
#include "formats/FichierCorpus.h"
#include "sequences/Ouverture.h"
#include "textfile/fichier.h"

#include <algorithm>

namespace vermo {
namespace {

/// Whether the step that was taken, which stands at the end of `retournes` now, changed the list of
/// interviews. One that another program's change stopped isn't there: everything may have changed.
bool listeChangee(const EtatCorpus& corpus, const std::vector<Changement>& retournes) {
    if (retournes.empty()) return true;
    for (const Changement::Fichier& fichier : retournes.back().fichiers)
        if (fichier.chemin == corpus.CheminCorpus && fichier.autre)
            return crp::lireEntretiens(*fichier.autre) !=
                   crp::lireEntretiens(lireFichier(fichier.chemin), fichier.chemin);
    return true;
}

bool relireCorpus(Session& session, Plateforme& plateforme, const std::vector<Changement>& retournes) {
    if (listeChangee(session.corpus, retournes)) return true;
    lireThematiques(session, plateforme);
    plateforme.annonces.annoncer({Sujet::Thematiques});
    return false;
}

void relireRetranscription(Session& session, Plateforme& plateforme, const Utf8& chemin) {
    for (int slot = 1; slot <= session.corpus.NbEntretiens; ++slot) {
        if (cheminCompagnon(session, slot, "Rtr") != chemin) continue;
        RelireEntretien(session, plateforme, slot);
        plateforme.annonces.annoncer({Sujet::Extraits, slot});
        plateforme.annonces.annoncer({Sujet::Entretiens, slot});
    }
}

} // namespace

const Changement* prochain(const Session& session, Sens sens) {
    const auto& liste = sens == Sens::Annuler ? session.histoire.faits : session.histoire.defaits;
    return liste.empty() ? nullptr : &liste.back();
}

bool toucheCorpus(const Session& session, const Changement& changement) {
    return std::ranges::any_of(changement.fichiers, [&](const Changement::Fichier& fichier) {
        return fichier.chemin == session.corpus.CheminCorpus;
    });
}

bool parcourirHistoire(Session& session, Plateforme& plateforme, Sens sens) {
    const auto chemins = sens == Sens::Annuler ? annuler(session, plateforme) : refaire(session, plateforme);
    const auto& retournes = sens == Sens::Annuler ? session.histoire.defaits : session.histoire.faits;
    bool aRouvrir = false;
    for (const Utf8& chemin : chemins)
        if (chemin == session.corpus.CheminCorpus)
            aRouvrir = relireCorpus(session, plateforme, retournes);
        else
            relireRetranscription(session, plateforme, chemin);
    return aRouvrir;
}

} // namespace vermo
