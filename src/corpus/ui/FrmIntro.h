#pragma once
#include "window/ui/Commandes.h"
#include "window/ui/Forme.h"

#include <QLabel>
#include <QTimer>
#include <functional>

namespace vermo {

class Lien;
class Toile;

/// The start window: creates or opens a corpus, or lists the last ones opened. Making it is the program's
/// start, so it does little: one painted picture, a few lines of text, three buttons. The player is touched
/// by the sound test only.
///
/// Members by object name: Picture1 (the ground, whose outline is the window's), LblVersion, lblcorpus0 to
/// lblcorpus7 (0 new, 1 open, 2 model, from 3 the recent corpora), ImgPuce (items of Picture1), ImgBtn1 (go
/// on without a corpus), Image1 (end), ImgTestSon, LblSon.
class FrmIntro : public Forme {
    Q_OBJECT
  public:
    FrmIntro(Session& session, Plateforme& plateforme, Fenetres& fenetres);
    static TableCommandes commandes();

    /// Tells what hinders the sound that is being tested.
    void TimerSon_Tick();

  protected:
    void closeEvent(QCloseEvent* evenement) override { finirPar(*evenement); }

  private:
    void peindreFond();
    void decouper();
    void ajouterBoutons();
    void listerCorpus();
    Lien* placerLigne(int index, Lien* ligne);
    Lien* ajouterRecent(int index, const Utf8& chemin);
    void creer();
    void choisir();
    void ouvrir(const Utf8& chemin);
    void quitter(const std::function<void()>& ouverture);
    void continuer();
    void arreter() { fenetres_.finir(); }
    void testerSon();
    void lignePrecedente() { focusNextPrevChild(false); }
    void ligneSuivante() { focusNextPrevChild(true); }

    static const Commande COMMANDES[];
    Commandes commandes_{*this, commandes()};
    Toile* Picture1_;
    QLabel* LblSon_;
    QTimer TimerSon_;
    int ticsSon_ = 0;
};

} // namespace vermo
