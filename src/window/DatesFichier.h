#pragma once
#include "platform/Dialogues.h"
#include "textfile/texte.h"

#include <cstdint>
#include <optional>

namespace vermo {

/// Local wall-clock time, seconds precision. Orders by time.
struct DateHeure {
    std::int64_t secondes = 0; ///< local time as if it were UTC, since 1970
    auto operator<=>(const DateHeure&) const = default;
};

struct DatesDeFichier {
    DateHeure creation; ///< birth time; the last write time on file systems that keep none
    DateHeure modification;
    bool operator==(const DatesDeFichier&) const = default;
};

/// Creation and last write time of a file that can be opened for reading.
std::optional<DatesDeFichier> datesFichier(const Utf8& chemin);
/// The same. When it can't be opened for reading: one message, and nothing.
std::optional<DatesDeFichier> LireDatesFichier(const Utf8& chemin, Dialogues& dialogues);

} // namespace vermo
