#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "transcription/Retranscription.h"

namespace vermo {

void FrmVisu::brancherVue() {
    Picture1_->setCursor(Qt::CrossCursor);
    Picture1_->surPression = [this](const Souris& souris) { presserVue(souris); };
    Picture1_->surMouvement = [this](const Souris& souris) { survolerVue(souris); };
    Picture1_->surRelachement = [this](const Souris& souris) { relacherVue(souris); };
    Picture1_->surClic = [this](const Souris& souris) {
        if (souris.element && souris.element->controle == Controle::LblXtr)
            zoomerExtrait(souris.element->index);
    };
    Picture1_->surDoubleClic = [this](const Souris& souris) {
        if (souris.element && souris.element->controle == Controle::LblXtr)
            ouvrirExtrait(souris.element->index);
        else
            presserVue(souris);
    };
    PictLect_->surClic = [this](const Souris& souris) {
        const Element* barre = PictLect_->modifiable(Controle::LblXtrBulle);
        if (extraitDit_ != 0 && barre && souris.x >= barre->cadre.gauche && souris.x < barre->cadre.droite())
            ouvrirExtrait(extraitDit_);
    };
}

void FrmVisu::presserVue(const Souris& souris) {
    TxtCtrl_->setFocus();
    if (souris.bouton != Qt::LeftButton || ferme_) return;
    priseVue_ = {.controle = souris.element ? souris.element->controle : Controle::Aucun, .tenue = true};
    if (priseVue_.controle != Controle::LblXtr) GlisseVueDebut_ = souris.x;
}

void FrmVisu::survolerVue(const Souris& souris) {
    const bool surBarre = souris.element && souris.element->controle == Controle::LblXtr;
    Picture1_->setCursor(GlisseVueDebut_ != 0 ? Qt::SizeHorCursor
                         : surBarre           ? Qt::PointingHandCursor
                                              : Qt::CrossCursor);
    if (!surBarre || !fenetres_.visible(Fenetre::FrmSaisie)) direExtraitSous(souris.x);
    if (GlisseVueDebut_ == 0) return;
    GlisseVueFin_ = souris.x;
    if (souris.x > GlisseVueDebut_ + SEUIL_GLISSE)
        deplacerForme(*Picture1_, Controle::TotalSelect, {GlisseVueDebut_, souris.x - GlisseVueDebut_});
    else if (souris.x < GlisseVueDebut_)
        deplacerForme(*Picture1_, Controle::TotalSelect, {souris.x, GlisseVueDebut_ - souris.x});
}

void FrmVisu::direExtraitSous(Twips x) {
    int sousSouris = 0;
    for (const Element& element : Picture1_->elements())
        if (element.controle == Controle::ShpXtrInt && element.cadre.gauche <= x &&
            x <= element.cadre.droite())
            sousSouris = element.index;
    if (sousSouris != 0 && sousSouris != extraitDit_) AfficherBulleExtrait(sousSouris);
}

void FrmVisu::relacherVue(const Souris& souris) {
    const bool label = priseVue_.controle == Controle::LblXtr;
    if (souris.bouton != Qt::LeftButton || !std::exchange(priseVue_, {}).tenue || label) return;
    if (souris.x < 0 || souris.x > Picture1_->largeurTwips()) return;
    Picture1_->setCursor(Qt::ArrowCursor);
    allerSurVue(std::exchange(GlisseVueDebut_, 0), souris.x);
}

void FrmVisu::allerSurVue(Twips debut, Twips x) {
    const double t = choisirSurVue(session_.audio, debut, x, Picture1_->largeurTwips());
    plateforme_.media.currentPosition(t);
    cacherForme(*Picture1_, Controle::TotalSelect);
    deplacerForme(*Picture1_, Controle::Curseur,
                  {session_.audio.EchelleVue * session_.audio.DebutZoom, TWIPS_PAR_PIXEL});
    suivreShpVisu();
    DessinerZoom();
}

void FrmVisu::zoomerExtrait(int k) {
    TxtCtrl_->setFocus();
    const double debut = secondesDebut(session_, k);
    zoomerSurExtrait(session_.audio, debut, secondesFin(session_, k));
    suivreShpVisu();
    LecteurMedia& media = plateforme_.media;
    if (!media.enLecture()) media.play();
    media.currentPosition(debut);
    DessinerZoom();
}

void FrmVisu::ouvrirExtrait(int k) {
    if (ferme_ || k < 1 || k > nombreExtraits(session_)) return;
    if (ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie))) return;
    session_.transcription.ExtraitCourant = static_cast<float>(k);
    fenetres_.montrer(Fenetre::FrmSaisie, ExtraitVoulu{k});
}

} // namespace vermo
