#pragma once
#include "textfile/reglages.h"
#include "textfile/texte.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vermo {

/// The conversion that never fails: skips leading blanks, reads as far as the text is a number with a decimal
/// point (whatever the locale), or "&H" and hexadecimal digits; 0 when it starts with none.
double valeur(std::string_view texte) noexcept;

/// The locale's conversion: decimal separator of `reglages`, blanks around allowed, exponent allowed. Stops
/// at the first character that is no part of the number.
/// Throws FauteExecution ("incompatibilité de type") when the text starts with no number, or with one that a
/// double can't hold.
double nombre(std::string_view texte, const Reglages& reglages);

/// True when the text is a number written with the separator that is not `reglages`'s ("12.50" under a
/// comma): `nombre` would cut it there.
bool separateurEtranger(std::string_view texte, const Reglages& reglages) noexcept;

/// A colour: decimal digits or "&H" and hexadecimal digits, red in the low byte. Throws FauteExecution when
/// it is neither, or does not fit 32 bits.
std::uint32_t couleur(std::string_view texte);

/// `valeur` where it lies within ± `borne`, else that bound, which is also that of a NaN: what is to become
/// an integer must fit one.
constexpr double borner(double valeur, double borne) {
    return std::max(-borne, std::min(borne, valeur));
}

/// Beyond any time or length, and far enough from the largest integer to be added to.
constexpr double ENTIER_MAX = 1e18;

/// Nearest whole number within ± ENTIER_MAX, halves to the even one; 0 for what is not finite.
long arrondi(double valeur) noexcept;

/// A 32-bit float as a print statement writes it: at most 7 significant digits, a zero before the separator
/// of a number below one ("0.5"), one blank (or "-") before, one blank after. From 1E+07 up, below 1E-04, and
/// where more than 7 decimals would be needed, in the exponent form ("1.234568E+07").
/// This and the pictures throw FauteExecution on what is no finite number.
std::string imprimer(float valeur, const Reglages& reglages);

/// The same without the blanks, as concatenation writes it.
std::string imprimerSansBlancs(float valeur, const Reglages& reglages);

/// Pictures: "0.00" (two decimals, halves away from zero, the locale's separator), "0", "000".
std::string formatDeuxDecimales(double valeur, const Reglages& reglages);
std::string formatEntier(double valeur);
std::string formatCode(long valeur);

/// The one time format: hours only when there are any, minutes and seconds on two digits ("1:02:09").
/// `secondes` is rounded to a whole number first.
std::string HeureTexte(double secondes);

} // namespace vermo
