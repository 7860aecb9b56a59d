#pragma once
#include "audio/ImageOnde.h"
#include "audio/Suivi.h"
#include "audio/ui/ToileLecture.h"
#include "audio/ui/ToileVue.h"
#include "audio/ui/ToileZoom.h"
#include "transcription/Marquage.h"
#include "window/Fenetres.h"
#include "window/ui/CapteurTouches.h"
#include "window/ui/Commandes.h"
#include "window/ui/Forme.h"

#include <QLabel>
#include <QTimer>
#include <array>

namespace vermo {

/// The interview window: the overview of a recording and its minutes, the text of the extract under the
/// mouse, the zoom band with its bubbles and seconds. It plays the recording, marks extracts on it, and hands
/// their spans to the transcription window.
///
/// It shows the interview `EntretienCourant`, whose recording the player has been given. Unloaded when its
/// closing fade ends, or at once by `ImgCorpus`; both leave the interview first (`quitterEntretien`).
class FrmVisu : public Forme {
    Q_OBJECT
  public:
    FrmVisu(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent = nullptr);
    static TableCommandes commandes();

    /// Loads the interview, starts playing and shows the window. With the fade it comes in
    /// from nearly nothing, otherwise it is opaque at once. False when the opening was given up: a recording
    /// that isn't there, or a duration that never came and that the person wouldn't wait for.
    bool OuvrirEntretienVue(Ouverture ouverture = Ouverture::SansFondu);

    void surAvis(const Avis& avis) override;
    /// Draws the zoom band for the current span, reads the transcript and shows its extracts. A recording
    /// that can't be read leaves the band without a wave; the window goes on.
    void DessinerZoom();
    /// Track and bubbles from the working arrays.
    void AfficherExtraits();
    /// The transcript has changed: reads it and shows its extracts.
    void rafraichirExtraits();
    void DessinerVolume();

    // The timers' jobs, one tick each.
    void Timer1_Tick();    ///< follows the player
    void Timer3_Tick();    ///< fades window and sound
    void TimerPlus_Tick(); ///< moves the span while the button is held
    void TimerMoins_Tick();

  protected:
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    // FrmVisu.cpp: opening.
    void reglerTimers();
    bool attendreDuree();
    void commencerFondu(Ouverture ouverture);
    Entretien& entretien();

    // FrmVisuControles.cpp: controls and their places.
    void creerControles();
    void creerEtiquettes();
    void creerBoutons();
    void disposer();
    void disposerTitre(Twips L);
    void brancherTitre();

    // FrmVisuImages.cpp: pictures and rulers.
    void remplirVue();
    void DessinerVueEtCache(const Utf8& cache); ///< without a wave: one line that says why, and no cache
    void dessinerRegleEnVue(const Utf8& cache);
    void enregistrerCache(const Utf8& cache, const Bitmap8& image);
    QImage ondeZoom();
    double densite() const; ///< device pixels a twip

    // FrmVisuGestes.cpp: what the mouse asks for.
    template <class... Valeurs>
    auto ouverte(void (FrmVisu::*action)(Valeurs...));
    void brancherImages();
    void survolerExtrait(int k, bool surBarre);
    void choisir(const GesteVue& geste);
    void suivreGeste(const GesteZoom& geste);
    void selectionner(Twips& debut, Twips x);
    void rouler(int crans, Qt::KeyboardModifiers touches);
    void chercher(Twips x);
    void cacherSelections();

    // FrmVisuExtraits.cpp: extracts told, made, moved, opened.
    void AfficherBulleExtrait(int k);
    void zoomerExtrait(int k);
    void creerExtrait(Bornes voulues);
    void poserBorne(int k, bool debut, double v);
    void refuserEnglobement();
    void ouvrirExtrait(int k);

    void montrerReprise();
    void reprendreTexte();
    bool aReprendre() const { return fenetres_.texteAbandonne(); }

    // FrmVisuLecture.cpp: the player, commands, closing.
    void Media_PlayStateChange(EtatLecture etat); ///< on each change of the player's state
    void jouer();
    void mettreEnPause();
    void zoomAvant();
    void zoomArriere();
    void empanArriere();
    void empanAvant();
    void apresZoom();
    void marquer();
    void ouvrirSaisie(Bornes span);
    void montrerVolume();
    SuiviLecture montrerPosition(double p);
    void suivreArret(); ///< shows where a player that doesn't play has been sent
    void direEtatSon();
    bool ramenerSaisie(bool enCours);
    bool quitter();
    void fermer();
    void retournerAuCorpus();
    void dechargerPlusTard();

    // FrmVisuCommandes.cpp: what has no place elsewhere of what buttons and keys do.
    void basculerLecture();
    void ouvrirExtraitDit();
    template <int sens>
    void extraitVoisin();
    template <bool debut, int sens>
    void decalerBorne();
    template <int sens>
    void sauterSurVue();

    static const Commande COMMANDES[];
    Commandes commandes_{*this, commandes()};
    ToileVue* Picture1_;
    ToileLecture* PictLect_;
    ToileZoom* Pict_zoom_;
    Toile *Imagetitre_, *Pict_tps_, *Pict_tpsZ_, *PictVol_;
    QWidget* Frm_zoom_;
    std::array<BoutonImage*, 7> ImgMedia_{}; ///< members 1 to 6
    BoutonImage *ImgCroix_, *ImgCorpus_;
    QLabel *LblCompteur_, *lblfich_, *lblEtat_;
    QAbstractButton* LblReprendre_ = nullptr; ///< beside the line at the foot
    CapteurTouches* TxtCtrl_;
    QTimer Timer1_, Timer3_, TimerPlus_, TimerMoins_;

    PointsOnde PointsVue_, PointsZoom_;
    Ecoute ecoute_, deplacements_; ///< of the player, once an interview is opened
    bool dessinEnCours_ = false;   ///< the progress shown meanwhile lets other ticks in
    bool ferme_ = false;           ///< the closing fade runs, or is done
    bool departADire_ = false;     ///< the next start that the player tells of is that of the Enter key
    bool finRefusee_ = false; ///< the Enter key came at or before the mark, and nothing since was beyond it
};

} // namespace vermo
