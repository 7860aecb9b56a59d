#pragma once
#include <functional>
#include <string>
#include <vector>

/// What one job reports: its own figure and the peer's or the limit's, in the same unit and the same run.
namespace vermo {
class Programme;
}

namespace bancs {

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

/// All jobs, by name, in the order in which they are printed. `donnees` is the directory of the generated
/// data.
using Travail = std::function<Resultat(const std::string& donnees)>;
struct NomTravail {
    const char* nom;
    Travail travail;
};
/// Peak memory, in bytes, of this process after it has scanned a corpus.
double balayerDansUnFils(const std::string& corpus);

std::vector<NomTravail> travauxFichiers();
std::vector<NomTravail> travauxFenetres(vermo::Programme& programme);

} // namespace bancs
