#include "textfile/chemins.h"

#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <system_error>

namespace vermo {
namespace {

struct Fermer {
    void operator()(DIR* d) const { closedir(d); }
};

/// Calls `faire` with each name of a directory; with none where it can't be listed.
template <class Faire>
void lister(const Utf8& repertoire, Faire faire) {
    const std::unique_ptr<DIR, Fermer> dir(opendir(repertoire.empty() ? "." : repertoire.c_str()));
    while (const dirent* entree = dir ? readdir(dir.get()) : nullptr)
        faire(Utf8(entree->d_name));
}

} // namespace

Utf8 repertoireDe(const Utf8& chemin) {
    return chemin.substr(0, chemin.rfind('/') + 1);
}

Utf8 nomDe(const Utf8& chemin) {
    return chemin.substr(chemin.rfind('/') + 1);
}

bool memeFichier(const Utf8& un, const Utf8& autre) {
    if (un == autre) return true;
    std::error_code absent;
    return std::filesystem::equivalent(un, autre, absent);
}

std::string compagnon(std::string_view nom, std::string_view extension) {
    std::string resultat(nom.substr(0, nom.size() < 3 ? 0 : nom.size() - 3));
    resultat += extension;
    return resultat;
}

std::string extension3(std::string_view nom) {
    return majuscules(nom.substr(nom.size() < 3 ? 0 : nom.size() - 3));
}

std::optional<Utf8> trouver(const Utf8& chemin) {
    if (fichierExiste(chemin)) return chemin;
    Utf8 repertoire = repertoireDe(chemin);
    if (const Utf8 sansBarre = repertoire.substr(0, repertoire.rfind('/'));
        !sansBarre.empty() && !fichierExiste(sansBarre)) {
        const auto autre = trouver(sansBarre);
        if (!autre) return std::nullopt;
        repertoire = *autre + "/";
        if (fichierExiste(repertoire + nomDe(chemin))) return repertoire + nomDe(chemin);
    }
    const Utf8 cherche = majusculesUtf8(nomDe(chemin));
    Utf8 trouve;
    lister(repertoire, [&](const Utf8& nom) {
        if ((trouve.empty() || nom < trouve) && majusculesUtf8(nom) == cherche) trouve = nom;
    });
    if (trouve.empty()) return std::nullopt;
    return repertoire + trouve;
}

Utf8 cheminReel(const Utf8& chemin) {
    return trouver(chemin).value_or(chemin);
}

IndexRepertoire::IndexRepertoire(const Utf8& repertoire)
    : repertoire_(repertoire), ouvert_(::open(repertoire.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
    if (!repertoire_.empty() && repertoire_.back() != '/') repertoire_ += '/';
}

IdentiteFichier IndexRepertoire::identite(const Utf8& nom) const {
    const bool dedans = ouvert_.ouvert() && !nom.empty() && nom.front() != '/';
    return dedans ? identiteFichier(ouvert_, nom) : identiteFichier(repertoire_ + nom);
}

std::optional<Utf8> IndexRepertoire::autreCasse(const Utf8& nom) const {
    if (nom.find('/') != Utf8::npos) return vermo::trouver(repertoire_ + nom);
    std::call_once(liste_, [&] {
        lister(repertoire_, [&](const Utf8& exact) {
            Utf8& garde = sansCasse_[majusculesUtf8(exact)];
            if (garde.empty() || exact < garde) garde = exact;
        });
    });
    const auto autre = sansCasse_.find(majusculesUtf8(nom));
    if (autre == sansCasse_.end()) return std::nullopt;
    return repertoire_ + autre->second;
}

std::optional<FichierVu> IndexRepertoire::voir(const Utf8& nom) const {
    const FichierVu exact{repertoire_ + nom, identite(nom)};
    if (exact.identite != IdentiteFichier{}) return exact;
    const auto autre = autreCasse(nom);
    if (!autre) return std::nullopt;
    return FichierVu{*autre, identiteFichier(*autre)};
}

std::optional<Utf8> IndexRepertoire::trouver(const Utf8& nom) const {
    const auto vu = voir(nom);
    if (!vu) return std::nullopt;
    return vu->chemin;
}

CompagnonsRepertoire::CompagnonsRepertoire(const Utf8& repertoire, std::string_view extension)
    : repertoire_(repertoire), extension_(extension) {
    lister(repertoire, [&](const Utf8& nom) {
        if (extension3(nom) == majuscules(extension_)) noms_[majusculesUtf8(nom)].insert(nom);
    });
}

Utf8 CompagnonsRepertoire::de(std::string_view enregistrement) const {
    const Utf8 nom = compagnon(enregistrement, extension_);
    const auto memes = noms_.find(majusculesUtf8(nom));
    if (memes == noms_.end()) return {};
    return repertoire_ + (memes->second.contains(nom) ? nom : *memes->second.begin());
}

} // namespace vermo
