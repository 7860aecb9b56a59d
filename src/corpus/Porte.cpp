#include "corpus/Porte.h"

#include "textfile/chemins.h"
#include "textfile/empreinte.h"
#include "textfile/fichier.h"

#include <utility>

namespace vermo {
namespace {

constexpr const char* SUFFIXE_TEMPORAIRE = ".$$$";

/// Where the session keeps what is known of a file; none for one that it doesn't know.
EtatLu* etatDe(EtatCorpus& corpus, const Retranscription& cible) {
    if (cible.slot == 0) return cible.chemin == corpus.CheminCorpus ? &corpus.lu : nullptr;
    if (static_cast<std::size_t>(cible.slot) >= corpus.extraits.size()) return nullptr;
    return &ligneDe(corpus.extraits, cible.slot).lu;
}

void noter(EtatCorpus& corpus, const Retranscription& cible, const IdentiteFichier& identite,
           std::string_view octets) {
    if (EtatLu* etat = etatDe(corpus, cible)) *etat = {cible.chemin, identite, empreinteDe(octets)};
}

std::string lire(EtatCorpus& corpus, const Retranscription& cible) {
    FichierLu lu = lireAvecIdentite(cible.chemin);
    noter(corpus, cible, lu.identite, lu.octets);
    return std::move(lu.octets);
}

Octets lireSiPresent(EtatCorpus& corpus, const Retranscription& cible) {
    if (!fichierExiste(cible.chemin)) return std::nullopt;
    return lire(corpus, cible);
}

void ecrire(EtatCorpus& corpus, const FichierAChanger& fichier, const std::string& octets) {
    const Utf8 temporaire = fichier.cible.chemin + SUFFIXE_TEMPORAIRE;
    if (fichier.temporaire == Temporaire::Reste) remplacerFichier(temporaire, octets);
    noter(corpus, fichier.cible, remplacerFichier(fichier.cible.chemin, octets), octets);
    if (fichier.temporaire == Temporaire::Disparu) supprimerFichier(temporaire);
}

/// What shall stand in each file, none when one refuses; the bytes that stand there go into `changement`.
std::optional<std::vector<std::string>>
preparer(EtatCorpus& corpus, const std::vector<FichierAChanger>& fichiers, Changement& changement) {
    std::vector<std::string> neufs;
    for (const FichierAChanger& fichier : fichiers) {
        Octets avant = lireSiPresent(corpus, fichier.cible);
        Octets apres = fichier.transformer(avant);
        if (!apres) return std::nullopt;
        neufs.push_back(std::move(*apres));
        changement.fichiers.push_back({fichier.cible.chemin, std::move(avant)});
    }
    return neufs;
}

/// Nobody else's change comes between the reading and the writing.
bool lireEtEcrire(EtatCorpus& corpus, const std::vector<FichierAChanger>& fichiers, Changement& changement) {
    const VerrouRepertoire verrou(repertoireDe(fichiers.front().cible.chemin));
    const auto neufs = preparer(corpus, fichiers, changement);
    if (!neufs) return false;
    for (std::size_t i = 0; i < fichiers.size(); ++i)
        ecrire(corpus, fichiers[i], (*neufs)[i]);
    return true;
}

} // namespace

std::string lireFichierCorpus(EtatCorpus& corpus) {
    return lire(corpus, {0, corpus.CheminCorpus});
}

std::string lireRetranscription(EtatCorpus& corpus, const Retranscription& retranscription) {
    return lire(corpus, retranscription);
}

bool changerFichiers(Session& session, Plateforme& plateforme, const Utf8& nom,
                     const std::vector<FichierAChanger>& fichiers, const std::optional<Avis>& avis) {
    Changement changement{nom, {}, avis};
    if (!lireEtEcrire(session.corpus, fichiers, changement)) return false;
    session.dernierChangement = std::move(changement);
    if (avis) plateforme.annonces.annoncer(*avis);
    return true;
}

} // namespace vermo
