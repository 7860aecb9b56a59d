#pragma once
#include "textfile/texte.h"

namespace vermo {

// Why a recording can't be played, in French, each naming the file: "Le fichier « a.wav » est vide."

/// "Le fichier « name » " and the predicate.
Utf8 refus(const Utf8& chemin, const Utf8& predicat);
Utf8 refusSansSon(const Utf8& chemin);
Utf8 refusInconnu(const Utf8& chemin);

/// Why a file needn't even be tried; empty when it may be. A pipe or a device would be waited for for ever.
Utf8 refusAvantLecture(const Utf8& chemin);

} // namespace vermo
