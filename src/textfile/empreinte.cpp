#include "textfile/empreinte.h"

#include <xxhash.h>

namespace vermo {

Empreinte empreinteDe(std::string_view octets) noexcept {
    const XXH128_hash_t valeur = XXH3_128bits(octets.data(), octets.size());
    return {valeur.high64, valeur.low64};
}

} // namespace vermo
