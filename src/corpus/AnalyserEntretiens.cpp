#include "corpus/AnalyserEntretiens.h"

#include "corpus/OuvertureCorpus.h"
#include "textfile/chemins.h"
#include "window/DatesFichier.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <string_view>
#include <system_error>
#include <thread>
#include <unordered_map>
#include <utility>

namespace vermo {
namespace {

/// Interviews read between two signs of life.
constexpr std::size_t LOT = 64;

/// One interview's files as they stand now.
struct Fichiers {
    FichierVu enregistrement;
    std::optional<FichierVu> rtr;
};

Fichiers fichiersDe(const Entretien& entretien, const Utf8& repertoire, const IndexRepertoire& index) {
    const Utf8 nom = versUtf8(entretien.Fichier);
    return {index.voir(nom).value_or(FichierVu{repertoire + nom, {}}), index.voir(compagnon(nom, "Rtr"))};
}

/// Gives the tables of before a reopening back to the interviews that have the same transcript, and forgets
/// the others: their memory is free before the first file is read.
void reprendreAnciens(EtatCorpus& corpus, const std::vector<Fichiers>& fichiers, int premier) {
    std::unordered_map<std::string_view, ExtraitsEntretien*> anciens;
    for (ExtraitsEntretien& ancien : corpus.anciensExtraits)
        anciens.emplace(ancien.chemin, &ancien);
    for (std::size_t i = 0; i < fichiers.size() && !anciens.empty(); ++i) {
        const auto ancien = fichiers[i].rtr ? anciens.find(fichiers[i].rtr->chemin) : anciens.end();
        if (ancien == anciens.end()) continue;
        ExtraitsEntretien* table = ancien->second;
        anciens.erase(ancien);
        ligneDe(corpus.extraits, premier + static_cast<int>(i)) = std::move(*table);
    }
    corpus.anciensExtraits = {};
}

/// What is wrong with them is told by who reads them for themselves.
std::optional<std::vector<rtr::Choix>> attributsDe(std::string_view octets, const Utf8& fichier) {
    try {
        return rtr::lireAttributs(octets, fichier);
    } catch (const FauteExecution&) {
        return std::nullopt;
    }
}

/// Reads a transcript into `table`, whose memory is given back first. What was wrong with it, if anything.
/// The state in `rtr` stands for the file where it can't be read.
std::optional<FauteExecution> lireTable(ExtraitsEntretien& table, const FichierVu& rtr,
                                        const Reglages& reglages) {
    EnregistrementVu enregistrement = std::move(table.enregistrement);
    table = {};
    EtatLu etat{rtr.chemin, rtr.identite, {}};
    std::optional<FauteExecution> faute;
    try {
        FichierLu lu = lireAvecIdentite(rtr.chemin);
        etat = {rtr.chemin, lu.identite, empreinteDe(lu.octets)};
        auto attributs = attributsDe(lu.octets, rtr.chemin);
        LectureRtr lecture = analyser(std::move(lu.octets), reglages, rtr.chemin);
        table = std::move(lecture.extraits);
        table.attributs = std::move(attributs);
        faute = std::move(lecture.faute);
    } catch (const FauteExecution& illisible) {
        faute = illisible;
    }
    table.enregistrement = std::move(enregistrement);
    table.chemin = rtr.chemin;
    table.identite = etat.identite;
    table.lu = std::move(etat);
    if (faute) table.fauteDite.nouveau();
    return faute;
}

/// What comes of one interview's files before anything is told of them.
struct Releve {
    std::optional<DatesDeFichier> dates; ///< of the recording
    bool neuve = false;                  ///< the transcript isn't the one that was read last
    std::optional<FauteExecution> faute;
    std::exception_ptr autre; ///< no fault of the file, as memory that runs out
};

/// A recording that is as it was is not opened again.
std::optional<DatesDeFichier> datesDe(EnregistrementVu& connu, const FichierVu& fichier) {
    const bool existe = fichier.identite != IdentiteFichier{};
    if (existe && connu.identite == fichier.identite && connu.chemin == fichier.chemin) return connu.dates;
    const auto dates = datesFichier(fichier.chemin);
    connu = dates ? EnregistrementVu{fichier.chemin, fichier.identite, *dates} : EnregistrementVu{};
    return dates;
}

Releve relever(ExtraitsEntretien& table, const Fichiers& fichiers) {
    Releve releve;
    releve.dates = datesDe(table.enregistrement, fichiers.enregistrement);
    releve.neuve =
        fichiers.rtr && (table.chemin != fichiers.rtr->chemin || table.identite != fichiers.rtr->identite);
    return releve;
}

void lireNeuve(Releve& releve, ExtraitsEntretien& table, const FichierVu& rtr,
               const Reglages& reglages) noexcept {
    try {
        releve.faute = lireTable(table, rtr, reglages);
    } catch (...) {
        releve.autre = std::current_exception();
    }
}

/// Calls `faire` with 0 to `nombre` - 1, each once, on as many threads as the machine runs at a time.
template <class Faire>
void enParallele(std::size_t nombre, const Faire& faire) {
    std::atomic<std::size_t> suivant = 0;
    const auto travailler = [&] {
        for (std::size_t i = suivant++; i < nombre; i = suivant++)
            faire(i);
    };
    std::vector<std::jthread> autres;
    try {
        for (std::size_t i = 1; i < std::min<std::size_t>(nombre, std::thread::hardware_concurrency()); ++i)
            autres.emplace_back(travailler);
    } catch (const std::system_error&) {
        // Without a further thread this one does it all.
    }
    travailler();
}

void prendreTable(Entretien& entretien, const ExtraitsEntretien& table) {
    if (!table.chemin.empty()) {
        entretien.Duree = table.duree;
        entretien.Observations = table.observations;
    }
    entretien.NbExtraits = static_cast<float>(table.lignes.size());
    entretien.PrcRtr = entretien.Duree == 0 ? 0 : table.somme / entretien.Duree;
}

void direManquant(Dialogues& dialogues, const Entretien& entretien) {
    dialogues.demander({"Il y a un problème dans l'entretien suivant : \n" + versUtf8(entretien.Fichier) +
                            "\nSon fichier Rtr est introuvable",
                        "Vermo", Boutons::Ok, Icone::Exclamation});
}

void analyserEntretien(Session& session, Plateforme& plateforme, int slot, const Fichiers& fichiers,
                       const Releve& releve) {
    Entretien& entretien = entretienDe(session.corpus, slot);
    const auto dates =
        releve.dates ? releve.dates : LireDatesFichier(fichiers.enregistrement.chemin, plateforme.dialogues);
    if (dates) {
        entretien.DateAjout = dates->creation;
        entretien.DateModif = dates->modification;
    }
    entretien.NbExtraits = 0;
    ExtraitsEntretien& table = ligneDe(session.corpus.extraits, slot);
    if (!fichiers.rtr) {
        if (table.manqueDit.nouveau()) direManquant(plateforme.dialogues, entretien);
        return;
    }
    if (releve.autre) std::rethrow_exception(releve.autre);
    if (releve.faute) direFaute(plateforme.dialogues, *releve.faute);
    prendreTable(entretien, table);
}

/// Up to LOT interviews from `debut` on. Threads come for transcripts that are to be read, not to find that
/// none is.
std::vector<Releve> releverLot(EtatCorpus& corpus, const std::vector<Fichiers>& fichiers, int premier,
                               std::size_t debut, const Reglages& reglages) {
    std::vector<Releve> releves(std::min(LOT, fichiers.size() - debut));
    std::vector<std::size_t> aLire;
    ExtraitsEntretien* tables = &ligneDe(corpus.extraits, premier + static_cast<int>(debut));
    for (std::size_t i = 0; i < releves.size(); ++i) {
        releves[i] = relever(tables[i], fichiers[debut + i]);
        if (releves[i].neuve) aLire.push_back(i);
    }
    enParallele(aLire.size(), [&](std::size_t k) {
        const std::size_t i = aLire[k];
        lireNeuve(releves[i], tables[i], *fichiers[debut + i].rtr, reglages);
    });
    return releves;
}

} // namespace

void AnalyserEntretiens(Session& session, Plateforme& plateforme, int premier, int dernier) {
    EtatCorpus& corpus = session.corpus;
    premier = std::max(premier, 1);
    dernier = std::min<int>(dernier, corpus.NbEntretiens);
    corpus.extraits.resize(corpus.Entretiens.size());
    const IndexRepertoire index(corpus.RepCorpus);
    std::vector<Fichiers> fichiers;
    for (int slot = premier; slot <= dernier; ++slot)
        fichiers.push_back(fichiersDe(entretienDe(corpus, slot), corpus.RepCorpus, index));
    reprendreAnciens(corpus, fichiers, premier);
    std::vector<Releve> releves;
    for (std::size_t debut = 0; debut < fichiers.size(); debut += releves.size()) {
        releves = releverLot(corpus, fichiers, premier, debut, session.reglages);
        for (std::size_t i = 0; i < releves.size(); ++i) {
            const int slot = premier + static_cast<int>(debut + i);
            analyserEntretien(session, plateforme, slot, fichiers[debut + i], releves[i]);
            plateforme.progression.avance(slot);
        }
    }
}

void RelireEntretien(Session& session, Plateforme& plateforme, int slot) {
    EtatCorpus& corpus = session.corpus;
    if (slot < 1 || slot > corpus.NbEntretiens) return;
    corpus.extraits.resize(corpus.Entretiens.size());
    ExtraitsEntretien& table = ligneDe(corpus.extraits, slot);
    ExtraitsEntretien avant = std::exchange(table, {});
    table.enregistrement = std::move(avant.enregistrement);
    const Utf8 chemin = cheminCompagnon(session, slot, "Rtr");
    const IdentiteFichier identite = identiteFichier(chemin);
    if (fichierExiste(chemin)) {
        const auto faute = lireTable(table, {chemin, identite}, session.reglages);
        if (faute && avant.identite != identite) direFaute(plateforme.dialogues, *faute);
    }
    table.manqueDit = avant.manqueDit;
    if (avant.identite == identite) table.dureeNulleDite = avant.dureeNulleDite;
    prendreTable(entretienDe(corpus, slot), table);
}

void quitterEntretien(Session& session, Plateforme& plateforme) {
    const int slot = session.corpus.EntretienCourant;
    if (slot == 0) return;
    RelireEntretien(session, plateforme, slot);
    plateforme.annonces.annoncer({Sujet::Entretiens, slot});
}

} // namespace vermo
