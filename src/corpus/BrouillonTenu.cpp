#include "corpus/BrouillonTenu.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <sstream>
#include <system_error>
#include <utility>

namespace vermo {
namespace {

constexpr std::chrono::milliseconds DELAI{500}; ///< leaves the disk as long to write what a second ago wasn't
constexpr std::string_view SUFFIXE = ".brouillon", SUFFIXE_VERROU = ".verrou";
constexpr int MODE = 0600;

Utf8 repertoireDesBrouillons(const Emplacements& emplacements) {
    return emplacements.etat + "brouillons/";
}

Utf8 nomLibre() {
    std::random_device hasard;
    std::ostringstream nom;
    nom << std::hex << hasard() << hasard();
    return nom.str();
}

Utf8 verrouDe(const Utf8& chemin) {
    return chemin.substr(0, chemin.size() - SUFFIXE.size()) + Utf8(SUFFIXE_VERROU);
}

void retirerFichiers(const Utf8& chemin) {
    supprimerFichier(chemin);
    supprimerFichier(verrouDe(chemin));
}

std::vector<Utf8> fichiersDe(const Utf8& repertoire, std::string_view suffixe) {
    std::vector<Utf8> chemins;
    std::error_code erreur;
    std::filesystem::directory_iterator entree(repertoire, erreur);
    for (; !erreur && entree != std::filesystem::directory_iterator(); entree.increment(erreur))
        if (const Utf8 chemin = entree->path().string(); chemin.ends_with(suffixe)) chemins.push_back(chemin);
    return chemins;
}

/// The draft in this file, held, when it is about the open corpus and free.
std::optional<BrouillonLibre> prendre(const Session& session, const Utf8& chemin) {
    const auto lire = [&] { return lireBrouillon(lireFichier(chemin), chemin); };
    if (slotDuBrouillon(session, lire()) == 0) return std::nullopt;
    VerrouFichier verrou(verrouDe(chemin));
    if (verrou.ailleurs()) return std::nullopt;
    if (!fichierExiste(chemin)) { // its owner has just removed it
        supprimerFichier(verrouDe(chemin));
        return std::nullopt;
    }
    Brouillon brouillon = lire();
    const int slot = slotDuBrouillon(session, brouillon);
    return BrouillonLibre{std::move(brouillon), slot,
                          std::make_unique<BrouillonTenu>(chemin, std::move(verrou))};
}

} // namespace

BrouillonTenu::BrouillonTenu(const Emplacements& emplacements)
    : repertoire_(repertoireDesBrouillons(emplacements)) {}

BrouillonTenu::BrouillonTenu(Utf8 chemin, VerrouFichier verrou)
    : chemin_(std::move(chemin)), verrou_(std::move(verrou)) {}

BrouillonTenu::~BrouillonTenu() = default; // the thread goes first, and ends with what waits

void BrouillonTenu::garder(Brouillon brouillon, std::function<void(const Utf8&)> surFaute) {
    const std::scoped_lock verrou(acces_);
    attente_ = Attente{std::move(brouillon), std::move(surFaute)};
    if (!fil_.joinable()) fil_ = std::jthread([this](const std::stop_token& arret) { veiller(arret); });
    signal_.notify_all();
}

void BrouillonTenu::ecrire() {
    std::unique_lock verrou(acces_);
    presse_ = true;
    signal_.notify_all();
    signal_.wait(verrou, [this] { return !attente_ && !enCours_; });
    presse_ = false;
}

void BrouillonTenu::retirer() {
    std::unique_lock verrou(acces_);
    attente_.reset();
    signal_.wait(verrou, [this] { return !enCours_; });
    if (!chemin_.empty()) retirerFichiers(chemin_);
}

void BrouillonTenu::veiller(const std::stop_token& arret) {
    std::unique_lock verrou(acces_);
    while (signal_.wait(verrou, arret, [this] { return attente_.has_value(); })) {
        signal_.wait_for(verrou, arret, DELAI, [this] { return presse_ || !attente_; });
        if (!attente_) continue;
        const Attente attente = *std::exchange(attente_, std::nullopt);
        enCours_ = true;
        verrou.unlock();
        mettreSurLeDisque(attente);
        verrou.lock();
        enCours_ = false;
        signal_.notify_all();
    }
}

void BrouillonTenu::mettreSurLeDisque(const Attente& attente) noexcept {
    try {
        if (chemin_.empty()) {
            creerRepertoirePrive(repertoire_);
            const Utf8 chemin = repertoire_ + nomLibre() + Utf8(SUFFIXE);
            verrou_ = VerrouFichier(verrouDe(chemin));
            chemin_ = chemin;
        }
        remplacerFichier(chemin_, ecrireBrouillon(attente.brouillon), MODE);
    } catch (const std::exception& faute) {
        if (attente.surFaute) attente.surFaute(faute.what());
    }
}

Utf8 ecarterBrouillon(const Utf8& chemin, const FauteExecution& faute) {
    return Utf8(faute.what()) + "\n\nCe brouillon est mis de côté :\n" + mettreDeCote(chemin);
}

std::vector<BrouillonLibre> brouillonsLibres(const Session& session, const Emplacements& emplacements,
                                             const std::function<void(const Utf8&)>& surFaute) {
    std::vector<BrouillonLibre> libres;
    if (emplacements.etat.empty()) return libres;
    const Utf8 repertoire = repertoireDesBrouillons(emplacements);
    retirerAbandonnes(repertoire);
    for (const Utf8& chemin : fichiersDe(repertoire, SUFFIXE)) {
        try {
            if (auto libre = prendre(session, chemin)) libres.push_back(std::move(*libre));
        } catch (const FauteExecution& faute) {
            if (!fichierExiste(chemin)) continue;
            surFaute(ecarterBrouillon(chemin, faute));
        }
    }
    std::ranges::sort(libres, [](const BrouillonLibre& a, const BrouillonLibre& b) {
        return a.brouillon.instant > b.brouillon.instant;
    });
    return libres;
}

} // namespace vermo
