#pragma once
#include "platform/Ecran.h"

#include <optional>

namespace vermo {

/// The pointer of work under way, from here to the end of the block: it is Normal again however the block is
/// left, unless `laisser` was called.
class Sablier {
  public:
    /// `pointeur`: none where the steps inside show their own.
    explicit Sablier(Ecran& ecran, std::optional<Pointeur> pointeur = Pointeur::Sablier) : ecran_(&ecran) {
        if (pointeur) ecran.pointeur(*pointeur);
    }
    ~Sablier() {
        if (ecran_) ecran_->pointeur(Pointeur::Normal);
    }
    Sablier(const Sablier&) = delete;
    Sablier& operator=(const Sablier&) = delete;

    void laisser() { ecran_ = nullptr; } ///< the pointer stays as it is

  private:
    Ecran* ecran_;
};

} // namespace vermo
