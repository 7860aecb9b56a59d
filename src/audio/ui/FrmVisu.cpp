#include "audio/ui/FrmVisu.h"

#include "audio/Regles.h"
#include "audio/Vues.h"
#include "audio/Zoom.h"
#include "audio/ui/GeometrieVisu.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "window/Placement.h"
#include "window/ui/Glace.h"

#include <QCloseEvent>
#include <QPainter>

namespace vermo {

using namespace visu;

FrmVisu::FrmVisu(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent)
    : Forme("FrmVisu", session, plateforme, fenetres, parent) {
    creerControles();
    creerEtiquettes();
    creerBoutons();
    disposer();
    brancherTitre();
    brancherImages();
    reglerTimers();
    commandes_.ecouter();
    Transparence(0);
    TxtCtrl_->setFocus();
}

void FrmVisu::reglerTimers() {
    regler(Timer1_, "Timer1", 50, [this] { Timer1_Tick(); });
    regler(Timer3_, "Timer3", 1, [this] { Timer3_Tick(); });
    regler(TimerPlus_, "TimerPlus", 50, [this] { TimerPlus_Tick(); });
    regler(TimerMoins_, "TimerMoins", 50, [this] { TimerMoins_Tick(); });
}

Entretien& FrmVisu::entretien() {
    EtatCorpus& corpus = session_.corpus;
    const int slot = corpus.EntretienCourant;
    if (slot < 1 || slot > corpus.NbEntretiens) throw FauteExecution("aucun entretien n'est choisi");
    return entretienDe(corpus, slot);
}

bool FrmVisu::OuvrirEntretienVue(Ouverture ouverture) {
    LecteurMedia& media = plateforme_.media;
    if (media.URL().empty() || !fichierExiste(media.URL())) {
        plateforme_.dialogues.demander(
            {.texte = "Le fichier spécifié est introuvable.\n\nVous l'avez peut-être supprimé?...",
             .titre = "Vermo",
             .icone = Icone::Critique});
        return false;
    }
    ecoute_ =
        media.ecouter([this](EtatLecture etat) { garder([this, etat] { Media_PlayStateChange(etat); }); });
    disposer(); // the screen may have changed since the window was made
    commencerFondu(ouverture);
    const Texte& nom = entretien().Fichier;
    lblfich_->setText(versQt(elider(nom, enTwips(lblfich_->width()), CORPS_FICHIER)));
    Imagetitre_->setToolTip(versQt(nom));
    setWindowTitle(versQt(nom));
    if (!media.enLecture()) {
        media.play();
        if (entretien().Reprise != 0) media.currentPosition(entretien().Reprise);
    }
    if (!attendreDuree()) return false;
    deplacements_ = media.ecouterDeplacements([this] { garder([this] { suivreArret(); }); });
    // The screen makes room for the window while its pictures are drawn; what takes long is drawn before.
    if (fichierExiste(cheminCache(media.URL()))) show();

    session_.audio.MarqueDebut = 0;
    session_.transcription.signalement.oublier();
    Pict_tps_->dessin(dessinerRegleMinutes(session_.audio.DureeFichier, Picture1_->largeurTwips()));
    remplirVue();
    DessinerZoom();
    if (!media.enLecture()) media.play();
    Media_PlayStateChange(media.playState());
    show();
    return true;
}

bool FrmVisu::attendreDuree() {
    double duree = entretien().Duree;
    while (!(duree > 0)) {
        LecteurMedia& media = plateforme_.media;
        while (media.duration() == 0 && media.erreur().empty() &&
               plateforme_.progression.patienter(ATTENTE_DUREE)) {
        }
        duree = media.duration();
        if (duree > 0) break;
        const Reponse reponse = plateforme_.dialogues.demander(
            {.texte =
                 "Un problème est survenu lors du calcul de la durée du fichier.\n\nVoulez-vous réessayer?",
             .titre = "Vermo",
             .boutons = Boutons::OuiNon,
             .icone = Icone::Question});
        if (reponse != Reponse::Oui) return false;
    }
    ouvrirZoom(session_.audio, duree);
    return true;
}

void FrmVisu::commencerFondu(Ouverture ouverture) {
    constexpr float DEPART_FONDU = 7;
    ferme_ = false;
    const bool fondu = ouverture == Ouverture::AvecFondu;
    session_.EtatFondu = fondu ? DEPART_FONDU : FONDU_VISU.opaque;
    Transparence(fondu ? 0 : static_cast<int>(FONDU_VISU.opaque));
    Timer1_.start();
    Timer3_.start();
}

void FrmVisu::changeEvent(QEvent* evenement) {
    Forme::changeEvent(evenement);
    if (evenement->type() != QEvent::ActivationChange || !isActiveWindow()) return;
    garder([this] {
        DessinerVolume();
        suivreArret(); // FrmSaisie may have sent it elsewhere
    });
}

void FrmVisu::closeEvent(QCloseEvent* evenement) {
    evenement->ignore();
    garder([this] { fermer(); });
}

void FrmVisu::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), couleurQt(theme::FENETRE));
    peintre.setPen(couleurQt(theme::BORD));
    peintre.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace vermo
