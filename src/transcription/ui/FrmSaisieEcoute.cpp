// The player's side of the transcription window: play loop, dictation, speed, lengthening, the waveform's
// mouse.
#include "audio/ImageOnde.h"
#include "transcription/Saisie.h"
#include "transcription/ui/EditeurRtr.h"
#include "transcription/ui/FrmSaisie.h"
#include "transcription/ui/FrmSaisieTailles.h"
#include "window/ui/Glace.h"

#include <QLabel>

namespace vermo {

namespace t = tailles_saisie;

void FrmSaisie::creerEcoute() {
    Pict_saisie_ = new Toile(QStringLiteral("Pict_saisie"), this);
    Pict_saisie_->setAccessibleName(QStringLiteral("Forme d'onde de l'extrait"));
    Pict_saisie_->fond(theme::ONDE);
    poser(Pict_saisie_, t::PICT_SAISIE);
    Pict_saisie_->surPression = [this](const Souris& souris) { ondePressee(souris); };
    Pict_saisie_->surMouvement = [this](const Souris& souris) { ondeGlissee(souris); };
    Pict_saisie_->surRelachement = [this](const Souris& souris) { ondeRelachee(souris); };

    ImgMedia_ = creerBouton("lecture", t::IMGMEDIA);
    LblTip_ = new QLabel(commandes_.avecTouches("[{lecture}]"), this);
    LblTip_->setObjectName(QStringLiteral("LblTip"));
    LblTip_->setAlignment(Qt::AlignCenter);
    poser(LblTip_, t::LBLTIP);
    LblTip_->hide();
    ImgMedia_->installEventFilter(this);

    ImgPlus_ = {creerBouton("allonger", t::IMGPLUS), creerBouton("arreter-allongement", t::IMGPLUS)};
    ImgPlus_[1]->hide();

    regler(Timer1_, "Timer1", 50, [this] { Timer1_Tick(); });
    regler(Timer2_, "Timer2", 1, [this] { Timer2_Tick(); });
    regler(Timer3_, "Timer3", 1000, [this] { Timer3_Tick(); });
    regler(Timer4_, "Timer4", 1000, [this] { Timer4_Tick(); });
    deplacements_ = plateforme_.media.ecouterDeplacements([this] { garder([this] { suivreLecteur(); }); });
    ecoute_ = plateforme_.media.ecouter(
        [this](EtatLecture etat) { garder([this, etat] { Media_PlayStateChange(etat); }); });
}

void FrmSaisie::Media_PlayStateChange(EtatLecture etat) {
    ImgMedia_->icone(enMouvement(etat) ? QStringLiteral("Pause") : QStringLiteral("Lecture"));
    suivreLecteur();
}

/// Lengthening follows the player by a timer of its own.
void FrmSaisie::suivreLecteur() {
    if (!Timer4_.isActive()) Timer1_.start();
}

void FrmSaisie::positionner(double secondes) {
    plateforme_.media.currentPosition(secondes);
}

void FrmSaisie::basculerLecture() {
    LecteurMedia& media = plateforme_.media;
    if (!media.enLecture()) {
        media.play();
    } else {
        media.pause();
        Timer3_.stop();
        if (Timer4_.isActive()) finirAllongement();
    }
    TextRtr_->setFocus();
}

void FrmSaisie::Timer1_Tick() {
    LblTimer_->hide();
    LecteurMedia& media = plateforme_.media;
    if (!media.enLecture()) Timer1_.stop(); // until it plays again or is sent elsewhere
    if (!isVisible()) return;
    const double position = media.currentPosition();
    const bool arrete = media.playState() == EtatLecture::Arrete && position >= media.duration();
    const auto boucle = saisie::suivreBoucle(session_, position, Pict_saisie_->largeurTwips(), arrete);
    if (!boucle.ouverte) return;
    if (boucle.position) positionner(*boucle.position);
    if (boucle.pause)
        media.pause();
    else if (arrete && boucle.position)
        media.play();
    if (boucle.demarrerDecompte) Timer3_.start();
    if (curseur_ == boucle.curseur) return;
    curseur_ = boucle.curseur;
    rafraichirOnde();
}

void FrmSaisie::Timer3_Tick() {
    const auto decompte = saisie::compter(session_, isVisible(), session_.transcription.LblSec);
    LblTimer_->setVisible(decompte.montrer);
    LblTimer_->setText(versQt(decompte.LblTimer));
    suivreLecteur(); // the next tick hides the count again
    if (decompte.arreter) Timer3_.stop();
    if (!decompte.position) return;
    positionner(*decompte.position);
    plateforme_.media.play();
    MontrerPortion(session_.transcription.PortionDebut, session_.transcription.PortionFin);
}

void FrmSaisie::portionSuivante() {
    if (const auto position = saisie::portionSuivante(session_, session_.transcription.LblSec)) {
        positionner(*position);
        plateforme_.media.play();
        if (session_.audio.VitesseLecture != 0) plateforme_.media.rate(session_.audio.VitesseLecture);
        MontrerPortion(session_.transcription.PortionDebut, session_.transcription.PortionFin);
    }
    Timer3_.stop();
}

void FrmSaisie::MontrerPortion(double debut, double fin) {
    portion_ = saisie::MontrerPortion(session_, debut, fin, Pict_saisie_->largeurTwips());
    suivreLecteur();
    rafraichirOnde();
}

void FrmSaisie::dessinerOnde() {
    const auto& etat = session_.transcription;
    const double duree = session_.audio.DureeFichier;
    const Twips largeur = Pict_saisie_->largeurTwips(), hauteur = Pict_saisie_->hauteurTwips();
    const double densite = devicePixelRatioF() / TWIPS_PAR_PIXEL;
    Bitmap8 image = fondUni(largeur, hauteur, densite, theme::ONDE);
    const Utf8 fichier = plateforme_.media.URL();
    Pict_saisie_->dessin({});
    try {
        if (estWav(fichier) && duree > 0)
            session_.audio.EnteteWav =
                vermo::dessinerOnde(image, 0,
                                    {.vue = Vue::Pict_saisie,
                                     .fichier = fichier,
                                     .empan = {etat.SaisieDebut / duree, etat.SaisieDuree / duree},
                                     .largeur = largeur,
                                     .hauteur = hauteur,
                                     .hauteurVue = HAUTEUR_PICTURE1,
                                     .densite = densite},
                                    PointsSaisie_);
    } catch (const FauteExecution& faute) {
        Pict_saisie_->dessin(ligneSansOnde(faute.quoi())); // the extract stays open to correction
    }
    Pict_saisie_->image(versQImage(image));
    rafraichirOnde();
}

void FrmSaisie::rafraichirOnde() {
    const Twips hauteur = Pict_saisie_->hauteurTwips();
    Elements elements;
    if (portion_.largeur > 0)
        elements.push_back({.controle = Controle::ShpDict,
                            .cadre = {portion_.gauche, 0, portion_.largeur, hauteur},
                            .fond = theme::ACCENT,
                            .encre = Encre::Fusion,
                            .rempli = true});
    if (GlisseFin_ > 0)
        elements.push_back({.controle = Controle::SaisieSelect,
                            .cadre = {GlisseDebut_, 0, GlisseFin_ - GlisseDebut_, hauteur},
                            .fond = BLANC,
                            .encre = Encre::Fusion,
                            .rempli = true});
    elements.push_back({.controle = Controle::Curseur,
                        .cadre = {curseur_, 0, t::LARGEUR_CURSEUR, hauteur},
                        .fond = rvb(200, 30, 30),
                        .rempli = true});
    Pict_saisie_->elements(std::move(elements));
}

void FrmSaisie::ondePressee(const Souris& souris) {
    if (souris.bouton != Qt::LeftButton) return;
    GlisseDebut_ = souris.x;
    GlisseFin_ = 0;
}

void FrmSaisie::ondeGlissee(const Souris& souris) {
    if (GlisseDebut_ == 0 || saisie::estClic(GlisseDebut_, souris.x)) return;
    Pict_saisie_->setCursor(Qt::SizeHorCursor);
    GlisseFin_ = souris.x;
    rafraichirOnde();
}

void FrmSaisie::ondeRelachee(const Souris& souris) {
    if (souris.bouton != Qt::LeftButton) return;
    auto& etat = session_.transcription;
    const Twips largeur = Pict_saisie_->largeurTwips();
    Pict_saisie_->unsetCursor();
    if (saisie::estClic(GlisseDebut_, souris.x)) {
        const double position = saisie::tempsSousX(session_, souris.x, largeur);
        positionner(position);
        curseur_ = souris.x;
        if (etat.DicteeActive) {
            saisie::demarrerPortion(session_, position, etat.LblSec);
            MontrerPortion(etat.PortionDebut, etat.PortionFin);
            Timer3_.stop();
        }
    } else {
        etat.LblSec = tagSecondes_ = saisie::selectionnerPortion(session_, GlisseDebut_, souris.x, largeur);
        positionner(etat.PortionDebut);
        etat.Compteur = 0;
        if (!etat.DicteeActive) basculerDictee();
        MontrerPortion(etat.PortionDebut, etat.PortionFin);
        Timer3_.stop();
        montrerOptions();
    }
    GlisseDebut_ = GlisseFin_ = 0;
    rafraichirOnde();
    TextRtr_->setFocus();
}

void FrmSaisie::allonger() {
    positionner(saisie::debutAllongement(session_));
    plateforme_.media.play();
    Timer1_.stop();
    Timer4_.start();
    curseur_ = Pict_saisie_->largeurTwips() - 60;
    FinInitiale_ = session_.transcription.SaisieFin;
    ImgPlus_[1]->show();
    ImgPlus_[1]->raise();
    rafraichirOnde();
}

void FrmSaisie::Timer4_Tick() {
    saisie::allonger(session_, plateforme_.media.currentPosition());
    fiche_.fin = session_.transcription.SaisieFin;
    garderBrouillon();
    titrer();
    dessinerOnde();
}

void FrmSaisie::finirAllongement() {
    saisie::allonger(session_, plateforme_.media.currentPosition());
    fiche_.fin = session_.transcription.SaisieFin;
    garderBrouillon();
    arreterAllongement();
    titrer();
    dessinerOnde();
    positionner(FinInitiale_);
}

void FrmSaisie::arreterAllongement() {
    Timer4_.stop();
    Timer1_.start();
    ImgPlus_[1]->hide();
}

} // namespace vermo
