// The jobs that need no window: waveforms, scans, the safe write.
#include "Donnees.h"
#include "Mesure.h"

#include "app/Demarrage.h"
#include "audio/ImageOnde.h"
#include "corpus/AnalyserEntretiens.h"
#include "corpus/OuvertureCorpus.h"
#include "corpus/Porte.h"
#include "formats/FichierRtr.h"
#include "textfile/fichier.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

/// As FrmVisu draws it on a screen of 1920 x 1080.
constexpr Twips LARGEUR_VUE = 24765;

double dessinerVue(const std::string& onde, const std::string& sortie) {
    return chronometrer([&] {
        PointsOnde points;
        Bitmap8 image = fondUni(LARGEUR_VUE, HAUTEUR_PICTURE1, 1 / TWIPS_PAR_PIXEL, rvb(138, 140, 146));
        dessinerOnde(image, 0,
                     {.vue = Vue::Picture1,
                      .fichier = onde,
                      .empan = {0, 1},
                      .largeur = LARGEUR_VUE,
                      .hauteur = HAUTEUR_PICTURE1},
                     points);
        remplacerFichier(sortie, ecrireBmp(image));
    });
}

/// The least that a picture of every sample would take: each of them read, and looked at, on one thread.
double lireEchantillons(const std::string& onde) {
    std::vector<std::int16_t> bloc(1 << 19);
    volatile int extremes = 0;
    return chronometrer([&] {
        const int descripteur = ::open(onde.c_str(), O_RDONLY | O_CLOEXEC);
        std::int16_t bas = 0, haut = 0;
        for (ssize_t lus; (lus = ::read(descripteur, bloc.data(), bloc.size() * 2)) > 0;)
            for (std::size_t i = 0; i < std::size_t(lus) / 2; ++i) {
                bas = std::min(bas, bloc[i]);
                haut = std::max(haut, bloc[i]);
            }
        ::close(descripteur);
        extremes = haut - bas;
    });
}

Resultat vue1h(const std::string& donnees) {
    const std::string onde = ondeDe(donnees, 1);
    const Paire paire = apparier(
        7, [&] { return dessinerVue(onde, donnees + "/vue.Bmp"); }, [&] { return lireEchantillons(onde); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "one thread reading every sample of the file in memory",
            .atteinte = 0.5};
}

Resultat vue3h(const std::string& donnees) {
    const std::string une = ondeDe(donnees, 1), trois = ondeDe(donnees, 3);
    const Paire paire = apparier(
        7, [&] { return dessinerVue(trois, donnees + "/vue.Bmp"); },
        [&] { return dessinerVue(une, donnees + "/vue.Bmp"); });
    return {.notre = paire.notre, .autre = paire.autre, .aCote = "our own 1 h", .atteinte = 1.5};
}

/// The corpus opened as far as its scan; what `AnalyserEntretiens` takes is timed.
class Balayage {
  public:
    explicit Balayage(const std::string& crp) {
        session.reglages = reglagesDuSysteme();
        session.corpus.CheminCorpus = crp;
        nommerCorpus(session);
    }
    double balayer() {
        viderCorpus(session);
        if (!lireThematiques(session, hote.plateforme()) || !lireEntretiens(session, hote.plateforme()))
            throw std::runtime_error("the benchmark's corpus can't be read");
        toutActiver(session);
        return chronometrer(
            [this] { AnalyserEntretiens(session, hote.plateforme(), 1, session.corpus.NbEntretiens); });
    }

    Session session;
    HotePlateforme hote{"null"};
};

std::vector<std::string> transcriptions(const std::string& crp) {
    std::vector<std::string> fichiers;
    for (const auto& entree : fs::directory_iterator(fs::path(crp).parent_path()))
        if (entree.path().extension() == ".Rtr") fichiers.push_back(entree.path());
    return fichiers;
}

double lireTousLesOctets(const std::string& crp) {
    const std::vector<std::string> fichiers = transcriptions(crp);
    std::vector<char> tampon(1 << 20);
    return chronometrer([&] {
        for (const auto& fichier : fichiers) {
            const int descripteur = ::open(fichier.c_str(), O_RDONLY | O_CLOEXEC);
            while (::read(descripteur, tampon.data(), tampon.size()) > 0) {
            }
            ::close(descripteur);
        }
    });
}

/// The floor of a scan that keeps the texts: each file read once into one new buffer kept for it, on as many
/// threads as the machine runs at a time.
double garderTousLesOctets(const std::string& crp) {
    const std::vector<std::string> fichiers = transcriptions(crp);
    std::vector<std::string> tampons(fichiers.size());
    std::atomic<std::size_t> suivant = 0;
    const auto travailler = [&] {
        for (std::size_t i = suivant++; i < fichiers.size(); i = suivant++)
            tampons[i] = lireFichier(fichiers[i]);
    };
    malloc_trim(0);
    return chronometrer([&] {
        std::vector<std::jthread> fils;
        for (unsigned i = 0; i < std::thread::hardware_concurrency(); ++i)
            fils.emplace_back(travailler);
    });
}

Resultat balayage40(const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 40, 120);
    const Paire paire = apparier(
        15, [&] { return Balayage(crp).balayer(); }, [&] { return lireTousLesOctets(crp); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "reading every byte of the same files",
            .atteinte = 4};
}

Resultat balayage999(const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    const Paire paire = apparier(
        5,
        [&] {
            Balayage balayage(crp);
            malloc_trim(0);
            return balayage.balayer();
        },
        [&] { return garderTousLesOctets(crp); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "the same files read once into new buffers, on as many threads",
            .atteinte = 1.5};
}

Resultat memoire999(const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    double octets = 0;
    for (const auto& entree : fs::directory_iterator(fs::path(crp).parent_path()))
        if (entree.path().extension() == ".Rtr") octets += double(entree.file_size());
    const double pointe = mesurerSeul("--balayer", crp).at(0);
    return {.notre = pointe / 1e6,
            .autre = octets / 1e6,
            .unite = "MB",
            .aCote = "bytes of the transcripts",
            .atteinte = 1.5};
}

/// The least of a change that stays after a power cut: read, write, fdatasync, rename, fsync of the
/// directory.
void changerNu(const std::string& repertoire, std::string& octets) {
    const std::string temporaire = repertoire + "/nu.tmp", chemin = repertoire + "/nu";
    if (const int avant = ::open(chemin.c_str(), O_RDONLY | O_CLOEXEC); avant >= 0) {
        octets.resize(std::size_t(std::max<ssize_t>(::read(avant, octets.data(), octets.size()), 0)));
        ::close(avant);
    }
    const int fichier = ::open(temporaire.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0644);
    const bool ecrit = ::write(fichier, octets.data(), octets.size()) == ssize_t(octets.size());
    const bool stable = ecrit && ::fdatasync(fichier) == 0;
    ::close(fichier);
    const int dossier = ::open(repertoire.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (!stable || ::rename(temporaire.c_str(), chemin.c_str()) != 0 || ::fsync(dossier) != 0)
        throw std::runtime_error("the bare change failed");
    ::close(dossier);
}

Resultat ecriture(const std::string& donnees) {
    const std::string rep = donnees + "/ecriture";
    fs::create_directories(rep);
    const Reglages reglages;
    std::vector<rtr::Extrait> extraits(1);
    std::string octets;
    while (octets.size() < 50 * 1024) {
        const double debut = 10.0 * double(extraits.size());
        extraits.push_back({std::to_string(int(debut)) + ",00", std::to_string(int(debut) + 9) + ",00", "001",
                            std::string(400, 'a') + CR});
        octets = rtr::ecrireApres(rtr::nouveau(0, reglages), extraits, {}, reglages);
    }
    const std::string chemin = rep + "/entretien.Rtr";
    remplacerFichier(chemin, octets);
    Session session;
    HotePlateforme hote{"null"};
    EtatLu lu;
    lireRetranscription({1, chemin}, lu);
    const auto ecrire = [&](const Octets& avant) -> Octets {
        return rtr::ecrireApres(rtr::reecrireEnTete(*avant, chemin, reglages), extraits, {true, 0}, reglages);
    };
    bool autre = false;
    const Paire paire = apparier(
        61,
        [&] {
            extraits[5].texte = (autre = !autre) ? "Un texte repris.\r" : "Un autre texte.\r";
            return chronometrer([&] {
                if (changerFichiers(session, hote.plateforme(), "", {{chemin, ecrire, &lu}}) !=
                    IssueChangement::Fait)
                    throw std::runtime_error("the change was refused");
            });
        },
        [&] { return chronometrer([&] { changerNu(rep, octets); }); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "bare read, write, fdatasync, rename, fsync of the directory",
            .atteinte = 1.6};
}

} // namespace

void balayerSeul(Programme&, const std::string& corpus) {
    Balayage balayage(corpus);
    balayage.balayer();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%.0f\n", double(usage.ru_maxrss) * 1024);
}

std::vector<NomTravail> travauxFichiers() {
    return {{"vue-1h", vue1h},
            {"vue-3h", vue3h},
            {"balayage-40x120", balayage40},
            {"balayage-999x999", balayage999},
            {"memoire-999x999", memoire999},
            {"ecriture", ecriture}};
}

} // namespace bancs
