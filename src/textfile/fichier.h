#pragma once
#include "textfile/texte.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <utility>

namespace vermo {

/// The system calls by which files are read and replaced, so that a fault can strike at each of them.
struct AppelsSysteme {
    int (*open)(const char* chemin, int drapeaux, mode_t mode);
    ssize_t (*write)(int descripteur, const void* octets, std::size_t taille);
    int (*fdatasync)(int descripteur);
    int (*fsync)(int descripteur);
    int (*close)(int descripteur);
    int (*rename)(const char* ancien, const char* nouveau);
    int (*unlink)(const char* chemin);
    int (*fstat)(int descripteur, struct stat* etat);
    int (*flock)(int descripteur, int operation);
    ssize_t (*read)(int descripteur, void* octets, std::size_t taille);
    ssize_t (*pread)(int descripteur, void* octets, std::size_t taille, off_t position);
};

/// The table in use; tests replace its members.
AppelsSysteme& appelsSysteme();

/// An open file, closed with its owner.
class Descripteur {
  public:
    Descripteur() = default;
    explicit Descripteur(int valeur) : valeur_(valeur) {}
    Descripteur(Descripteur&& autre) noexcept : valeur_(std::exchange(autre.valeur_, -1)) {}
    Descripteur& operator=(Descripteur&& autre) noexcept {
        std::swap(valeur_, autre.valeur_);
        return *this;
    }
    ~Descripteur() {
        if (ouvert()) fermer();
    }
    bool ouvert() const noexcept { return valeur_ >= 0; }
    int valeur() const noexcept { return valeur_; }
    int fermer() { return appelsSysteme().close(std::exchange(valeur_, -1)); }

  private:
    int valeur_ = -1;
};

/// What tells one state of a file from another. All zero: no file. Times are nanoseconds since the epoch.
struct IdentiteFichier {
    std::uint64_t peripherique = 0;
    std::uint64_t inode = 0;
    std::int64_t taille = 0; ///< bytes
    std::int64_t modification = 0;
    std::int64_t changement = 0; ///< of the bytes or of what the system keeps about the file
    bool operator==(const IdentiteFichier&) const = default;
};

/// Of the file that bears a name now.
IdentiteFichier identiteFichier(const Utf8& chemin) noexcept;

/// True for whatever bears the name, a directory too: reading it then tells what is wrong.
bool fichierExiste(const Utf8& chemin) noexcept;

/// An ordinary file, open for reading. Throws FauteExecution with the cause (missing, a directory, no right)
/// when it can't be opened as one.
class Source {
  public:
    explicit Source(const Utf8& chemin);

    /// The file as it was when it was opened.
    const IdentiteFichier& identite() const noexcept { return identite_; }
    std::int64_t taille() const noexcept { return identite_.taille; }

    /// The next bytes, fewer than `voulus` only at the end of the file. Throws FauteExecution with the cause.
    std::size_t lire(char* vers, std::size_t voulus);

    /// The bytes from `position` on, counted from 0; fewer at the end of the file, or when they can't be
    /// read.
    std::size_t lireA(std::int64_t position, char* vers, std::size_t voulus) const noexcept;

    /// Tells the system that these bytes are to be read soon; waits for nothing.
    void annoncer(std::int64_t position, std::size_t taille) const noexcept;

  private:
    Utf8 chemin_;
    Descripteur fichier_;
    IdentiteFichier identite_;
};

/// All bytes of a file, read once into one buffer. Throws FauteExecution with the cause (missing, a
/// directory, no right, a read that failed half-way); nothing is given of a file that could not be read to
/// its end.
std::string lireFichier(const Utf8& chemin);

/// The same, with the identity of the very file that was read.
struct FichierLu {
    std::string octets;
    IdentiteFichier identite;
};
FichierLu lireAvecIdentite(const Utf8& chemin);

/// The first bytes of a file, at most `taille`; faults as for lireFichier.
std::string lireDebut(const Utf8& chemin, std::size_t taille);

/// Puts `octets` in the place of `chemin`, so that they stay after a power cut: written whole to a temporary
/// file beside it, synced, renamed, the directory synced. On any failure throws FauteExecution with the
/// system's cause, leaves the old file as it was and removes the temporary one. Only when the last step
/// fails, the sync of the directory, is the new file there already, whole, and the fault says that it may not
/// stay. A symbolic link is followed; the mode of the old file is kept, and its owner where the system
/// allows. A file that may not be written is not replaced. A killed process may leave ".vermo-*.tmp" beside
/// the file. Gives the identity of the file that was written; all zero where the system doesn't tell it.
IdentiteFichier remplacerFichier(const Utf8& chemin, std::string_view octets);

/// Copies a file of any size by the same safe road. `avance` is told the bytes copied so far and the total,
/// and may return false to give up: the target is then as before, and the result is false.
bool copierFichier(const Utf8& source, const Utf8& cible,
                   const std::function<bool(std::int64_t, std::int64_t)>& avance = {});

/// Removes a file; one that isn't there is no fault.
void supprimerFichier(const Utf8& chemin);

/// Keeps a directory for its owner against other programs that ask for it by the same means, waiting for them
/// a second at most. Where the system refuses, its owner goes on without.
class VerrouRepertoire {
  public:
    explicit VerrouRepertoire(const Utf8& repertoire);

  private:
    Descripteur repertoire_;
};

} // namespace vermo
