#include "support/Pannes.h"
#include "textfile/empreinte.h"
#include "textfile/faute.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

namespace fs = std::filesystem;

/// The fault's whole message, or nothing when `action` succeeds.
template <class Action>
std::string faute(Action action) {
    try {
        action();
    } catch (const FauteExecution& f) {
        return f.what();
    }
    return {};
}

std::ptrdiff_t descripteursOuverts() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

std::string contenu(std::size_t taille) {
    std::string octets(taille, '\0');
    for (std::size_t i = 0; i < taille; ++i)
        octets[i] = static_cast<char>((i + 1) * 2654435761U >> 16); // no two blocks alike
    return octets;
}

const std::string ancien = contenu(5000) + "ancien";
const std::string nouveau = contenu(70000) + "nouveau";

TEST(FileReading, GivesAllBytesOrRefusesWithTheCause) {
    const DossierTemporaire dossier;
    for (const std::size_t taille : {0u, 1u, 4096u, 3000001u})
        EXPECT_EQ(lireFichier(dossier.ecrire("a", contenu(taille))), contenu(taille)) << taille;
    EXPECT_FALSE(lireFichier("/proc/self/status").empty()) << "says 0 bytes, has some";
    ASSERT_EQ(mkfifo(dossier.chemin("tube").c_str(), 0600), 0);
    const std::vector<std::pair<std::string, std::string>> cas = {
        {dossier.chemin("absent"), "fichier introuvable"},
        {dossier.chemin(), "c'est un répertoire"},
        {dossier.chemin("a/b"), "un élément du chemin n'est pas un répertoire"},
        {dossier.chemin("tube"), "ce n'est pas un fichier ordinaire"},
        {dossier.chemin("a") + std::string("\0b", 2), "fichier introuvable"},
        {dossier.chemin(std::string(300, 'n')), "nom de fichier trop long"},
    };
    const auto avant = descripteursOuverts();
    for (const auto& [chemin, cause] : cas)
        EXPECT_TRUE(faute([&] { lireFichier(chemin); }).starts_with("Lecture impossible : " + cause + "\n"))
            << chemin;
    EXPECT_EQ(descripteursOuverts(), avant);
}

TEST(FileReading, GoesOnAfterShortAndInterruptedReads) {
    const DossierTemporaire dossier;
    const std::string octets = contenu(5000);
    const Utf8 chemin = dossier.ecrire("a", octets);
    std::string morceau(4000, ' ');
    for (const char* appel : {"read", "pread"}) {
        const Pannes pannes({2, EINTR, appel, false, 700});
        EXPECT_EQ(Source(chemin).lireA(500, morceau.data(), 4000), 4000U);
        EXPECT_EQ(morceau, octets.substr(500, 4000));
        EXPECT_EQ(lireFichier(chemin), octets);
        EXPECT_EQ(lireDebut(chemin, 4000), octets.substr(0, 4000));
    }
}

TEST(FileReplacement, TellsEachCallThatFails) {
    const DossierTemporaire dossier;
    const Utf8 chemin = dossier.chemin("a.Rtr");
    const std::string es = "Écriture impossible : ";
    const std::tuple<Panne, std::string, bool> cas[] = {
        // the fault, what is said, whether it is replaced
        {{1, EACCES, "open"}, es + "accès refusé", false},
        {{1, EROFS, "open"}, es + "système de fichiers en lecture seule", false},
        {{2, EROFS, "open"}, es + "système de fichiers en lecture seule", false},
        {{2, EEXIST, "open"}, "", true},
        {{2, EEXIST, "open", true}, es + "un fichier de ce nom existe déjà", false},
        {{1, ENOSPC, "write"}, es + "disque plein", false},
        {{3, ENOSPC, "write", true, 4096}, es + "disque plein", false},
        {{3, EIO, "write", false, 4096}, es + "erreur d'entrée-sortie", false},
        {{2, EINTR, "write", false, 4096}, "", true},
        {{0, 0, "", false, 1000}, "", true},
        {{1, EIO, "fdatasync"}, es + "erreur d'entrée-sortie", false},
        {{1, EINTR, "fdatasync"}, "", true},
        {{1, EIO, "close"}, es + "erreur d'entrée-sortie", false},
        {{1, EINTR, "close"}, "", true},
        {{1, EACCES, "rename"}, es + "accès refusé", false},
        {{1, EIO, "fsync"}, "doute : erreur d'entrée-sortie", true},
        {{1, EINVAL, "fsync"}, "", true}};
    const auto avant = descripteursOuverts();
    for (const auto& [panne, message, remplace] : cas) {
        dossier.ecrire("a.Rtr", ancien);
        const Pannes pannes(panne);
        const auto remplacer = [&] {
            const Utf8 doute = remplacerFichier(chemin, nouveau).doute;
            if (!doute.empty()) throw FauteExecution("doute : " + doute, chemin);
        };
        EXPECT_EQ(faute(remplacer), message.empty() ? "" : message + "\n" + chemin)
            << panne.appel << " " << panne.erreur;
        EXPECT_TRUE(dossier.lire("a.Rtr") == (remplace ? nouveau : ancien)) << panne.appel << panne.erreur;
        EXPECT_EQ(temporairesRestants(dossier), 0);
    }
    EXPECT_EQ(descripteursOuverts(), avant);
    remplacerFichier(dossier.chemin("neuf"), "");
    EXPECT_EQ(dossier.lire("neuf"), "");
    EXPECT_THROW(remplacerFichier(dossier.chemin("absent/neuf"), "x"), FauteExecution);
    EXPECT_EQ(faute([&] { remplacerFichier(dossier.chemin(), "x"); }),
              es + "c'est un répertoire\n" + dossier.chemin());
    for (const char* nom : {"neuf", "neuf", "absent/neuf"}) // what isn't there is no fault
        EXPECT_EQ(faute([&] { supprimerFichier(dossier.chemin(nom)); }), "") << nom;
    EXPECT_EQ(faute([&] { supprimerFichier(dossier.chemin()); }),
              "Suppression impossible : c'est un répertoire\n" + dossier.chemin());
    EXPECT_FALSE(dossier.existe("neuf"));
}

TEST(FileReplacement, PastTheLimitOfAFilesSizeIsAFaultAndNotTheEnd) {
    const DossierTemporaire dossier;
    rlimit avant{};
    getrlimit(RLIMIT_FSIZE, &avant);
    const rlimit petite{1000, avant.rlim_max};
    setrlimit(RLIMIT_FSIZE, &petite);
    EXPECT_EQ(faute([&] { remplacerFichier(dossier.chemin("a"), nouveau); }),
              "Écriture impossible : fichier trop grand\n" + dossier.chemin("a"));
    setrlimit(RLIMIT_FSIZE, &avant);
}

TEST(FileReplacement, KeepsLinksOwnerAndMode) {
    const DossierTemporaire dossier;
    const Utf8 vrai = dossier.ecrire("loin/vrai", ancien);
    ASSERT_EQ(chmod(vrai.c_str(), 0604), 0);
    const bool donne = chown(vrai.c_str(), 1234, 4321) == 0; // where the test may
    const mode_t masque = umask(0027);
    fs::create_symlink("loin/vrai", dossier.chemin("relatif"));
    fs::create_symlink(dossier.chemin("relatif"), dossier.chemin("absolu"));
    fs::create_symlink("loin/futur", dossier.chemin("pendant"));
    fs::create_symlink("boucle", dossier.chemin("boucle"));
    remplacerFichier(dossier.chemin("absolu"), nouveau);
    remplacerFichier(dossier.chemin("pendant"), nouveau);
    for (const char* lien : {"absolu", "relatif", "pendant"})
        EXPECT_TRUE(fs::is_symlink(dossier.chemin(lien)) && dossier.lire(lien) == nouveau) << lien;
    umask(masque);
    struct stat etat {};
    ASSERT_EQ(stat(vrai.c_str(), &etat), 0);
    EXPECT_EQ(etat.st_mode & 07777, 0604U);
    EXPECT_TRUE(!donne || (etat.st_uid == 1234 && etat.st_gid == 4321));
    EXPECT_EQ(fs::status(dossier.chemin("loin/futur")).permissions(), fs::perms(0640));
    EXPECT_EQ(faute([&] { remplacerFichier(dossier.chemin("boucle"), "x"); }),
              "Écriture impossible : trop de liens symboliques\n" + dossier.chemin("boucle"));
}

TEST(Fingerprint, IsTheSameOnEveryMachineAndSeesOneBit) {
    EXPECT_EQ(empreinteDe(""), (Empreinte{0x99aa06d3014798d8, 0x6001c324468d497f}));
    std::string octets(100'000, 'a');
    const Empreinte avant = empreinteDe(octets);
    octets[77'777] ^= 1;
    EXPECT_NE(empreinteDe(octets), avant);
}

TEST(FileCopy, TellsItsProgressAndCanBeStopped) {
    const DossierTemporaire dossier;
    const std::string octets = contenu(2'500'000);
    const Utf8 source = dossier.ecrire("source.wav", octets);
    const Utf8 cible = dossier.ecrire("cible.wav", ancien);
    std::vector<std::int64_t> avance;
    const auto suivre = [&](std::int64_t faits, std::int64_t) {
        avance.push_back(faits);
        return avance.size() != 2;
    };
    EXPECT_FALSE(copierFichier(source, cible, suivre));
    EXPECT_TRUE(dossier.lire("cible.wav") == ancien);
    EXPECT_EQ(temporairesRestants(dossier), 0);
    avance.assign(2, 0);
    EXPECT_TRUE(copierFichier(source, cible, suivre));
    EXPECT_EQ(avance, (std::vector<std::int64_t>{0, 0, 1 << 20, 2 << 20, 2'500'000}));
    EXPECT_TRUE(dossier.lire("cible.wav") == octets);
    EXPECT_THROW(copierFichier(dossier.chemin("absent"), cible), FauteExecution);
    const auto raccourcir = [&](std::int64_t, std::int64_t) {
        return truncate(source.c_str(), 1 << 20) == 0;
    };
    EXPECT_EQ(faute([&] { copierFichier(source, cible, raccourcir); }),
              "Copie impossible : le fichier a été raccourci pendant la lecture\n" + source);
    EXPECT_TRUE(dossier.lire("cible.wav") == octets);
    EXPECT_EQ(temporairesRestants(dossier), 0);
}

} // namespace
