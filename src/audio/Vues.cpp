#include "audio/Vues.h"

#include "audio/Onde.h"
#include "textfile/chemins.h"
#include "textfile/fichier.h"

#include <algorithm>

namespace vermo {

Utf8 cheminCache(const Utf8& enregistrement) {
    return cheminReel(compagnon(enregistrement, "Bmp"));
}

SourceVue sourceVue(const Utf8& enregistrement, bool cacheLu) {
    if (cacheLu) return SourceVue::Cache;
    return estWav(enregistrement) ? SourceVue::Onde : SourceVue::Regle;
}

void garderCache(const Utf8& cache, const Bitmap8& image) {
    if (!fichierExiste(cache)) remplacerFichier(cache, ecrireBmp(image));
}

Texte etiquetteRegle(const Texte& nom) {
    constexpr std::size_t EXTENSION = 3;
    return nom.substr(nom.size() - std::min(nom.size(), EXTENSION));
}

DemandeOnde demandeVue(const Utf8& enregistrement, Twips largeur, double densite) {
    return {.vue = Vue::Picture1,
            .fichier = enregistrement,
            .empan = {},
            .largeur = largeur,
            .hauteur = HAUTEUR_PICTURE1,
            .densite = densite};
}

DemandeOnde demandeZoom(const EtatAudio& audio, const Utf8& enregistrement, Twips largeur, Twips hauteur,
                        double densite) {
    return {.vue = Vue::Pict_zoom,
            .fichier = enregistrement,
            .empan = {.debut = audio.DebutZoom == 0 ? 0 : audio.DebutZoom / audio.DureeFichier,
                      .part = 1 / static_cast<double>(audio.FacteurZoom)},
            .largeur = largeur,
            .hauteur = hauteur,
            .densite = densite};
}

} // namespace vermo
