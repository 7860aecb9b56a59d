// The dictation's toggles, the seconds of a portion, and the speed.
#include "textfile/nombres.h"
#include "transcription/Saisie.h"
#include "transcription/ui/EditeurRtr.h"
#include "transcription/ui/FrmSaisie.h"
#include "transcription/ui/FrmSaisieTailles.h"
#include "window/ui/Glace.h"

#include <QLabel>

namespace vermo {

namespace t = tailles_saisie;

void FrmSaisie::creerOptions() {
    creerBoutonsDictee();
    creerSecondes();
    creerVitesse();
}

void FrmSaisie::creerBoutonsDictee() {
    BtnOpt_ = {creerBouton("boucle", t::BTNOPT_0), creerBouton("dictee", t::BTNOPT_1),
               creerBouton("dictee-auto", t::BTNOPT_2)};
    for (BoutonImage* bouton : BtnOpt_)
        bouton->setCheckable(true);
    BtnOpt_[1]->caseIcone(BtnOpt_[1]->width()); // it widens

    LblTimer_ = new QLabel(this);
    LblTimer_->setObjectName(QStringLiteral("LblTimer"));
    LblTimer_->setAlignment(Qt::AlignCenter);
    theme::habiller(LblTimer_);
    poser(LblTimer_, t::LBLTIMER);
    LblTimer_->hide();
}

void FrmSaisie::creerSecondes() {
    LblSec_ = new Toile(QStringLiteral("LblSec"), BtnOpt_[1]);
    LblSec_->setAccessibleName(QStringLiteral("Secondes d'une portion : glisser vers le haut ou le bas"));
    LblSec_->setToolTip(LblSec_->accessibleName());
    LblSec_->setCursor(Qt::SizeVerCursor);
    LblSec_->fond(theme::CHAMP);
    poser(LblSec_, t::LBLSEC);
    LblSec_->surPression = [this](const Souris&) { pressionSecondes_ = true; };
    LblSec_->surMouvement = [this](const Souris& souris) { glisserSecondes(souris); };
    LblSec_->surRelachement = [this](const Souris&) {
        pressionSecondes_ = false;
        tagSecondes_ = session_.transcription.LblSec;
    };
    LblSec_->surMolette = [this](int crans, Qt::KeyboardModifiers) {
        reglerSecondes(std::max(1, session_.transcription.LblSec + crans));
    };
    auto* unite = new QLabel(QStringLiteral("sec."), BtnOpt_[1]);
    unite->setObjectName(QStringLiteral("Label1"));
    poser(unite, t::LABEL1);
}

void FrmSaisie::creerVitesse() {
    Picture2_ = new Toile(QStringLiteral("Picture2"), this);
    Picture2_->setAccessibleName(QStringLiteral("Vitesse de lecture"));
    Picture2_->setToolTip(QStringLiteral("Vitesse de lecture, de 0,75 à 1,25"));
    Picture2_->fond(theme::PANNEAU);
    poser(Picture2_, t::PICTURE2);
    Picture2_->surPression = [this](const Souris& souris) {
        pressionVitesse_ = true;
        glisserVitesse(souris.x - t::LBLVIT.gauche);
    };
    Picture2_->surMouvement = [this](const Souris& souris) {
        if (pressionVitesse_) glisserVitesse(souris.x - t::LBLVIT.gauche);
    };
    Picture2_->surRelachement = [this](const Souris&) { pressionVitesse_ = false; };
    Picture2_->surMolette = [this](int crans, Qt::KeyboardModifiers) {
        glisserVitesse(saisie::positionVitesse(session_, t::LBLVIT.largeur) + crans * t::LBLVIT.largeur / 20);
    };
}

void FrmSaisie::montrerOptions() {
    const auto& etat = session_.transcription;
    BtnOpt_[0]->setChecked(etat.BoucleDictee);
    BtnOpt_[1]->setChecked(etat.DicteeActive);
    BtnOpt_[2]->setChecked(etat.DicteeAuto);
    Rectangle dictee = t::BTNOPT_1;
    if (etat.DicteeActive) dictee.largeur = t::LARGEUR_DICTEE;
    poser(BtnOpt_[1], dictee);
    LblSec_->elements({{.controle = Controle::Shape2,
                        .cadre = {0, 0, t::LBLSEC.largeur, t::LBLSEC.hauteur},
                        .texte = std::to_string(etat.LblSec),
                        .alignement = Alignement::Centre,
                        .corps = 10}});
    const Rectangle glissiere = t::LBLVIT;
    const Twips bouton = glissiere.gauche + saisie::positionVitesse(session_, glissiere.largeur);
    const Twips milieu = glissiere.haut + glissiere.hauteur / 2;
    const double vitesse = session_.audio.VitesseLecture == 0 ? 1 : session_.audio.VitesseLecture;
    Picture2_->elements(
        {{.cadre = {glissiere.gauche, 15, glissiere.largeur, 210},
          .texte = "x " + formatDeuxDecimales(vitesse, session_.reglages),
          .encreTexte = theme::TEXTE_DISCRET,
          .alignement = Alignement::Centre},
         {.cadre = {glissiere.gauche, milieu - 15, glissiere.largeur, 30},
          .fond = theme::BORD,
          .rempli = true},
         {.cadre = {bouton - 60, milieu - 120, 120, 240}, .fond = theme::ACCENT, .rempli = true}});
}

void FrmSaisie::basculerDictee() {
    auto& etat = session_.transcription;
    etat.DicteeActive = !etat.DicteeActive;
    if (etat.DicteeActive) {
        saisie::activerDictee(session_, plateforme_.media.currentPosition(), etat.LblSec);
        MontrerPortion(etat.PortionDebut, etat.PortionFin);
        Timer3_.stop();
    } else {
        portion_ = {};
        rafraichirOnde();
    }
    montrerOptions();
    TextRtr_->setFocus();
}

void FrmSaisie::glisserSecondes(const Souris& souris) {
    if (pressionSecondes_)
        reglerSecondes(saisie::secondesGlissees(tagSecondes_, souris.y, t::LBLSEC.hauteur));
}

void FrmSaisie::reglerSecondes(int secondes) {
    auto& etat = session_.transcription;
    etat.LblSec = secondes;
    saisie::demarrerPortion(session_, etat.PortionDebut, secondes);
    MontrerPortion(etat.PortionDebut, etat.PortionFin);
    if (!pressionSecondes_) tagSecondes_ = secondes;
    montrerOptions();
}

void FrmSaisie::glisserVitesse(Twips x) {
    if (!saisie::reglerVitesse(session_, x, t::LBLVIT.largeur)) return;
    plateforme_.media.rate(session_.audio.VitesseLecture);
    montrerOptions();
}

} // namespace vermo
