#pragma once
#include <cstdint>
#include <string_view>

namespace vermo {

/// 128 bits that tell the bytes of one file from those of another. No secret: it guards against accidents.
struct Empreinte {
    std::uint64_t haut = 0;
    std::uint64_t bas = 0;
    bool operator==(const Empreinte&) const = default;
};

/// XXH3, 128 bits: faster than memory is read.
Empreinte empreinteDe(std::string_view octets) noexcept;

} // namespace vermo
