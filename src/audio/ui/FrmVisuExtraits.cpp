#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "audio/ui/GeometrieVisu.h"
#include "transcription/Marquage.h"
#include "transcription/PisteExtraits.h"
#include "transcription/Retranscription.h"
#include "window/ui/Glace.h"

#include <algorithm>

namespace vermo {

namespace {

constexpr Couleur CURSEUR = rvb(255, 236, 150);
constexpr TaillePiste PISTE;
constexpr TailleBulle BULLE{.coin = 120,
                            .poignee = 120}; // edges as wide as corners: no gap between the pieces
constexpr Couleur POIGNEE = rvb(206, 212, 222);

Element forme(Controle controle, const Rectangle& cadre, Couleur couleur, bool visible) {
    Element element;
    element.controle = controle;
    element.cadre = cadre;
    element.rempli = true;
    element.fond = couleur;
    element.encre = Encre::Voile;
    element.borde = true;
    element.bord = couleur;
    element.visible = visible;
    return element;
}

/// The shape as it was before the list was made anew, or hidden.
Element gardee(Toile& toile, Controle controle, Couleur couleur, Twips hauteur) {
    if (const Element* avant = toile.modifiable(controle)) return *avant;
    return forme(controle, {0, 0, 0, hauteur}, couleur, false);
}

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

} // namespace

void FrmVisu::AfficherExtraits() {
    const Twips W = Picture1_->largeurTwips(), hVue = Picture1_->hauteurTwips();
    const Twips Z = Pict_zoom_->largeurTwips(), hZoom = Pict_zoom_->hauteurTwips();

    redresserBornes(session_);
    Elements piste{forme(Controle::Shp_visu, {0, 0, 0, hVue}, theme::ACCENT, true),
                   gardee(*Picture1_, Controle::TotalSelect, CURSEUR, hVue)};
    Elements barres = disposerPiste(session_, W);
    piste.insert(piste.end(), barres.begin(), barres.end());
    Element curseur = forme(Controle::Curseur, {0, 0, TWIPS_PAR_PIXEL, hVue}, rvb(220, 40, 40), true);
    if (const Element* avant = Picture1_->modifiable(Controle::Curseur)) curseur.cadre = avant->cadre;
    piste.push_back(curseur);

    Elements bulles = disposerBulles(session_, Z, hZoom, metriques_, BULLE);
    habillerBulles(bulles);
    bulles.push_back(gardee(*Pict_zoom_, Controle::ZoomSelect, CURSEUR, hZoom));
    bulles.push_back(gardee(*Pict_zoom_, Controle::shp_curseur_zoom, theme::ACCENT, hZoom));
    Picture1_->elements(std::move(piste));
    Pict_zoom_->elements(std::move(bulles));
    suivreShpVisu();
    entourer(extraitDit_);
}

void FrmVisu::surAvis(const Avis& avis) {
    if (avis.sujet == Sujet::Extraits && avis.slot == session_.corpus.EntretienCourant) rafraichirExtraits();
    if (avis.sujet == Sujet::Volume) DessinerVolume();
}

void FrmVisu::rafraichirExtraits() {
    LireRetranscription(session_, plateforme_);
    AfficherExtraits();
    if (extraitDit_ >= 1 && extraitDit_ <= nombreExtraits(session_)) return AfficherBulleExtrait(extraitDit_);
    extraitDit_ = 0;
    LblXtrBulle_->hide();
    PictLect_->elements({});
}

void FrmVisu::deplacerForme(Toile& toile, Controle controle, Etendue place, bool visible) {
    Element* element = toile.modifiable(controle);
    if (!element) return;
    const Rectangle avant = element->cadre;
    const bool vu = element->visible;
    element->cadre.gauche = place.gauche;
    element->cadre.largeur = place.largeur;
    element->visible = visible;
    if (vu && visible && avant.gauche == place.gauche) {
        const auto [petit, grand] = std::minmax(avant.largeur, place.largeur);
        if (petit != grand)
            toile.repeindre(
                {place.gauche + petit - TWIPS_PAR_PIXEL, 0, grand - petit + TWIPS_PAR_PIXEL, avant.hauteur});
        return;
    }
    if (vu) toile.repeindre(avant);
    if (visible) toile.repeindre(element->cadre);
}

void FrmVisu::cacherForme(Toile& toile, Controle controle) {
    if (const Element* element = toile.modifiable(controle))
        deplacerForme(toile, controle, {element->cadre.gauche, element->cadre.largeur}, false);
}

void FrmVisu::cacherSelections() {
    cacherForme(*Pict_zoom_, Controle::ZoomSelect);
    cacherForme(*Picture1_, Controle::TotalSelect);
}

void FrmVisu::suivreShpVisu() {
    const Rectangle cadre = cadreShpVisu(session_.audio, Picture1_->largeurTwips());
    deplacerForme(*Picture1_, Controle::Shp_visu, {cadre.gauche, cadre.largeur});
}

void FrmVisu::placerCurseurZoom(Twips largeur) {
    deplacerForme(*Pict_zoom_, Controle::shp_curseur_zoom, {0, largeur}, largeur > 0);
}

void FrmVisu::entourer(int k) {
    constexpr Couleur DIT = 0xFFFFFF;
    for (const int n : {extraitDit_, k})
        for (const Controle controle : {Controle::ShpXtr, Controle::ShpXtrInt})
            if (Element* element = Picture1_->modifiable(controle, n)) {
                element->bord = n == k ? DIT : PISTE.bord;
                Picture1_->repeindre(element->cadre);
            }
    extraitDit_ = k;
}

void FrmVisu::AfficherBulleExtrait(int k) {
    entourer(k);
    poserLblXtrBulle(k);
    const auto& code = session_.transcription.ExtraitCode[static_cast<std::size_t>(k)];
    Element barre;
    barre.controle = Controle::LblXtrBulle;
    barre.cadre = enTwips(QRectF(LblXtrBulle_->geometry()));
    barre.cadre.haut = 0;
    barre.cadre.hauteur = visu::BARRE_LECT;
    barre.rempli = true;
    barre.fond = couleurExtrait(session_.corpus, code);
    PictLect_->elements({barre});
    RevelationBulle_ = 0;
    Timtrait_.start();
}

/// As wide as the text needs to be seen whole, at the extract's place as far as the strip allows.
void FrmVisu::poserLblXtrBulle(int k) {
    QString texte = versQt(session_.transcription.ExtraitTexte[static_cast<std::size_t>(k)]);
    LblXtrBulle_->setText(texte.replace(QChar(u'\r'), QChar(u'\n')));
    LblXtrBulle_->setProperty("Tag", k);
    const Twips bord = PictLect_->largeurTwips();
    const int place = qRound(enPixels(visu::LECT_HAUTEUR - visu::TEXTE_LECT_HAUT));
    Twips largeur = std::min(visu::TEXTE_LECT_LARGEUR, bord);
    while (largeur < bord && LblXtrBulle_->heightForWidth(qRound(enPixels(largeur))) > place)
        largeur = std::min(largeur * 1.25, bord);
    const Element* barre = Picture1_->modifiable(Controle::LblXtr, k);
    const Twips gauche = std::max(0.0, std::min(barre ? barre->cadre.gauche : 0, bord - largeur));
    poser(LblXtrBulle_, {gauche, visu::TEXTE_LECT_HAUT, largeur, 0});
    LblXtrBulle_->show();
}

void FrmVisu::Timtrait_Tick() {
    constexpr Twips PAS = 110;
    if (RevelationBulle_ > visu::TEXTE_LECT_HAUT + visu::LECT_HAUTEUR) {
        Timtrait_.stop();
        return;
    }
    LblXtrBulle_->resize(LblXtrBulle_->width(), qRound(enPixels(RevelationBulle_)));
    RevelationBulle_ += PAS;
}

} // namespace vermo
