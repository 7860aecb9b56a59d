#include "window/Fondu.h"

namespace vermo {

PasFondu avancer(const Fondu& fondu, float& compteur) {
    compteur += fondu.pas;
    if (compteur <= fondu.opaque) return {.alpha = static_cast<int>(compteur)};
    if (compteur < fondu.base) return {.arreter = true};
    if (compteur >= fondu.fin()) return {.arreter = true, .decharger = true};
    const float reste = fondu.fin() - compteur;
    return {.alpha = static_cast<int>(reste), .reste = reste / fondu.rampe};
}

} // namespace vermo
