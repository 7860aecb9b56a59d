#include "corpus/ui/ToileEntretiens.h"
#include "window/ui/Glace.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace vermo {
void ToileEntretiens::paintEvent(QPaintEvent* evenement) {
    actualiserVue();
    const double finesse = peinte_.devicePixelRatio();
    const QRectF la = evenement->rect();
    QPainter(this).drawImage(la, peinte_, QRectF(la.topLeft() * finesse, la.size() * finesse));
}

void ToileEntretiens::repeindreLigne(int slot) {
    if (slot < 1 || slot > nombreLignes(session_.corpus)) return;
    actualiserVue();
    aPeindre_ += enPixels(dansLaToile(cadreLigne(slot))).toAlignedRect().adjusted(0, -1, 0, 1) & rect();
    update();
}

void ToileEntretiens::actualiserVue() {
    const double finesse = devicePixelRatioF();
    if (peinte_.size() != size() * finesse || peinte_.devicePixelRatio() != finesse) {
        peinte_ = QImage(size() * finesse, QImage::Format_RGB32);
        peinte_.setDevicePixelRatio(finesse);
        aPeindre_ = rect();
    } else {
        aPeindre_ += glisserVue();
    }
    defilePeinte_ = defile_;
    QPainter peintre(&peinte_);
    for (const QRect& partie : aPeindre_) {
        peintre.setClipRect(partie);
        const Twips haut = defile_ + enTwips(partie.top());
        disposerEntre(bande_, haut, haut + enTwips(partie.height()));
        peindre(peintre, partie, bande_);
    }
    aPeindre_ = {};
}

/// What was painted stays at its place on the surface; the rest of the view is returned.
QRect ToileEntretiens::glisserVue() {
    const double finesse = peinte_.devicePixelRatio();
    const double exact = enPixels(defile_ - defilePeinte_) * finesse;
    const int pas = static_cast<int>(std::lround(exact)), reste = peinte_.height() - std::abs(pas);
    if (pas == 0) return {};
    if (reste <= 0 || std::abs(exact - pas) > 0.01) return rect();
    const auto ligne = static_cast<std::size_t>(peinte_.bytesPerLine());
    uchar* haut = peinte_.bits();
    uchar* bas = haut + ligne * static_cast<std::size_t>(std::abs(pas));
    std::memmove(pas > 0 ? haut : bas, pas > 0 ? bas : haut, ligne * static_cast<std::size_t>(reste));
    const int decouvert = static_cast<int>(std::ceil(std::abs(pas) / finesse));
    aPeindre_.translate(0, -static_cast<int>(std::lround(pas / finesse)));
    return {0, pas > 0 ? height() - decouvert : 0, width(), decouvert};
}

} // namespace vermo
