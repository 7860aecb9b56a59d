// The levels of src/, held for every include: a folder uses those below it, never one above; neighbours keep
// apart but for the pairs named here; no Qt below the glass; no form knows another form.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

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

/// The forms, by file name: what has both a header and a source of its own.
std::set<std::string> formes() {
    std::set<std::string> noms;
    for (const auto& entree : fs::recursive_directory_iterator(fs::path(VERMO_RACINE) / "src")) {
        fs::path chemin = entree.path();
        const std::string nom = chemin.stem().string();
        if (nom.starts_with("Frm") && chemin.extension() == ".h" &&
            fs::exists(chemin.replace_extension(".cpp")))
            noms.insert(nom);
    }
    return noms;
}

/// The form that a file is a part of: the longest name that it begins with; none for what is no form's.
std::string formeDe(const std::string& nom) {
    static const std::set<std::string> connues = formes();
    std::string trouvee;
    for (const std::string& forme : connues)
        if (nom.starts_with(forme) && forme.size() > trouvee.size()) trouvee = forme;
    return trouvee;
}

bool permise(const std::string& dossier, const std::string& inclus) {
    if (dossier == inclus) return true;
    const int ici = NIVEAUX.at(dossier), la = NIVEAUX.at(inclus);
    return la < ici || (la == ici && VOISINS.contains({dossier, inclus}));
}

/// What is wrong with the includes of one source, one line each. `chemin` is relative to src/.
std::vector<std::string> fautes(const fs::path& chemin, std::istream& source) {
    static const std::regex inclusion("\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"].*");
    const std::string dossier = chemin.parent_path().generic_string();
    std::vector<std::string> resultat;
    if (!NIVEAUX.contains(dossier)) return {chemin.generic_string() + ": folder without a level"};
    std::smatch prise;
    for (std::string ligne; std::getline(source, ligne);) {
        if (!std::regex_match(ligne, prise, inclusion)) continue;
        const fs::path inclus(prise[2].str());
        const std::string autre = inclus.parent_path().generic_string();
        const auto plainte = [&](const char* quoi) {
            resultat.push_back(chemin.generic_string() + ": " + quoi + " " + inclus.generic_string());
        };
        if (prise[1] == "<") {
            if (inclus.generic_string().starts_with("Q") && NIVEAUX.at(dossier) < 5) plainte("Qt");
            continue;
        }
        if (autre.empty() && inclus.extension() == ".moc") continue;
        if (!NIVEAUX.contains(autre))
            plainte("unknown folder");
        else if (!permise(dossier, autre))
            plainte("points up or aside to");
        const std::string forme = formeDe(inclus.filename().string());
        if (!forme.empty() && dossier != "app" && forme != formeDe(chemin.filename().string()))
            plainte("another form's");
    }
    return resultat;
}

std::vector<std::string> fautesDe(const char* chemin, const char* source) {
    std::istringstream lecture(source);
    return fautes(chemin, lecture);
}

TEST(Includes, EverySourceKeepsItsLevel) {
    const fs::path racine = fs::path(VERMO_RACINE) / "src";
    std::size_t lus = 0;
    for (const auto& entree : fs::recursive_directory_iterator(racine)) {
        const fs::path chemin = entree.path();
        if (chemin.extension() != ".h" && chemin.extension() != ".cpp") continue;
        std::ifstream source(chemin);
        ++lus;
        for (const auto& faute : fautes(fs::relative(chemin, racine), source))
            ADD_FAILURE() << faute;
    }
    EXPECT_GT(lus, 50u);
}

TEST(Includes, BadOnesAreSeen) {
    const std::pair<const char*, const char*> mauvaises[] = {
        {"textfile/a.h", "#include \"formats/Projets.h\""},
        {"audio/a.cpp", "#include \"transcription/Retranscription.h\""},
        {"corpus/a.cpp", "  # include \"audio/Zoom.h\" // why"},
        {"window/a.h", "#include <QString>"},
        {"corpus/ui/FrmCorpus.cpp", "#include \"corpus/ui/FrmMenu.h\""},
        {"audio/ui/FrmVisu.cpp", "#include \"app/Application.h\""},
        {"formats/a.cpp", "#include \"elsewhere/b.h\""},
        {"newfolder/a.cpp", ""},
    };
    for (const auto& [chemin, source] : mauvaises)
        EXPECT_EQ(fautesDe(chemin, source).size(), 1u) << chemin << ' ' << source;
    EXPECT_TRUE(
        fautesDe("app/Application.cpp", "#include \"audio/ui/FrmVisu.h\"\n#include <QTimer>").empty());
    EXPECT_TRUE(fautesDe("audio/ui/FrmVisuSouris.cpp", "#include \"audio/ui/FrmVisu.h\"").empty());
}

} // namespace
