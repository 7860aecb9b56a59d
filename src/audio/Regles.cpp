#include "audio/Regles.h"

#include "textfile/nombres.h"

#include <algorithm>

namespace vermo {

namespace {

constexpr Twips BAS_MARQUE = 1140;

/// Every mark, or as many as stand a twip apart.
long pasVisible(Twips ecart) {
    constexpr double PAS_MAX = 1e15;
    return ecart >= 1 ? 1 : static_cast<long>(borner(1 / ecart, PAS_MAX)) + 1;
}

} // namespace

long minutesEntieres(double secondes) {
    return arrondi(secondes) / 60;
}

Dessin dessinerRegleMinutes(double DureeFichier, Twips largeur, std::string_view etiquette) {
    Dessin dessin;
    if (!(DureeFichier > 0) || !(largeur > 0)) return dessin;
    const Twips m = largeur / DureeFichier * 60;
    const long pas = pasVisible(m);
    for (long i = 1; i <= minutesEntieres(DureeFichier) + 1; i += pas) {
        const Twips x = static_cast<double>(i) * m;
        const bool longue = DureeFichier < 600 || (DureeFichier > 1800 && i % 10 == 0);
        if (longue) {
            const Texte texte = etiquette.empty() ? std::to_string(i) : Texte(etiquette);
            dessin.inscriptions.push_back({x - 120, -10, texte, ENCRE_REGLE, 7});
        }
        dessin.traits.push_back({x, longue ? 200.0 : 150.0, x, BAS_MARQUE, ENCRE_REGLE});
    }
    return dessin;
}

int pasEtiquettes(double DureeZoom) {
    if (DureeZoom > 4800) return 300;
    if (DureeZoom > 2400) return 120;
    if (DureeZoom > 1200) return 60;
    if (DureeZoom > 600) return 30;
    if (DureeZoom > 300) return 15;
    return 10;
}

Dessin dessinerRegleSecondes(double DebutZoom, double DureeZoom, Twips largeur) {
    Dessin dessin;
    if (!(DureeZoom > 0) || !(largeur > 0)) return dessin;
    dessin.bord = largeur;
    const Twips s = largeur / DureeZoom;
    const long pas = pasVisible(s), etiquettes = pasEtiquettes(DureeZoom);
    const long marques = arrondi(DureeZoom) + 1;
    for (long i = 1; i <= marques; i += pas) {
        const Twips x = static_cast<double>(i) * s;
        dessin.traits.push_back({x, 0, x, 120, ENCRE_REGLE});
    }
    for (long i = etiquettes; i <= marques; i += etiquettes) {
        const auto secondes = static_cast<double>(i);
        dessin.inscriptions.push_back(
            {secondes * s - 120, 330, HeureTexte(DebutZoom + secondes), ENCRE_REGLE, 7});
    }
    return dessin;
}

} // namespace vermo
