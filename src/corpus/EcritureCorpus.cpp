#include "corpus/EcritureCorpus.h"

#include "corpus/Import.h"
#include "corpus/OuvertureCorpus.h"
#include "formats/FichierCorpus.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vermo {
namespace {

/// How a section is rewritten in the bytes of a corpus file; nothing without its opening tag.
using Reecriture = std::function<std::optional<std::string>(const std::string&)>;

/// The change of the corpus file by `reecriture`.
FichierAChanger changementDuCorpus(const EtatCorpus& corpus, const Reecriture& reecriture, EtatLu* memoire,
                                   Temporaire temporaire) {
    const Utf8& chemin = corpus.CheminCorpus;
    if (corpus.ouvertureInachevee)
        throw FauteExecution("Enregistrement impossible : le corpus n'a pas pu être lu en entier.", chemin);
    if (!fichierExiste(chemin)) throw FauteExecution("Lecture impossible : " + causeSysteme(ENOENT), chemin);
    const auto transformer = [&chemin, reecriture](const Octets& avant) {
        if (!avant) throw FauteExecution("Lecture impossible : " + causeSysteme(ENOENT), chemin);
        return reecriture(*avant);
    };
    return {chemin, transformer, memoire, temporaire};
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

/// The list of the file as it stands when another program changed it, the list in memory otherwise; behind
/// both the interview in `slot`.
std::vector<Texte> listeAvec(const EtatCorpus& corpus, int slot, const std::string& octets) {
    if (estLu(corpus.luEntretiens, corpus.CheminCorpus, octets)) return fichiers(corpus);
    std::vector<Texte> liste =
        crp::lireEntretiens(octets, corpus.CheminCorpus).value_or(std::vector<Texte>{});
    liste.push_back(entretienDe(corpus, slot).Fichier);
    return liste;
}

/// The new row behind those of the file, none when one of them has its code.
std::optional<std::vector<crp::Thematique>> rangsAvec(const EtatCorpus& corpus, const crp::Thematique& rang,
                                                      const std::string& octets) {
    auto tous = crp::lireThematiques(octets, corpus.CheminCorpus);
    if (!tous || std::ranges::any_of(*tous, [&](const crp::Thematique& autre) {
            return valeur(autre.code) == valeur(rang.code);
        }))
        return std::nullopt;
    tous->push_back(rang);
    return tous;
}

} // namespace

void EcrireThematiques(Session& session, Plateforme& plateforme, const Utf8& nom) {
    EtatCorpus& corpus = session.corpus;
    const auto reecriture = [&](const std::string& octets) {
        return crp::ecrireThematiques(octets, rangs(corpus));
    };
    const auto issue =
        changerFichiers(session, plateforme, nom,
                        {changementDuCorpus(corpus, reecriture, &corpus.luThematiques, Temporaire::Disparu)});
    if (issue == IssueChangement::Refuse) return direSansBalise(plateforme.dialogues, "thématiques");
    if (issue == IssueChangement::Conflit && !lireThematiques(session, plateforme)) return;
    plateforme.annonces.annoncer({Sujet::Thematiques});
}

bool InsererThematique(Session& session, Plateforme& plateforme, const crp::Thematique& rang,
                       const Utf8& nom) {
    EtatCorpus& corpus = session.corpus;
    std::optional<std::vector<crp::Thematique>> tous;
    const auto reecriture = [&](const std::string& octets) -> Octets {
        tous = rangsAvec(corpus, rang, octets);
        if (tous && tous->size() > THEMATIQUES_MAX)
            throw FauteExecution("Un corpus tient au plus " + std::to_string(THEMATIQUES_MAX) +
                                     " thématiques.",
                                 corpus.CheminCorpus);
        return tous ? crp::ecrireThematiques(octets, *tous) : std::nullopt;
    };
    const auto issue = changerFichiers(
        session, plateforme, nom, {changementDuCorpus(corpus, reecriture, nullptr, Temporaire::Disparu)});
    if (issue == IssueChangement::Fait)
        prendreThematiques(corpus, *tous);
    else if (!lireThematiques(session, plateforme)) // which says what is missing
        return false;
    plateforme.annonces.annoncer({Sujet::Thematiques});
    return issue == IssueChangement::Fait;
}

void EcrireEntretiens(Session& session, Plateforme& plateforme, const Utf8& nom) {
    EtatCorpus& corpus = session.corpus;
    const auto reecriture = [&](const std::string& octets) {
        return crp::ecrireEntretiens(octets, fichiers(corpus));
    };
    const auto issue =
        changerFichiers(session, plateforme, nom,
                        {changementDuCorpus(corpus, reecriture, &corpus.luEntretiens, Temporaire::Reste)});
    if (issue == IssueChangement::Refuse) direSansBalise(plateforme.dialogues, "entretiens");
}

bool InsererEntretien(Session& session, Plateforme& plateforme, int slot, const Utf8& nom) {
    EtatCorpus& corpus = session.corpus;
    bool connue = true;
    const auto reecriture = [&](const std::string& octets) {
        connue = estLu(corpus.luEntretiens, corpus.CheminCorpus, octets);
        return crp::ecrireEntretiens(octets, listeAvec(corpus, slot, octets));
    };
    std::vector<FichierAChanger> fichiers{changementDuCorpus(corpus, reecriture, nullptr, Temporaire::Reste)};
    if (auto neuve = retranscriptionACreer(session, slot)) fichiers.push_back(std::move(*neuve));
    if (changerFichiers(session, plateforme, nom, fichiers) == IssueChangement::Refuse)
        direSansBalise(plateforme.dialogues, "entretiens");
    return connue;
}

} // namespace vermo
