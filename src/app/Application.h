#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "window/Fenetres.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>

class QProgressBar;

namespace vermo {

class Forme;
class FrmCorpus;
class FrmIntro;
class FrmMenu;
class FrmSaisie;
class FrmVisu;

/// The program: makes each window at its first reference, unloads it, and runs the sequences that go through
/// several windows. All that windows say to each other passes here.
///
/// A window that is unloaded is hidden at once and deleted once its own events have returned.
class Application final : public QObject, public Fenetres {
    Q_OBJECT
  public:
    /// `brancherProgression` is given the bar on which long work shows.
    Application(Session& session, Plateforme& plateforme,
                std::function<void(QProgressBar*)> brancherProgression = {});
    ~Application() override;

    /// Shows the start window.
    void demarrer();

    void montrer(Fenetre fenetre) override;
    void cacher(Fenetre fenetre) override;
    void decharger(Fenetre fenetre) override;
    bool visible(Fenetre fenetre) const override;
    bool saisieEntamee() const override;
    void finir() override;

    void NouveauCorpus() override;
    void OuvrirCorpus() override;
    void ImporterEntretien() override;
    void OuvrirEntretien(int slot, Ouverture ouverture) override;
    void RetirerEntretien() override;
    void DeplacerEntretien(int source, int cible) override;
    void BasculerTailleReelle(bool redessiner) override;
    void ReglerVolume(int part) override;

    void OuvrirMenu(Panneau panneau, Rectangle ancre) override;
    void RedessinerFrise() override;
    void RedessinerPistes() override;
    void ConstruireThematiques() override;
    void rafraichirExtraits() override;
    void quitterVisu() override;
    void PreparerSaisie() override;
    void OuvrirExtrait(int n) override;

  signals:
    /// The last window is to go: the event loop ends.
    void fini();

  private:
    FrmIntro& intro();
    FrmCorpus& corpus();
    FrmMenu& menu();
    FrmVisu& visu();
    FrmSaisie& saisie();
    Forme& forme(Fenetre fenetre);         ///< made if need be
    Forme* ouverte(Fenetre fenetre) const; ///< nullptr where it isn't loaded

    bool lireCorpus(); ///< the steps of an opening behind the choice of the file
    void montrerCorpusVide();
    void lireAttributs(int slot);
    void enregistrerEntretiens();
    void importer();
    void montrerEntretien(Ouverture ouverture);
    void desactiverCorpus();
    void preparerVisu();
    void suivreEtat(EtatLecture etat);

    Session& session_;
    Plateforme& plateforme_;
    std::function<void(QProgressBar*)> brancherProgression_;
    QPointer<FrmIntro> intro_;
    QPointer<FrmCorpus> corpus_;
    QPointer<FrmMenu> menu_;
    QPointer<FrmVisu> visu_;
    QPointer<FrmVisu> reserve_; ///< made while the corpus window idled, for the next interview
    QPointer<FrmSaisie> saisie_;
    bool importEnCours_ = false;
    QTimer repos_; ///< runs out when a corpus or an interview may be opened next
};

} // namespace vermo
