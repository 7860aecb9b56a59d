#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vermo {

/// Text as the files hold it: CP1252 bytes, one byte a character, so that positions and lengths mean what
/// they say. Multi-line texts separate their lines with one carriage return.
using Texte = std::string;

/// Names on the disk and messages to people: UTF-8.
using Utf8 = std::string;

constexpr char CR = '\r';

/// A character that CP1252 can't hold. `position` counts characters of the UTF-8 text, from 0.
struct CaractereRefuse {
    std::size_t position;
    Utf8 caractere;
    bool operator==(const CaractereRefuse&) const = default;
};

/// CP1252 bytes of a composed (NFC) UTF-8 text. The five undefined bytes (0x81 8D 8F 90 9D) stand for
/// U+0081 and so on, so that every byte string survives `versUtf8` and back.
/// Throws FauteExecution naming the first character that CP1252 can't hold: nothing is ever replaced.
Texte depuisUtf8(std::string_view utf8);

/// Every character of `utf8` that `depuisUtf8` would refuse, in order. A byte that is no UTF-8 counts as one
/// character, shown as U+FFFD.
std::vector<CaractereRefuse> caracteresRefuses(std::string_view utf8);

Utf8 versUtf8(std::string_view texte);

/// A field of a file between quotes, for a message: at most its first 40 characters.
Utf8 citer(std::string_view texte);

/// Unicode code point of one CP1252 byte.
char32_t pointDeCode(unsigned char octet) noexcept;

/// The text with each letter and the combining accent behind it as the one CP1252 letter that they make
/// ("e" U+0301: "é"), as one system writes names and another doesn't; all else stays.
Utf8 composer(std::string_view utf8);

/// Upper case of CP1252 letters, accented ones included.
Texte majuscules(std::string_view texte);

/// The same on UTF-8, composed, as file names need it: other characters, and bytes that are no UTF-8, stay.
Utf8 majusculesUtf8(std::string_view utf8);

} // namespace vermo
