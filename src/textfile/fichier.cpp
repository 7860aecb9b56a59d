#include "textfile/fichier.h"

#include "textfile/faute.h"
#include "textfile/memoire.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace vermo {
namespace {

[[noreturn]] void refuser(const char* action, int erreur, const Utf8& chemin) {
    throw FauteExecution(action + (" impossible : " + causeSysteme(erreur)), chemin);
}

constexpr const char* DEBUT_TEMPORAIRE = ".vermo-";
constexpr const char* FIN_TEMPORAIRE = ".tmp";

constexpr char lecture[] = "Lecture";
constexpr char ecriture[] = "Écriture";

void exigerOrdinaire(const char* action, const struct stat& etat, const Utf8& chemin) {
    if (S_ISDIR(etat.st_mode)) refuser(action, EISDIR, chemin);
    if (!S_ISREG(etat.st_mode))
        throw FauteExecution(action + std::string(" impossible : ce n'est pas un fichier ordinaire"), chemin);
}

/// `stat` of a name; a name with a NUL byte in it, which the system would cut, is that of no file.
bool etatDe(const Utf8& chemin, struct stat& etat, int repertoire = AT_FDCWD) noexcept {
    return chemin.find('\0') == Utf8::npos && ::fstatat(repertoire, chemin.c_str(), &etat, 0) == 0;
}

std::int64_t nanosecondes(const timespec& temps) noexcept {
    return temps.tv_sec * 1'000'000'000 + temps.tv_nsec;
}

IdentiteFichier identiteDe(const struct stat& etat) noexcept {
    timespec maintenant{};
    ::clock_gettime(CLOCK_REALTIME, &maintenant);
    return {etat.st_dev,
            etat.st_ino,
            etat.st_size,
            nanosecondes(etat.st_mtim),
            nanosecondes(etat.st_ctim),
            nanosecondes(maintenant)};
}

Utf8 repertoireVu(const Utf8& repertoire) {
    return repertoire.empty() ? "." : repertoire;
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
    explicit Remplacement(const Utf8& chemin, mode_t mode = 0666) : chemin_(chemin), mode_(mode) {
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

    /// None when `tient` says no.
    std::optional<FichierEcrit> valider(const std::function<bool()>& tient = {}) {
        AppelsSysteme& appels = appelsSysteme();
        reprendreDroits();
        exiger(synchroniser(appels.fdatasync, fichier_.valeur()));
        const Descripteur temoin(
            ::fcntl(fichier_.valeur(), F_DUPFD_CLOEXEC, 0)); // a rename dates the file anew
        // The descriptor is gone even when close is interrupted, and the bytes are already on the disk.
        exiger(fichier_.fermer() == 0 || errno == EINTR);
        if (tient && !tient()) return std::nullopt;
        exiger(appels.rename(temporaire_.c_str(), cible_.c_str()) == 0);
        temporaire_.clear();
        FichierEcrit ecrit;
        // Some network file systems can't sync a directory and say EINVAL: there is nothing more to do there.
        if (!synchroniser(appels.fsync, repertoire_.valeur()) && errno != EINVAL)
            ecrit.doute = causeSysteme(errno);
        struct stat etat {};
        if (appels.fstat(temoin.valeur(), &etat) == 0) ecrit.identite = identiteDe(etat);
        return ecrit;
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
        repertoire_ = Descripteur(
            appelsSysteme().open(repertoireVu(repertoire).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
        exiger(repertoire_.ouvert());
    }

    void creerTemporaire() {
        static std::atomic<unsigned> suivant = 0;
        const Utf8 debut =
            cible_.substr(0, cible_.rfind('/') + 1) + DEBUT_TEMPORAIRE + std::to_string(::getpid()) + "-";
        constexpr int essais = 100;
        for (int i = 0; i < essais && !fichier_.ouvert(); ++i) {
            const Utf8 nom = debut + std::to_string(++suivant) + FIN_TEMPORAIRE;
            fichier_ = Descripteur(appelsSysteme().open(nom.c_str(),
                                                        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                                        existe_ ? ancien_.st_mode & 0666 : mode_));
            if (!fichier_.ouvert())
                exiger(errno == EEXIST || errno == EINTR);
            else if (retenir())
                temporaire_ = nom;
            else
                fichier_ = {};
        }
        exiger(fichier_.ouvert());
    }

    /// Locks the temporary file, by which that of a living writer is told from an abandoned one. False when
    /// somebody took it for abandoned before.
    bool retenir() const {
        return appelsSysteme().flock(fichier_.valeur(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
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
    mode_t mode_;     ///< of a file that wasn't there
    struct stat ancien_ {};
    bool existe_ = false;
    Descripteur repertoire_;
    Descripteur fichier_;
};

} // namespace

bool IdentiteFichier::operator==(const IdentiteFichier& autre) const noexcept {
    return peripherique == autre.peripherique && inode == autre.inode && taille == autre.taille &&
           modification == autre.modification && changement == autre.changement;
}

bool IdentiteFichier::probante() const noexcept {
    constexpr std::int64_t tropJeune = 2'000'000'000; // some file systems count time by two seconds
    return prise - std::max(modification, changement) >= tropJeune;
}

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

IdentiteFichier identiteFichier(const Descripteur& repertoire, const Utf8& nom) noexcept {
    struct stat etat {};
    if (!etatDe(nom, etat, repertoire.valeur())) return {};
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
    FichierLu lu;
    lireAvecIdentite(chemin, lu);
    return lu;
}

void lireAvecIdentite(const Utf8& chemin, FichierLu& lu) {
    Source source(chemin);
    lu.identite = source.identite();
    const auto taille = static_cast<std::size_t>(source.taille());
    std::string& octets = lu.octets;
    if (taille > octets.capacity()) {
        octets.reserve(taille);
        peuplerMemoire(octets.data(), taille);
    }
    octets.resize(taille);
    octets.resize(source.lire(octets.data(), octets.size()));
    // A file may have grown meanwhile; /proc says 0 bytes of files that have some.
    char suite[4096];
    while (const std::size_t lus = source.lire(suite, sizeof suite))
        octets.append(suite, lus);
}

std::string lireDebut(const Utf8& chemin, std::size_t taille) {
    Source source(chemin);
    std::string octets(taille, '\0');
    octets.resize(source.lire(octets.data(), octets.size()));
    return octets;
}

FichierEcrit remplacerFichier(const Utf8& chemin, std::string_view octets, mode_t mode) {
    Remplacement remplacement(chemin, mode);
    remplacement.ecrire(octets);
    return *remplacement.valider();
}

std::optional<FichierEcrit> remplacerSi(const Utf8& chemin, std::string_view octets,
                                        const std::function<bool()>& tient) {
    Remplacement remplacement(chemin);
    remplacement.ecrire(octets);
    return remplacement.valider(tient);
}

void retirerAbandonnes(const Utf8& repertoire) noexcept {
    std::error_code erreur;
    std::filesystem::directory_iterator entree(repertoireVu(repertoire), erreur);
    for (; !erreur && entree != std::filesystem::directory_iterator(); entree.increment(erreur)) {
        const Utf8 chemin = entree->path().string(), nom = entree->path().filename().string();
        if (!nom.starts_with(DEBUT_TEMPORAIRE) || !nom.ends_with(FIN_TEMPORAIRE)) continue;
        if (VerrouFichier(chemin).tenu()) appelsSysteme().unlink(chemin.c_str());
    }
}

Utf8 mettreDeCote(const Utf8& chemin) {
    for (int i = 1;; ++i) {
        const Utf8 libre = chemin + "." + std::to_string(i);
        if (fichierExiste(libre)) continue;
        if (appelsSysteme().rename(chemin.c_str(), libre.c_str()) != 0) refuser(ecriture, errno, chemin);
        return libre;
    }
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

void creerRepertoirePrive(const Utf8& repertoire) {
    for (std::size_t fin = repertoire.find('/', 1); fin != Utf8::npos; fin = repertoire.find('/', fin + 1))
        if (::mkdir(repertoire.substr(0, fin).c_str(), 0700) != 0 && errno != EEXIST)
            refuser("Création du répertoire", errno, repertoire);
}

void supprimerFichier(const Utf8& chemin) {
    if (chemin.find('\0') != Utf8::npos) return;
    if (appelsSysteme().unlink(chemin.c_str()) != 0 && errno != ENOENT) refuser("Suppression", errno, chemin);
}

VerrouFichier::VerrouFichier(const Utf8& chemin)
    : fichier_(appelsSysteme().open(chemin.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600)),
      tenu_(fichier_.ouvert() && appelsSysteme().flock(fichier_.valeur(), LOCK_EX | LOCK_NB) == 0),
      ailleurs_(fichier_.ouvert() && !tenu_ && errno == EWOULDBLOCK) {}

VerrouRepertoire::VerrouRepertoire(const Utf8& repertoire) {
    constexpr int essais = 50;
    constexpr std::chrono::milliseconds entreDeux{20};
    AppelsSysteme& appels = appelsSysteme();
    repertoire_ =
        Descripteur(appels.open(repertoireVu(repertoire).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    if (!repertoire_.ouvert()) return;
    for (int i = 0; i < essais && appels.flock(repertoire_.valeur(), LOCK_EX | LOCK_NB) != 0; ++i) {
        if (errno != EWOULDBLOCK && errno != EINTR) return;
        std::this_thread::sleep_for(entreDeux);
    }
}

} // namespace vermo
