#pragma once
#include "corpus/Session.h"

#include <optional>
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

// The same on the working arrays.

/// Bounds of extract `n`; none when its times are no numbers. Throws FauteExecution outside the arrays.
std::optional<Bornes> bornesExtrait(const Session& session, int n);

/// Swaps the two bounds of each extract that ends before it starts, in the arrays.
void redresserBornes(Session& session);

/// A new span among the extracts. One whose times are no numbers keeps nobody off.
Marquage bornerNouvelExtrait(const Session& session, Bornes voulues);

/// What became of a bound that was moved.
struct Deplacement {
    bool englobe = false; ///< refused; the bound stays in the arrays, where it was put
    bool allonge = false; ///< the extract ends later than before
    bool operator==(const Deplacement&) const = default;
};
/// Writes `v` seconds as start or end of extract `k`, then holds it to the neighbours' edges. Writes no file.
Deplacement deplacerBorne(Session& session, int k, bool debut, double v);

} // namespace vermo
