#include "corpus/EcritureCorpus.h"

#include "formats/FichierCorpus.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

namespace vermo {
namespace {

constexpr const char* SUFFIXE_TEMPORAIRE = ".$$$";

std::string lireCorpus(const EtatCorpus& corpus) {
    if (corpus.ouvertureInachevee)
        throw FauteExecution("Enregistrement impossible : le corpus n'a pas pu être lu en entier.",
                             corpus.CheminCorpus);
    return lireFichier(corpus.CheminCorpus);
}

/// Both rewrites tell it under the same title.
void direSansBalise(Dialogues& dialogues, const Utf8& quoi) {
    dialogues.demander({"Impossible de trouver la balise d'ouverture des " + quoi + ".",
                        "Erreur lors de la recherche des thématiques", Boutons::Ok, Icone::Information});
}

} // namespace

void EcrireThematiques(const Session& session, Plateforme& plateforme) {
    const EtatCorpus& corpus = session.corpus;
    const std::string ancien = lireCorpus(corpus);
    std::vector<crp::Thematique> rangs;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(corpus.NbThm); ++i)
        rangs.push_back({corpus.ThmCode.at(i), corpus.ThmCouleur.at(i), corpus.ThmNom.at(i)});
    const auto neuf = crp::ecrireThematiques(ancien, rangs);
    if (!neuf) return direSansBalise(plateforme.dialogues, "thématiques");
    remplacerFichier(corpus.CheminCorpus, *neuf);
    supprimerFichier(corpus.CheminCorpus + SUFFIXE_TEMPORAIRE);
}

void EcrireEntretiens(const Session& session, Plateforme& plateforme) {
    const EtatCorpus& corpus = session.corpus;
    const std::string ancien = lireCorpus(corpus);
    std::vector<Texte> fichiers;
    for (std::size_t slot = 1; slot <= static_cast<std::size_t>(corpus.NbEntretiens); ++slot)
        fichiers.push_back(corpus.Entretiens.at(slot).Fichier);
    const auto neuf = crp::ecrireEntretiens(ancien, fichiers);
    if (!neuf) return direSansBalise(plateforme.dialogues, "entretiens");
    remplacerFichier(corpus.CheminCorpus + SUFFIXE_TEMPORAIRE, *neuf);
    remplacerFichier(corpus.CheminCorpus, *neuf);
}

} // namespace vermo
