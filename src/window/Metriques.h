#pragma once
#include "window/Element.h"

#include <string_view>

namespace vermo {

/// Widths and heights of texts, so that layouts need no screen. Texts are drawn without kerning: the width of
/// a text is the sum of its characters' widths.
class Metriques {
  public:
    virtual ~Metriques() = default;
    virtual Twips largeur(std::string_view texte, int corps, bool gras = false) const = 0;
    virtual Twips hauteur(int corps) const = 0;
};

} // namespace vermo
