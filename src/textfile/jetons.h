#pragma once
#include "textfile/texte.h"

#include <string_view>

namespace vermo {

/// The tokenising read: items stand between commas and line ends. Blanks before an item are skipped. An
/// item that starts with a double quote is taken whole, commas included, and loses its quotes; it ends at a
/// quote followed by a comma or by the line's end, so quotes inside a name survive. A quote that is not
/// closed on its line ends with the line. Lines end at CRs.
class Jetons {
  public:
    explicit Jetons(std::string_view octets) : reste_(octets) {}

    /// Next item, possibly empty. False at the end of the text.
    bool suivant(Texte& item);

  private:
    std::string_view reste_;
};

/// The quoted write: the whole text between double quotes, then CR LF.
void ecrireEntreGuillemets(std::string& sortie, std::string_view texte);

} // namespace vermo
