// The extracts of the interview window: shown, told, made, moved and opened.
#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "transcription/Marquage.h"
#include "transcription/Retranscription.h"

namespace vermo {

void FrmVisu::AfficherExtraits() {
    redresserBornes(session_);
    Picture1_->disposer();
    Pict_zoom_->disposer();
}

void FrmVisu::surAvis(const Avis& avis) {
    if (avis.sujet == Sujet::Extraits && avis.slot == session_.corpus.EntretienCourant) rafraichirExtraits();
    if (avis.sujet == Sujet::Volume) DessinerVolume();
    if (avis.sujet == Sujet::TexteAbandonne) montrerReprise();
}

void FrmVisu::rafraichirExtraits() {
    LireRetranscription(session_, plateforme_);
    AfficherExtraits();
    const int dit = PictLect_->extraitDit();
    if (dit >= 1 && dit <= nombreExtraits(session_)) return AfficherBulleExtrait(dit);
    Picture1_->entourer(0);
    PictLect_->effacer();
}

void FrmVisu::AfficherBulleExtrait(int k) {
    Picture1_->entourer(k);
    PictLect_->AfficherBulleExtrait(k, Picture1_->gaucheExtrait(k));
}

void FrmVisu::zoomerExtrait(int k) {
    TxtCtrl_->setFocus();
    const double debut = secondesDebut(session_, k);
    zoomerSurExtrait(session_.audio, debut, secondesFin(session_, k));
    Picture1_->suivreEmpan();
    LecteurMedia& media = plateforme_.media;
    if (!media.enLecture()) media.play();
    media.currentPosition(debut);
    DessinerZoom();
}

void FrmVisu::creerExtrait(Bornes voulues) {
    cacherSelections();
    const Marquage marquage = bornerNouvelExtrait(session_, voulues);
    if (marquage.englobe)
        refuserEnglobement();
    else
        ouvrirSaisie(marquage.bornes);
}

void FrmVisu::refuserEnglobement() {
    plateforme_.dialogues.demander({.texte = "Un extrait ne peut pas en englober un autre!",
                                    .titre = "Création impossible",
                                    .icone = Icone::Exclamation});
}

/// An extract that is open in FrmSaisie is opened anew, or its old span would come back when it is validated.
void FrmVisu::poserBorne(int k, bool debut, double v) {
    const EtatTranscription& etat = session_.transcription;
    const bool ouvert =
        fenetres_.visible(Fenetre::FrmSaisie) && !etat.NouvelExtrait && extraitCourant(etat) == k;
    if (ouvert && ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie))) return AfficherExtraits();

    const Deplacement deplacement = deplacerBorne(session_, k, debut, v);
    if (deplacement.englobe) return refuserEnglobement();
    const Utf8 nom = nommerExtrait(session_.corpus, "Déplacer une borne de", k, etat.source.slot);
    const bool ecrit = EnregistrerExtraits(session_, plateforme_, nom);
    if (!ecrit) rafraichirExtraits(); // as the file has them
    if ((deplacement.allonge || ouvert) && ecrit) ouvrirExtrait(k);
}

/// The line at the foot makes room for the offer.
void FrmVisu::montrerReprise() {
    LblReprendre_->setVisible(aReprendre());
    const int fin = LblReprendre_->x() + (aReprendre() ? 0 : LblReprendre_->width());
    lblEtat_->resize(fin - lblEtat_->x(), lblEtat_->height());
    commandes_.actualiser();
}

void FrmVisu::reprendreTexte() {
    if (!ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie)))
        fenetres_.montrer(Fenetre::FrmSaisie, TexteAbandonneVoulu{});
}

void FrmVisu::ouvrirExtrait(int k) {
    if (ferme_ || k < 1 || k > nombreExtraits(session_)) return;
    if (ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie))) return;
    session_.transcription.ExtraitCourant = static_cast<float>(k);
    fenetres_.montrer(Fenetre::FrmSaisie, ExtraitVoulu{k});
}

} // namespace vermo
