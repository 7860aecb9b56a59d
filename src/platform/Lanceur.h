#pragma once
#include "textfile/texte.h"

namespace vermo {

/// Starts other programs.
class Lanceur {
  public:
    virtual ~Lanceur() = default;
    /// Starts the program at `chemin` on its own. False when the system refuses.
    virtual bool lancer(const Utf8& chemin) = 0;
};

} // namespace vermo
