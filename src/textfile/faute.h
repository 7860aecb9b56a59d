#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>

namespace vermo {

/// A run-time fault: what went wrong, in which file, at which line.
///
/// Refusals that the program words itself are asked through `Dialogues` and never thrown. All texts are
/// UTF-8; `ligne` counts from 1, 0 where no line is to blame. `what()` holds it all: the fault, and on a
/// second line "file, ligne N".
class FauteExecution : public std::runtime_error {
  public:
    explicit FauteExecution(const std::string& quoi, const std::string& fichier = {}, std::size_t ligne = 0);

    const std::string& quoi() const noexcept { return quoi_; }
    const std::string& fichier() const noexcept { return fichier_; }
    std::size_t ligne() const noexcept { return ligne_; }

  private:
    std::string quoi_;
    std::string fichier_;
    std::size_t ligne_;
};

/// What an errno value means to the person: "fichier introuvable", "disque plein"... UTF-8; values without a
/// wording of their own get the system's.
std::string causeSysteme(int erreur);

} // namespace vermo
