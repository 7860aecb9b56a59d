#include "textfile/memoire.h"

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace vermo {

void peuplerMemoire(void* debut, std::size_t octets) noexcept {
#ifdef MADV_POPULATE_WRITE
    static const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto adresse = reinterpret_cast<std::uintptr_t>(debut);
    const std::uintptr_t premiere = adresse / page * page;
    const std::uintptr_t fin = (adresse + octets + page - 1) / page * page;
    madvise(reinterpret_cast<void*>(premiere), fin - premiere, MADV_POPULATE_WRITE);
#else
    static_cast<void>(debut);
    static_cast<void>(octets);
#endif
}

} // namespace vermo
