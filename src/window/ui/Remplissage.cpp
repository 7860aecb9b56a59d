#include "window/ui/Remplissage.h"

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QTransform>
#include <algorithm>

namespace vermo {
namespace {

constexpr double ETROIT = 8; ///< pixels; what is wider the painter fills faster
constexpr QRgb CHAQUE_OCTET = 0x01010101;

/// Puts inks over pixels, rounded as the painter rounds. By the byte: so the compiler takes sixteen at once.
void fondre(QRgb* pixels, const QRgb* encres, const QRgb* restes, std::size_t nombre) {
    auto* octets = reinterpret_cast<uchar*>(pixels);
    const auto* encre = reinterpret_cast<const uchar*>(encres);
    const auto* reste = reinterpret_cast<const uchar*>(restes);
    for (std::size_t i = 0; i < nombre * sizeof(QRgb); ++i) {
        const unsigned part = octets[i] * reste[i];
        octets[i] = static_cast<uchar>(encre[i] + ((part + (part >> 8) + 128) >> 8));
    }
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
    if (ici.isEmpty()) return;
    if (ici.top() != haut_ || ici.bottom() != bas_) finir();
    haut_ = ici.top(), bas_ = ici.bottom();
    barres_.push_back({ici.left(), ici.right(), qPremultiply(couleur.rgba())});
}

void Remplissage::finir() {
    if (barres_.empty()) return;
    const std::size_t couches = empiler();
    for (int y = haut_; y <= bas_; ++y) {
        QRgb* ligne = pixels_ + static_cast<qsizetype>(y) * parLigne_ + gauche_;
        for (std::size_t k = 0; k < couches; ++k) {
            const auto& [encres, restes, debut, fin] = couches_[k];
            fondre(ligne + debut, &encres[debut], &restes[debut], fin - debut);
        }
    }
    barres_.clear();
}

/// Parts the bars that wait into layers, each pixel's in their order; gives how many.
std::size_t Remplissage::empiler() {
    gauche_ = std::ranges::min(barres_, {}, &Barre::gauche).gauche;
    const auto place = [this](int x) { return static_cast<std::size_t>(x - gauche_); };
    pile_.assign(place(std::ranges::max(barres_, {}, &Barre::droite).droite) + 1, 0);
    std::size_t couches = 0;
    for (const Barre& barre : barres_)
        for (std::size_t x = place(barre.gauche); x <= place(barre.droite); ++x) {
            const std::size_t k = pile_[x]++;
            if (k == couches) commencer(couches++, x);
            Couche& couche = couches_[k];
            couche.encres[x] = barre.encre;
            couche.restes[x] = CHAQUE_OCTET * (255U - static_cast<unsigned>(qAlpha(barre.encre)));
            couche.debut = std::min(couche.debut, x);
            couche.fin = std::max(couche.fin, x + 1);
        }
    return couches;
}

/// An empty layer: it leaves all.
void Remplissage::commencer(std::size_t k, std::size_t x) {
    if (k == couches_.size()) couches_.emplace_back();
    couches_[k].encres.assign(pile_.size(), 0);
    couches_[k].restes.assign(pile_.size(), ~QRgb(0));
    couches_[k].debut = couches_[k].fin = x;
}

} // namespace vermo
