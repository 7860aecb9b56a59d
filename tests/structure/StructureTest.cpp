// The levels of src/, held for every include: a folder uses those below it, never one above; neighbours keep
// apart but for the pairs named here; no Qt below the glass; no form knows another form. And who writes
// files: the door for those of a corpus, and a few for what is no part of it.
#include "window/Fenetres.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <regex>
#include <set>

namespace fs = std::filesystem;
namespace {

const std::map<std::string, int> NIVEAUX = {
    {"textfile", 0},    {"platform", 0},  {"formats", 1},   {"window", 1},        {"corpus", 2},
    {"audio", 3},       {"data", 3},      {"synthesis", 4}, {"transcription", 3}, {"reader", 4},
    {"sequences", 4},   {"window/ui", 5}, {"corpus/ui", 5}, {"audio/ui", 5},      {"transcription/ui", 5},
    {"platform/qt", 6}, {"app", 7},       {"app/main", 7},  {"platform/mpv", 6}};

const std::set<std::pair<std::string, std::string>> VOISINS = {{"platform", "textfile"},
                                                               {"corpus/ui", "window/ui"},
                                                               {"audio/ui", "window/ui"},
                                                               {"transcription/ui", "window/ui"},
                                                               {"app/main", "app"}};

const std::set<std::string> ECRIVAINS = {
    "textfile/fichier.h",
    "textfile/fichier.cpp",
    "corpus/Porte.cpp",           // corpus file and transcripts
    "corpus/OuvertureCorpus.cpp", // the recent list
    "corpus/Import.cpp",          // the copy of a recording
    "corpus/BrouillonTenu.cpp",   // drafts
    "audio/Vues.cpp"              // pictures
};

/// Each source by its path below src/, with its text.
const std::map<std::string, std::string> SOURCES = [] {
    std::map<std::string, std::string> lues;
    const fs::path racine = fs::path(VERMO_RACINE) / "src";
    for (const auto& entree : fs::recursive_directory_iterator(racine)) {
        if (entree.path().extension() != ".h" && entree.path().extension() != ".cpp") continue;
        std::ifstream fichier(entree.path(), std::ios::binary);
        lues[fs::relative(entree.path(), racine).generic_string()].assign(
            std::istreambuf_iterator<char>(fichier), {});
    }
    return lues;
}();

/// The form that a file is a part of; none for what is no form's.
std::string_view formeDe(const fs::path& chemin) {
    for (const vermo::Fenetre forme : vermo::FENETRES)
        if (chemin.filename().string().starts_with(nomFenetre(forme))) return nomFenetre(forme);
    return {};
}

bool permise(const std::string& dossier, const std::string& inclus) {
    const int ici = NIVEAUX.at(dossier), la = NIVEAUX.at(inclus);
    return dossier == inclus || la < ici || (la == ici && VOISINS.contains({dossier, inclus}));
}

/// What is wrong with one include of the file `chemin`.
std::string faute(const fs::path& chemin, bool systeme, const fs::path& inclus) {
    const std::string dossier = chemin.parent_path().string(), autre = inclus.parent_path().string();
    if (systeme) return inclus.string().starts_with("Q") && NIVEAUX.at(dossier) < 5 ? "Qt" : "";
    if (autre.empty() && inclus.extension() == ".moc") return "";
    if (!NIVEAUX.contains(autre)) return "unknown folder";
    if (!permise(dossier, autre)) return "points up or aside to";
    const bool autreForme = !formeDe(inclus).empty() && formeDe(inclus) != formeDe(chemin);
    return autreForme && dossier != "app" ? "another form's" : "";
}

TEST(Includes, EverySourceKeepsItsLevel) {
    const std::regex inclusion("(?:^|\n)[ \t]*#[ \t]*include[ \t]*([<\"])([^>\"]+)");
    for (const auto& [chemin, texte] : SOURCES) {
        ASSERT_TRUE(NIVEAUX.contains(fs::path(chemin).parent_path().string())) << chemin;
        for (std::sregex_iterator prise(texte.begin(), texte.end(), inclusion), fin; prise != fin; ++prise)
            EXPECT_EQ(faute(chemin, (*prise)[1] == "<", (*prise)[2].str()), "") << chemin << (*prise)[0];
    }
    EXPECT_EQ(faute("window/a.h", true, "QString"), "Qt");
    EXPECT_EQ(faute("audio/a.cpp", false, "transcription/b.h"), "points up or aside to");
    EXPECT_EQ(faute("corpus/ui/FrmCorpus.cpp", false, "corpus/ui/FrmMenu.h"), "another form's");
}

TEST(Writers, AreTheDoorAndThoseNamedHere) {
    std::set<std::string> ecrivains;
    for (const auto& [chemin, texte] : SOURCES)
        for (const char* appel : {"remplacerFichier(", "remplacerSi(", "supprimerFichier(", "copierFichier("})
            if (texte.find(appel) != std::string::npos) ecrivains.insert(chemin);
    EXPECT_EQ(ecrivains, ECRIVAINS);
}

} // namespace
