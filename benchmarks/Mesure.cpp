#include "Mesure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

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

} // namespace bancs
