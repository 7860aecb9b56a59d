#pragma once
#include "platform/Ecran.h"

namespace vermo {

/// The screen on which the window with the focus lies; without one, the primary screen.
class EcranQt final : public Ecran {
  public:
    ZoneTravail zoneTravail() const override;
    void pointeur(Pointeur pointeur) override;

  private:
    bool pose_ = false; ///< one pointer at most lies over the program's own
};

} // namespace vermo
