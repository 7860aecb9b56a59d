#pragma once
#include "window/Element.h"

#include <string_view>

/// The rulers of the interview window, as lists of lines and texts.
namespace vermo {

constexpr Couleur ENCRE_REGLE = rvb(64, 64, 64);

/// Whole minutes of a duration in seconds, rounded to whole seconds first.
long minutesEntieres(double secondes);

/// The minute ruler of a recording of `DureeFichier` seconds, drawn as wide as `largeur` twips stand for it.
/// A recording below 10 minutes numbers each minute, one above 30 every tenth, one between numbers none.
/// `etiquette`, when given, stands in the place of the numbers: recordings without samples have this ruler as
/// their overview. Marks closer than one twip are left out. No duration, no mark.
Dessin dessinerRegleMinutes(double DureeFichier, Twips largeur, std::string_view etiquette = {});

/// Seconds between two labels of the zoom's ruler.
int pasEtiquettes(double DureeZoom);

/// The second ruler of a span: a mark a second, counted from the span's left edge, and at some seconds, mark
/// or not, the time, which is kept within `largeur`.
Dessin dessinerRegleSecondes(double DebutZoom, double DureeZoom, Twips largeur);

} // namespace vermo
