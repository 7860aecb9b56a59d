#include "corpus/DispositionCorpus.h"

#include "corpus/Frise.h"

#include <algorithm>

namespace vermo {
namespace {

constexpr Twips MARGE = 180, BORD_GAUCHE = 240, HAUT_PANNEAUX = 1680, GAUCHE_ENTRETIENS = 3760;
constexpr Twips LARGEUR_THM = 3220, HAUTEUR_TITRE = 560, HAUTEUR_BOUTON = 390;
constexpr Twips HAUTEUR_REGLE = 240, GAUCHE_REGLE = 140, LARGEUR_DEFILEMENT = 620, LARGEUR_POUCE = 180;
constexpr Twips HAUTEUR_TAP = 2400, ECART_TAP = 720, ECART_CADRE = 120;

Rectangle agrandi(Rectangle r, Twips bord) {
    return {r.gauche - bord, r.haut - bord, r.largeur + 2 * bord, r.hauteur + 2 * bord};
}

Rectangle bouton(Twips gauche, Twips haut) {
    return {gauche, haut, HAUTEUR_BOUTON, HAUTEUR_BOUTON};
}

void disposerTitre(DispositionCorpus& d, Twips largeur) {
    d.ImgTop = {0, 0, largeur, HAUTEUR_TITRE};
    d.ImgCroix = {largeur - 780 + 30, 100, 780, 360};
    d.PictVol = {d.ImgCroix.gauche - 900 - 60, 140, 900, 270};
    constexpr Twips largeurs[] = {1300, 1500, 1650, 1400};
    Twips gauche = BORD_GAUCHE;
    for (std::size_t i = 0; i < std::size(largeurs); gauche += largeurs[i++])
        d.lblmenu[i] = {gauche, HAUTEUR_TITRE + 90, largeurs[i], 345};
}

void disposerThematiques(DispositionCorpus& d, Twips hauteur) {
    d.ProgressBar1 = {BORD_GAUCHE, hauteur - MARGE - 120, LARGEUR_THM, 120};
    d.etq[0] = {BORD_GAUCHE, 1260, LARGEUR_THM - 360, 300};
    d.ImgOnOffthm = {BORD_GAUCHE + LARGEUR_THM - 300, 1260, 300, 300};
    d.Frm_fond_thm = {BORD_GAUCHE, HAUT_PANNEAUX, LARGEUR_THM,
                      std::max(d.ProgressBar1.haut - MARGE - HAUT_PANNEAUX, 0.0)};
    d.Frm_thm = {0, 0, d.Frm_fond_thm.largeur, d.Frm_fond_thm.hauteur};
    d.cadreThm = agrandi(d.Frm_fond_thm, ECART_CADRE);
}

/// The buttons of windows on the whole corpus, above; those of the timeline in FrmBtnEntr.
void disposerBoutons(DispositionCorpus& d) {
    Twips gauche = GAUCHE_ENTRETIENS;
    for (const int i : {0, 1, 2, 4, 8}) {
        d.Imgbtn[i] = bouton(gauche, 1140);
        gauche += i == 2 ? 0 : HAUTEUR_BOUTON + 120;
    }
    const Twips haut = d.FrmBtnEntr.haut;
    d.ImgOnOffent = {GAUCHE_ENTRETIENS + TAILLES_FRISE.ImgOnOff.gauche - 45, haut + 45, 300, 300};
    d.etq[1] = {GAUCHE_ENTRETIENS + TAILLES_FRISE.lblfich.gauche + 60, haut + 45, 2400, 300};
    gauche = d.etq[1].droite() + 120;
    for (const int i : {7, 6, 3, 5}) {
        d.Imgbtn[i] = bouton(gauche, haut);
        gauche += HAUTEUR_BOUTON + 120;
    }
    d.ImgZoom[0] = bouton(gauche + 240, haut);
    d.ImgZoom[1] = bouton(gauche + 240 + HAUTEUR_BOUTON + 120, haut);
}

void disposerEntretiens(DispositionCorpus& d, Twips largeur, Twips hauteur, bool TriAPlat) {
    const Twips large = std::max(largeur - MARGE - GAUCHE_ENTRETIENS, 0.0);
    d.FrmBtnEntr = {GAUCHE_ENTRETIENS, HAUT_PANNEAUX, large, HAUTEUR_BOUTON};
    const Twips hautRegle = d.FrmBtnEntr.bas() + 30, haut = hautRegle + HAUTEUR_REGLE + 30;
    const Twips cede = TriAPlat ? HAUTEUR_TAP + ECART_TAP : 0;
    d.Frm_fond_entretiens = {GAUCHE_ENTRETIENS, haut, large, std::max(hauteur - MARGE - cede - haut, 0.0)};
    d.Frm_entretiens = {0, 0, std::max(large - LARGEUR_DEFILEMENT, 0.0), d.Frm_fond_entretiens.hauteur};
    const Twips gaucheRegle = GAUCHE_ENTRETIENS + TAILLES_FRISE.gaucheImgEnt - GAUCHE_REGLE;
    d.PictTps = {gaucheRegle, hautRegle, std::max(largeur - MARGE - gaucheRegle, 0.0), HAUTEUR_REGLE};
    d.LigneScroll = {d.Frm_entretiens.droite() + (LARGEUR_DEFILEMENT - LARGEUR_POUCE) / 2, 60, LARGEUR_POUCE,
                     std::max(d.Frm_fond_entretiens.hauteur - 120, 0.0)};
    if (TriAPlat) d.PictTAP = {GAUCHE_ENTRETIENS, hauteur - MARGE - HAUTEUR_TAP, large, HAUTEUR_TAP};
    Rectangle tout = d.FrmBtnEntr;
    tout.hauteur = d.Frm_fond_entretiens.bas() - tout.haut;
    d.cadreEntretiens = agrandi(tout, ECART_CADRE);
}

} // namespace

DispositionCorpus disposerFenetreCorpus(Twips largeur, Twips hauteur, bool TriAPlat) {
    DispositionCorpus d;
    disposerTitre(d, largeur);
    disposerThematiques(d, hauteur);
    disposerEntretiens(d, largeur, hauteur, TriAPlat);
    disposerBoutons(d);
    return d;
}

} // namespace vermo
