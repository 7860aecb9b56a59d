#pragma once
#include "textfile/texte.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace vermo {

/// The system calls by which files are replaced, so that a fault can strike at each of them.
struct AppelsSysteme {
    int (*open)(const char* chemin, int drapeaux, mode_t mode);
    ssize_t (*write)(int descripteur, const void* octets, std::size_t taille);
    int (*fdatasync)(int descripteur);
    int (*fsync)(int descripteur);
    int (*close)(int descripteur);
    int (*rename)(const char* ancien, const char* nouveau);
    int (*unlink)(const char* chemin);
};

/// The table in use; tests replace its members.
AppelsSysteme& appelsSysteme();

/// What tells one state of a file from another. All zero: no file.
struct IdentiteFichier {
    std::int64_t taille = 0;       ///< bytes
    std::int64_t modification = 0; ///< nanoseconds since the epoch
    std::uint64_t inode = 0;
    bool operator==(const IdentiteFichier&) const = default;
};

IdentiteFichier identiteFichier(const Utf8& chemin) noexcept;

/// True for whatever bears the name, a directory too: reading it then tells what is wrong.
bool fichierExiste(const Utf8& chemin) noexcept;

/// All bytes of a file, read once into one buffer. Throws FauteExecution with the cause (missing, a
/// directory, no right, a read that failed half-way); nothing is given of a file that could not be read to
/// its end.
std::string lireFichier(const Utf8& chemin);

/// The first bytes of a file, at most `taille`; faults as for lireFichier.
std::string lireDebut(const Utf8& chemin, std::size_t taille);

/// Puts `octets` in the place of `chemin`, so that they stay after a power cut: written whole to a temporary
/// file beside it, synced, renamed, the directory synced. On any failure throws FauteExecution with the
/// system's cause, leaves the old file as it was and removes the temporary one. Only when the last step
/// fails, the sync of the directory, is the new file there already, whole, and the fault says that it may not
/// stay. A symbolic link is followed; the mode of the old file is kept, and its owner where the system
/// allows. A file that may not be written is not replaced. A killed process may leave ".vermo-*.tmp" beside
/// the file.
void remplacerFichier(const Utf8& chemin, std::string_view octets);

/// Copies a file of any size by the same safe road. `avance` is told the bytes copied so far and the total,
/// and may return false to give up: the target is then as before, and the result is false.
bool copierFichier(const Utf8& source, const Utf8& cible,
                   const std::function<bool(std::int64_t, std::int64_t)>& avance = {});

/// Removes a file; one that isn't there is no fault.
void supprimerFichier(const Utf8& chemin);

} // namespace vermo
