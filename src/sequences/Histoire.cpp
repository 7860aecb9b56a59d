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

/// The interviews that the file names by now, whether their recordings are there or not.
bool listeChangee(const EtatCorpus& corpus) {
    const auto lus = crp::lireEntretiens(lireFichier(corpus.CheminCorpus), corpus.CheminCorpus);
    std::vector<Texte> connus;
    for (int slot = 1; slot <= corpus.NbEntretiens; ++slot)
        connus.push_back(entretienDe(corpus, slot).Fichier);
    return lus != connus;
}

bool relireCorpus(Session& session, Plateforme& plateforme) {
    if (listeChangee(session.corpus)) return true;
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
    bool aRouvrir = false;
    for (const Utf8& chemin : chemins)
        if (chemin == session.corpus.CheminCorpus)
            aRouvrir = relireCorpus(session, plateforme);
        else
            relireRetranscription(session, plateforme, chemin);
    return aRouvrir;
}

} // namespace vermo
