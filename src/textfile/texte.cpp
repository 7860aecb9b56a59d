#include "textfile/texte.h"

#include "textfile/faute.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vermo {
namespace {

/// Code points of the bytes 0x80 to 0x9F; the undefined ones stand for themselves.
constexpr std::array<char16_t, 32> hauts = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t invalide = 0xFFFFFFFF;

std::optional<char> octetDe(char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
    const auto trouve = std::find(hauts.begin(), hauts.end(), point);
    if (trouve == hauts.end()) return std::nullopt;
    return static_cast<char>(0x80 + (trouve - hauts.begin()));
}

void ajouterUtf8(Utf8& sortie, char32_t point) {
    if (point < 0x80) {
        sortie += static_cast<char>(point);
    } else if (point < 0x800) {
        sortie += static_cast<char>(0xC0 | (point >> 6));
        sortie += static_cast<char>(0x80 | (point & 0x3F));
    } else {
        sortie += static_cast<char>(0xE0 | (point >> 12));
        sortie += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
        sortie += static_cast<char>(0x80 | (point & 0x3F));
    }
}

/// Bytes that a UTF-8 sequence with this first byte takes; 0 when none starts so.
std::size_t longueurSequence(unsigned char premier) {
    if (premier < 0x80) return 1;
    if (premier >= 0xC2 && premier < 0xE0) return 2;
    if (premier >= 0xE0 && premier < 0xF0) return 3;
    if (premier >= 0xF0 && premier < 0xF5) return 4;
    return 0;
}

bool permis(char32_t point, std::size_t longueur) {
    constexpr std::array<char32_t, 5> minimum = {0, 0, 0x80, 0x800, 0x10000};
    return point >= minimum[longueur] && point <= 0x10FFFF && !(point >= 0xD800 && point <= 0xDFFF);
}

/// One character of a UTF-8 text: its bytes, and its code point or `invalide` for a stray byte.
struct Caractere {
    std::string_view octets;
    char32_t point;
};

/// Takes the first character off a text that is not empty.
Caractere prendre(std::string_view& utf8) {
    const auto premier = static_cast<unsigned char>(utf8[0]);
    const std::size_t longueur = longueurSequence(premier);
    char32_t point = longueur < 2 ? premier : premier & (0x7Fu >> longueur);
    bool bon = longueur != 0 && longueur <= utf8.size();
    for (std::size_t i = 1; bon && i < longueur; ++i) {
        const auto suite = static_cast<unsigned char>(utf8[i]);
        bon = (suite & 0xC0) == 0x80;
        point = (point << 6) | (suite & 0x3F);
    }
    bon = bon && permis(point, longueur);
    const Caractere c{utf8.substr(0, bon ? longueur : 1), bon ? point : invalide};
    utf8.remove_prefix(c.octets.size());
    return c;
}

/// Calls `faire(position, caractere, octet)` for each character, `octet` empty when CP1252 can't hold it.
template <class Faire>
void parcourir(std::string_view utf8, Faire faire) {
    for (std::size_t position = 0; !utf8.empty(); ++position) {
        const Caractere c = prendre(utf8);
        faire(position, c, octetDe(c.point));
    }
}

/// A combining accent: the letters that it may follow, and what each becomes.
struct Accent {
    char32_t point;
    std::string_view lettres, composees;
};
constexpr std::array<Accent, 8> accents = {
    {{0x300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
     {0x301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
     {0x302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
     {0x303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
     {0x308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
     {0x30A, "Aa", "\xC5\xE5"},
     {0x30C, "SZsz", "\x8A\x8E\x9A\x9E"},
     {0x327, "Cc", "\xC7\xE7"}}};

/// The letter that `lettre` becomes under a combining accent; nothing where they make none.
std::optional<char> accentuee(char lettre, char32_t point) {
    for (const Accent& accent : accents) {
        const std::size_t rang = accent.point == point ? accent.lettres.find(lettre) : std::string_view::npos;
        if (rang != std::string_view::npos) return accent.composees[rang];
    }
    return std::nullopt;
}

bool enAscii(std::string_view utf8) {
    return std::all_of(utf8.begin(), utf8.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

Utf8 montrable(const Caractere& c) {
    return c.point == invalide ? "\uFFFD" : Utf8(c.octets);
}

char majuscule(char c) {
    const auto octet = static_cast<unsigned char>(c);
    if ((octet >= 'a' && octet <= 'z') || (octet >= 0xE0 && octet <= 0xFE && octet != 0xF7))
        return static_cast<char>(octet - 0x20);
    if (octet == 0x9A || octet == 0x9C || octet == 0x9E) return static_cast<char>(octet - 0x10);
    return octet == 0xFF ? '\x9F' : c;
}

} // namespace

Texte depuisUtf8(std::string_view utf8) {
    Texte texte;
    texte.reserve(utf8.size());
    parcourir(utf8, [&](std::size_t position, const Caractere& c, std::optional<char> octet) {
        if (!octet)
            throw FauteExecution("Le caractère « " + montrable(c) + " » (position " +
                                 std::to_string(position + 1) + ") ne peut pas être enregistré");
        texte += *octet;
    });
    return texte;
}

std::vector<CaractereRefuse> caracteresRefuses(std::string_view utf8) {
    std::vector<CaractereRefuse> refuses;
    parcourir(utf8, [&](std::size_t position, const Caractere& c, std::optional<char> octet) {
        if (!octet) refuses.push_back({position, montrable(c)});
    });
    return refuses;
}

Utf8 versUtf8(std::string_view texte) {
    Utf8 utf8;
    utf8.reserve(texte.size() + texte.size() / 8);
    for (const char c : texte)
        ajouterUtf8(utf8, pointDeCode(static_cast<unsigned char>(c)));
    return utf8;
}

Utf8 citer(std::string_view texte) {
    constexpr std::size_t montres = 40;
    return "« " + versUtf8(texte.substr(0, montres)) + (texte.size() > montres ? "…" : "") + " »";
}

char32_t pointDeCode(unsigned char octet) noexcept {
    return octet >= 0x80 && octet < 0xA0 ? hauts[octet - 0x80] : octet;
}

Utf8 composer(std::string_view utf8) {
    Utf8 resultat;
    parcourir(utf8, [&](std::size_t, const Caractere& c, std::optional<char>) {
        const auto lettre = resultat.empty() ? std::nullopt : accentuee(resultat.back(), c.point);
        if (!lettre) {
            resultat += c.octets;
            return;
        }
        resultat.pop_back();
        ajouterUtf8(resultat, pointDeCode(static_cast<unsigned char>(*lettre)));
    });
    return resultat;
}

Texte majuscules(std::string_view texte) {
    Texte resultat(texte);
    std::transform(resultat.begin(), resultat.end(), resultat.begin(), majuscule);
    return resultat;
}

Utf8 majusculesUtf8(std::string_view utf8) {
    if (enAscii(utf8)) return majuscules(utf8);
    Utf8 resultat;
    resultat.reserve(utf8.size());
    parcourir(composer(utf8), [&](std::size_t, const Caractere& c, std::optional<char> octet) {
        if (octet)
            ajouterUtf8(resultat, pointDeCode(static_cast<unsigned char>(majuscule(*octet))));
        else
            resultat += c.octets;
    });
    return resultat;
}

} // namespace vermo
