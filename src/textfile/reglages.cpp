#include "textfile/reglages.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <langinfo.h>
#include <locale.h>
#include <memory>
#include <string_view>

namespace vermo {
namespace {

/// ISO 639 codes of the languages whose main country writes a decimal comma (CLDR).
constexpr std::array<std::string_view, 46> languesAVirgule = {
    "fr", "de", "es", "it", "pt", "nl", "ru", "pl", "cs", "sk", "da", "sv", "nb", "nn", "no", "fi",
    "hu", "tr", "el", "ro", "bg", "hr", "sr", "sl", "uk", "be", "lt", "lv", "et", "is", "ca", "gl",
    "eu", "br", "oc", "co", "lb", "af", "id", "vi", "ka", "kk", "mk", "sq", "bs", "wa"};

struct Liberer {
    void operator()(locale_t l) const { freelocale(l); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, Liberer>;

/// The locale that the environment names for one category; null where it isn't installed.
Locale localeDuSysteme(int masque) {
    return Locale(newlocale(masque, "", nullptr));
}

bool langueAVirgule(const char* categorie) {
    for (const char* variable : {"LC_ALL", categorie, "LANG"}) {
        const char* nom = std::getenv(variable);
        if (nom == nullptr || *nom == '\0') continue;
        const std::string_view complet(nom);
        const std::string_view langue = complet.substr(0, complet.find_first_of("_.@"));
        return std::find(languesAVirgule.begin(), languesAVirgule.end(), langue) != languesAVirgule.end();
    }
    return false;
}

void garderAscii(std::string& format, const std::string& defaut) {
    const bool ascii = std::all_of(format.begin(), format.end(), [](char c) { return c > 0; });
    if (!ascii) format = defaut;
}

} // namespace

Reglages reglagesDuSysteme() {
    const Reglages francais;
    const std::string dateIso = "%Y-%m-%d";
    Reglages r;
    if (const Locale nombres = localeDuSysteme(LC_NUMERIC_MASK)) {
        // A separator of several bytes is the Arabic decimal comma: a file takes the plain one.
        const std::string_view separateur = nl_langinfo_l(RADIXCHAR, nombres.get());
        r.separateurDecimal = separateur == "." ? '.' : ',';
    } else {
        r.separateurDecimal = langueAVirgule("LC_NUMERIC") ? ',' : '.';
    }
    if (const Locale temps = localeDuSysteme(LC_TIME_MASK)) {
        r.formatDate = nl_langinfo_l(D_FMT, temps.get());
        r.formatHeure = nl_langinfo_l(T_FMT, temps.get());
    } else if (!langueAVirgule("LC_TIME")) {
        r.formatDate = dateIso;
    }
    garderAscii(r.formatDate, dateIso);
    garderAscii(r.formatHeure, francais.formatHeure);
    return r;
}

} // namespace vermo
