#pragma once
#include "textfile/fichier.h"
#include "textfile/texte.h"

#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vermo {

/// Everything through the last slash; empty when there is none.
Utf8 repertoireDe(const Utf8& chemin);

/// Everything after the last slash.
Utf8 nomDe(const Utf8& chemin);

/// True for one path, and for two that lead to one file or directory, which is there.
bool memeFichier(const Utf8& un, const Utf8& autre);

/// A recording's companion: the last three characters replaced ("a.wav", "Rtr" -> "a.Rtr"). A name of fewer
/// than three characters is replaced whole. Works on CP1252 and on ASCII-ended UTF-8 alike.
std::string compagnon(std::string_view nom, std::string_view extension);

/// Upper-cased last three characters, as tests for "WAV" want them.
std::string extension3(std::string_view nom);

/// The file on the disk that `chemin` means: the exact name, else the same name in another case or with its
/// accents composed otherwise, as corpora come from systems where neither counts; the first in byte order
/// when several differ by these only. The directories on its way are found alike. Whatever bears the name
/// counts, a directory too: opening it tells what is wrong.
std::optional<Utf8> trouver(const Utf8& chemin);

/// `trouver`, or the path itself when nothing is there: the name under which to create it.
Utf8 cheminReel(const Utf8& chemin);

/// A file that was looked up: its full path, and its state where the system tells it.
struct FichierVu {
    Utf8 chemin;
    IdentiteFichier identite;
};

/// For looking up many names in a directory, on several threads if wanted: one question to the system for a
/// name that exists as it is written, and one listing, made at the first need, for all the others.
class IndexRepertoire {
  public:
    explicit IndexRepertoire(const Utf8& repertoire);
    /// Full path of the file that `nom` means, by the rule of `vermo::trouver`.
    std::optional<Utf8> trouver(const Utf8& nom) const;
    /// The same with its state.
    std::optional<FichierVu> voir(const Utf8& nom) const;

  private:
    IdentiteFichier identite(const Utf8& nom) const;
    std::optional<Utf8> autreCasse(const Utf8& nom) const;

    Utf8 repertoire_;
    Descripteur ouvert_; ///< the directory, if it can be opened
    mutable std::once_flag liste_;
    mutable std::unordered_map<Utf8, Utf8> sansCasse_; ///< upper-cased name -> name
};

/// The companions in a directory that bear one extension, as one listing tells them: for asking after many
/// where few are.
class CompagnonsRepertoire {
  public:
    CompagnonsRepertoire(const Utf8& repertoire, std::string_view extension);
    /// Full path of the companion of a recording, by the rule of `vermo::trouver`; empty: there is none.
    Utf8 de(std::string_view enregistrement) const;

  private:
    Utf8 repertoire_;
    std::string extension_;
    std::unordered_map<Utf8, std::set<Utf8>> noms_; ///< by the upper-cased one
};

} // namespace vermo
