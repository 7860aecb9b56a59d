#include "data/Variables.h"

#include "formats/FichierCorpus.h"
#include "formats/FichierRtr.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "textfile/nombres.h"

namespace vermo {
namespace {

bool refuser(Plateforme& plateforme, const Utf8& texte) {
    plateforme.dialogues.demander(
        {.texte = texte,
         .titre = "Erreur lors de la recherche des informations sur la base de données",
         .icone = Icone::Information});
    return false;
}

void ranger(EtatDonnees& donnees, const std::vector<crp::LigneVariable>& variables) {
    for (const crp::LigneVariable& variable : variables) {
        const int v = static_cast<int>(valeur(variable.numero));
        ligneDe(donnees.VariableNumero, v) = variable.numero;
        ligneDe(donnees.VariableNom, v) = variable.nom;
    }
    donnees.NbVariables = static_cast<float>(variables.size());
}

void ranger(EtatDonnees& donnees, const std::vector<crp::LigneModalite>& modalites) {
    donnees.ModaliteNom.resize(100);
    for (const crp::LigneModalite& modalite : modalites)
        ligneDe(ligneDe(donnees.ModaliteNom, modalite.variable), modalite.modalite) = modalite.nom;
}

} // namespace

bool LireVariables(Session& session, Plateforme& plateforme) {
    session.donnees = {};
    const Utf8& chemin = session.corpus.CheminCorpus;
    try {
        const std::string octets = lireFichier(chemin);
        const auto variables = crp::lirePos(octets, chemin);
        if (!variables) return refuser(plateforme, "Impossible de trouver la balise d'ouverture du POS.");
        const auto modalites = crp::lireDic(octets, chemin);
        if (!modalites) return refuser(plateforme, "Impossible de trouver la balise d'ouverture du DIC.");
        ranger(session.donnees, *variables);
        ranger(session.donnees, *modalites);
        return true;
    } catch (const FauteExecution& faute) {
        return refuser(plateforme, faute.what());
    }
}

namespace {

/// A transcript as far as its attributes reach: a corpus has many, and long ones.
std::string lireJusquAuxAttributs(const Utf8& chemin) {
    constexpr std::size_t debutUsuel = 8192;
    std::string octets = lireDebut(chemin, debutUsuel);
    const std::size_t section = octets.find("<|ATTR|");
    const bool suffit = octets.size() < debutUsuel || (section != std::string::npos &&
                                                       octets.find(">|ATTR|", section) != std::string::npos);
    return suffit ? octets : lireFichier(chemin);
}

/// What the scan took from the transcript, where it is still the same file.
const std::vector<rtr::Choix>* attributsConnus(const EtatCorpus& corpus, int slot) {
    if (static_cast<std::size_t>(slot) >= corpus.extraits.size()) return nullptr;
    const ExtraitsEntretien& table = ligneDe(corpus.extraits, slot);
    const bool connus =
        table.attributs && certainementMeme(table.lu.identite, identiteFichier(table.lu.chemin));
    return connus ? &*table.attributs : nullptr;
}

} // namespace

void LireAttributs(Session& session, int slot) {
    rtr::Attributs& attributs = entretienDe(session.corpus, slot).Attributs;
    if (const auto* connus = attributsConnus(session.corpus, slot)) return rtr::poser(*connus, attributs);
    const Utf8 chemin = cheminCompagnon(session, slot, "Rtr");
    if (!fichierExiste(chemin)) return;
    rtr::poser(rtr::lireAttributs(lireJusquAuxAttributs(chemin), chemin), attributs);
}

} // namespace vermo
