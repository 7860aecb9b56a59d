#pragma once
#include <span>

/// The rule that holds an interview's extracts together: two may touch, a bound that falls inside a neighbour
/// is pulled back to the neighbour's edge, none may enclose another or lie inside one. Comparisons are
/// strict, so identical spans pass.
namespace vermo {

/// A span in seconds.
struct Bornes {
    double debut = 0, fin = 0;
    bool operator==(const Bornes&) const = default;
};

struct Marquage {
    Bornes bornes;        ///< as they are after the neighbours' edges
    bool englobe = false; ///< the span encloses an extract or lies inside one: refused
    bool operator==(const Marquage&) const = default;
};

/// A new span against all extracts, in one pass in their order: what was pulled back by one is seen so by the
/// next.
Marquage bornerNouvelExtrait(Bornes voulues, std::span<const Bornes> extraits);

/// An extract one bound of which was moved, against the others: the first that it meets decides.
Marquage bornerExtraitDeplace(Bornes deplacees, std::span<const Bornes> autres);

} // namespace vermo
