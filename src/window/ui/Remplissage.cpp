#include "window/ui/Remplissage.h"

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QTransform>

namespace vermo {
namespace {

constexpr double ETROIT = 8; ///< pixels; what is wider the painter fills faster

/// Each of the four bytes times `part` / 255, rounded as the painter rounds.
QRgb partDe(QRgb pixel, unsigned part) {
    constexpr unsigned octets = 0xff00ff, demi = 0x800080;
    const unsigned pairs = (pixel & octets) * part, impairs = ((pixel >> 8) & octets) * part;
    return (((pairs + ((pairs >> 8) & octets) + demi) >> 8) & octets) |
           ((impairs + ((impairs >> 8) & octets) + demi) & ~octets);
}

/// The picture that is painted on, where its pixels are the painter's and nothing but a rectangle bounds it.
QImage* imageSimple(const QPainter& peintre) {
    if (peintre.device()->devType() != QInternal::Image) return nullptr;
    auto* image = static_cast<QImage*>(peintre.device());
    const QTransform vers = peintre.deviceTransform();
    const bool entiere = vers.type() <= QTransform::TxTranslate && vers.dx() == qRound(vers.dx()) &&
                         vers.dy() == qRound(vers.dy());
    const bool opaque =
        peintre.opacity() == 1 && peintre.compositionMode() == QPainter::CompositionMode_SourceOver;
    const bool rectangle = !peintre.hasClipping() || peintre.clipRegion().rectCount() <= 1;
    return image->format() == QImage::Format_RGB32 && entiere && opaque && rectangle ? image : nullptr;
}

} // namespace

Remplissage::Remplissage(QPainter& peintre) : peintre_(peintre) {
    QImage* image = imageSimple(peintre);
    if (image == nullptr) return;
    pixels_ = reinterpret_cast<QRgb*>(image->bits());
    parLigne_ = static_cast<int>(image->bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)));
    const QTransform vers = peintre.deviceTransform();
    decalage_ = {qRound(vers.dx()), qRound(vers.dy())};
    limites_ = image->rect();
    if (peintre.hasClipping()) limites_ &= peintre.clipRegion().boundingRect().translated(decalage_);
}

void Remplissage::remplir(const QRectF& cadre, const QColor& couleur) {
    if (pixels_ == nullptr || cadre.width() > ETROIT) {
        finir();
        return peintre_.fillRect(cadre, couleur);
    }
    const QRect ici = cadre.toRect().translated(decalage_) & limites_;
    if (ici.top() != haut_ || ici.bottom() != bas_) finir();
    haut_ = ici.top(), bas_ = ici.bottom();
    barres_.push_back({ici.left(), ici.right(), qPremultiply(couleur.rgba())});
}

void Remplissage::finir() {
    for (int y = haut_; y <= bas_; ++y)
        remplirLigne(pixels_ + static_cast<qsizetype>(y) * parLigne_);
    barres_.clear();
}

void Remplissage::remplirLigne(QRgb* ligne) const {
    for (const Barre& barre : barres_) {
        const unsigned reste = 255U - static_cast<unsigned>(qAlpha(barre.encre));
        for (int x = barre.gauche; x <= barre.droite; ++x)
            ligne[x] = barre.encre + partDe(ligne[x], reste);
    }
}

} // namespace vermo
