#include "corpus/Porte.h"

#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vermo {
namespace {

constexpr const char* SUFFIXE_TEMPORAIRE = ".$$$";
constexpr std::size_t HISTOIRE_MAX = 64 * 1024 * 1024; ///< bytes of all files that it keeps

std::optional<Empreinte> empreinteSi(const Octets& octets) {
    return octets ? std::optional(empreinteDe(*octets)) : std::nullopt;
}

/// One file between its reading and its writing.
struct EnCours {
    const FichierAChanger* fichier;
    IdentiteFichier identite; ///< all zero: no file
    Octets avant, apres;
};

FichierLu lireSiPresent(const Utf8& chemin, bool& present) {
    present = fichierExiste(chemin);
    return present ? lireAvecIdentite(chemin) : FichierLu{};
}

EnCours lire(const FichierAChanger& fichier) {
    bool present = false;
    FichierLu lu = lireSiPresent(fichier.chemin, present);
    return {&fichier, lu.identite, present ? Octets(std::move(lu.octets)) : std::nullopt, {}};
}

/// What stands is still what was read: asked at the last moment before it is replaced.
bool commeLu(const EnCours& ici) {
    const IdentiteFichier actuelle = identiteFichier(ici.fichier->chemin);
    if (actuelle != ici.identite) return false;
    return !ici.avant || ici.identite.probante() || lireFichier(ici.fichier->chemin) == *ici.avant;
}

/// What came up on the way, for one message.
struct Remarques {
    std::vector<Utf8> textes;

    void douter(const FichierEcrit& ecrit, const Utf8& chemin) {
        if (!ecrit.doute.empty())
            textes.push_back("L'enregistrement est fait, mais le disque n'a pas confirmé qu'il résisterait "
                             "à une coupure : " +
                             ecrit.doute + "\n" + chemin);
    }
    void dire(Dialogues& dialogues) const {
        Utf8 texte;
        for (const Utf8& remarque : textes)
            texte += (texte.empty() ? "" : "\n\n") + remarque;
        if (!texte.empty()) dialogues.demander({texte, "Vermo", Boutons::Ok, Icone::Exclamation});
    }
};

/// A copy that holds more than its file did is the rest of an interrupted rewrite: it is kept.
void garderPlusPlein(const Utf8& temporaire, const EnCours& ici, Remarques& remarques) {
    std::error_code erreur;
    const auto taille = std::filesystem::file_size(temporaire, erreur); // of a file, not of a directory
    if (erreur || static_cast<std::int64_t>(taille) <= ici.identite.taille) return;
    remarques.textes.push_back("Une copie plus complète que son fichier a été mise de côté :\n" +
                               mettreDeCote(temporaire));
}

/// The copy under the temporary name. It holds nothing that the file doesn't: what stands in its way stops
/// nothing.
void suivreTemporaire(const EnCours& ici, Remarques& remarques) {
    if (ici.fichier->temporaire == Temporaire::Aucun) return;
    const Utf8 temporaire = ici.fichier->chemin + SUFFIXE_TEMPORAIRE;
    try {
        garderPlusPlein(temporaire, ici, remarques);
        if (ici.fichier->temporaire == Temporaire::Reste && ici.apres)
            remplacerFichier(temporaire, *ici.apres);
        else
            supprimerFichier(temporaire);
    } catch (const FauteExecution&) {
        return;
    }
}

/// False when the file is no more what was read.
bool ecrire(EnCours& ici, Remarques& remarques) {
    const Utf8& chemin = ici.fichier->chemin;
    EtatLu etat{chemin, {}, empreinteSi(ici.apres)};
    if (ici.apres) {
        const auto ecrit = remplacerSi(chemin, *ici.apres, [&] { return commeLu(ici); });
        if (!ecrit) return false;
        etat.identite = ecrit->identite;
        remarques.douter(*ecrit, chemin);
    } else {
        if (!commeLu(ici)) return false;
        supprimerFichier(chemin);
    }
    if (ici.fichier->memoire) *ici.fichier->memoire = std::move(etat);
    suivreTemporaire(ici, remarques);
    return true;
}

/// Reads and compares all, and asks what shall stand.
IssueChangement preparer(const std::vector<FichierAChanger>& fichiers, std::vector<EnCours>& tous) {
    for (const FichierAChanger& fichier : fichiers) {
        EnCours& ici = tous.emplace_back(lire(fichier));
        if (fichier.memoire && !estLu(*fichier.memoire, fichier.chemin, ici.avant))
            return IssueChangement::Conflit;
        if (!fichier.transformer) continue;
        ici.apres = fichier.transformer(ici.avant);
        if (!ici.apres) return IssueChangement::Refuse;
    }
    return IssueChangement::Fait;
}

/// One attempt. None: a file was changed between its reading and its writing, before anything was written.
std::optional<IssueChangement> essayer(const std::vector<FichierAChanger>& fichiers,
                                       std::vector<EnCours>& tous, Remarques& remarques) {
    const VerrouRepertoire verrou(repertoireDe(fichiers.front().chemin));
    const IssueChangement issue = preparer(fichiers, tous);
    if (issue != IssueChangement::Fait) return issue;
    for (EnCours& ici : tous) {
        if (ecrire(ici, remarques)) continue;
        if (&ici == &tous.front()) return std::nullopt;
        throw FauteExecution("Le fichier a été changé par un autre programme pendant l'enregistrement.",
                             ici.fichier->chemin);
    }
    return IssueChangement::Fait;
}

/// Again while another program changes the files at the same time.
IssueChangement changer(const std::vector<FichierAChanger>& fichiers, std::vector<EnCours>& tous,
                        Remarques& remarques) {
    constexpr int essais = 10;
    for (int i = 0; i < essais; ++i) {
        tous.clear();
        if (const auto issue = essayer(fichiers, tous, remarques)) return *issue;
    }
    throw FauteExecution("Un autre programme change ce fichier sans cesse.", fichiers.front().chemin);
}

void direConflit(Dialogues& dialogues, const Utf8& chemin) {
    dialogues.demander({"Ce fichier a été changé par un autre programme :\n" + chemin +
                            "\nIl a été relu : la modification peut maintenant être faite.",
                        "Vermo", Boutons::Ok, Icone::Exclamation});
}

/// What takes these files' change back.
Changement envers(const Utf8& nom, std::vector<EnCours>& tous) {
    Changement changement{nom, {}};
    for (EnCours& ici : tous)
        changement.fichiers.push_back(
            {ici.fichier->chemin, std::move(ici.avant), empreinteSi(ici.apres), ici.fichier->temporaire});
    return changement;
}

std::size_t tailleDe(const std::vector<Changement>& changements) {
    std::size_t taille = 0;
    for (const Changement& changement : changements)
        for (const Changement::Fichier& fichier : changement.fichiers)
            taille += fichier.autre ? fichier.autre->size() : 0;
    return taille;
}

void retenir(Histoire& histoire, Changement&& changement) {
    histoire.defaits.clear();
    histoire.faits.push_back(std::move(changement));
    while (tailleDe(histoire.faits) > HISTOIRE_MAX)
        histoire.faits.erase(histoire.faits.begin());
}

/// The corpus file's other sections stand as they were: memory that was in step with the file stays so.
void suivreFichierCorpus(EtatCorpus& corpus, const std::vector<EnCours>& tous) {
    for (const EnCours& ici : tous)
        for (EtatLu* lu : {&corpus.luThematiques, &corpus.luEntretiens})
            if (estLu(*lu, ici.fichier->chemin, ici.avant)) lu->empreinte = empreinteSi(ici.apres);
}

void oublierFichiers(std::vector<Changement>& changements, const Changement& change) {
    std::erase_if(changements, [&](const Changement& autre) {
        return std::ranges::any_of(autre.fichiers, [&](const Changement::Fichier& fichier) {
            return std::ranges::any_of(change.fichiers, [&](const Changement::Fichier& celui) {
                return celui.chemin == fichier.chemin;
            });
        });
    });
}

/// The files of a change, to be written back.
std::vector<FichierAChanger> aRemettre(const Changement& changement, std::vector<EtatLu>& etats) {
    etats.reserve(changement.fichiers.size()); // they stay where they are
    std::vector<FichierAChanger> fichiers;
    for (const Changement::Fichier& fichier : changement.fichiers) {
        etats.push_back({fichier.chemin, {}, fichier.empreinte});
        FichierAChanger remise{fichier.chemin, {}, &etats.back(), fichier.temporaire};
        if (fichier.autre) remise.transformer = [&fichier](const Octets&) { return fichier.autre; };
        fichiers.push_back(std::move(remise));
    }
    return fichiers;
}

/// Moves the last change of `de`, turned over, to the end of `vers`.
std::vector<Utf8> retourner(Session& session, Plateforme& plateforme, std::vector<Changement>& de,
                            std::vector<Changement>& vers) {
    if (de.empty()) return {};
    const Changement changement = de.back();
    std::vector<EtatLu> etats;
    std::vector<EnCours> tous;
    Remarques remarques;
    const std::vector<FichierAChanger> fichiers = aRemettre(changement, etats);
    std::vector<Utf8> chemins;
    for (const FichierAChanger& fichier : fichiers)
        chemins.push_back(fichier.chemin);
    if (changer(fichiers, tous, remarques) != IssueChangement::Fait) {
        for (auto* liste : {&session.histoire.faits, &session.histoire.defaits})
            oublierFichiers(*liste, changement);
        direConflit(plateforme.dialogues, tous.back().fichier->chemin);
        return chemins;
    }
    de.pop_back();
    vers.push_back(envers(changement.nom, tous));
    remarques.dire(plateforme.dialogues);
    return chemins;
}

} // namespace

std::string lireFichierCorpus(const EtatCorpus& corpus, EtatLu& lu) {
    return lireRetranscription({0, corpus.CheminCorpus}, lu);
}

std::string lireRetranscription(const Retranscription& retranscription, EtatLu& lu) {
    FichierLu fichier = lireAvecIdentite(retranscription.chemin);
    lu = {retranscription.chemin, fichier.identite, empreinteDe(fichier.octets)};
    return std::move(fichier.octets);
}

bool estLu(const EtatLu& lu, const Utf8& chemin, const Octets& octets) {
    return lu.chemin == chemin && lu.empreinte == empreinteSi(octets);
}

IssueChangement changerFichiers(Session& session, Plateforme& plateforme, const Utf8& nom,
                                const std::vector<FichierAChanger>& fichiers,
                                const std::optional<Avis>& avis) {
    std::vector<EnCours> tous;
    Remarques remarques;
    const IssueChangement issue = changer(fichiers, tous, remarques);
    if (issue == IssueChangement::Refuse) return issue;
    if (issue == IssueChangement::Fait) {
        suivreFichierCorpus(session.corpus, tous);
        retenir(session.histoire, envers(nom, tous));
    }
    if (avis) plateforme.annonces.annoncer(*avis);
    if (issue == IssueChangement::Conflit) direConflit(plateforme.dialogues, tous.back().fichier->chemin);
    remarques.dire(plateforme.dialogues);
    return issue;
}

std::vector<Utf8> annuler(Session& session, Plateforme& plateforme) {
    return retourner(session, plateforme, session.histoire.faits, session.histoire.defaits);
}

std::vector<Utf8> refaire(Session& session, Plateforme& plateforme) {
    return retourner(session, plateforme, session.histoire.defaits, session.histoire.faits);
}

} // namespace vermo
