#include "Mesure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace bancs {

double chronometrer(const std::function<void()>& action) {
    const auto debut = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

double mediane(std::vector<double> valeurs) {
    std::sort(valeurs.begin(), valeurs.end());
    return valeurs[valeurs.size() / 2];
}

Paire apparier(int fois, const std::function<double()>& notre, const std::function<double()>& autre) {
    std::vector<double> notres, autres;
    for (int i = 0; i < fois; ++i) {
        notres.push_back(notre());
        autres.push_back(autre());
    }
    return {mediane(notres), mediane(autres)};
}

double commande(const std::string& ligne) {
    return chronometrer([&] {
        if (std::system((ligne + " >/dev/null 2>&1").c_str()) != 0)
            throw std::runtime_error("failed: " + ligne);
    });
}

std::string sortieDe(const std::string& ligne) {
    std::string sortie;
    FILE* tube = popen(ligne.c_str(), "r");
    if (tube == nullptr) throw std::runtime_error("failed: " + ligne);
    std::array<char, 4096> morceau;
    for (std::size_t lu; (lu = fread(morceau.data(), 1, morceau.size(), tube)) > 0;)
        sortie.append(morceau.data(), lu);
    if (pclose(tube) != 0) throw std::runtime_error("failed: " + ligne);
    return sortie;
}

void oublierPages(const std::string& fichier) {
    const int descripteur = ::open(fichier.c_str(), O_RDONLY | O_CLOEXEC);
    if (::fdatasync(descripteur) != 0 || ::posix_fadvise(descripteur, 0, 0, POSIX_FADV_DONTNEED) != 0)
        throw std::runtime_error("its pages can't be dropped: " + fichier);
    ::close(descripteur);
}

std::vector<NomMesure> mesuresSeules() {
    return {{"--balayer", balayerSeul}, {"--reveils", compterReveils}, {"--usage", mesurerUsage}};
}

std::vector<double> mesurerSeul(const char* nom, const std::string& corpus) {
    const std::string moi = std::filesystem::read_symlink("/proc/self/exe");
    std::istringstream sortie(sortieDe(moi + " " + nom + " " + corpus));
    std::vector<double> valeurs;
    for (double valeur; sortie >> valeur;)
        valeurs.push_back(valeur);
    return valeurs;
}

} // namespace bancs
