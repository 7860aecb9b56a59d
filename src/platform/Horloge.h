#pragma once
#include <ctime>

namespace vermo {

/// The wall clock, local time.
class Horloge {
  public:
    virtual ~Horloge() = default;
    virtual std::tm maintenant() const = 0;
};

} // namespace vermo
