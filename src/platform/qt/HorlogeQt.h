#pragma once
#include "platform/Horloge.h"

namespace vermo {

class HorlogeQt final : public Horloge {
  public:
    std::tm maintenant() const override {
        const std::time_t instant = std::time(nullptr);
        std::tm locale = {};
        localtime_r(&instant, &locale);
        return locale;
    }
};

} // namespace vermo
