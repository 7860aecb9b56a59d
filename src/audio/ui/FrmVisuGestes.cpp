// What the mouse asks for on the pictures of the interview window.
#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"

namespace vermo {

/// A window that is going answers no more.
template <class... Valeurs>
auto FrmVisu::ouverte(void (FrmVisu::*action)(Valeurs...)) {
    return [this, action](auto&&... valeurs) {
        if (!ferme_) (this->*action)(valeurs...);
    };
}

void FrmVisu::brancherImages() {
    Picture1_->surAppui = Pict_zoom_->surAppui = [this] { TxtCtrl_->setFocus(); };
    Picture1_->surChoix = ouverte(&FrmVisu::choisir);
    Picture1_->surSurvol = ouverte(&FrmVisu::survolerExtrait);
    Picture1_->surExtrait = ouverte(&FrmVisu::zoomerExtrait);
    Pict_zoom_->surGeste = ouverte(&FrmVisu::suivreGeste);
    Pict_zoom_->surSelection = ouverte(&FrmVisu::selectionner);
    Pict_zoom_->surMolette = ouverte(&FrmVisu::rouler);
    Picture1_->surOuverture = Pict_zoom_->surOuverture = PictLect_->surOuverture =
        ouverte(&FrmVisu::ouvrirExtrait);
    Pict_tpsZ_->surRelachement = [this](const Souris& souris) { chercher(souris.x); };
}

void FrmVisu::survolerExtrait(int k, bool surBarre) {
    if (k == PictLect_->extraitDit() || (surBarre && fenetres_.visible(Fenetre::FrmSaisie))) return;
    AfficherBulleExtrait(k);
}

void FrmVisu::choisir(const GesteVue& geste) {
    EtatAudio& audio = session_.audio;
    plateforme_.media.currentPosition(choisirSurVue(audio, geste.debut, geste.x, Picture1_->largeurTwips()));
    Picture1_->cacherSelection();
    Picture1_->curseur(audio.EchelleVue * audio.DebutZoom);
    apresZoom();
}

void FrmVisu::suivreGeste(const GesteZoom& geste) {
    EtatAudio& audio = session_.audio;
    const Twips Z = Pict_zoom_->largeurTwips();
    switch (geste.acte) {
    case ActeZoom::Ecouter:
        return plateforme_.media.currentPosition(tempsZoom(audio, geste.x, Z));
    case ActeZoom::Defiler:
        deplacerEmpan(audio, geste.debut, geste.x, Z);
        apresZoom();
        [[fallthrough]];
    case ActeZoom::Chercher:
        cacherSelections();
        return chercher(geste.x);
    case ActeZoom::Creer:
        return creerExtrait({tempsZoom(audio, geste.debut, Z), tempsZoom(audio, geste.x, Z)});
    case ActeZoom::Borner:
        return poserBorne(geste.extrait, geste.borneDebut, tempsZoom(audio, geste.x, Z));
    case ActeZoom::Ouvrir:
        cacherSelections();
        return ouvrirExtrait(geste.extrait);
    default:
        return;
    }
}

void FrmVisu::selectionner(Twips& debut, Twips x) {
    EtatAudio& audio = session_.audio;
    const Twips Z = Pict_zoom_->largeurTwips();
    if (x > Z && defilerSelection(audio, debut, Z)) DessinerZoom();
    const SelectionZoom selection = selectionZoom(audio, debut, x, Z, Picture1_->largeurTwips());
    Pict_zoom_->montrerSelection(selection.ZoomSelect);
    Picture1_->suivreEmpan();
    Picture1_->montrerSelection(selection.TotalSelect);
}

void FrmVisu::rouler(int crans, Qt::KeyboardModifiers touches) {
    if (touches & Qt::ControlModifier)
        crans > 0 ? zoomAvant() : zoomArriere();
    else
        crans > 0 ? empanArriere() : empanAvant();
}

void FrmVisu::chercher(Twips x) {
    plateforme_.media.currentPosition(tempsZoom(session_.audio, x, Pict_zoom_->largeurTwips()));
    Pict_zoom_->curseur(x);
    TxtCtrl_->setFocus();
}

void FrmVisu::cacherSelections() {
    Pict_zoom_->cacherSelection();
    Picture1_->cacherSelection();
}

} // namespace vermo
