#include "audio/ui/FrmVisu.h"

#include "audio/Regles.h"
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

namespace {

constexpr int CORPS_FICHIER = 10;

Toile* creerToile(const char* nom, const char* nomLu, Couleur fond, QWidget* parent) {
    auto* toile = new Toile(QLatin1String(nom), parent);
    toile->setAccessibleName(QString::fromUtf8(nomLu));
    toile->fond(fond);
    return toile;
}

QLabel* creerEtiquette(const char* nom, int corps, bool gras, Couleur encre, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(QLatin1String(nom));
    etiquette->setFont(theme::police(corps, gras));
    etiquette->setTextFormat(Qt::PlainText);
    QPalette palette = etiquette->palette();
    palette.setColor(QPalette::WindowText, couleurQt(encre));
    etiquette->setPalette(palette);
    etiquette->setAttribute(Qt::WA_TransparentForMouseEvents);
    return etiquette;
}

} // namespace

FrmVisu::FrmVisu(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent)
    : Forme("FrmVisu", session, plateforme, fenetres, parent) {
    creerControles();
    creerBoutons();
    disposer();
    brancherTitre();
    brancherVue();
    brancherZoom();
    reglerTimers();
    Transparence(0);
    TxtCtrl_->setFocus();
}

void FrmVisu::creerControles() {
    Imagetitre_ = creerToile("Imagetitre", "Titre de la fenêtre", theme::PANNEAU, this);
    Picture1_ = creerToile("Picture1", "Vue d'ensemble de l'enregistrement", theme::ONDE, this);
    Pict_tps_ = creerToile("Pict_tps", "Minutes de l'enregistrement", theme::REGLE, this);
    PictLect_ = creerToile("PictLect", "Texte de l'extrait", theme::PANNEAU, this);
    Frm_zoom_ = new QWidget(this);
    Frm_zoom_->setObjectName(QStringLiteral("Frm_zoom"));
    Pict_zoom_ = creerToile("Pict_zoom", "Zoom de l'enregistrement", rvb(45, 44, 45), Frm_zoom_);
    Pict_tpsZ_ = creerToile("Pict_tpsZ", "Secondes du zoom", theme::REGLE, this);
    PictVol_ = creerToile("PictVol", "Volume sonore", theme::PANNEAU, this);
    PictVol_->setToolTip(QStringLiteral("Volume sonore (F4)"));

    lblfich_ = creerEtiquette("lblfich", CORPS_FICHIER, false, theme::TEXTE, this);
    LblCompteur_ = creerEtiquette("LblCompteur", 14, true, theme::TEXTE, this);
    LblCompteur_->setAlignment(Qt::AlignCenter);
    LblCompteur_->setText(QStringLiteral("00:00"));
    lblEtat_ = creerEtiquette("lblEtat", 8, false, theme::TEXTE_DISCRET, this);
    LblXtrBulle_ = creerEtiquette("LblXtrBulle", 11, false, theme::TEXTE, PictLect_);
    LblXtrBulle_->setWordWrap(true);
    LblXtrBulle_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    LblXtrBulle_->hide();

    TxtCtrl_ = new CapteurTouches(QStringLiteral("Commandes de l'entretien"), this);
    TxtCtrl_->surTouche = [this](const QKeyEvent& touche, Frappe frappe) {
        return frappe == Frappe::Relachement ? relacherTouche(touche) : presserTouche(touche);
    };
}

BoutonImage* FrmVisu::creerBouton(const char* nom, const char* icone, const char* bulle,
                                  void (FrmVisu::*action)()) {
    auto* bouton = new BoutonImage(QLatin1String(nom), QLatin1String(icone), QString::fromUtf8(bulle), this);
    connect(bouton, &QAbstractButton::clicked, this, [this, action] {
        TxtCtrl_->setFocus();
        garder([&] { (this->*action)(); });
    });
    return bouton;
}

void FrmVisu::creerBoutons() {
    ImgMedia_[5] =
        creerBouton("ImgMedia5", "Precedent", "Reculer dans l'entretien (←)", &FrmVisu::empanArriere);
    ImgMedia_[1] = creerBouton("ImgMedia1", "Lecture", "Lire (Espace)", &FrmVisu::jouer);
    ImgMedia_[4] = creerBouton("ImgMedia4", "Pause", "Pause (Espace)", &FrmVisu::mettreEnPause);
    ImgMedia_[6] = creerBouton("ImgMedia6", "Suivant", "Avancer dans l'entretien (→)", &FrmVisu::empanAvant);
    ImgMedia_[3] = creerBouton("ImgMedia3", "ZoomMoins", "Zoom arrière (-)", &FrmVisu::zoomArriere);
    ImgMedia_[2] = creerBouton("ImgMedia2", "ZoomPlus", "Zoom avant (+)", &FrmVisu::zoomAvant);
    ImgMedia_[4]->hide();
    ImgCorpus_ = creerBouton("ImgCorpus", "RetourCorpus", "Revenir au corpus (Alt + Origine)",
                             &FrmVisu::retournerAuCorpus);
    ImgCroix_ = new BoutonImage(QStringLiteral("ImgCroix"), QStringLiteral("Croix"),
                                QStringLiteral("Fermer l'entretien (Échap)"), this);
    connect(ImgCroix_, &QAbstractButton::pressed, this, [this] { garder([this] { fermer(); }); });

    for (const auto& [bouton, timer] :
         {std::pair(ImgMedia_[5], &TimerMoins_), std::pair(ImgMedia_[6], &TimerPlus_)}) {
        connect(bouton, &QAbstractButton::pressed, timer, [timer = timer] { timer->start(); });
        connect(bouton, &QAbstractButton::released, timer, &QTimer::stop);
    }
}

void FrmVisu::disposer() {
    const ZoneTravail zone = plateforme_.ecran.zoneTravail();
    placer({zone.gauche + GAUCHE, zone.haut + HAUT, zone.largeur - GAUCHE - MARGE_DROITE,
            cadreUtile(zone).hauteur - HAUT});
    const Twips L = enTwips(width()), H = enTwips(height());
    disposerTitre(L);

    const Twips largeur = L - 2 * RETRAIT;
    poser(Picture1_, {RETRAIT_VUE, VUE_HAUT, largeur, HAUTEUR_PICTURE1});
    poser(Pict_tps_, {RETRAIT, VUE_HAUT + HAUTEUR_PICTURE1, largeur, REGLE});
    poser(PictLect_, {RETRAIT, LECT_HAUT, largeur, LECT_HAUTEUR});
    const Twips zoomHaut = LECT_HAUT + LECT_HAUTEUR;
    const Twips zoomHauteur = H - zoomHaut - REGLE_ZOOM - BAS;
    poser(Frm_zoom_, {RETRAIT, zoomHaut, largeur, zoomHauteur});
    poser(Pict_zoom_, {0, 0, largeur, zoomHauteur});
    poser(Pict_tpsZ_, {RETRAIT, zoomHaut + zoomHauteur, largeur, REGLE_ZOOM});
    poser(lblEtat_, {RETRAIT + 30, H - BAS, largeur - 60, BAS - 30});
}

void FrmVisu::disposerTitre(Twips L) {
    const auto bouton = [](QWidget* controle, Twips gauche) {
        poser(controle, {gauche, TITRE_HAUT + (TITRE_HAUTEUR - BOUTON) / 2, BOUTON, BOUTON});
    };
    poser(Imagetitre_, {RETRAIT, TITRE_HAUT, L - 2 * RETRAIT, TITRE_HAUTEUR});
    const Twips croix = L - BOUTON_CROIX + 30 - RETRAIT;
    poser(ImgCroix_, {croix, TITRE_HAUT, BOUTON_CROIX - 60, TITRE_HAUTEUR});
    bouton(ImgCorpus_, croix - BOUTON - 60);
    const Twips volume = croix - BOUTON - VOLUME - 240;
    poser(PictVol_, {volume, TITRE_HAUT + 105, VOLUME, TITRE_HAUTEUR - 210});

    const Twips compteur = L / 2 - COMPTEUR / 2;
    poser(LblCompteur_, {compteur, TITRE_HAUT, COMPTEUR, TITRE_HAUTEUR});
    bouton(ImgMedia_[5], compteur - 3 * BOUTON);
    bouton(ImgMedia_[1], compteur - 2 * BOUTON);
    bouton(ImgMedia_[4], compteur - 2 * BOUTON);
    bouton(ImgMedia_[6], compteur - BOUTON);
    bouton(ImgMedia_[3], compteur + COMPTEUR);
    bouton(ImgMedia_[2], compteur + COMPTEUR + BOUTON);
    const Twips fichier = std::min(FICHIER, compteur - 3 * BOUTON - RETRAIT - 240);
    poser(lblfich_, {RETRAIT + 150, TITRE_HAUT, fichier, TITRE_HAUTEUR});
}

void FrmVisu::brancherTitre() {
    deplacerPar(Imagetitre_);
    Imagetitre_->surDoubleClic = [this](const Souris&) {
        Picture1_->resize(qRound(enPixels(enTwips(width()) - 480)), Picture1_->height());
        AfficherExtraits();
    };
    PictVol_->surClic = [this](const Souris&) { montrerVolume(); };
    PictVol_->surMouvement = PictVol_->surClic;
}

void FrmVisu::reglerTimers() {
    const struct {
        QTimer& timer;
        const char* nom;
        int ms;
        void (FrmVisu::*tic)();
    } timers[] = {{Timer1_, "Timer1", 50, &FrmVisu::Timer1_Tick},
                  {Timer3_, "Timer3", 1, &FrmVisu::Timer3_Tick},
                  {TimerPlus_, "TimerPlus", 50, &FrmVisu::TimerPlus_Tick},
                  {TimerMoins_, "TimerMoins", 50, &FrmVisu::TimerMoins_Tick},
                  {Timtrait_, "Timtrait", 3, &FrmVisu::Timtrait_Tick}};
    for (const auto& [timer, nom, ms, tic] : timers) {
        timer.setObjectName(QLatin1String(nom));
        timer.setParent(this);
        timer.setInterval(ms);
        connect(&timer, &QTimer::timeout, this, [this, tic = tic] { garder([&] { (this->*tic)(); }); });
    }
}

Entretien& FrmVisu::entretien() {
    EtatCorpus& corpus = session_.corpus;
    const int slot = corpus.EntretienCourant;
    if (slot < 1 || slot > corpus.NbEntretiens) throw FauteExecution("aucun entretien n'est choisi");
    return corpus.Entretiens[static_cast<std::size_t>(slot)];
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
    // The screen makes room for the window while its pictures are drawn; what takes long is drawn before.
    if (fichierExiste(cheminCache())) show();

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
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow())
        garder([this] { DessinerVolume(); });
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
