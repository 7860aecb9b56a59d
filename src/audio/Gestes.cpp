#include "audio/Gestes.h"

#include "audio/Zoom.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vermo {

namespace {

constexpr Twips MARGE_TEXTE = 120; ///< of LbltxtXtrZ within its band

int numero(const Element& element) {
    return static_cast<int>(valeur(element.tag));
}

/// The gesture of a drag or click on the band itself.
GesteZoom surLaBande(Twips debut, Twips x, bool marque) {
    const bool glisse = debut != 0;
    if (glisse && debut + SEUIL_GLISSE <= x && !marque)
        return {.acte = ActeZoom::Creer, .debut = debut, .x = x};
    if (glisse && debut - SEUIL_GLISSE > x) return {.acte = ActeZoom::Defiler, .debut = debut, .x = x};
    return {.acte = ActeZoom::Chercher, .x = x};
}

} // namespace

void presser(PriseVue& prise, const Element* sous, Twips x) {
    prise.tenue = true;
    prise.surBarre = sous && sous->controle == Controle::LblXtr;
    if (!prise.surBarre) prise.GlisseVueDebut = x;
}

std::optional<Etendue> selectionVue(const PriseVue& prise, Twips x) {
    const Twips debut = prise.GlisseVueDebut;
    if (debut == 0) return std::nullopt;
    if (x > debut + SEUIL_GLISSE) return Etendue{debut, x - debut};
    if (x < debut) return Etendue{x, debut - x};
    return std::nullopt;
}

std::optional<GesteVue> relacher(PriseVue& prise, Twips x, Twips W) {
    const bool surBarre = std::exchange(prise.surBarre, false);
    if (!std::exchange(prise.tenue, false) || surBarre || x < 0 || x > W) return std::nullopt;
    return GesteVue{std::exchange(prise.GlisseVueDebut, 0), x};
}

bool estBulle(const Element* sous) {
    return sous && (sous->controle == Controle::ImgBulleBlanche || sous->controle == Controle::ImgBulleBas);
}

GesteZoom presser(PriseZoom& prise, const Element* sous, Twips x) {
    if (!sous || estBulle(sous)) {
        prise = {.tenue = true, .extrait = sous ? numero(*sous) : 0, .GlisseZoomDebut = x, .presse = x};
        return {};
    }
    prise = {true, sous->controle, sous->index, numero(*sous), sous->cadre.gauche, prise.GlisseZoomDebut, x};
    if (sous->controle != Controle::LbltxtXtrZ) return {};
    return {.acte = ActeZoom::Ecouter, .x = x};
}

GesteZoom relacher(PriseZoom& prise, Twips x, bool marque) {
    const PriseZoom avant = std::exchange(prise, {.GlisseZoomDebut = prise.GlisseZoomDebut});
    if (!avant.tenue) return {};
    if (avant.controle == Controle::ImgBulleInt)
        return {.acte = ActeZoom::Borner,
                .x = std::max(x, 0.0),
                .extrait = avant.extrait,
                .borneDebut = debutTenu(avant)};
    if (avant.controle == Controle::LblXtrZ && x > avant.gauche)
        return {.acte = ActeZoom::Elargir, .x = x - avant.gauche, .index = avant.index};
    if (avant.controle != Controle::Aucun || x < 0) return {};
    const Twips debut = std::exchange(prise.GlisseZoomDebut, 0);
    if (avant.extrait != 0 && std::abs(x - avant.presse) < SEUIL_GLISSE)
        return {.acte = ActeZoom::Ouvrir, .extrait = avant.extrait};
    return surLaBande(debut, x, marque);
}

bool poigneeTenue(const PriseZoom& prise) {
    return prise.controle == Controle::ImgBulleInt && prise.gauche != 0;
}

bool debutTenu(const PriseZoom& prise) {
    return prise.index % 2 != 0;
}

bool selectionne(const PriseZoom& prise, Twips x, bool marque) {
    return !marque && prise.GlisseZoomDebut != 0 && x > prise.GlisseZoomDebut + SEUIL_GLISSE;
}

Etendue bandeTiree(const PriseZoom& prise, Etendue bande, Etendue texte, Twips x) {
    const Twips tire = x - prise.gauche;
    if (debutTenu(prise)) return {texte.gauche + tire - MARGE_TEXTE, texte.largeur - tire + MARGE_TEXTE};
    if (texte.largeur + tire > 0) bande.largeur = texte.largeur + tire;
    return bande;
}

SelectionZoom selectionZoom(const EtatAudio& audio, Twips debut, Twips x, Twips Z, Twips W) {
    const Twips gauche = xVue(audio, tempsZoom(audio, debut, Z), W);
    const Twips droite = xVue(audio, tempsZoom(audio, x, Z), W);
    return {.ZoomSelect = {debut, x - debut}, .TotalSelect = {gauche, droite - gauche}};
}

int extraitOuvert(const Element* sous, bool doubleClic) {
    const Controle ouvre = doubleClic ? Controle::LbltxtXtrZ : Controle::LbltitreXtrZ;
    return sous && sous->controle == ouvre ? numero(*sous) : 0;
}

} // namespace vermo
