#include "window/ui/PeintreElements.h"

#include "window/ui/Glace.h"

#include <QPainter>
#include <algorithm>
#include <cstdint>

namespace vermo {

namespace {

// Opacities of fills, of 255: what lies under them stays seen.
constexpr int FUSION = 140, VOILE = 60;

/// As std::round for what fits a window, in a third of its time: it is asked four times a bar.
double pixelProche(double pixels) {
    pixels = pixelsTenus(pixels);
    return static_cast<double>(static_cast<std::int64_t>(pixels < 0 ? pixels - 0.5 : pixels + 0.5));
}

} // namespace

PeintreElements::PeintreElements(QPainter& peintre, const QRectF& zone)
    : peintre_(peintre), remplissage_(peintre), zone_(enTwips(zone)),
      ratio_(peintre.device()->devicePixelRatioF()) {}

void PeintreElements::peindre(const Element& element) {
    const Rectangle& r = element.cadre;
    if (!element.visible || r.gauche > zone_.droite() || r.haut > zone_.bas() || r.droite() < zone_.gauche ||
        r.bas() < zone_.haut || r.largeur <= 0 || r.hauteur <= 0)
        return;
    const QRectF cadre = auPixel(r);
    if (element.rempli) {
        QColor couleur = couleurQt(element.fond);
        if (element.encre != Encre::Copie) couleur.setAlpha(element.encre == Encre::Fusion ? FUSION : VOILE);
        remplissage_.remplir(cadre, couleur);
    }
    if (!element.image.empty() || element.borde || !element.texte.empty()) remplissage_.finir();
    if (!element.image.empty())
        peintre_.drawImage(cadre, imageEtiree(element.image, (cadre.size() * ratio_).toSize()));
    if (element.borde) border(cadre, element.bord);
    if (!element.texte.empty()) ecrire(element, cadre);
}

QRectF PeintreElements::auPixel(const Rectangle& cadre) const {
    const double pas = ratio_ / TWIPS_PAR_PIXEL;
    const double gauche = pixelProche(cadre.gauche * pas), haut = pixelProche(cadre.haut * pas);
    const double largeur = std::max(1.0, pixelProche(cadre.droite() * pas) - gauche);
    const double hauteur = std::max(1.0, pixelProche(cadre.bas() * pas) - haut);
    return {gauche / ratio_, haut / ratio_, largeur / ratio_, hauteur / ratio_};
}

void PeintreElements::border(const QRectF& cadre, Couleur couleur) {
    const QColor encre = couleurQt(couleur);
    const double l = cadre.width(), h = cadre.height();
    peintre_.fillRect(QRectF(cadre.x(), cadre.y(), l, 1), encre);
    peintre_.fillRect(QRectF(cadre.x(), cadre.bottom() - 1, l, 1), encre);
    peintre_.fillRect(QRectF(cadre.x(), cadre.y() + 1, 1, h - 2), encre);
    peintre_.fillRect(QRectF(cadre.right() - 1, cadre.y() + 1, 1, h - 2), encre);
}

void PeintreElements::ecrire(const Element& element, const QRectF& cadre) {
    choisirPolice(element);
    peintre_.setPen(couleurQt(element.encreTexte));
    const double pas = enPixels(metriques_.hauteur(element.corps));
    double haut = cadre.height() < 2 * pas ? (cadre.height() - pas) / 2 : 0;
    std::string_view reste = element.texte;
    while (!reste.empty() && haut < cadre.height()) {
        const std::size_t fin = std::min(reste.find(CR), reste.size());
        ecrireLigne(element, cadre, reste.substr(0, fin), cadre.y() + haut);
        reste.remove_prefix(std::min(fin + 1, reste.size()));
        haut += pas;
    }
}

void PeintreElements::ecrireLigne(const Element& element, const QRectF& cadre, std::string_view ligne,
                                  double haut) {
    const Texte vue = elider(ligne, element.cadre.largeur, element.corps, element.gras);
    double gauche = cadre.x();
    if (element.alignement != Alignement::Gauche) {
        const double libre = cadre.width() - enPixels(metriques_.largeur(vue, element.corps, element.gras));
        gauche += element.alignement == Alignement::Centre ? libre / 2 : libre;
    }
    peintre_.drawText(QPointF(gauche, haut + enPixels(metriques_.ascendante(element.corps))), versQt(vue));
}

void PeintreElements::choisirPolice(const Element& element) {
    const int police = element.corps << 2 | element.gras << 1 | static_cast<int>(element.souligne);
    if (police == police_) return;
    police_ = police;
    QFont fonte = theme::police(element.corps, element.gras);
    fonte.setUnderline(element.souligne);
    peintre_.setFont(fonte);
}

} // namespace vermo
