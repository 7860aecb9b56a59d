#pragma once
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace vermo {

/// What ends the lines of a text file: CR, with or without an LF behind it; LF in a file without a single CR,
/// as editors of other systems leave it.
inline char finDeLigne(std::string_view octets) {
    return octets.empty() || std::memchr(octets.data(), '\r', octets.size()) ? '\r' : '\n';
}

/// Walks the lines of a text file held in memory. A line ends at CR LF or at a lone CR; a lone LF is part
/// of the line, but in a file without a single CR. A last line without an end counts when it is not empty.
class Lignes {
  public:
    explicit Lignes(std::string_view octets) : Lignes(octets, finDeLigne(octets)) {}
    /// A part of a file, whose lines end as the whole file's do.
    Lignes(std::string_view octets, char fin) : reste_(octets), fin_(fin) {}

    /// Next line, without its end. False at the end of the text.
    bool suivante(std::string_view& ligne) {
        if (reste_.empty()) return false;
        const char* const debut = reste_.data();
        const char* const bout = debut + reste_.size();
        const auto* fin = static_cast<const char*>(std::memchr(debut, fin_, reste_.size()));
        if (fin == nullptr) fin = bout;
        ligne = {debut, static_cast<std::size_t>(fin - debut)};
        const char* suite = fin == bout ? bout : fin + 1;
        if (suite != bout && *suite == '\n' && fin_ == '\r') ++suite;
        reste_ = {suite, static_cast<std::size_t>(bout - suite)};
        ++numero_;
        return true;
    }

    /// Skips lines up to and including the first that contains `balise`. False when none does.
    bool jusqua(std::string_view balise);

    /// Number of the last line given, from 1.
    std::size_t numero() const noexcept { return numero_; }

    /// What has not been given yet.
    std::string_view reste() const noexcept { return reste_; }

  private:
    std::string_view reste_;
    char fin_;
    std::size_t numero_ = 0;
};

inline bool contient(std::string_view ligne, std::string_view balise) {
    return ligne.find(balise) != std::string_view::npos;
}

/// The line, then CR LF.
void ecrireLigne(std::string& sortie, std::string_view ligne);

/// Every line of `octets`, a part of a file with CRs, by `ecrire`: with a line end of the normal form,
/// whatever ended it.
void copierLignes(std::string& sortie, std::string_view octets,
                  void (*ecrire)(std::string&, std::string_view) = ecrireLigne);

/// A whole file, where it has no CR with a CR before each LF; `copie` then holds it.
std::string_view avecCr(std::string_view octets, std::string& copie);

} // namespace vermo
