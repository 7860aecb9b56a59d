#include "formats/EnTeteWav.h"

#include <cstddef>
#include <type_traits>

namespace vermo {
namespace {

/// Takes fields off the front; what lies beyond the end is empty, or zero bytes.
class Champs {
  public:
    explicit Champs(std::string_view octets) : reste_(octets) {}

    std::string texte() { return std::string(prendre(4)); }

    template <class Entier>
    Entier entier() {
        std::make_unsigned_t<Entier> valeur = 0;
        unsigned rang = 0;
        for (const char octet : prendre(sizeof(Entier)))
            valeur = static_cast<decltype(valeur)>(
                valeur | static_cast<decltype(valeur)>(static_cast<unsigned char>(octet)) << 8 * rang++);
        return static_cast<Entier>(valeur);
    }

  private:
    std::string_view prendre(std::size_t taille) {
        const std::string_view champ = reste_.substr(0, taille);
        reste_.remove_prefix(champ.size());
        return champ;
    }

    std::string_view reste_;
};

} // namespace

EnTeteWav lireEnTeteWav(std::string_view octets) {
    Champs champs(octets);
    EnTeteWav enTete;
    enTete.Riff = champs.texte();
    enTete.TailleRiff = champs.entier<std::int32_t>();
    enTete.Wave = champs.texte();
    enTete.Fmt = champs.texte();
    enTete.TailleFmt = champs.entier<std::int32_t>();
    enTete.Format = champs.entier<std::int16_t>();
    enTete.NbCanaux = champs.entier<std::int16_t>();
    enTete.Frequence = champs.entier<std::int32_t>();
    enTete.OctetsParSeconde = champs.entier<std::int32_t>();
    enTete.AlignementBloc = champs.entier<std::int16_t>();
    enTete.BitsParEchantillon = champs.entier<std::int16_t>();
    enTete.Data = champs.texte();
    enTete.TailleDonnees = champs.entier<std::int32_t>();
    return enTete;
}

} // namespace vermo
