#pragma once
#include "support/DossierTemporaire.h"
#include "textfile/fichier.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <functional>
#include <optional>
#include <string>

namespace vermo::essai {

/// A fault in the system calls that read and replace files: every call of the table is counted from 1.
struct Panne {
    int rang = 0;                   ///< the call that is struck; 0: none
    int erreur = 0;                 ///< errno that the call fails with; 0: the process is killed there
    std::string appel = {};         ///< strikes only this call ("write"), counted alone
    bool toujours = false;          ///< strikes again at each later one
    std::size_t morceau = SIZE_MAX; ///< bytes that one read or write takes at most
};

/// Puts a `Panne` into the table while it lives.
class Pannes {
  public:
    explicit Pannes(Panne panne) : vrais_(appelsSysteme()) {
        etat() = {std::move(panne), 0, vrais_};
        AppelsSysteme& table = appelsSysteme();
        table.open = [](const char* chemin, int drapeaux, mode_t mode) {
            return frappe("open") ? -1 : etat().vrais.open(chemin, drapeaux, mode);
        };
        table.read = [](int d, void* vers, std::size_t n) -> ssize_t {
            return frappe("read") ? -1 : etat().vrais.read(d, vers, std::min(n, etat().panne.morceau));
        };
        table.pread = [](int d, void* vers, std::size_t n, off_t ou) -> ssize_t {
            return frappe("pread") ? -1 : etat().vrais.pread(d, vers, std::min(n, etat().panne.morceau), ou);
        };
        table.write = [](int d, const void* octets, std::size_t n) -> ssize_t {
            return frappe("write") ? -1 : etat().vrais.write(d, octets, std::min(n, etat().panne.morceau));
        };
        table.fdatasync = [](int) { return frappe("fdatasync") ? -1 : 0; }; // a kill leaves what was written
        table.fsync = [](int) { return frappe("fsync") ? -1 : 0; };
        table.close = [](int d) {
            const bool echec = frappe("close");
            const int erreur = errno, resultat = etat().vrais.close(d);
            if (echec) errno = erreur;
            return echec ? -1 : resultat;
        };
        table.rename = [](const char* a, const char* b) {
            return frappe("rename") ? -1 : etat().vrais.rename(a, b);
        };
        table.fstat = [](int d, struct stat* s) { return frappe("fstat") ? -1 : etat().vrais.fstat(d, s); };
        table.flock = [](int d, int o) { return frappe("flock") ? -1 : etat().vrais.flock(d, o); };
        table.unlink = [](const char* c) { return frappe("unlink") ? -1 : etat().vrais.unlink(c); };
    }
    Pannes(const Pannes&) = delete;
    ~Pannes() { appelsSysteme() = vrais_; }

    /// Calls counted so far.
    int appels() const { return etat().compte; }

  private:
    struct Etat {
        Panne panne;
        int compte = 0;
        AppelsSysteme vrais{};
    };
    static Etat& etat() {
        static Etat seul;
        return seul;
    }
    static bool frappe(const std::string& appel) {
        const Panne& panne = etat().panne;
        if (!panne.appel.empty() && panne.appel != appel) return false;
        const int compte = ++etat().compte;
        if (panne.rang == 0 || (panne.toujours ? compte < panne.rang : compte != panne.rang)) return false;
        if (panne.erreur == 0) raise(SIGKILL);
        errno = panne.erreur;
        return true;
    }

    AppelsSysteme vrais_;
};

/// Temporary files in `dossier`, which are removed.
inline long temporairesRestants(const DossierTemporaire& dossier) {
    long restants = 0;
    for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier.chemin()))
        if (entree.path().filename().string().starts_with(".vermo-"))
            restants += std::filesystem::remove(entree) ? 1 : 0;
    return restants;
}

/// Runs `action`, which replaces or makes the file `nom`, with each of its system calls failing in turn (I/O
/// error, full disk, read-only), and in child processes killed at each call, inside the writing too. After
/// each, the file must be the old one (none, where there was none) or the new one, whole, and no temporary
/// file left but by a kill.
inline void survitAuxPannes(const DossierTemporaire& dossier, const Utf8& nom,
                            const std::function<void()>& action) {
    using Contenu = std::optional<std::string>;
    const auto contenu = [&] { return dossier.existe(nom) ? Contenu(dossier.lire(nom)) : std::nullopt; };
    const Contenu ancien = contenu();
    action();
    const Contenu nouveau = contenu();
    ASSERT_NE(ancien, nouveau) << "the action must change " << nom;
    const std::size_t morceau = std::max<std::size_t>(nouveau.value().size() / 3, 1);
    const auto essayer = [&](const Panne& panne) {
        ancien ? void(dossier.ecrire(nom, *ancien)) : void(std::filesystem::remove(dossier.chemin(nom)));
        Pannes pannes(panne);
        try {
            action();
        } catch (const std::exception&) {
            EXPECT_NE(panne.rang, 0) << "fails without a fault";
        }
        return pannes.appels();
    };
    const int appels = essayer({.morceau = morceau});
    ASSERT_GT(appels, 0);
    for (int rang = 1; rang <= appels; ++rang)
        for (const int erreur : {EIO, ENOSPC, EROFS, 0}) {
            const Panne panne{.rang = rang, .erreur = erreur, .morceau = morceau};
            if (erreur == 0)
                EXPECT_EXIT(essayer(panne), testing::KilledBySignal(SIGKILL), "");
            else
                essayer(panne);
            const Contenu apres = contenu();
            EXPECT_TRUE(apres == ancien || apres == nouveau)
                << nom << " torn: errno " << erreur << " at call " << rang;
            EXPECT_TRUE(temporairesRestants(dossier) == 0 || erreur == 0) << erreur << " at call " << rang;
        }
}

} // namespace vermo::essai
