// Runs every job, prints one line each and writes the same as JSON.
//   bancs DATA_DIRECTORY RESULT.json [JOB ...]
#include "Mesure.h"

#include "app/Demarrage.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

bool voulu(const std::string& nom, int argc, char** argv) {
    return argc <= 3 || std::find(argv + 3, argv + argc, nom) != argv + argc;
}

std::string json(const bancs::Resultat& r) {
    char ligne[512];
    std::snprintf(ligne, sizeof ligne,
                  "  {\"job\": \"%s\", \"ours\": %.6g, \"beside\": %.6g, \"unit\": \"%s\", \"peer\": \"%s\", "
                  "\"ratio\": %.4g, \"reach\": %.4g}",
                  r.travail.c_str(), r.notre, r.autre, r.unite, r.aCote.c_str(), r.rapport(), r.atteinte);
    return ligne;
}

void imprimer(const bancs::Resultat& r) {
    std::printf("%-22s %10.4g %-3s  %10.4g %-3s  ratio %7.4f  (reach %.2f%s)  beside: %s\n",
                r.travail.c_str(), r.notre, r.unite, r.autre, r.unite, r.rapport(), r.atteinte,
                r.rapport() <= r.atteinte ? "" : ", MISSED", r.aCote.c_str());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    vermo::Programme programme(argc, argv, "null");
    for (const auto& [nom, mesure] : bancs::mesuresSeules()) {
        if (argc != 3 || std::string(argv[1]) != nom) continue;
        mesure(programme, argv[2]);
        return 0;
    }
    if (argc < 3) {
        std::cerr << "bancs DATA_DIRECTORY RESULT.json [JOB ...]\n";
        return 2;
    }
    std::filesystem::create_directories(argv[1]);
    std::vector<std::string> lignes;
    auto travaux = bancs::travauxFichiers();
    for (auto* autres : {bancs::travauxFenetres, bancs::travauxAttente, bancs::travauxRepos})
        for (auto& travail : autres(programme))
            travaux.push_back(travail);
    for (const auto& [nom, travail] : travaux) {
        if (!voulu(nom, argc, argv)) continue;
        bancs::Resultat resultat = travail(argv[1]);
        resultat.travail = nom;
        imprimer(resultat);
        lignes.push_back(json(resultat));
    }
    std::ofstream sortie(argv[2]);
    sortie << "[\n";
    for (std::size_t i = 0; i < lignes.size(); ++i)
        sortie << lignes[i] << (i + 1 < lignes.size() ? ",\n" : "\n");
    sortie << "]\n";
    return 0;
}
