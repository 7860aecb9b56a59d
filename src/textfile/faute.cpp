#include "textfile/faute.h"

#include <cerrno>
#include <system_error>

namespace vermo {
namespace {

std::string message(const std::string& quoi, const std::string& fichier, std::size_t ligne) {
    if (fichier.empty() && ligne == 0) return quoi;
    std::string lieu = fichier;
    if (ligne != 0) lieu += (lieu.empty() ? "ligne " : ", ligne ") + std::to_string(ligne);
    return quoi + "\n" + lieu;
}

} // namespace

FauteExecution::FauteExecution(const std::string& quoi, const std::string& fichier, std::size_t ligne)
    : std::runtime_error(message(quoi, fichier, ligne)), quoi_(quoi), fichier_(fichier), ligne_(ligne) {}

std::string causeSysteme(int erreur) {
    switch (erreur) {
    case ENOENT:
        return "fichier introuvable";
    case EACCES:
        return "accès refusé";
    case EPERM:
        return "opération interdite";
    case EISDIR:
        return "c'est un répertoire";
    case ENOTDIR:
        return "un élément du chemin n'est pas un répertoire";
    case EEXIST:
        return "un fichier de ce nom existe déjà";
    case ENOSPC:
        return "disque plein";
    case EDQUOT:
        return "quota de disque atteint";
    case EROFS:
        return "système de fichiers en lecture seule";
    case EIO:
        return "erreur d'entrée-sortie";
    case EFBIG:
        return "fichier trop grand";
    case ENAMETOOLONG:
        return "nom de fichier trop long";
    case ELOOP:
        return "trop de liens symboliques";
    case EMFILE:
    case ENFILE:
        return "trop de fichiers ouverts";
    case ETXTBSY:
    case EBUSY:
        return "fichier occupé";
    case ENOMEM:
        return "mémoire insuffisante";
    case ESTALE:
        return "le fichier n'est plus accessible sur le serveur";
    default:
        return std::generic_category().message(erreur);
    }
}

} // namespace vermo
