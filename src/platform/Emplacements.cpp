#include "platform/Emplacements.h"

#include "textfile/chemins.h"
#include "textfile/faute.h"

#include <filesystem>
#include <unistd.h>

namespace vermo {
namespace {

/// Files are replaced through a temporary one beside them: the directory must be writable too.
bool peutEcrire(const Utf8& repertoire, const Utf8& chemin) {
    if (access(repertoire.c_str(), W_OK | X_OK) != 0) return false;
    return access(chemin.c_str(), F_OK) != 0 || access(chemin.c_str(), W_OK) == 0;
}

} // namespace

Utf8 Emplacements::fichierLu(const Utf8& nom) const {
    for (const Utf8& repertoire : {programme, donneesProgramme})
        if (const auto trouve = trouver(repertoire + nom)) return *trouve;
    return {};
}

Utf8 Emplacements::fichierEcrit(const Utf8& nom) const {
    const Utf8 aCote = cheminReel(programme + nom);
    if (peutEcrire(programme, aCote)) return aCote;
    std::error_code erreur;
    std::filesystem::create_directories(donneesPersonne, erreur);
    if (erreur)
        throw FauteExecution("Création du répertoire impossible : " + causeSysteme(erreur.value()),
                             donneesPersonne);
    return cheminReel(donneesPersonne + nom);
}

} // namespace vermo
