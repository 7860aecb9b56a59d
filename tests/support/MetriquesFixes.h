#pragma once
#include "window/Metriques.h"

namespace vermo::essai {

/// Every character 100 twips wide and 200 high, whatever its size and weight.
class MetriquesFixes : public Metriques {
  public:
    Twips largeur(std::string_view texte, int, bool = false) const override {
        return 100.0 * static_cast<double>(texte.size());
    }
    Twips hauteur(int) const override { return 200; }
};

inline const MetriquesFixes metriquesFixes;

} // namespace vermo::essai
