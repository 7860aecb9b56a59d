#include "window/ui/BarreDefilement.h"

#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

namespace vermo {
namespace {

constexpr Twips EPAISSEUR_LIGNE = 30;

} // namespace

BarreDefilement::BarreDefilement(const QString& nom, bool& actif, QWidget* parent)
    : Toile(nom, parent), actif_(actif) {
    surPression = [this](const Souris& s) { presser(s); };
    surMouvement = [this](const Souris& s) {
        if (actif_) surDefilement(defilementDe(defilement_, s.y - prise_));
    };
    surRelachement = [this](const Souris&) {
        actif_ = false;
        montrer(defilement_, defile_, page_);
    };
}

void BarreDefilement::placer(Rectangle ligne) {
    ligne_ = ligne;
    poser(this, ligne);
    decalage(ligne.gauche, ligne.haut);
}

void BarreDefilement::montrer(const Defilement& defilement, Twips defile, Twips hauteurPage) {
    defilement_ = defilement;
    defile_ = defile;
    page_ = hauteurPage;
    setVisible(defilement.visible);
    if (!defilement.visible) return;
    const Twips milieu = ligne_.gauche + ligne_.largeur / 2;
    elements(
        {{.controle = Controle::LigneScroll,
          .cadre = {milieu - EPAISSEUR_LIGNE / 2, defilement.hautLigne, EPAISSEUR_LIGNE,
                    defilement.basLigne - defilement.hautLigne},
          .tag = {},
          .fond = theme::BORD,
          .rempli = true},
         {.controle = Controle::LblScroll,
          .cadre = {ligne_.gauche, hautPouce(defilement, defile), ligne_.largeur, defilement.hauteurPouce},
          .tag = {},
          .fond = actif_ ? theme::ACCENT : theme::TEXTE_DISCRET,
          .rempli = true,
          .sensible = true}});
}

void BarreDefilement::presser(const Souris& souris) {
    if (souris.bouton != Qt::LeftButton) return;
    const Twips haut = hautPouce(defilement_, defile_);
    if (souris.element) {
        actif_ = true;
        prise_ = souris.y - haut;
    } else {
        surDefilement(defile_ + (souris.y < haut ? -page_ : page_));
    }
}

} // namespace vermo
