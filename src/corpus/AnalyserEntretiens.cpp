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
        anciens.emplace(ancien.lu.chemin, &ancien);
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

/// Reads a transcript by way of `lu`, whose memory serves from file to file. The state in `rtr` stands for
/// the file where it can't be read. None: its bytes are those of `connu`, whose identity is renewed.
std::optional<LectureRtr> lireTable(const FichierVu& rtr, const Reglages& reglages, FichierLu& lu,
                                    EtatLu* connu = nullptr) {
    LectureRtr lecture;
    EtatLu etat{rtr.chemin, rtr.identite, {}};
    try {
        lireAvecIdentite(rtr.chemin, lu);
        const std::string& octets = lu.octets;
        etat = {rtr.chemin, lu.identite, empreinteDe(octets)};
        if (connu && etat.empreinte == connu->empreinte) {
            connu->identite = lu.identite;
            return std::nullopt;
        }
        lecture = analyser(octets, reglages, rtr.chemin);
        lecture.extraits.attributs = attributsDe(octets, rtr.chemin);
    } catch (const FauteExecution& illisible) {
        lecture.faute = illisible;
    }
    ExtraitsEntretien& table = lecture.extraits;
    table.lu = std::move(etat);
    if (lecture.faute) table.fauteDite.nouveau();
    return lecture;
}

/// What comes of one interview's files before anything is told of them.
struct Releve {
    EnregistrementVu enregistrement;
    bool aLire = false;                  ///< the transcript may not be the one that was read last
    std::optional<EtatLu> connu{};       ///< of the table; none: another file's, or none
    std::optional<LectureRtr> lecture{}; ///< of a transcript that isn't the one that was read last
};

Releve aRelever(const Fichiers& fichiers, ExtraitsEntretien& table) {
    const auto& rtr = fichiers.rtr;
    const bool connu = rtr && table.lu.chemin == rtr->chemin;
    Releve releve{.enregistrement = std::move(table.enregistrement),
                  .aLire = rtr && !(connu && certainementMeme(table.lu.identite, rtr->identite))};
    if (connu && releve.aLire) releve.connu = table.lu;
    return releve;
}

/// A recording that is as it was is not opened again.
void dater(EnregistrementVu& connu, const FichierVu& fichier) {
    const bool existe = fichier.identite != IdentiteFichier{};
    if (existe && connu.identite == fichier.identite && connu.chemin == fichier.chemin) return;
    const auto dates = datesFichier(fichier.chemin);
    connu = dates ? EnregistrementVu{fichier.chemin, fichier.identite, *dates} : EnregistrementVu{};
}

void relever(Releve& releve, const Fichiers& fichiers, const Reglages& reglages, FichierLu& lu) {
    dater(releve.enregistrement, fichiers.enregistrement);
    if (releve.aLire)
        releve.lecture = lireTable(*fichiers.rtr, reglages, lu, releve.connu ? &*releve.connu : nullptr);
}

/// Calls `faire` with 0 to `nombre` - 1, each once, on at most so many threads, no more than the machine runs
/// at a time, and a tool that the thread keeps; and `dire` with the same on this thread, in order, as soon as
/// all up to there are done. Passes on the first exception in this order; nothing further is begun after it.
template <class Outil, class Faire, class Dire>
void enParallele(std::size_t nombre, std::size_t fils, const Faire& faire, const Dire& dire) {
    std::atomic<std::size_t> suivant = 0;
    std::vector<std::atomic<bool>> faits(nombre);
    std::vector<std::exception_ptr> fautes(nombre);
    const auto faireUn = [&](Outil& outil) {
        const std::size_t i = suivant++;
        if (i >= nombre) return false;
        try {
            faire(i, outil);
        } catch (...) {
            fautes[i] = std::current_exception();
        }
        faits[i] = true;
        faits[i].notify_one();
        return true;
    };
    const auto aider = [&](const std::stop_token& arret) {
        Outil outil;
        while (!arret.stop_requested() && faireUn(outil)) {
        }
    };
    std::vector<std::jthread> autres;
    fils = std::min<std::size_t>(fils, std::thread::hardware_concurrency());
    try {
        while (autres.size() + 1 < fils)
            autres.emplace_back(aider);
    } catch (const std::system_error&) {
        // Without a further thread this one does it all.
    }
    Outil outil;
    for (std::size_t i = 0; i < nombre; ++i) {
        while (!faits[i])
            if (!faireUn(outil)) faits[i].wait(false);
        if (fautes[i]) std::rethrow_exception(fautes[i]);
        dire(i);
    }
}

void prendreTable(Entretien& entretien, const ExtraitsEntretien& table) {
    if (!table.lu.chemin.empty()) {
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

/// Takes what was found of one interview into the session, and tells what there is to tell.
void analyserEntretien(Session& session, Plateforme& plateforme, int slot, const Fichiers& fichiers,
                       Releve& releve) {
    ExtraitsEntretien& table = ligneDe(session.corpus.extraits, slot);
    const EtatLu avant = std::exchange(table.lu, {});
    if (releve.lecture)
        table = std::move(releve.lecture->extraits);
    else
        table.lu = releve.connu.value_or(avant);
    table.enregistrement = std::move(releve.enregistrement);
    Entretien& entretien = entretienDe(session.corpus, slot);
    const auto dates = table.enregistrement.chemin.empty()
                           ? LireDatesFichier(fichiers.enregistrement.chemin, plateforme.dialogues)
                           : table.enregistrement.dates;
    if (dates) {
        entretien.DateAjout = dates->creation;
        entretien.DateModif = dates->modification;
    }
    entretien.NbExtraits = 0;
    if (!fichiers.rtr) {
        if (table.manqueDit.nouveau()) direManquant(plateforme.dialogues, entretien);
        return;
    }
    if (releve.lecture && releve.lecture->faute && avant != table.lu)
        direFaute(plateforme.dialogues, *releve.lecture->faute);
    prendreTable(entretien, table);
}

/// The files of the interviews from `premier` to `dernier`. The system is asked on several threads: it takes
/// longer to answer than all that follows where no file has changed.
std::vector<Fichiers> fichiersDes(const EtatCorpus& corpus, int premier, int dernier) {
    constexpr std::size_t LOT = 128; ///< a thread less is sooner there than one for fewer
    const IndexRepertoire index(corpus.RepCorpus);
    std::vector<Fichiers> fichiers(static_cast<std::size_t>(std::max(dernier - premier + 1, 0)));
    const std::size_t lots = (fichiers.size() + LOT - 1) / LOT;
    const auto chercher = [&](std::size_t lot, char) {
        for (std::size_t i = lot * LOT; i < std::min(fichiers.size(), (lot + 1) * LOT); ++i)
            fichiers[i] =
                fichiersDe(entretienDe(corpus, premier + static_cast<int>(i)), corpus.RepCorpus, index);
    };
    enParallele<char>(lots, lots, chercher, [](std::size_t) {});
    return fichiers;
}

/// Threads come for transcripts that are to be read, not to find that none is.
std::size_t filsPour(const std::vector<Releve>& releves) {
    return static_cast<std::size_t>(std::ranges::count(releves, true, &Releve::aLire));
}

} // namespace

void AnalyserEntretiens(Session& session, Plateforme& plateforme, int premier, int dernier) {
    EtatCorpus& corpus = session.corpus;
    premier = std::max(premier, 1);
    dernier = std::min<int>(dernier, corpus.NbEntretiens);
    corpus.extraits.resize(corpus.Entretiens.size());
    const std::vector<Fichiers> fichiers = fichiersDes(corpus, premier, dernier);
    reprendreAnciens(corpus, fichiers, premier);
    std::vector<Releve> releves;
    releves.reserve(fichiers.size());
    for (std::size_t i = 0; i < fichiers.size(); ++i)
        releves.push_back(aRelever(fichiers[i], ligneDe(corpus.extraits, premier + static_cast<int>(i))));
    enParallele<FichierLu>(
        releves.size(), filsPour(releves),
        [&](std::size_t i, FichierLu& lu) { relever(releves[i], fichiers[i], session.reglages, lu); },
        [&](std::size_t i) {
            const int slot = premier + static_cast<int>(i);
            analyserEntretien(session, plateforme, slot, fichiers[i], releves[i]);
            plateforme.progression.avance(slot);
        });
}

void RelireEntretien(Session& session, Plateforme& plateforme, int slot) {
    EtatCorpus& corpus = session.corpus;
    if (slot < 1 || slot > corpus.NbEntretiens) return;
    corpus.extraits.resize(corpus.Entretiens.size());
    ExtraitsEntretien& table = ligneDe(corpus.extraits, slot);
    ExtraitsEntretien avant = std::exchange(table, {});
    const Utf8 chemin = cheminCompagnon(session, slot, "Rtr");
    const IdentiteFichier identite = identiteFichier(chemin);
    if (identite != IdentiteFichier{}) {
        FichierLu lu;
        auto lecture = lireTable({chemin, identite}, session.reglages, lu);
        table = std::move(lecture->extraits);
        if (lecture->faute && avant.lu != table.lu) direFaute(plateforme.dialogues, *lecture->faute);
    }
    table.enregistrement = std::move(avant.enregistrement);
    table.manqueDit = avant.manqueDit;
    if (avant.lu == table.lu) table.dureeNulleDite = avant.dureeNulleDite;
    prendreTable(entretienDe(corpus, slot), table);
}

void quitterEntretien(Session& session, Plateforme& plateforme) {
    const int slot = session.corpus.EntretienCourant;
    if (slot == 0) return;
    RelireEntretien(session, plateforme, slot);
    plateforme.annonces.annoncer({Sujet::Entretiens, slot});
}

} // namespace vermo
