#pragma once
#include "audio/Onde.h"
#include "corpus/BrouillonTenu.h"
#include "corpus/Session.h"
#include "transcription/Reprise.h"
#include "window/ui/Commandes.h"
#include "window/ui/Forme.h"
#include "window/ui/Theme.h"
#include "window/ui/Toile.h"

#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QLineEdit;

namespace vermo {

class EditeurRtr;
class Lien;

/// The window in which one extract is listened to, typed and coded. Nothing reaches the transcript until the
/// extract is validated. What is typed has its draft on the disk until then; leaving by Esc or the cross
/// discards it, and keeps it at hand as the abandoned text until another is, or until the interview is left.
///
/// The rules stand in transcription/Saisie.h; this class only places controls, asks them, and tells the
/// player. Split by concern: FrmSaisie.cpp (making and opening), FrmSaisieEcoute.cpp (player, timers,
/// waveform), FrmSaisieOptions.cpp (dictation, seconds, speed), FrmSaisieThematiques.cpp (panel and new
/// thematic), FrmSaisieBrouillon.cpp (draft, abandoned text), FrmSaisieCommandes.cpp (what its buttons and
/// keys do).
class FrmSaisie : public Forme {
    Q_OBJECT
  public:
    FrmSaisie(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent = nullptr);
    ~FrmSaisie() override;
    static TableCommandes commandes();

    /// Opens the span SaisieDebut..SaisieFin as a new extract, the panel of thematics out.
    void montrer(const Contenu& contenu) override;
    void surAvis(const Avis& avis) override;
    void PreparerSaisie();
    /// Opens existing extract `n`, faded in.
    void OuvrirExtrait(int n);
    /// Leaves without saving.
    void FermerSaisie();
    /// The text, the thematic or the end of the span are no more what they were at the opening.
    bool entamee() const override;
    /// What was discarded last can be taken up again.
    bool aReprendre() const { return abandon_.has_value(); }
    /// Opens what was typed and no file holds, on its extract or as a new one, and goes on with its draft.
    void reprendre(const saisie::Reprise& reprise, std::unique_ptr<BrouillonTenu> brouillon);
    void mettreALAbri() override;
    /// Refills the panel from the thematic table.
    void ConstruireThematiques();

    void Timer1_Tick(); ///< 50 ms: play loop of the span
    void Timer2_Tick(); ///< 1 ms: fade
    void Timer3_Tick(); ///< 1 s: countdown of the automatic dictation
    void Timer4_Tick(); ///< 1 s: lengthening of the span

    /// The play loop looks at the player, and goes on as long as it plays.
    void suivreLecteur();

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;

  private:
    // FrmSaisie.cpp
    BoutonImage* creerBouton(std::string_view commande, const Rectangle& cadre);
    void creerEntete();
    void creerTexte();
    void preparer();     ///< resets the window for the open span and draws it
    void prendrePlace(); ///< shows the window that is ready, to be typed in
    void placerLargeur(bool depliee);
    void colorer(); ///< the bands, by the thematic and the colour that is being chosen
    void montrerFiche();
    void retrouverExtrait();
    void relireExtrait();
    void montrerThematique();
    void titrer();
    void placerCurseur();
    bool cacherPour(const std::function<bool()>& ecrire);
    void valider();
    void supprimer();
    bool texteValide(Texte& texte); ///< false, and told, when CP1252 can't hold it

    // FrmSaisieBrouillon.cpp
    void garderBrouillon(); ///< after each change of what no file holds
    void tenirBrouillon(std::unique_ptr<BrouillonTenu> brouillon);
    void retirerBrouillon();
    void oublier(std::unique_ptr<BrouillonTenu> brouillon);
    void direFauteBrouillon(const Utf8& faute);
    void abandonner();
    void reprendreAbandon();

    // FrmSaisieEcoute.cpp, FrmSaisieOptions.cpp
    void creerEcoute();
    void Media_PlayStateChange(EtatLecture etat); ///< the play button shows it
    void creerOptions();
    void creerBoutonsDictee();
    void creerSecondes();
    void creerVitesse();
    void dessinerOnde();
    void rafraichirOnde(); ///< cursor, portion and selection over the waveform
    void MontrerPortion(double debut, double fin);
    void basculerLecture();
    void basculerDictee();
    void portionSuivante();
    void ondePressee(const Souris& souris);
    void ondeGlissee(const Souris& souris);
    void ondeRelachee(const Souris& souris);
    void glisserSecondes(const Souris& souris);
    void reglerSecondes(int secondes);
    void glisserVitesse(Twips x);
    void montrerOptions();
    void allonger();
    void finirAllongement();
    void arreterAllongement();
    void positionner(double secondes);

    // FrmSaisieThematiques.cpp
    void creerPanneau();
    void creerAjout();
    void choisirThematique(int rang);
    void surlignerThematique(int rang);
    void deroulerPanneau(Twips pas);
    void choisirCouleur(int index);
    void colorerAjout(Couleur couleur);
    void reinitialiserAjout();
    void ajouterThematique();

    // FrmSaisieCommandes.cpp
    bool dicteeActive() const;
    void deplier() { placerLargeur(true); }
    void plier() { placerLargeur(false); }
    void reculerSeconde();
    void avancerSeconde();
    void basculerBoucle();
    void basculerDicteeAuto();
    void coder() { choisirThematique(rangSurvole_); }
    void lignePrecedente() { surlignerThematique(rangSurvole_ - 1); }
    void ligneSuivante() { surlignerThematique(rangSurvole_ + 1); }

    Ecoute ecoute_, deplacements_; ///< of the player
    static const Commande COMMANDES[];
    Commandes commandes_{*this, commandes()};
    PointsOnde PointsSaisie_;
    Toile* Picture1_ = nullptr; ///< the window's ground, by which it is moved
    Toile* Pict_saisie_ = nullptr;
    Toile* FrmThms_ = nullptr;
    Toile* Picture2_ = nullptr; ///< speed slider
    Toile* LblSec_ = nullptr;
    QLabel *etq_deb_sel_ = nullptr, *etq_fin_sel_ = nullptr, *LblTimer_ = nullptr, *LblTip_ = nullptr;
    QLabel* etat_ = nullptr;
    Lien* lbl_thm_ = nullptr;
    EditeurRtr* TextRtr_ = nullptr;
    QLineEdit *TXTcodethem_ = nullptr, *TxtThema_ = nullptr;
    BoutonImage *ImgMedia_ = nullptr, *Imgsuppr_ = nullptr;
    std::array<BoutonImage*, 2> ImgPlus_{};
    std::array<BoutonImage*, 3> BtnOpt_{};
    QTimer Timer1_, Timer2_, Timer3_, Timer4_;

    saisie::Fiche fiche_, ouverte_;          ///< what is worked on, and as it was at the opening
    std::optional<saisie::Reprise> abandon_; ///< the text that was discarded last
    std::unique_ptr<BrouillonTenu> brouillon_, brouillonAbandon_; ///< once there is something to keep
    Brouillon enTete_;                                            ///< of the draft, without what is typed
    DejaDit brouillonRefuse_;
    bool aLAbri_ = false;      ///< the program is about to end: drafts stay
    bool remplissage_ = false; ///< the text changes by no key
    Couleur couleurAjout_ = 0; ///< of ShpFdThm
    Texte CouleurChoisie_;     ///< decimal value; empty: none
    double FinInitiale_ = 0;   ///< end of the span when lengthening began
    Twips GlisseDebut_ = 0, GlisseFin_ = 0;
    Twips curseur_ = 0;   ///< Left of Curseur
    Rectangle portion_{}; ///< ShpDict; no width: hidden
    bool pressionSecondes_ = false, pressionVitesse_ = false;
    int tagSecondes_;     ///< tag of LblSec
    float fondu_ = 0;     ///< counter of the fade
    int rangSurvole_ = 1; ///< row of the panel that the keyboard stands on
    Twips defilementPanneau_ = 0, hauteurPanneau_ = 0;
};

} // namespace vermo
