#pragma once
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace vermo {

/// Walks the lines of a text file held in memory. A line ends at CR LF or at a lone CR; a lone LF is part
/// of the line. A last line without an end counts when it is not empty.
class Lignes {
  public:
    explicit Lignes(std::string_view octets) : reste_(octets) {}

    /// Next line, without its end. False at the end of the text.
    bool suivante(std::string_view& ligne) {
        if (reste_.empty()) return false;
        const char* const debut = reste_.data();
        const char* const bout = debut + reste_.size();
        const auto* fin = static_cast<const char*>(std::memchr(debut, '\r', reste_.size()));
        if (fin == nullptr) fin = bout;
        ligne = {debut, static_cast<std::size_t>(fin - debut)};
        const char* suite = fin == bout ? bout : fin + 1;
        if (suite != bout && *suite == '\n') ++suite;
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
    std::size_t numero_ = 0;
};

inline bool contient(std::string_view ligne, std::string_view balise) {
    return ligne.find(balise) != std::string_view::npos;
}

/// The line, then CR LF.
void ecrireLigne(std::string& sortie, std::string_view ligne);

/// Every line of `octets` by `ecrire`: with a line end of the normal form, whatever ended it.
void copierLignes(std::string& sortie, std::string_view octets,
                  void (*ecrire)(std::string&, std::string_view) = ecrireLigne);

} // namespace vermo
