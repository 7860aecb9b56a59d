// Controls of the interview window and their places.
#include "audio/ui/ControlesVisu.h"
#include "audio/ui/FrmVisu.h"
#include "audio/ui/GeometrieVisu.h"
#include "window/Placement.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"

#include <utility>

namespace vermo {

using namespace visu;

void FrmVisu::creerControles() {
    Imagetitre_ =
        habiller(new Toile(QStringLiteral("Imagetitre"), this), "Titre de la fenêtre", theme::PANNEAU);
    Picture1_ = habiller(new ToileVue(session_, this), "Vue d'ensemble de l'enregistrement", theme::ONDE);
    Pict_tps_ =
        habiller(new Toile(QStringLiteral("Pict_tps"), this), "Minutes de l'enregistrement", theme::REGLE);
    PictLect_ = habiller(new ToileLecture(session_, this), "Texte de l'extrait", theme::PANNEAU);
    Frm_zoom_ = new QWidget(this);
    Frm_zoom_->setObjectName(QStringLiteral("Frm_zoom"));
    Pict_zoom_ = habiller(new ToileZoom(session_, Frm_zoom_), "Zoom de l'enregistrement", rvb(45, 44, 45));
    Pict_tpsZ_ = habiller(new Toile(QStringLiteral("Pict_tpsZ"), this), "Secondes du zoom", theme::REGLE);
    PictVol_ = habiller(new Toile(QStringLiteral("PictVol"), this), "Volume sonore", theme::PANNEAU);
    PictVol_->setToolTip(commandes_.bulle("volume"));
}

void FrmVisu::creerEtiquettes() {
    lblfich_ = creerEtiquette("lblfich", CORPS_FICHIER, false, theme::TEXTE, this);
    LblCompteur_ = creerEtiquette("LblCompteur", 14, true, theme::TEXTE, this);
    LblCompteur_->setAlignment(Qt::AlignCenter);
    LblCompteur_->setText(QStringLiteral("00:00"));
    lblEtat_ = creerEtiquette("lblEtat", 8, false, theme::TEXTE_DISCRET, this);

    TxtCtrl_ = new CapteurTouches(QStringLiteral("Commandes de l'entretien"), this);
    commandes_.capter(*TxtCtrl_);
    commandes_.avantBouton = [this] { TxtCtrl_->setFocus(); };
    commandes_.enService = [this] { return !ferme_; };
}

void FrmVisu::creerBoutons() {
    ImgMedia_[5] = commandes_.bouton("reculer", this);
    ImgMedia_[1] = commandes_.bouton("lire", this);
    ImgMedia_[4] = commandes_.bouton("pause", this);
    ImgMedia_[6] = commandes_.bouton("avancer", this);
    ImgMedia_[3] = commandes_.bouton("zoom-arriere", this);
    ImgMedia_[2] = commandes_.bouton("zoom-avant", this);
    ImgMedia_[4]->hide();
    ImgCorpus_ = commandes_.bouton("corpus", this);
    ImgCroix_ = commandes_.bouton("fermer", this);
    LblReprendre_ = commandes_.ligne("reprendre", this);
    LblReprendre_->hide();

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
    poser(LblReprendre_, {RETRAIT + largeur - 30 - REPRISE, H - BAS, REPRISE, BAS - 30});
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

} // namespace vermo
