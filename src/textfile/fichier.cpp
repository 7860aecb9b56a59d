#include "textfile/fichier.h"

#include "textfile/faute.h"
#include "textfile/memoire.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace vermo {
namespace {

[[noreturn]] void refuser(const char* action, int erreur, const Utf8& chemin) {
    throw FauteExecution(action + (" impossible : " + causeSysteme(erreur)), chemin);
}

constexpr char lecture[] = "Lecture";
constexpr char ecriture[] = "Écriture";

void exigerOrdinaire(const char* action, const struct stat& etat, const Utf8& chemin) {
    if (S_ISDIR(etat.st_mode)) refuser(action, EISDIR, chemin);
    if (!S_ISREG(etat.st_mode))
        throw FauteExecution(action + std::string(" impossible : ce n'est pas un fichier ordinaire"), chemin);
}

/// `stat` of a name; a name with a NUL byte in it, which the system would cut, is that of no file.
bool etatDe(const Utf8& chemin, struct stat& etat) noexcept {
    return chemin.find('\0') == Utf8::npos && ::stat(chemin.c_str(), &etat) == 0;
}

std::int64_t nanosecondes(const timespec& temps) noexcept {
    return temps.tv_sec * 1'000'000'000 + temps.tv_nsec;
}

IdentiteFichier identiteDe(const struct stat& etat) noexcept {
    return {etat.st_dev, etat.st_ino, etat.st_size, nanosecondes(etat.st_mtim), nanosecondes(etat.st_ctim)};
}

/// The file that a name stands for once symbolic links are followed, be there a file or not.
Utf8 cibleDe(const Utf8& chemin) {
    constexpr int liensMax = 40;
    Utf8 cible = chemin;
    for (int i = 0; i < liensMax; ++i) {
        char lien[4096];
        const ssize_t n = ::readlink(cible.c_str(), lien, sizeof lien);
        if (n < 0) return cible;
        const Utf8 suite(lien, static_cast<std::size_t>(n));
        cible = suite.starts_with('/') ? suite : cible.substr(0, cible.rfind('/') + 1) + suite;
    }
    refuser(ecriture, ELOOP, chemin);
}

/// A full disk's sibling, the limit of a file's size, must come back as an error and not end the program.
void ignorerSigxfsz() {
    [[maybe_unused]] static const auto avant = std::signal(SIGXFSZ, SIG_IGN);
}

/// The one replacement of a file. `ecrire` its bytes, then `valider`; without that the old file stays, and
/// the temporary one goes.
class Remplacement {
  public:
    explicit Remplacement(const Utf8& chemin) : chemin_(chemin) {
        ignorerSigxfsz();
        if (chemin.find('\0') != Utf8::npos) refuser(ecriture, EINVAL, chemin);
        cible_ = cibleDe(chemin);
        existe_ = ::stat(cible_.c_str(), &ancien_) == 0;
        if (existe_) {
            exigerOrdinaire(ecriture, ancien_, chemin);
            exiger(::access(cible_.c_str(), W_OK) == 0);
        }
        ouvrirRepertoire();
        creerTemporaire();
    }
    ~Remplacement() {
        if (!temporaire_.empty()) appelsSysteme().unlink(temporaire_.c_str());
    }
    Remplacement(const Remplacement&) = delete;
    Remplacement& operator=(const Remplacement&) = delete;

    void ecrire(std::string_view octets) {
        while (!octets.empty()) {
            const ssize_t n = appelsSysteme().write(fichier_.valeur(), octets.data(), octets.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) refuser(ecriture, n < 0 ? errno : EIO, chemin_);
            octets.remove_prefix(static_cast<std::size_t>(n));
        }
    }

    /// Gives the identity of the new file.
    IdentiteFichier valider() {
        AppelsSysteme& appels = appelsSysteme();
        reprendreDroits();
        exiger(synchroniser(appels.fdatasync, fichier_.valeur()));
        const Descripteur temoin(
            ::fcntl(fichier_.valeur(), F_DUPFD_CLOEXEC, 0)); // a rename dates the file anew
        // The descriptor is gone even when close is interrupted, and the bytes are already on the disk.
        exiger(fichier_.fermer() == 0 || errno == EINTR);
        exiger(appels.rename(temporaire_.c_str(), cible_.c_str()) == 0);
        temporaire_.clear();
        // Some network file systems can't sync a directory and say EINVAL: there is nothing more to do there.
        if (!synchroniser(appels.fsync, repertoire_.valeur()) && errno != EINVAL)
            throw FauteExecution("Enregistrement incertain après une coupure : " + causeSysteme(errno),
                                 chemin_);
        struct stat etat {};
        return appels.fstat(temoin.valeur(), &etat) == 0 ? identiteDe(etat) : IdentiteFichier{};
    }

  private:
    void exiger(bool reussi) const {
        if (!reussi) refuser(ecriture, errno, chemin_);
    }

    static bool synchroniser(int (*appel)(int), int descripteur) {
        int resultat = 0;
        do
            resultat = appel(descripteur);
        while (resultat != 0 && errno == EINTR);
        return resultat == 0;
    }

    /// Before anything is written: a directory that can't be synced later on leaves the old file.
    void ouvrirRepertoire() {
        const Utf8 repertoire = cible_.substr(0, cible_.rfind('/') + 1);
        repertoire_ = Descripteur(appelsSysteme().open(repertoire.empty() ? "." : repertoire.c_str(),
                                                       O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
        exiger(repertoire_.ouvert());
    }

    void creerTemporaire() {
        static std::atomic<unsigned> suivant = 0;
        const Utf8 debut =
            cible_.substr(0, cible_.rfind('/') + 1) + ".vermo-" + std::to_string(::getpid()) + "-";
        constexpr int essais = 100;
        for (int i = 0; i < essais && !fichier_.ouvert(); ++i) {
            const Utf8 nom = debut + std::to_string(++suivant) + ".tmp";
            fichier_ = Descripteur(appelsSysteme().open(nom.c_str(),
                                                        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                                        existe_ ? ancien_.st_mode & 0666 : 0666));
            if (fichier_.ouvert())
                temporaire_ = nom;
            else
                exiger(errno == EEXIST || errno == EINTR);
        }
        exiger(fichier_.ouvert());
    }

    /// Gives the new file the old one's owner, where the system lets us, and its mode.
    void reprendreDroits() const {
        if (!existe_) return;
        if (ancien_.st_uid != ::geteuid() || ancien_.st_gid != ::getegid()) {
            [[maybe_unused]] const int selonDroits =
                ::fchown(fichier_.valeur(), ancien_.st_uid, ancien_.st_gid);
        }
        exiger(::fchmod(fichier_.valeur(), ancien_.st_mode & 07777) == 0 || errno == EPERM);
    }

    const Utf8& chemin_;
    Utf8 cible_;
    Utf8 temporaire_; ///< empty when there is none on the disk
    struct stat ancien_ {};
    bool existe_ = false;
    Descripteur repertoire_;
    Descripteur fichier_;
};

} // namespace

AppelsSysteme& appelsSysteme() {
    static AppelsSysteme table{
        [](const char* chemin, int drapeaux, mode_t mode) { return ::open(chemin, drapeaux, mode); },
        ::write,
        ::fdatasync,
        ::fsync,
        ::close,
        ::rename,
        ::unlink,
        ::fstat,
        ::flock,
        ::read,
        ::pread};
    return table;
}

IdentiteFichier identiteFichier(const Utf8& chemin) noexcept {
    struct stat etat {};
    if (!etatDe(chemin, etat)) return {};
    return identiteDe(etat);
}

bool fichierExiste(const Utf8& chemin) noexcept {
    struct stat etat {};
    return etatDe(chemin, etat);
}

Source::Source(const Utf8& chemin) : chemin_(chemin) {
    if (chemin.find('\0') != Utf8::npos) refuser(lecture, ENOENT, chemin);
    // Without O_NONBLOCK a named pipe would hold us here.
    fichier_ = Descripteur(appelsSysteme().open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC, 0));
    struct stat etat {};
    if (!fichier_.ouvert() || appelsSysteme().fstat(fichier_.valeur(), &etat) != 0)
        refuser(lecture, errno, chemin);
    exigerOrdinaire(lecture, etat, chemin);
    identite_ = identiteDe(etat);
}

std::size_t Source::lire(char* vers, std::size_t voulus) {
    std::size_t lus = 0;
    while (lus < voulus) {
        const ssize_t n = appelsSysteme().read(fichier_.valeur(), vers + lus, voulus - lus);
        if (n == 0) break;
        if (n < 0 && errno != EINTR) refuser(lecture, errno, chemin_);
        if (n > 0) lus += static_cast<std::size_t>(n);
    }
    return lus;
}

std::size_t Source::lireA(std::int64_t position, char* vers, std::size_t voulus) const noexcept {
    std::size_t lus = 0;
    while (lus < voulus) {
        const auto ici = static_cast<off_t>(position + static_cast<std::int64_t>(lus));
        const ssize_t n = appelsSysteme().pread(fichier_.valeur(), vers + lus, voulus - lus, ici);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        lus += static_cast<std::size_t>(n);
    }
    return lus;
}

void Source::annoncer(std::int64_t position, std::size_t taille) const noexcept {
    ::posix_fadvise(fichier_.valeur(), static_cast<off_t>(position), static_cast<off_t>(taille),
                    POSIX_FADV_WILLNEED);
}

std::string lireFichier(const Utf8& chemin) {
    return lireAvecIdentite(chemin).octets;
}

FichierLu lireAvecIdentite(const Utf8& chemin) {
    Source source(chemin);
    const auto taille = static_cast<std::size_t>(source.taille());
    FichierLu lu{{}, source.identite()};
    std::string& octets = lu.octets;
    octets.reserve(taille);
    peuplerMemoire(octets.data(), taille);
    octets.resize(taille);
    octets.resize(source.lire(octets.data(), octets.size()));
    // A file may have grown meanwhile; /proc says 0 bytes of files that have some.
    char suite[4096];
    while (const std::size_t lus = source.lire(suite, sizeof suite))
        octets.append(suite, lus);
    return lu;
}

std::string lireDebut(const Utf8& chemin, std::size_t taille) {
    Source source(chemin);
    std::string octets(taille, '\0');
    octets.resize(source.lire(octets.data(), octets.size()));
    return octets;
}

IdentiteFichier remplacerFichier(const Utf8& chemin, std::string_view octets) {
    Remplacement remplacement(chemin);
    remplacement.ecrire(octets);
    return remplacement.valider();
}

bool copierFichier(const Utf8& source, const Utf8& cible,
                   const std::function<bool(std::int64_t, std::int64_t)>& avance) {
    constexpr std::size_t bloc = 1 << 20;
    Source origine(source);
    Remplacement remplacement(cible);
    std::string tampon(bloc, '\0');
    std::int64_t copies = 0;
    while (const std::size_t lus = origine.lire(tampon.data(), tampon.size())) {
        remplacement.ecrire(std::string_view(tampon).substr(0, lus));
        copies += static_cast<std::int64_t>(lus);
        if (avance && !avance(copies, std::max(copies, origine.taille()))) return false;
    }
    if (copies < origine.taille())
        throw FauteExecution("Copie impossible : le fichier a été raccourci pendant la lecture", source);
    remplacement.valider();
    return true;
}

void supprimerFichier(const Utf8& chemin) {
    if (chemin.find('\0') != Utf8::npos) return;
    if (appelsSysteme().unlink(chemin.c_str()) != 0 && errno != ENOENT) refuser("Suppression", errno, chemin);
}

VerrouRepertoire::VerrouRepertoire(const Utf8& repertoire) {
    constexpr int essais = 50;
    constexpr std::chrono::milliseconds entreDeux{20};
    AppelsSysteme& appels = appelsSysteme();
    repertoire_ = Descripteur(
        appels.open(repertoire.empty() ? "." : repertoire.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    if (!repertoire_.ouvert()) return;
    for (int i = 0; i < essais && appels.flock(repertoire_.valeur(), LOCK_EX | LOCK_NB) != 0; ++i) {
        if (errno != EWOULDBLOCK && errno != EINTR) return;
        std::this_thread::sleep_for(entreDeux);
    }
}

} // namespace vermo
