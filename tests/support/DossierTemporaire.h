#pragma once
#include "textfile/texte.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vermo::essai {

/// A directory of the test's own, removed at its end with all that it holds.
class DossierTemporaire {
  public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "vermo-XXXXXX").string();
        if (!mkdtemp(modele.data())) throw std::runtime_error("no directory " + modele);
        chemin_ = modele + "/";
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    ~DossierTemporaire() {
        std::error_code sansImportance;
        std::filesystem::remove_all(chemin_, sansImportance);
    }

    /// Full path of the directory, slash included, and of a file in it.
    const Utf8& chemin() const { return chemin_; }
    Utf8 chemin(const Utf8& nom) const { return chemin_ + nom; }

    bool existe(const Utf8& nom) const { return std::filesystem::exists(chemin(nom)); }

    /// Writes a file (and the directories on its way); gives its full path.
    Utf8 ecrire(const Utf8& nom, std::string_view octets) const {
        std::filesystem::create_directories(std::filesystem::path(chemin(nom)).parent_path());
        std::ofstream fichier(chemin(nom), std::ios::binary);
        fichier << octets << std::flush;
        EXPECT_TRUE(fichier) << "cannot write " << chemin(nom);
        return chemin(nom);
    }

    /// All bytes of a file; fails the test when there is none.
    std::string lire(const Utf8& nom) const {
        std::ifstream fichier(chemin(nom), std::ios::binary);
        EXPECT_TRUE(fichier) << "no file " << chemin(nom);
        std::ostringstream octets;
        octets << fichier.rdbuf();
        return std::move(octets).str();
    }

  private:
    Utf8 chemin_;
};

} // namespace vermo::essai
