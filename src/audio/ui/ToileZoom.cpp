#include "audio/ui/ToileZoom.h"

#include "transcription/PisteExtraits.h"

#include <algorithm>
#include <utility>

namespace vermo {

namespace {

constexpr TailleBulle BULLE{.coin = 120,
                            .poignee = 120}; // edges as wide as corners: no gap between the pieces
constexpr Couleur POIGNEE = rvb(206, 212, 222);

/// The bubbles' look: round corners on top, handles that are seen as such, and no word beyond its bubble.
void habillerBulles(Elements& bulles) {
    Twips bord = 0;
    for (Element& element : bulles) {
        if (element.controle == Controle::ImgBulleInt) {
            element.cadre.haut += BULLE.coin;
            element.cadre.hauteur -= BULLE.coin;
            element.fond = POIGNEE;
        } else if (element.controle == Controle::ImgBulleBlanche && (element.index % 4 < 2)) {
            element.rempli = false;
            element.image = element.index % 4 == 1 ? ":/icones/BulleHG.svg" : ":/icones/BulleHD.svg";
        } else if (element.controle == Controle::ImgBulleBas && element.index % 3 != 2) {
            element.fond = POIGNEE;
        } else if (element.controle == Controle::LblXtrZ) {
            bord = element.cadre.droite();
        } else if (element.controle == Controle::LblMot) {
            element.cadre.largeur =
                std::max(0.0, std::min(element.cadre.largeur, bord - element.cadre.gauche));
        }
    }
}

Qt::CursorShape pointeurSur(const Element* element) {
    if (!element) return Qt::CrossCursor;
    switch (element->controle) {
    case Controle::ImgBulleInt:
        return Qt::SizeHorCursor;
    case Controle::ImgBulleBlanche:
    case Controle::ImgBulleBas:
    case Controle::LbltitreXtrZ:
    case Controle::LbltxtXtrZ:
        return Qt::PointingHandCursor;
    default:
        return Qt::CrossCursor;
    }
}

Etendue etendue(const Element& element) {
    return {element.cadre.gauche, element.cadre.largeur};
}

} // namespace

ToileZoom::ToileZoom(const Session& session, QWidget* parent)
    : ToileOnde(QStringLiteral("Pict_zoom"), Controle::ZoomSelect, session, parent) {
    surPression = [this](const Souris& souris) { presserZoom(souris); };
    surMouvement = [this](const Souris& souris) { survoler(souris); };
    surRelachement = [this](const Souris& souris) { relacherZoom(souris); };
    surClic = [this](const Souris& souris) {
        if (const int k = extraitOuvert(souris.element, false)) surOuverture(k);
    };
    surDoubleClic = [this](const Souris& souris) {
        if (const int k = extraitOuvert(souris.element, true)) return surOuverture(k);
        if (!estBulle(souris.element)) presserZoom(souris); // its first click has opened it
    };
}

void ToileZoom::disposer() {
    Elements bulles = disposerBulles(session_, largeurTwips(), hauteurTwips(), metriques_, BULLE);
    habillerBulles(bulles);
    bulles.push_back(gardee(formeSelection()));
    bulles.push_back(gardee(forme(Controle::shp_curseur_zoom, {}, theme::ACCENT, false)));
    elements(std::move(bulles));
}

void ToileZoom::curseur(Twips largeur) {
    deplacer(Controle::shp_curseur_zoom, {0, largeur}, largeur > 0);
}

void ToileZoom::presserZoom(const Souris& souris) {
    appuyer();
    if (souris.bouton == Qt::LeftButton) suivreGeste(presser(prise_, souris.element, souris.x));
}

void ToileZoom::survoler(const Souris& souris) {
    if (poigneeTenue(prise_)) return tirerPoignee(souris.x);
    if (!glisse()) setCursor(pointeurSur(souris.element));
    if (!selectionne(prise_, souris.x, session_.audio.MarqueDebut != 0)) return;
    setCursor(Qt::SizeHorCursor);
    surSelection(prise_.GlisseZoomDebut, souris.x);
}

void ToileZoom::relacherZoom(const Souris& souris) {
    appuyer();
    if (souris.bouton != Qt::LeftButton) return;
    setCursor(pointeurSur(souris.element));
    suivreGeste(relacher(prise_, souris.x, session_.audio.MarqueDebut != 0));
}

void ToileZoom::suivreGeste(const GesteZoom& geste) {
    if (geste.acte == ActeZoom::Aucun) return;
    if (geste.acte != ActeZoom::Elargir) return surGeste(geste);
    if (Element* label = modifiable(Controle::LblXtrZ, geste.index)) label->cadre.largeur = geste.x;
}

void ToileZoom::tirerPoignee(Twips x) {
    const int bulle = (prise_.index + 1) / 2;
    const Element* texte = modifiable(Controle::LbltxtXtrZ, bulle);
    Element* bande = modifiable(Controle::ShpXtrIntZ, bulle);
    if (!texte || !bande) return;
    const Etendue place = bandeTiree(prise_, etendue(*bande), etendue(*texte), x);
    repeindre(bande->cadre);
    bande->cadre.gauche = place.gauche;
    bande->cadre.largeur = place.largeur;
    repeindre(bande->cadre);
}

} // namespace vermo
