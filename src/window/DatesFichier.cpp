#include "window/DatesFichier.h"

#include "textfile/fichier.h"

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace vermo {

namespace {

DateHeure locale(std::int64_t secondes) {
    const std::time_t instant = secondes;
    std::tm champs{};
    localtime_r(&instant, &champs);
    return {timegm(&champs)};
}

/// A directory opens for reading too, but is no file.
bool interroger(const Utf8& chemin, struct statx& etat) {
    const Descripteur fichier(open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    return statx(fichier.valeur(), "", AT_EMPTY_PATH, STATX_TYPE | STATX_MTIME | STATX_BTIME, &etat) == 0 &&
           !S_ISDIR(etat.stx_mode);
}

} // namespace

std::optional<DatesDeFichier> datesFichier(const Utf8& chemin) {
    struct statx etat {};
    if (!interroger(chemin, etat)) return std::nullopt;
    const bool naissance = etat.stx_mask & STATX_BTIME;
    return DatesDeFichier{locale(naissance ? etat.stx_btime.tv_sec : etat.stx_mtime.tv_sec),
                          locale(etat.stx_mtime.tv_sec)};
}

std::optional<DatesDeFichier> LireDatesFichier(const Utf8& chemin, Dialogues& dialogues) {
    const auto dates = datesFichier(chemin);
    if (!dates)
        dialogues.demander(
            {.texte = "Impossible ouvrir le fichier : " + chemin, .icone = Icone::Exclamation});
    return dates;
}

} // namespace vermo
