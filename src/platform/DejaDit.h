#pragma once
#include "textfile/texte.h"

#include <optional>
#include <utility>

namespace vermo {

/// What the person was told last about one thing, so that it isn't told again and again.
class DejaDit {
  public:
    /// True when it wasn't the last thing told; from now on it is. Where there is only one thing to tell, it
    /// needs no words.
    bool nouveau(Utf8 quoi = {}) {
        const bool redite = dit_ == quoi;
        dit_ = std::move(quoi);
        return !redite;
    }
    void oublier() { dit_.reset(); } ///< what comes next is new

    bool operator==(const DejaDit&) const = default;

  private:
    std::optional<Utf8> dit_;
};

} // namespace vermo
