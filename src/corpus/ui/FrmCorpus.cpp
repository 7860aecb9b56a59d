#include "corpus/ui/FrmCorpus.h"

#include "corpus/OuvertureCorpus.h"
#include "corpus/Panneaux.h"
#include "corpus/Pistes.h"
#include "corpus/ui/CroixDouble.h"
#include "corpus/ui/ToileEntretiens.h"
#include "corpus/ui/ToileThematiques.h"
#include "platform/Sablier.h"
#include "window/ui/BarreDefilement.h"
#include "window/ui/Glace.h"

#include <QEvent>
#include <QLabel>
#include <QTimer>
#include <utility>

namespace vermo {

void FrmCorpus::surAvis(const Avis& avis) {
    if (avis.sujet == Sujet::Thematiques) ConstruireThematiques();
    if (avis.sujet == Sujet::Entretiens) RedessinerFrise();
    if (avis.sujet == Sujet::Entretiens || avis.sujet == Sujet::Bascules) RedessinerPistes();
    if (avis.sujet == Sujet::Volume) DessinerVolume();
}

void FrmCorpus::RedessinerFrise() {
    if (nombreLignes(session_.corpus) > 0) calculerHauteur(session_, hauteurFond());
    preparerFrise(session_, plateforme_);
    montrerFrise();
}

void FrmCorpus::RedessinerPistes() {
    signalerDureesNulles(session_, plateforme_, 1, session_.corpus.NbEntretiens);
    montrerPistes();
}

void FrmCorpus::montrerFrise() {
    Imgbtn_[3]->icone(session_.corpus.TailleReelle ? QStringLiteral("Taille1") : QStringLiteral("Taille0"));
    lblCaption1_->setText(utf8VersQt(session_.corpus.CheminCorpus));
    Dessin regle = disposerRegle(session_, largeurBarre(Frm_entretiens_->vue()));
    PictTps_->setVisible(!regle.inscriptions.empty());
    PictTps_->dessin({.traits = {}, .inscriptions = std::move(regle.inscriptions)});
    Frm_entretiens_->dessin({.traits = std::move(regle.traits), .inscriptions = {}});
    Frm_entretiens_->redessiner();
    montrerComptes();
    montrerInvite();
}

void FrmCorpus::montrerPistes() {
    Frm_entretiens_->disposer();
    Frm_thm_->redessiner();
    montrerComptes();
}

void FrmCorpus::ConstruireThematiques() {
    Frm_thm_->redessiner();
    montrerComptes();
}

void FrmCorpus::viderAffichage() {
    lblCaption1_->setText(utf8VersQt(session_.corpus.CheminCorpus));
    Frm_entretiens_->vider();
    Frm_thm_->redessiner();
    PictTps_->hide();
    LblScroll_->hide();
    LblVide_->hide();
    QTimer::singleShot(0, this, [this] { montrerInvite(); }); // an opening may end here
    montrerComptes();
    ImgOnOffent_->icone(QStringLiteral("ImgOn"));
    ImgOnOffthm_->icone(QStringLiteral("ImgOn"));
}

void FrmCorpus::surface(bool visible) {
    Frm_entretiens_->setVisible(visible);
}

Twips FrmCorpus::hauteurFond() const {
    return disposition_.Frm_fond_entretiens.hauteur;
}

void FrmCorpus::montrerComptes() {
    etq_[0]->setText(versQt(compteThematiques(session_.corpus)));
    etq_[1]->setText(versQt(compteEntretiens(session_.corpus)));
}

void FrmCorpus::montrerDefilement() {
    const VueFrise vue = Frm_entretiens_->vue();
    LblScroll_->montrer(AjusterDefilement(session_, vue.hauteur), vue.defilement, vue.hauteur);
}

/// What to do first, where there is nothing to see yet.
void FrmCorpus::montrerInvite() {
    const EtatCorpus& corpus = session_.corpus;
    LblVide_->setVisible(nombreLignes(corpus) == 0);
    if (corpus.CheminCorpus.empty())
        LblVide_->setText(QStringLiteral("Menu Corpus : créez ou ouvrez un corpus"));
    else if (corpus.ouvertureInachevee)
        LblVide_->setText(QStringLiteral("Ce corpus n'est pas ouvert"));
    else
        LblVide_->setText(QStringLiteral("Ajoutez un entretien (+)"));
}

void FrmCorpus::basculerEntretiens() {
    const bool tous = basculerTousEntretiens(session_.corpus);
    ImgOnOffent_->icone(tous ? QStringLiteral("ImgOn") : QStringLiteral("ImgOff"));
    fenetres_.annoncer({Sujet::Bascules});
}

void FrmCorpus::basculerThematiques() {
    const bool toutes = basculerToutesThematiques(session_.corpus);
    ImgOnOffthm_->icone(toutes ? QStringLiteral("ImgOn") : QStringLiteral("ImgOff"));
    fenetres_.annoncer({Sujet::Bascules});
}

void FrmCorpus::zoomPlus() {
    zoomer(zoomAvant(session_.corpus.HauteurEntretien));
}
void FrmCorpus::zoomMoins() {
    zoomer(zoomArriere(session_.corpus.HauteurEntretien));
}

/// The row at the window's top stays there.
void FrmCorpus::zoomer(float hauteur) {
    if (nombreLignes(session_.corpus) == 0) return;
    const Twips rangs = Frm_entretiens_->vue().defilement / session_.corpus.HauteurEntretien;
    const Sablier sablier(plateforme_.ecran, Pointeur::FlecheSablier);
    surface(false);
    session_.corpus.HauteurEntretien = hauteur;
    garder([this] { fenetres_.annoncer({Sujet::Entretiens}); });
    surface(true);
    Frm_entretiens_->defiler(rangs * hauteur);
}

void FrmCorpus::tailleReelle() {
    const Sablier sablier(plateforme_.ecran);
    surface(false);
    session_.corpus.TailleReelle = !session_.corpus.TailleReelle;
    garder([this] { fenetres_.annoncer({Sujet::Entretiens}); });
    surface(true);
}

void FrmCorpus::croix() {
    ImgCroix_->gauche() ? reduire() : quitter();
}

void FrmCorpus::closeEvent(QCloseEvent* evenement) {
    finirPar(*evenement);
}

/// Windows that are open over this one stay in front of it.
void FrmCorpus::changeEvent(QEvent* evenement) {
    Forme::changeEvent(evenement);
    if (evenement->type() != QEvent::ActivationChange || !isActiveWindow()) return;
    garder([this] {
        DessinerVolume();
        for (const Fenetre autre : {Fenetre::FrmSaisie, Fenetre::FrmVisu})
            if (fenetres_.visible(autre)) return fenetres_.montrer(autre);
    });
}

} // namespace vermo
