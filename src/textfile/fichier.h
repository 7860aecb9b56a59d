#pragma once
#include "textfile/texte.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
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
    std::int64_t prise = 0;      ///< when all this was asked; two that differ in this alone are equal
    bool operator==(const IdentiteFichier& autre) const noexcept;
    /// False while a further change could still bear the same times: the file's bytes decide then.
    bool probante() const noexcept;
};

/// True when the file is certainly as it was when `connue` was taken.
inline bool certainementMeme(const IdentiteFichier& connue, const IdentiteFichier& actuelle) noexcept {
    return connue == actuelle && connue.probante();
}

/// Of the file that bears a name now; of a name in a directory that is open, which spares the system the way
/// there.
IdentiteFichier identiteFichier(const Utf8& chemin) noexcept;
IdentiteFichier identiteFichier(const Descripteur& repertoire, const Utf8& nom) noexcept;

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
/// The same over what was read before, whose memory serves again. After a fault `lu` holds nothing of use.
void lireAvecIdentite(const Utf8& chemin, FichierLu& lu);

/// The first bytes of a file, at most `taille`; faults as for lireFichier.
std::string lireDebut(const Utf8& chemin, std::size_t taille);

/// A file that was written.
struct FichierEcrit {
    IdentiteFichier identite; ///< all zero where the system doesn't tell it
    Utf8 doute{};             ///< why it may not stay after a power cut; empty: it will
};

/// Puts `octets` in the place of `chemin`, so that they stay after a power cut: written whole to a temporary
/// file beside it, synced, renamed, the directory synced. On any failure throws FauteExecution with the
/// system's cause, leaves the old file as it was and removes the temporary one. When only the last step
/// fails, the sync of the directory, the new file is there, whole, and `doute` says why it may not stay. A
/// symbolic link is followed; the mode of the old file is kept, and its owner where the system allows. A file
/// that may not be written is not replaced. A killed process may leave ".vermo-*.tmp" beside the file:
/// `retirerAbandonnes` knows it by the lock that it no longer holds.
/// A file that wasn't there gets `mode`, less what the process's mask takes.
FichierEcrit remplacerFichier(const Utf8& chemin, std::string_view octets, mode_t mode = 0666);

/// The same, unless `tient` says no, which is asked at the last moment: nothing is then written or given.
std::optional<FichierEcrit> remplacerSi(const Utf8& chemin, std::string_view octets,
                                        const std::function<bool()>& tient);

/// Removes the temporary files that killed writers left in a directory; those of living ones stay.
void retirerAbandonnes(const Utf8& repertoire) noexcept;

/// Gives a file a name beside its own that is free, and gives that name. Throws FauteExecution with the
/// cause.
Utf8 mettreDeCote(const Utf8& chemin);

/// Copies a file of any size by the same safe road. `avance` is told the bytes copied so far and the total,
/// and may return false to give up: the target is then as before, and the result is false.
bool copierFichier(const Utf8& source, const Utf8& cible,
                   const std::function<bool(std::int64_t, std::int64_t)>& avance = {});

/// Makes a directory, and those on its way, that only the user may enter; one that is there stays as it is.
/// Throws FauteExecution with the cause.
void creerRepertoirePrive(const Utf8& repertoire);

/// Removes a file; one that isn't there is no fault.
void supprimerFichier(const Utf8& chemin);

/// A file that its owner alone holds, for as long as it lives, among all who ask for it by the same means.
class VerrouFichier {
  public:
    VerrouFichier() = default; ///< holds nothing
    explicit VerrouFichier(const Utf8& chemin);

    bool tenu() const noexcept { return tenu_; }
    /// Another holds it; where the system has no locks, nobody does.
    bool ailleurs() const noexcept { return ailleurs_; }

  private:
    Descripteur fichier_;
    bool tenu_ = false, ailleurs_ = false;
};

/// Keeps a directory for its owner against other programs that ask for it by the same means, waiting for them
/// a second at most. Where the system refuses, its owner goes on without.
class VerrouRepertoire {
  public:
    explicit VerrouRepertoire(const Utf8& repertoire);

  private:
    Descripteur repertoire_;
};

} // namespace vermo
