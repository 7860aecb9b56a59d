// What is seen of the surface: laid out by quarters, painted once, slid by a scroll.
#include "window/ui/Glace.h"
#include "window/ui/ToileDefilante.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace vermo {
namespace {

Rectangle deLaSurface(const QRectF& pixels, Twips gauche, Twips haut) {
    const Rectangle vue = enTwips(pixels);
    return {vue.gauche + gauche, vue.haut + haut, vue.largeur, vue.hauteur};
}

/// Moves what a picture holds in `zone` (its own pixels), whose far edges are the picture's.
void deplacer(QImage& image, QPoint zone, int versGauche, int versHaut) {
    const int reste = image.height() - zone.y() - std::abs(versHaut);
    const auto largeur = static_cast<std::size_t>(image.width() - zone.x() - std::abs(versGauche)) * 4;
    for (int i = 0; i < reste; ++i) {
        const int y = zone.y() + (versHaut > 0 ? i : reste - 1 - i);
        uchar* cible = image.scanLine(y + std::max(-versHaut, 0)) + 4 * (zone.x() + std::max(-versGauche, 0));
        uchar* source = image.scanLine(y + std::max(versHaut, 0)) + 4 * (zone.x() + std::max(versGauche, 0));
        std::memmove(cible, source, largeur);
    }
}

/// Device pixels to move by along one axis; `reste` is the length that can move.
struct Pas {
    Pas(Twips ecart, double finesse, double fixe, int reste)
        : exact(enPixels(ecart) * finesse), entier(static_cast<int>(std::lround(exact))),
          possible(std::abs(exact - entier) < 0.01 && std::abs(fixe - std::round(fixe)) < 0.01 &&
                   std::abs(entier) < reste) {}
    double exact;
    int entier;
    bool possible;
};

} // namespace

std::array<ToileDefilante::Quartier, 4> ToileDefilante::quartiers() const {
    const int x = fixe_.width(), y = fixe_.height(), droite = width() - x, bas = height() - y;
    return {Quartier{{0, 0, x, y}, 0, 0},
            {{x, 0, droite, y}, gauche_, 0},
            {{0, y, x, bas}, 0, haut_},
            {{x, y, droite, bas}, gauche_, haut_}};
}

const Elements& ToileDefilante::elements() const {
    if (std::exchange(listeAJour_, true)) return liste_;
    liste_.clear();
    for (const auto& [zone, gauche, haut] : quartiers())
        if (!zone.isEmpty()) disposerPartie(liste_, deLaSurface(zone, gauche, haut));
    return liste_;
}

void ToileDefilante::peindre(QPainter& peintre, const QRectF& zone) {
    for (const auto& [quartier, gauche, haut] : quartiers()) {
        const QRectF ici = zone & quartier;
        if (ici.isEmpty()) continue;
        bande_.clear();
        disposerPartie(bande_, deLaSurface(ici, gauche, haut));
        peintre.setClipRect(ici);
        Toile::peindre(peintre, ici, bande_, {gauche, haut});
    }
}

QPointF ToileDefilante::surface(QPointF pixels) const {
    return {enTwips(pixels.x()) + (pixels.x() < fixe_.width() ? 0 : gauche_),
            enTwips(pixels.y()) + (pixels.y() < fixe_.height() ? 0 : haut_)};
}

Rectangle ToileDefilante::dansLaToile(const Rectangle& partie) const {
    return {partie.gauche - (partie.gauche < enTwips(fixe_.width()) ? 0 : gauche_),
            partie.haut - (partie.haut < enTwips(fixe_.height()) ? 0 : haut_), partie.largeur,
            partie.hauteur};
}

void ToileDefilante::paintEvent(QPaintEvent* evenement) {
    actualiserVue();
    const double finesse = peinte_.devicePixelRatio();
    const QRectF la = evenement->rect();
    QPainter(this).drawImage(la, peinte_, QRectF(la.topLeft() * finesse, la.size() * finesse));
}

void ToileDefilante::repeindre(const Rectangle& partie) {
    listeAJour_ = false;
    actualiserVue();
    aPeindre_ += pixelsTouches(enPixels(dansLaToile(partie))).adjusted(-1, -1, 1, 1) & rect();
    update();
}

void ToileDefilante::repeindreLigne(int rang) {
    if (rang < 1 || rang > lignes_.nombre()) return;
    repeindre({0, lignes_.debut(rang), largeurSurface(), lignes_.fin(rang) - lignes_.debut(rang)});
}

void ToileDefilante::actualiserVue() {
    if (rect().isEmpty()) return;
    const double finesse = devicePixelRatioF();
    if (peinte_.size() != size() * finesse || peinte_.devicePixelRatio() != finesse) {
        peinte_ = QImage(size() * finesse, QImage::Format_RGB32);
        peinte_.setDevicePixelRatio(finesse);
        aPeindre_ = rect();
    } else {
        aPeindre_ += glisserVue();
    }
    gauchePeinte_ = gauche_, hautPeint_ = haut_;
    QPainter peintre(&peinte_);
    for (const QRect& partie : aPeindre_)
        peindre(peintre, partie);
    aPeindre_ = {};
}

/// What was painted stays at its place on the surface; the rest of the view is returned.
QRegion ToileDefilante::glisserVue() {
    const double finesse = peinte_.devicePixelRatio();
    const QPointF fixe = QPointF(fixe_.width(), fixe_.height()) * finesse;
    const QPoint coin = fixe.toPoint();
    const Pas x(gauche_ - gauchePeinte_, finesse, fixe.x(), peinte_.width() - coin.x());
    const Pas y(haut_ - hautPeint_, finesse, fixe.y(), peinte_.height() - coin.y());
    if (x.entier == 0 && y.entier == 0) return {};
    if (!x.possible || !y.possible) return rect();
    if (y.entier != 0) deplacer(peinte_, {0, coin.y()}, 0, y.entier);
    if (x.entier != 0) deplacer(peinte_, {coin.x(), 0}, x.entier, 0);
    QRegion reste = aPeindre_.translated(-qRound(x.entier / finesse), -qRound(y.entier / finesse)) & rect();
    const int large = static_cast<int>(std::ceil(std::abs(x.entier) / finesse));
    const int haute = static_cast<int>(std::ceil(std::abs(y.entier) / finesse));
    reste += QRect(0, y.entier > 0 ? height() - haute : fixe_.height(), width(), haute);
    reste += QRect(x.entier > 0 ? width() - large : fixe_.width(), 0, large, height());
    return reste;
}

} // namespace vermo
