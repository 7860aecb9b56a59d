#pragma once
#include <concepts>
#include <cstddef>

namespace vermo {

/// Row `n` of a table that is numbered by whole numbers, as slots, extracts and thematics are. Not tested:
/// numbers are checked where they come in.
template <class Table>
constexpr auto& ligneDe(Table& table, std::integral auto n) {
    return table[static_cast<std::size_t>(n)];
}

} // namespace vermo
