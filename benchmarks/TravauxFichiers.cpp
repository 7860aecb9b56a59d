// The jobs that need no window: waveforms, scans, the safe write.
#include "Donnees.h"
#include "Mesure.h"

#include "app/Demarrage.h"
#include "audio/ImageOnde.h"
#include "corpus/AnalyserEntretiens.h"
#include "corpus/OuvertureCorpus.h"
#include "formats/FichierRtr.h"
#include "textfile/fichier.h"

#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

constexpr Twips LARGEUR_VUE = 28800, HAUTEUR_VUE = 1140;

double dessinerVue(const std::string& onde, const std::string& sortie) {
    return chronometrer([&] {
        PointsOnde points;
        Bitmap8 image = fondUni(LARGEUR_VUE, HAUTEUR_VUE, 1 / TWIPS_PAR_PIXEL, rvb(138, 140, 146));
        dessinerOnde(image, 0,
                     {.vue = Vue::Picture1,
                      .fichier = onde,
                      .empan = {0, 1},
                      .largeur = LARGEUR_VUE,
                      .hauteur = HAUTEUR_VUE,
                      .hauteurVue = HAUTEUR_VUE},
                     points);
        remplacerFichier(sortie, ecrireBmp(image));
    });
}

Resultat vue1h(const std::string& donnees) {
    const std::string onde = ondeDe(donnees, 1);
    const std::string peer = "ffmpeg -nostdin -y -i " + onde +
                             " -filter_complex showwavespic=s=1920x76 -frames:v 1 " + donnees + "/peer.png";
    const Paire paire = apparier(
        3, [&] { return dessinerVue(onde, donnees + "/vue.Bmp"); }, [&] { return commande(peer); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "ffmpeg showwavespic on the same file",
            .atteinte = 0.05};
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

double lireTousLesOctets(const std::string& crp) {
    std::vector<std::string> fichiers;
    for (const auto& entree : fs::directory_iterator(fs::path(crp).parent_path()))
        if (entree.path().extension() == ".Rtr") fichiers.push_back(entree.path());
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
    const std::string mots = "cd " + fs::path(crp).parent_path().string() + " && LC_ALL=C wc -w *.Rtr";
    const Paire paire = apparier(
        3, [&] { return Balayage(crp).balayer(); }, [&] { return commande(mots); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "LC_ALL=C wc -w on the same files",
            .atteinte = 0.6};
}

Resultat memoire999(const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    double octets = 0;
    for (const auto& entree : fs::directory_iterator(fs::path(crp).parent_path()))
        if (entree.path().extension() == ".Rtr") octets += double(entree.file_size());
    const std::string moi = fs::read_symlink("/proc/self/exe");
    const double pointe = std::stod(sortieDe(moi + " --balayer " + crp));
    return {.notre = pointe / 1e6,
            .autre = octets / 1e6,
            .unite = "MB",
            .aCote = "bytes of the transcripts",
            .atteinte = 1.5};
}

Resultat recharge999(const std::string& donnees) {
    const std::string crp = corpusDe(donnees, 999, 999);
    Balayage balayage(crp);
    const double premier = balayage.balayer();
    std::vector<double> suivants;
    for (int i = 0; i < 5; ++i)
        suivants.push_back(balayage.balayer());
    return {.notre = mediane(suivants), .autre = premier, .aCote = "our own first scan", .atteinte = 0.05};
}

/// The least that stays after a power cut: write, fdatasync, rename, fsync of the directory.
void ecrireNu(const std::string& repertoire, const std::string& octets) {
    const std::string temporaire = repertoire + "/nu.tmp", chemin = repertoire + "/nu";
    const int fichier = ::open(temporaire.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0644);
    const bool ecrit = ::write(fichier, octets.data(), octets.size()) == ssize_t(octets.size());
    const bool stable = ecrit && ::fdatasync(fichier) == 0;
    ::close(fichier);
    const int dossier = ::open(repertoire.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (!stable || ::rename(temporaire.c_str(), chemin.c_str()) != 0 || ::fsync(dossier) != 0)
        throw std::runtime_error("the bare write failed");
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
        octets = rtr::ecrire({}, extraits, {}, reglages);
    }
    bool autre = false;
    const Paire paire = apparier(
        61,
        [&] {
            return chronometrer([&] {
                extraits[5].texte = (autre = !autre) ? "Un texte repris.\r" : "Un autre texte.\r";
                remplacerFichier(rep + "/entretien.Rtr", rtr::ecrire({}, extraits, {true, 0}, reglages));
            });
        },
        [&] { return chronometrer([&] { ecrireNu(rep, octets); }); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "bare write, fdatasync, rename, fsync of the directory",
            .atteinte = 1.5};
}

} // namespace

double balayerDansUnFils(const std::string& corpus) {
    Balayage balayage(corpus);
    balayage.balayer();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) * 1024;
}

std::vector<NomTravail> travauxFichiers() {
    return {{"vue-1h", vue1h},
            {"vue-3h", vue3h},
            {"balayage-40x120", balayage40},
            {"balayage-999x999", balayage999},
            {"memoire-999x999", memoire999},
            {"recharge-999x999", recharge999},
            {"ecriture", ecriture}};
}

} // namespace bancs
