#pragma once
#include <string>

namespace vermo {

/// What numbers and dates in files take from the machine.
struct Reglages {
    char separateurDecimal = ',';
    std::string formatDate = "%d/%m/%Y";  ///< as for strftime
    std::string formatHeure = "%H:%M:%S"; ///< as for strftime
    bool operator==(const Reglages&) const = default;
};

/// Reads them from LC_ALL, LC_NUMERIC, LC_TIME or LANG. Where the named locale isn't installed, its language
/// decides: a language that writes a decimal comma gets the French settings, any other the point and the
/// date of ISO 8601. Formats are ASCII, whatever the locale.
Reglages reglagesDuSysteme();

} // namespace vermo
