#pragma once
#include "window/Element.h"
#include "window/Metriques.h"

#include <QFont>

class QApplication;
class QWidget;

namespace vermo::theme {

// One dark theme, in which the colours of rulers, bands and bars sit well.
constexpr Couleur FENETRE = rvb(38, 38, 40);  ///< a window's ground
constexpr Couleur PANNEAU = rvb(52, 52, 55);  ///< frames on it
constexpr Couleur CHAMP = rvb(64, 64, 64);    ///< text fields
constexpr Couleur ONDE = rvb(138, 140, 146);  ///< behind a waveform drawn in black
constexpr Couleur REGLE = rvb(168, 170, 176); ///< behind ruler marks drawn in dark grey
constexpr Couleur TEXTE = rvb(236, 236, 238);
constexpr Couleur TEXTE_DISCRET = rvb(164, 166, 172);
constexpr Couleur BORD = rvb(84, 84, 90);
constexpr Couleur ACCENT = rvb(110, 178, 255);

/// Palette, font and style of the whole program.
void appliquer(QApplication& application);

/// The program's font at a size in points of 1/72 inch on a screen of 96 pixels an inch, without kerning.
QFont police(int corps, bool gras = false);

/// Gives a control what the palette can't say, by its object name: the program's one style sheet.
void habiller(QWidget* controle);

} // namespace vermo::theme

namespace vermo {

/// Widths of the program's font, kept by character after the first question. On the interface thread only.
class MetriquesQt : public Metriques {
  public:
    Twips largeur(std::string_view texte, int corps, bool gras = false) const override;
    Twips hauteur(int corps) const override;
    /// From the top of a line to its baseline.
    Twips ascendante(int corps) const;
};

/// The text, cut on its right and ended by "…" where it is wider than `largeur`.
Texte elider(std::string_view texte, Twips largeur, int corps, bool gras = false);

} // namespace vermo
