#include "platform/mpv/Refus.h"

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vermo {

Utf8 refus(const Utf8& chemin, const Utf8& predicat) {
    return "Le fichier « " + fs::path(chemin).filename().string() + " » " + predicat;
}

Utf8 refusSansSon(const Utf8& chemin) {
    return refus(chemin, "ne contient pas de son.");
}

Utf8 refusInconnu(const Utf8& chemin) {
    return refus(chemin, "n'est pas un enregistrement que Vermo sait lire.");
}

Utf8 refusAvantLecture(const Utf8& chemin) {
    std::error_code erreur;
    const fs::file_status statut = fs::status(chemin, erreur);
    if (!fs::exists(statut)) return refus(chemin, "est introuvable.");
    if (fs::is_directory(statut)) return refus(chemin, "est un dossier, pas un enregistrement.");
    if (!fs::is_regular_file(statut)) return refus(chemin, "n'est pas un fichier ordinaire.");
    if (access(chemin.c_str(), R_OK) != 0) return refus(chemin, "ne peut pas être lu : accès refusé.");
    if (fs::file_size(chemin, erreur) == 0) return refus(chemin, "est vide.");
    return {};
}

} // namespace vermo
