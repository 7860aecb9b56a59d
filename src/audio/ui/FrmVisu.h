#pragma once
#include "audio/ImageOnde.h"
#include "audio/Suivi.h"
#include "transcription/Marquage.h"
#include "window/Fenetres.h"
#include "window/ui/CapteurTouches.h"
#include "window/ui/Forme.h"
#include "window/ui/Theme.h"
#include "window/ui/Toile.h"

#include <QLabel>
#include <QTimer>
#include <array>
#include <vector>

class QKeyEvent;

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
    void Timtrait_Tick(); ///< unrolls the extract's text

  protected:
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    // FrmVisu.cpp: controls, places, opening.
    void creerControles();
    void creerBoutons();
    BoutonImage* creerBouton(const char* nom, const char* icone, const char* bulle,
                             void (FrmVisu::*action)());
    void disposer();
    void disposerTitre(Twips L);
    void brancherTitre();
    void reglerTimers();
    bool attendreDuree();
    void commencerFondu(Ouverture ouverture);
    Entretien& entretien();

    // FrmVisuImages.cpp: pictures and rulers.
    Utf8 cheminCache() const; ///< the picture of Picture1, beside the recording
    void remplirVue();
    void DessinerVueEtCache(const Utf8& cache);
    void dessinerRegleEnVue(const Utf8& cache);
    void enregistrerCache(const Utf8& cache, const Bitmap8& image);
    QImage ondeZoom();
    double densite() const; ///< device pixels a twip

    // FrmVisuExtraits.cpp: shapes and the extract told.
    void deplacerForme(Toile& toile, Controle controle, Etendue place, bool visible = true);
    void cacherForme(Toile& toile, Controle controle);
    void cacherSelections();
    void suivreShpVisu();
    void placerCurseurZoom(Twips largeur);
    void AfficherBulleExtrait(int k);
    void entourer(int k);
    void poserLblXtrBulle(int k);

    // FrmVisuVue.cpp: gestures on the overview.
    void brancherVue();
    void presserVue(const Souris& souris);
    void survolerVue(const Souris& souris);
    void relacherVue(const Souris& souris);
    void allerSurVue(Twips debut, Twips x);
    void direExtraitSous(Twips x);
    void zoomerExtrait(int k);

    // FrmVisuZoom.cpp: gestures on the zoom band.
    void brancherZoom();
    void presserZoom(const Souris& souris);
    void survolerZoom(const Souris& souris);
    void glisserSelection(Twips x);
    void relacherZoom(const Souris& souris);
    void creerExtrait(Twips x);
    void chercher(Twips x);
    void presserElement(const Element& element, Twips x);
    void deplacerPoignee(Twips x);
    void relacherPoignee(bool debut, Twips x);
    void poserBorne(int k, bool debut, double v);
    void refuserEnglobement();
    void ouvrirExtrait(int k);

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
    void direEtatSon();
    bool ramenerSaisie(bool enCours);
    bool quitter();
    void fermer();
    void retournerAuCorpus();
    void dechargerPlusTard();

    // FrmVisuTouches.cpp: the keyboard.
    bool presserTouche(const QKeyEvent& touche);
    bool presserRaccourci(const QKeyEvent& touche);
    bool relacherTouche(const QKeyEvent& touche);
    void extraitVoisin(int sens);
    void decalerBorne(bool debut, double secondes);
    void sauterSurVue(double secondes);

    Toile *Picture1_, *Pict_tps_, *PictLect_, *Pict_zoom_, *Pict_tpsZ_, *PictVol_, *Imagetitre_;
    QWidget* Frm_zoom_;
    std::array<BoutonImage*, 7> ImgMedia_{}; ///< members 1 to 6
    BoutonImage *ImgCroix_, *ImgCorpus_;
    QLabel *LblCompteur_, *lblfich_, *LblXtrBulle_, *lblEtat_;
    CapteurTouches* TxtCtrl_;
    QTimer Timer1_, Timer3_, TimerPlus_, TimerMoins_, Timtrait_;

    Ecoute ecoute_; ///< of the player, once an interview is opened
    MetriquesQt metriques_;
    PointsOnde PointsVue_, PointsZoom_;
    bool dessinEnCours_ = false; ///< the progress shown meanwhile lets other ticks in
    bool ferme_ = false;         ///< the closing fade runs, or is done
    bool marqueDemarre_ = false; ///< the Enter key has started the player and set the mark
    int extraitDit_ = 0;         ///< extract told in PictLect; 0: none
    Twips RevelationBulle_ = 0;

    /// What a press took hold of; the release belongs to it wherever it ends.
    struct Prise {
        Controle controle = Controle::Aucun;
        int index = 0;
        Twips gauche = 0;
        bool tenue = false;
    };
    Prise priseVue_, priseZoom_;
    Twips GlisseVueDebut_ = 0, GlisseVueFin_ = 0; ///< a start of 0: no press under way
    Twips GlisseZoomDebut_ = 0, GlisseZoomFin_ = 0;
    Twips PoigneeTenue_ = 0; ///< the handle's Left; 0: none
    int IndexPoignee_ = 0, ExtraitPoignee_ = 0;
};

} // namespace vermo
