#pragma once
#include "window/Fenetres.h"
#include "window/ui/Commandes.h"
#include "window/ui/Forme.h"

#include <QFrame>
#include <QTimer>
#include <map>

class QVBoxLayout;

namespace vermo {

class Lien;
class LblVol;

/// The command panels: one borderless window that opens beside what was clicked and shows one of its frames.
/// Closes when a command is chosen, when it loses the activation, and by Esc.
///
/// Members by object name: FrmMnu0 (corpus, with the recent list lblcorpus1 to lblcorpus5), FrmMnu1
/// (interviews, with ImgPlay and ImgOnOff for the current one), FrmMnu2 (thematics), FrmMnu3 (attributes),
/// FrmMnu5 (LblVol with ImgCurseur); the commands are lblmenu0 to lblmenu24. Commands that nothing answers
/// yet are disabled.
class FrmMenu : public Forme {
    Q_OBJECT
  public:
    FrmMenu(Session& session, Plateforme& plateforme, Fenetres& fenetres);
    static TableCommandes commandes();

    void montrer(const Contenu& contenu) override;
    /// Shows the panel under `ancre` (twips of the screen), brought within the screen. A title's panel fades
    /// in from EtatFondu, the volume panel is opaque at once.
    void OuvrirMenu(Panneau panneau, Rectangle ancre);
    /// Puts ImgCurseur where VolumeLecture is.
    void montrerVolume();
    /// One step of the fade-in.
    void Timer1_Tick();

  protected:
    void hideEvent(QHideEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void construirePanneaux();
    QVBoxLayout* ajouterPanneau(Panneau panneau, const QString& titre);
    void ajouterCommande(QVBoxLayout* colonne, std::string_view commande);
    BoutonImage* ajouterIcone(std::string_view commande, QWidget* parent);
    void ajouterEntretienCourant(QVBoxLayout* colonne);
    void ajouterVolume(QVBoxLayout* colonne);
    void listerCorpus();
    void montrerHistoire();
    void montrerEntretienCourant();
    void suivreActivation(const QWindow* fenetre);

    // What the commands do.
    bool entretienChoisi() const;
    void ouvrirParDialogue();
    void ouvrirRecent(const Utf8& chemin);
    void lire();
    void basculer();
    void nouveauCorpus() { fenetres_.NouveauCorpus(); }
    void ajouterEntretien() { fenetres_.ImporterEntretien(); }
    void tailleReelle();
    void retirer() { fenetres_.retirerEntretien(); }
    void fermer() { hide(); }
    void lignePrecedente() { focusNextPrevChild(false); }
    void ligneSuivante() { focusNextPrevChild(true); }

    static const Commande COMMANDES[];
    Commandes commandes_{*this, commandes()};
    std::map<Panneau, QFrame*> FrmMnu_;
    Panneau ouvert_ = Panneau::Corpus;
    QVBoxLayout* colonneRecents_ = nullptr;
    LblVol* LblVol_ = nullptr;
    QTimer Timer1_;
    bool active_ = false; ///< had the activation since it was shown
};

} // namespace vermo
