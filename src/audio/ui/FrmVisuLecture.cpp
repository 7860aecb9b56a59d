#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "corpus/AnalyserEntretiens.h"
#include "textfile/nombres.h"
#include "transcription/Retranscription.h"
#include "window/ui/Glace.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace vermo {

void FrmVisu::Timer1_Tick() {
    direEtatSon();
    LecteurMedia& media = plateforme_.media;
    if (!media.enLecture()) Timer1_.stop(); // until its state changes
    if (ferme_ || !media.enLecture() || fenetres_.visible(Fenetre::FrmSaisie)) return;
    EtatAudio& audio = session_.audio;
    const double p = media.currentPosition();
    const SuiviLecture suivi = montrerPosition(p);
    if (suivi.TotalSelect) Picture1_->montrerSelection(*suivi.TotalSelect);
    if (suivi.ZoomSelect) Pict_zoom_->montrerSelection(*suivi.ZoomSelect);
    if (suivi.pageFinie && !Pict_zoom_->glisse()) {
        tournerPage(audio, p);
        apresZoom();
    }
    entretien().Reprise = suivi.Reprise;
}

SuiviLecture FrmVisu::montrerPosition(double p) {
    const SuiviLecture suivi =
        suivreLecture(session_.audio, p, Picture1_->largeurTwips(), Pict_zoom_->largeurTwips());
    LblCompteur_->setText(versQt(suivi.LblCompteur));
    Pict_zoom_->curseur(suivi.largeurCurseurZoom);
    Picture1_->curseur(suivi.gaucheCurseur);
    return suivi;
}

/// A player that stands still is followed by no tick.
void FrmVisu::suivreArret() {
    const LecteurMedia& media = plateforme_.media;
    if (!deplacements_ || ferme_ || media.enLecture() || fenetres_.visible(Fenetre::FrmSaisie)) return;
    montrerPosition(media.currentPosition());
}

void FrmVisu::direEtatSon() {
    const LecteurMedia& media = plateforme_.media;
    const double marque = session_.audio.MarqueDebut;
    finRefusee_ = finRefusee_ && marque != 0 && media.currentPosition() <= marque;
    const Utf8 erreur = media.erreur();
    const bool alerte = !erreur.empty() || media.muet() || finRefusee_;
    const QString texte =
        !erreur.empty() ? utf8VersQt(erreur)
        : finRefusee_ ? QStringLiteral("La fin d'un extrait vient après son début, qui reste marqué à %1")
                            .arg(versQt(HeureTexte(marque)))
        : media.muet() ? QStringLiteral("Pas de sortie son : la lecture est silencieuse")
                       : commandes_.indices();
    if (texte == lblEtat_->text()) return;
    QPalette palette = lblEtat_->palette();
    palette.setColor(QPalette::WindowText, couleurQt(alerte ? rvb(255, 196, 110) : theme::TEXTE_DISCRET));
    lblEtat_->setPalette(palette);
    lblEtat_->setText(texte);
}

void FrmVisu::Timer3_Tick() {
    if (!isVisible()) return;
    const PasFondu pas = avancer(FONDU_VISU, session_.EtatFondu);
    if (pas.alpha) Transparence(*pas.alpha);
    if (const auto volume = volumeFondu(pas.reste, session_.audio.VolumeLecture))
        plateforme_.media.volume(*volume);
    if (pas.arreter) Timer3_.stop();
    if (pas.decharger) dechargerPlusTard();
}

void FrmVisu::TimerPlus_Tick() {
    empanAvant();
}

void FrmVisu::TimerMoins_Tick() {
    empanArriere();
}

void FrmVisu::Media_PlayStateChange(EtatLecture etat) {
    suivreVolume(session_.audio, plateforme_.media);
    Timer1_.start();
    const bool joue = enMouvement(etat);
    ImgMedia_[4]->setVisible(joue);
    ImgMedia_[1]->setVisible(!joue);
    if (!joue || std::exchange(departADire_, false)) return;
    session_.audio.MarqueDebut = 0;
    cacherSelections();
}

void FrmVisu::jouer() {
    plateforme_.media.play();
}

void FrmVisu::mettreEnPause() {
    plateforme_.media.pause();
}

void FrmVisu::zoomAvant() {
    if (zoomer(session_.audio)) apresZoom();
}

void FrmVisu::zoomArriere() {
    if (dezoomer(session_.audio)) apresZoom();
}

void FrmVisu::empanArriere() {
    reculerEmpan(session_.audio);
    apresZoom();
}

void FrmVisu::empanAvant() {
    avancerEmpan(session_.audio);
    apresZoom();
}

void FrmVisu::apresZoom() {
    Picture1_->suivreEmpan();
    DessinerZoom();
}

/// The player tells later that it plays, and that takes a mark back: not the one that this key keeps. At the
/// recording's end it starts from 0, so the span's end is read before.
void FrmVisu::marquer() {
    constexpr double PREMIER_INSTANT = 0.001; // a mark at 0 would be none
    EtatAudio& audio = session_.audio;
    LecteurMedia& media = plateforme_.media;
    const Bornes span{audio.MarqueDebut, media.currentPosition()};
    departADire_ = !media.enLecture() || ImgMedia_[4]->isHidden();
    if (!media.enLecture()) media.play();
    if (span.debut == 0) {
        audio.MarqueDebut = std::max(media.currentPosition(), PREMIER_INSTANT);
        return;
    }
    finRefusee_ = span.fin <= span.debut;
    if (finRefusee_) return direEtatSon();
    audio.MarqueDebut = 0;
    cacherSelections();
    ouvrirSaisie(span);
}

void FrmVisu::ouvrirSaisie(Bornes span) {
    if (ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie))) return;
    EtatTranscription& etat = session_.transcription;
    etat.SaisieDebut = span.debut;
    etat.SaisieFin = span.fin;
    etat.SaisieDuree = span.fin - span.debut;
    etat.NouvelExtrait = true;
    fenetres_.montrer(Fenetre::FrmSaisie, NouvelExtraitVoulu{});
}

void FrmVisu::montrerVolume() {
    if (fenetres_.visible(Fenetre::FrmMenu)) return;
    constexpr Twips ECART = 60;
    const QPoint coin = PictVol_->mapToGlobal(QPoint());
    Rectangle ancre = enTwips(QRectF(QPointF(coin), QSizeF(PictVol_->size())));
    ancre.hauteur += ECART;
    fenetres_.montrer(Fenetre::FrmMenu, PanneauVoulu{Panneau::Volume, ancre});
}

/// What is being typed is left from its own window, which comes to the front.
bool FrmVisu::ramenerSaisie(bool enCours) {
    if (enCours) fenetres_.montrer(Fenetre::FrmSaisie);
    return enCours;
}

/// What every way out begins with. False when the window stays.
bool FrmVisu::quitter() {
    if (ramenerSaisie(fenetres_.visible(Fenetre::FrmSaisie)) || std::exchange(ferme_, true)) return false;
    quitterEntretien(session_, plateforme_);
    return true;
}

void FrmVisu::fermer() {
    if (!quitter()) return;
    session_.EtatFondu = FONDU_VISU.base;
    Transparence(static_cast<int>(FONDU_VISU.rampe));
    Timer3_.start();
}

void FrmVisu::retournerAuCorpus() {
    if (quitter()) dechargerPlusTard();
}

/// The window can't go while one of its own events or ticks is being answered.
void FrmVisu::dechargerPlusTard() {
    QTimer::singleShot(0, QCoreApplication::instance(), [visu = QPointer(this), &fenetres = fenetres_] {
        if (visu) visu->garder([&] { fenetres.decharger(Fenetre::FrmVisu); });
    });
}

} // namespace vermo
