#pragma once
#include "window/Element.h"

#include <vector>

namespace vermo {

/// Rows, or columns, that follow each other along one axis, numbered from 1: where each stands, and which one
/// holds a place. Places are twips of the surface.
class Rangs {
  public:
    Rangs() = default;
    explicit Rangs(const std::vector<Twips>& tailles, Twips debut = 0); ///< the first begins at `debut`
    static Rangs egaux(int nombre, Twips taille, Twips debut = 0);

    int nombre() const { return bords_.empty() ? 0 : static_cast<int>(bords_.size()) - 1; }
    Twips debut(int rang) const { return bord(rang - 1); } ///< `rang` 1 to nombre()
    Twips fin(int rang) const { return bord(rang); }       ///< of 0: where the first begins
    Twips total() const { return bords_.empty() ? 0 : bords_.back(); }

    /// The one that holds `place`; 0 before the first, nombre() + 1 behind the last.
    int a(Twips place) const;

    /// First and last that meet a stretch; last below first for none.
    struct Suite {
        int premier, dernier;
    };
    Suite entre(Twips debut, Twips fin) const;

    /// How many a page of this length moves on from `rang`, downwards (1) or upwards (-1): one less than it
    /// shows whole, at least one.
    int page(int rang, Twips longueur, int sens) const;

  private:
    Twips bord(int i) const { return bords_[static_cast<std::size_t>(i)]; }

    std::vector<Twips> bords_; ///< prefix sums: where each begins, and where the last ends
};

} // namespace vermo
