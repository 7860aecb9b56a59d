#pragma once
#include "platform/Lanceur.h"

namespace vermo {

class LanceurQt final : public Lanceur {
  public:
    bool lancer(const Utf8& chemin) override;
};

} // namespace vermo
