#pragma once
#include "corpus/DispositionCorpus.h"
#include "window/Fenetres.h"
#include "window/ui/Commandes.h"
#include "window/ui/Forme.h"

#include <array>

class QLabel;
class QProgressBar;

namespace vermo {

class BarreDefilement;
class CroixDouble;
class Lien;
class Toile;
class ToileEntretiens;
class ToileThematiques;

/// The main window: thematics on the left, the timeline of the interviews on the right, menus and command
/// buttons above them. Shows the Session and changes nothing of the corpus by itself but its switches; what
/// goes further is asked of `Fenetres`.
///
/// Members by object name: ImgTop (title), lblCaption0 (version), lblCaption1 (path of the corpus), PictVol,
/// ImgCroix0, lblmenu0 to lblmenu3, Imgbtn0 to Imgbtn8 (2 stands for no command and isn't there), ImgZoom0,
/// ImgZoom1, etq0, etq1, ImgOnOffthm0, ImgOnOffent, Frm_fond_thm with Frm_thm, Frm_fond_entretiens with
/// Frm_entretiens and LblScroll, PictTps, ProgressBar1, LblVide (what to do first).
class FrmCorpus : public Forme {
    Q_OBJECT
  public:
    FrmCorpus(Session& session, Plateforme& plateforme, Fenetres& fenetres);
    static TableCommandes commandes();

    void surAvis(const Avis& avis) override;
    /// Scans the interviews, then shows rows, bars, ruler and counters anew.
    void RedessinerFrise();
    /// Shows bars, colours of the thematics and counters anew; says of which interviews the duration is 0.
    void RedessinerPistes();
    void montrerFrise(); ///< what RedessinerFrise shows, from the Session as it stands
    void montrerPistes();
    void ConstruireThematiques(); ///< the list of thematics
    /// Nothing of the corpus that was open: no rows, no thematics, no highlight; its path stays the
    /// Session's.
    void viderAffichage();
    /// Hides or shows the surface of the rows while they are laid out anew.
    void surface(bool visible);
    /// Draws the volume gauge; VolumeLecture is the player's when it wasn't read yet.
    void DessinerVolume();

    Twips hauteurFond() const; ///< of Frm_fond_entretiens, for HauteurEntretien
    QProgressBar* ProgressBar1() const { return ProgressBar1_; }

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void construireTitre();
    void construireMenus();
    void construireBoutons();
    void construirePanneaux();
    BoutonImage* ajouterBouton(std::string_view commande);
    void placerControles();
    template <Panneau panneau>
    void ouvrirMenu();
    void ouvrirVolume();
    bool rangChoisi() const;
    void ouvrirRang();
    template <bool seul>
    void basculerRang();
    template <int pas>
    void deplacerRang();
    bool listeThematiques() const;
    template <bool seule>
    void basculerThematique();
    void croix();
    void quitter() { fenetres_.finir(); }
    void reduire() { showMinimized(); }
    void tailleReelle();
    void ajouterEntretien() { fenetres_.ImporterEntretien(); }
    void zoomPlus();
    void zoomMoins();
    void zoomer(float hauteur);
    void basculerEntretiens();
    void basculerThematiques();
    void montrerComptes();
    void montrerDefilement();
    void montrerInvite();
    Rectangle surEcran(const QWidget* controle) const;

    static const Commande COMMANDES[];
    Commandes commandes_{*this, commandes()};
    DispositionCorpus disposition_;
    QWidget *ImgTop_, *Frm_fond_thm_, *Frm_fond_entretiens_, *FrmBtnEntr_;
    ToileThematiques* Frm_thm_;
    ToileEntretiens* Frm_entretiens_;
    BarreDefilement* LblScroll_;
    Toile *PictTps_, *PictVol_;
    QLabel *lblCaption1_, *LblVide_;
    std::array<QLabel*, 2> etq_{};
    std::array<Lien*, 4> lblmenu_{};
    std::array<BoutonImage*, 9> Imgbtn_{};
    std::array<BoutonImage*, 2> ImgZoom_{};
    BoutonImage *ImgOnOffent_, *ImgOnOffthm_;
    CroixDouble* ImgCroix_;
    QProgressBar* ProgressBar1_;
};

} // namespace vermo
