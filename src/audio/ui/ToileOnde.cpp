#include "audio/ui/ToileOnde.h"

#include <algorithm>

namespace vermo {

ToileOnde::ToileOnde(const QString& nom, Controle selection, const Session& session, QWidget* parent)
    : Toile(nom, parent), session_(session), selection_(selection) {
    setCursor(Qt::CrossCursor);
}

void ToileOnde::appuyer() const {
    if (surAppui) surAppui();
}

Element ToileOnde::forme(Controle controle, Etendue place, Couleur couleur, bool visible) const {
    Element element;
    element.controle = controle;
    element.cadre = {place.gauche, 0, place.largeur, hauteurTwips()};
    element.rempli = true;
    element.fond = couleur;
    element.encre = Encre::Voile;
    element.borde = true;
    element.bord = couleur;
    element.visible = visible;
    return element;
}

Element ToileOnde::formeSelection() const {
    constexpr Couleur SELECTION = rvb(255, 236, 150);
    return forme(selection_, {}, SELECTION, false);
}

Element ToileOnde::gardee(const Element& initiale) {
    const Element* avant = modifiable(initiale.controle);
    return avant ? *avant : initiale;
}

void ToileOnde::cacherSelection() {
    if (const Element* element = modifiable(selection_))
        deplacer(selection_, {element->cadre.gauche, element->cadre.largeur}, false);
}

void ToileOnde::deplacer(Controle controle, Etendue place, bool visible) {
    Element* element = modifiable(controle);
    if (!element) return;
    const Rectangle avant = element->cadre;
    const bool vu = element->visible;
    element->cadre.gauche = place.gauche;
    element->cadre.largeur = place.largeur;
    element->visible = visible;
    if (vu && visible && avant.gauche == place.gauche) {
        const auto [petit, grand] = std::minmax(avant.largeur, place.largeur);
        if (petit != grand)
            repeindre(
                {place.gauche + petit - TWIPS_PAR_PIXEL, 0, grand - petit + TWIPS_PAR_PIXEL, avant.hauteur});
        return;
    }
    if (vu) repeindre(avant);
    if (visible) repeindre(element->cadre);
}

} // namespace vermo
