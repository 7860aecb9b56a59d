#pragma once
#include <functional>
#include <string>
#include <vector>

namespace vermo {
class Programme;
}

namespace bancs {

/// What one job reports: its own figure and the peer's or the limit's, in the same unit and the same run.
struct Resultat {
    std::string travail = {}; ///< name of the job
    double notre = 0;
    double autre = 0;
    const char* unite = "s";
    std::string aCote = {}; ///< what it is measured beside
    double atteinte = 0;    ///< the ratio to reach
    double rapport() const { return notre / autre; }
};

/// Wall-clock seconds of one call.
double chronometrer(const std::function<void()>& action);

/// Median of `fois` pairs, ours and the other in turn, so that a drift of the machine touches both.
struct Paire {
    double notre, autre;
};
Paire apparier(int fois, const std::function<double()>& notre, const std::function<double()>& autre);

/// Runs a command without a shell's help where it can, its output thrown away. Returns wall-clock seconds.
/// Throws std::runtime_error when it fails.
double commande(const std::string& ligne);

/// Its standard output.
std::string sortieDe(const std::string& ligne);

double mediane(std::vector<double> valeurs);

/// The next read of this file comes from the disk: its pages, written back if need be, leave the memory.
void oublierPages(const std::string& fichier);

/// All jobs, by name, in the order in which they are printed. `donnees` is the directory of the generated
/// data.
using Travail = std::function<Resultat(const std::string& donnees)>;
struct NomTravail {
    const char* nom;
    Travail travail;
};

std::vector<NomTravail> travauxFichiers();
std::vector<NomTravail> travauxFenetres(vermo::Programme& programme);
std::vector<NomTravail> travauxAttente(vermo::Programme& programme);
std::vector<NomTravail> travauxRepos(vermo::Programme& programme);

/// A job that drives the program, as the list wants it.
inline Travail lier(vermo::Programme& programme, Resultat (*travail)(vermo::Programme&, const std::string&)) {
    return [&programme, travail](const std::string& donnees) { return travail(programme, donnees); };
}

/// A measure that wants a process of its own: prints its figures, separated by blanks.
using MesureSeule = void (*)(vermo::Programme&, const std::string& corpus);
struct NomMesure {
    const char* nom; ///< the option by which it is asked for
    MesureSeule mesure;
};
std::vector<NomMesure> mesuresSeules();
/// Runs one of them in a new process, and gives what it printed.
std::vector<double> mesurerSeul(const char* nom, const std::string& corpus);

/// Prints the peak memory, in bytes, of this process after it has scanned a corpus.
void balayerSeul(vermo::Programme& programme, const std::string& corpus);
/// Prints the wake-ups a second of the start window, the corpus window, and an interview paused.
void compterReveils(vermo::Programme& programme, const std::string& corpus);
/// Prints the memory (MB) after one interview opened and closed, and after 30.
void mesurerUsage(vermo::Programme& programme, const std::string& corpus);

} // namespace bancs
