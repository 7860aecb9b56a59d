#include "support/Pannes.h"
#include "textfile/faute.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace vermo {
namespace {

using essai::DossierTemporaire;
using essai::Panne;
using essai::Pannes;
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
        octets[i] = static_cast<char>(i * 7 + i / 256);
    return octets;
}

const std::string ancien = contenu(5000) + "ancien";
const std::string nouveau = contenu(70000) + "nouveau";

TEST(Faute, MessageDitLeFichierEtLaLigne) {
    EXPECT_STREQ(FauteExecution("balise absente", "a.Crp", 3).what(), "balise absente\na.Crp, ligne 3");
    EXPECT_STREQ(FauteExecution("balise absente", "a.Crp").what(), "balise absente\na.Crp");
    EXPECT_STREQ(FauteExecution("balise absente").what(), "balise absente");
}

TEST(Lecture, RendTousLesOctets) {
    const DossierTemporaire dossier;
    for (const std::size_t taille : {0u, 1u, 4096u, 3000001u})
        EXPECT_EQ(lireFichier(dossier.ecrire("a", contenu(taille))), contenu(taille)) << taille;
    EXPECT_FALSE(lireFichier("/proc/self/status").empty()) << "says 0 bytes, has some";
}

TEST(Lecture, RefuseAvecLaCause) {
    const DossierTemporaire dossier;
    ASSERT_EQ(mkfifo(dossier.chemin("tube").c_str(), 0600), 0);
    dossier.ecrire("a", "x");
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

TEST(Remplacement, ChaqueAppelQuiEchoueEstDit) {
    const DossierTemporaire dossier;
    const Utf8 chemin = dossier.chemin("a.Rtr");
    const struct {
        Panne panne;
        std::string faute;
        bool remplace;
    } cas[] = {
        {{1, EACCES, "open"}, "Écriture impossible : accès refusé", false},
        {{1, EROFS, "open"}, "Écriture impossible : système de fichiers en lecture seule", false},
        {{2, EROFS, "open"}, "Écriture impossible : système de fichiers en lecture seule", false},
        {{2, EEXIST, "open"}, "", true},
        {{2, EEXIST, "open", true}, "Écriture impossible : un fichier de ce nom existe déjà", false},
        {{1, ENOSPC, "write"}, "Écriture impossible : disque plein", false},
        {{3, ENOSPC, "write", true, 4096}, "Écriture impossible : disque plein", false},
        {{3, EIO, "write", false, 4096}, "Écriture impossible : erreur d'entrée-sortie", false},
        {{2, EINTR, "write", false, 4096}, "", true},
        {{0, 0, "", false, 1000}, "", true},
        {{1, EIO, "fdatasync"}, "Écriture impossible : erreur d'entrée-sortie", false},
        {{1, EINTR, "fdatasync"}, "", true},
        {{1, EIO, "close"}, "Écriture impossible : erreur d'entrée-sortie", false},
        {{1, EINTR, "close"}, "", true},
        {{1, EACCES, "rename"}, "Écriture impossible : accès refusé", false},
        {{1, EIO, "fsync"}, "Enregistrement incertain après une coupure : erreur d'entrée-sortie", true},
        {{1, EINVAL, "fsync"}, "", true},
    };
    const auto avant = descripteursOuverts();
    for (const auto& c : cas) {
        SCOPED_TRACE(c.panne.appel + " " + std::to_string(c.panne.erreur));
        dossier.ecrire("a.Rtr", ancien);
        const Pannes pannes(c.panne);
        EXPECT_EQ(faute([&] { remplacerFichier(chemin, nouveau); }),
                  c.faute.empty() ? "" : c.faute + "\n" + chemin);
        EXPECT_TRUE(dossier.lire("a.Rtr") == (c.remplace ? nouveau : ancien));
        EXPECT_EQ(essai::temporairesRestants(dossier), 0);
    }
    EXPECT_EQ(descripteursOuverts(), avant);
}

TEST(Remplacement, AncienOuNouveauQuoiQuIlArrive) {
    const DossierTemporaire dossier;
    const Utf8 source = dossier.ecrire("source.wav", nouveau);
    for (const bool copie : {false, true}) {
        dossier.ecrire("a.Rtr", ancien);
        essai::survitAuxPannes(dossier, "a.Rtr", [&] {
            copie ? void(copierFichier(source, dossier.chemin("a.Rtr")))
                  : remplacerFichier(dossier.chemin("a.Rtr"), nouveau);
        });
    }
}

TEST(Remplacement, FichierQuiManqueEtFichierVide) {
    const DossierTemporaire dossier;
    remplacerFichier(dossier.chemin("neuf"), nouveau);
    EXPECT_TRUE(dossier.lire("neuf") == nouveau);
    remplacerFichier(dossier.chemin("neuf"), "");
    EXPECT_EQ(dossier.lire("neuf"), "");
    EXPECT_THROW(remplacerFichier(dossier.chemin("absent/neuf"), "x"), FauteExecution);
    EXPECT_EQ(faute([&] { remplacerFichier(dossier.chemin(), "x"); }),
              "Écriture impossible : c'est un répertoire\n" + dossier.chemin());
}

TEST(Remplacement, GardeLiensEtMode) {
    const DossierTemporaire dossier;
    dossier.ecrire("loin/vrai", ancien);
    ASSERT_EQ(chmod(dossier.chemin("loin/vrai").c_str(), 0640), 0);
    fs::create_symlink("loin/vrai", dossier.chemin("relatif"));
    fs::create_symlink(dossier.chemin("relatif"), dossier.chemin("absolu"));
    fs::create_symlink("loin/futur", dossier.chemin("pendant"));
    fs::create_symlink("boucle", dossier.chemin("boucle"));
    remplacerFichier(dossier.chemin("absolu"), nouveau);
    remplacerFichier(dossier.chemin("pendant"), nouveau);
    for (const char* lien : {"absolu", "relatif", "pendant"})
        EXPECT_TRUE(fs::is_symlink(dossier.chemin(lien)) && dossier.lire(lien) == nouveau) << lien;
    EXPECT_EQ(fs::status(dossier.chemin("loin/vrai")).permissions(), fs::perms(0640));
    EXPECT_EQ(faute([&] { remplacerFichier(dossier.chemin("boucle"), "x"); }),
              "Écriture impossible : trop de liens symboliques\n" + dossier.chemin("boucle"));
}

/// Somebody put a link where the temporary file is about to be made.
TEST(Remplacement, NEcritPasATraversUnTemporaireDejaLa) {
    const DossierTemporaire dossier;
    static Utf8 victime;
    victime = dossier.ecrire("victime", ancien);
    static const AppelsSysteme vrais = appelsSysteme();
    appelsSysteme().open = [](const char* chemin, int drapeaux, mode_t mode) {
        if (drapeaux & O_CREAT) {
            fs::create_symlink(victime, chemin);
            appelsSysteme().open = vrais.open;
        }
        return vrais.open(chemin, drapeaux, mode);
    };
    remplacerFichier(dossier.chemin("a"), nouveau);
    EXPECT_TRUE(dossier.lire("a") == nouveau && dossier.lire("victime") == ancien);
}

TEST(Remplacement, LimiteDeTailleEstUneFauteEtNonUneFin) {
    const DossierTemporaire dossier;
    dossier.ecrire("a", ancien);
    const pid_t enfant = fork();
    if (enfant == 0) {
        const rlimit limite{8192, 8192};
        setrlimit(RLIMIT_FSIZE, &limite);
        const std::string message = faute([&] { remplacerFichier(dossier.chemin("a"), nouveau); });
        _exit(message.starts_with("Écriture impossible : fichier trop grand") ? 0 : 1);
    }
    int fin = 0;
    ASSERT_EQ(waitpid(enfant, &fin, 0), enfant);
    EXPECT_TRUE(WIFEXITED(fin) && WEXITSTATUS(fin) == 0) << fin;
    EXPECT_TRUE(dossier.lire("a") == ancien);
    EXPECT_EQ(essai::temporairesRestants(dossier), 0);
}

TEST(Copie, DitOuElleEnEstEtSeLaisseArreter) {
    const DossierTemporaire dossier;
    const std::string octets = contenu(2'500'000);
    const Utf8 source = dossier.ecrire("source.wav", octets);
    const Utf8 cible = dossier.ecrire("cible.wav", ancien);
    std::vector<std::int64_t> avance;
    const auto suivre = [&](std::int64_t faits, std::int64_t total) {
        EXPECT_EQ(total, 2'500'000);
        avance.push_back(faits);
        return avance.size() != 2;
    };
    EXPECT_FALSE(copierFichier(source, cible, suivre));
    EXPECT_TRUE(dossier.lire("cible.wav") == ancien);
    EXPECT_EQ(essai::temporairesRestants(dossier), 0);
    avance.assign(2, 0);
    EXPECT_TRUE(copierFichier(source, cible, suivre));
    EXPECT_EQ(avance, (std::vector<std::int64_t>{0, 0, 1 << 20, 2 << 20, 2'500'000}));
    EXPECT_TRUE(dossier.lire("cible.wav") == octets);
    EXPECT_THROW(copierFichier(dossier.chemin("absent"), cible), FauteExecution);
    EXPECT_TRUE(dossier.lire("cible.wav") == octets);
}

TEST(Identite, ChangeAvecLeFichier) {
    const DossierTemporaire dossier;
    const Utf8 chemin = dossier.chemin("a");
    EXPECT_EQ(identiteFichier(chemin), IdentiteFichier{});
    remplacerFichier(chemin, "un");
    const IdentiteFichier un = identiteFichier(chemin);
    EXPECT_EQ(identiteFichier(chemin), un);
    remplacerFichier(chemin, "dx");
    EXPECT_NE(identiteFichier(chemin), un);
    supprimerFichier(chemin);
    supprimerFichier(chemin);
    EXPECT_FALSE(fichierExiste(chemin));
    EXPECT_THROW(supprimerFichier(dossier.chemin()), FauteExecution);
}

} // namespace
} // namespace vermo
