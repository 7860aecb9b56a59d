#pragma once
#include "textfile/texte.h"

namespace vermo {

/// Where the files "beside the program" lie. Directories end with a slash.
struct Emplacements {
    Utf8 programme;        ///< the program's own directory
    Utf8 donneesProgramme; ///< its read-only data, as an installed program has them
    Utf8 donneesPersonne;  ///< the user's data directory
    Utf8 execution{};      ///< the user's run-time directory, which goes with the session; empty: none
    Utf8 etat{};           ///< what the program keeps of its own state for the user; empty: nothing is kept

    /// A file that is only read: beside the program first, then in its data directory. Empty when nowhere.
    Utf8 fichierLu(const Utf8& nom) const;
    /// A file that is written: beside the program, or, where that can't be written, in the user's data
    /// directory, which is made on the way.
    Utf8 fichierEcrit(const Utf8& nom) const;
};

} // namespace vermo
