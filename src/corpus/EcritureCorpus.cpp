#include "corpus/EcritureCorpus.h"

#include "corpus/Porte.h"
#include "formats/FichierCorpus.h"
#include "textfile/faute.h"

#include <cerrno>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vermo {
namespace {

/// How a section is rewritten in the bytes of a corpus file; nothing without its opening tag.
using Reecriture = std::function<std::optional<std::string>(std::string_view)>;

/// Rewrites a section of the corpus file. False, the corpus as it was, when its opening tag is missing.
bool reecrire(Session& session, Plateforme& plateforme, const Utf8& nom, const Reecriture& reecriture,
              Temporaire temporaire, const std::optional<Avis>& avis) {
    const EtatCorpus& corpus = session.corpus;
    if (corpus.ouvertureInachevee)
        throw FauteExecution("Enregistrement impossible : le corpus n'a pas pu être lu en entier.",
                             corpus.CheminCorpus);
    const auto transformer = [&](const Octets& avant) {
        if (!avant) throw FauteExecution("Lecture impossible : " + causeSysteme(ENOENT), corpus.CheminCorpus);
        return reecriture(*avant);
    };
    return changerFichiers(session, plateforme, nom, {{{0, corpus.CheminCorpus}, transformer, temporaire}},
                           avis);
}

/// Both rewrites tell it under the same title.
void direSansBalise(Dialogues& dialogues, const Utf8& quoi) {
    dialogues.demander({"Impossible de trouver la balise d'ouverture des " + quoi + ".",
                        "Erreur lors de la recherche des thématiques", Boutons::Ok, Icone::Information});
}

std::vector<crp::Thematique> rangs(const EtatCorpus& corpus) {
    std::vector<crp::Thematique> resultat;
    for (int i = 1; i <= nombreThematiques(corpus); ++i)
        resultat.push_back(
            {ligneDe(corpus.ThmCode, i), ligneDe(corpus.ThmCouleur, i), ligneDe(corpus.ThmNom, i)});
    return resultat;
}

std::vector<Texte> fichiers(const EtatCorpus& corpus) {
    std::vector<Texte> resultat;
    for (int slot = 1; slot <= corpus.NbEntretiens; ++slot)
        resultat.push_back(entretienDe(corpus, slot).Fichier);
    return resultat;
}

} // namespace

void EcrireThematiques(Session& session, Plateforme& plateforme, const Utf8& nom) {
    const auto reecriture = [&](std::string_view octets) {
        return crp::ecrireThematiques(octets, rangs(session.corpus));
    };
    if (!reecrire(session, plateforme, nom, reecriture, Temporaire::Disparu, Avis{Sujet::Thematiques}))
        direSansBalise(plateforme.dialogues, "thématiques");
}

void EcrireEntretiens(Session& session, Plateforme& plateforme, const Utf8& nom) {
    const auto reecriture = [&](std::string_view octets) {
        return crp::ecrireEntretiens(octets, fichiers(session.corpus));
    };
    if (!reecrire(session, plateforme, nom, reecriture, Temporaire::Reste, {}))
        direSansBalise(plateforme.dialogues, "entretiens");
}

} // namespace vermo
