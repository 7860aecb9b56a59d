#include "window/Fenetres.h"

namespace vermo {

std::string_view nomFenetre(Fenetre fenetre) {
    constexpr std::string_view NOMS[] = {
#define X(nom) #nom,
        VERMO_FENETRES(X)
#undef X
    };
    return NOMS[static_cast<std::size_t>(fenetre)];
}

} // namespace vermo
