// The jobs of a program that nobody touches: how often it wakes, and what it keeps after a day's work.
#include "Donnees.h"
#include "Fenetres.h"
#include "Mesure.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

/// The number behind `champ` in a file of lines "field: number ...".
long champDe(const fs::path& fichier, const std::string& champ) {
    std::ifstream lignes(fichier);
    for (std::string ligne; std::getline(lignes, ligne);)
        if (ligne.starts_with(champ)) return std::stol(ligne.substr(champ.size()));
    return 0; // a thread that has just ended
}

/// A thread that slept and runs again has given the processor up of its own accord, once. Summed over the
/// threads, the player's and the window system's too: all of them keep a battery from resting.
long reveils() {
    long total = 0;
    for (const auto& fil : fs::directory_iterator("/proc/self/task"))
        total += champDe(fil.path() / "status", "voluntary_ctxt_switches:");
    return total;
}

double reveilsParSeconde() {
    constexpr int secondes = 10, aCalmerMs = 2500;
    laisser(aCalmerMs);
    const long avant = reveils();
    laisser(secondes * 1000);
    return double(reveils() - avant) / secondes;
}

/// Its own share of the memory that the process has a part in, MB.
double memoire() {
    return double(champDe("/proc/self/smaps_rollup", "Pss:")) / 1000;
}

Resultat travailReveils(Programme&, const std::string& donnees) {
    constexpr double limite = 5;
    const std::vector<double> releves = mesurerSeul("--reveils", corpusDUneHeure(donnees));
    char detail[128];
    std::snprintf(detail, sizeof detail, "the limit; start window %.1f, corpus window %.1f, paused %.1f",
                  releves.at(0), releves.at(1), releves.at(2));
    return {
        .notre = std::ranges::max(releves), .autre = limite, .unite = "/s", .aCote = detail, .atteinte = 1};
}

void ouvrirEtFermer(Programme& programme, int slot) {
    programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{slot, Ouverture::AvecFondu});
    laisser(300);
    programme.application().decharger(Fenetre::FrmVisu);
    laisser(800); // the corpus window idles
}

Resultat memoireUsage(Programme&, const std::string& donnees) {
    const std::vector<double> releves = mesurerSeul("--usage", corpusDe(donnees, 40, 120));
    return {.notre = releves.at(1),
            .autre = releves.at(0),
            .unite = "MB",
            .aCote = "after one interview",
            .atteinte = 1.15};
}

} // namespace

void compterReveils(Programme& programme, const std::string& crp) {
    programme.application().demarrer();
    std::printf("%f\n", reveilsParSeconde());
    programme.application().decharger(Fenetre::FrmIntro);
    CorpusOuvert ouvert(programme, crp);
    std::printf("%f\n", reveilsParSeconde());
    programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::AvecFondu});
    laisser(500);
    programme.hote().plateforme().media.pause();
    std::printf("%f\n", reveilsParSeconde());
    programme.application().decharger(Fenetre::FrmVisu);
}

void mesurerUsage(Programme& programme, const std::string& crp) {
    constexpr int entretiens = 30;
    CorpusOuvert ouvert(programme, crp);
    laisser(800);
    ouvrirEtFermer(programme, 1);
    std::printf("%f\n", memoire());
    for (int slot = 2; slot <= entretiens; ++slot)
        ouvrirEtFermer(programme, slot);
    std::printf("%f\n", memoire());
}

std::vector<NomTravail> travauxRepos(Programme& programme) {
    const auto avec = [&programme](auto* travail) { return lier(programme, travail); };
    return {{"reveils", avec(travailReveils)}, {"memoire-usage", avec(memoireUsage)}};
}

} // namespace bancs
