// Who writes files: the door for those of a corpus, and a few for what is no part of it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace fs = std::filesystem;
namespace {

std::string contenu(const fs::path& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), {}};
}

TEST(Writers, AreTheDoorAndThoseNamedHere) {
    const std::set<std::string> permis = {
        "textfile/fichier.h",
        "textfile/fichier.cpp",
        "corpus/Porte.cpp",           // corpus file and transcripts
        "corpus/OuvertureCorpus.cpp", // the recent list
        "corpus/Import.cpp",          // the copy of a recording
        "audio/Vues.cpp"              // pictures
    };
    const fs::path racine = fs::path(VERMO_RACINE) / "src";
    std::set<std::string> ecrivains;
    for (const auto& entree : fs::recursive_directory_iterator(racine)) {
        const std::string source = entree.is_regular_file() ? contenu(entree.path()) : "";
        for (const char* appel : {"remplacerFichier(", "supprimerFichier(", "copierFichier("})
            if (source.find(appel) != std::string::npos)
                ecrivains.insert(fs::relative(entree.path(), racine).generic_string());
    }
    EXPECT_EQ(ecrivains, permis);
}

} // namespace
