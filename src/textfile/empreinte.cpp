#include "textfile/empreinte.h"

#include <xxhash.h>
#ifdef __x86_64__
#include <xxh_x86dispatch.h> // the same values by the widest vectors of the processor at hand
#endif

namespace vermo {

Empreinte empreinteDe(std::string_view octets) noexcept {
    const XXH128_hash_t valeur = XXH3_128bits(octets.data(), octets.size());
    return {valeur.high64, valeur.low64};
}

} // namespace vermo
