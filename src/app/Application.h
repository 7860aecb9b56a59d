#pragma once
#include "app/Formes.h"
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "textfile/fichier.h"
#include "window/Fenetres.h"

#include <QObject>
#include <QTimer>
#include <functional>

class QProgressBar;

namespace vermo {

class FrmCorpus;
enum class Etape;
enum class Sens;
struct SuiteListe;

/// The program: shows the windows, runs the sequences that go through several of them, and hands each notice
/// of what changed to every window that is loaded. All that windows say to each other passes here.
class Application final : public QObject, public Fenetres {
    Q_OBJECT
  public:
    /// `brancherProgression` is given the bar on which long work shows.
    Application(Session& session, Plateforme& plateforme,
                std::function<void(QProgressBar*)> brancherProgression = {});
    ~Application() override;

    /// Shows the start window.
    void demarrer();

    void montrer(Fenetre fenetre, const Contenu& contenu = {}) override;
    void cacher(Fenetre fenetre) override;
    void decharger(Fenetre fenetre) override;
    bool visible(Fenetre fenetre) const override;
    bool entamee(Fenetre fenetre) const override;
    void finir() override;
    bool texteAbandonne() const override;
    void annoncer(const Avis& avis) override;

    /// What is being typed, kept on the disk: the program may be ended at once. `terminer` ends it, asking
    /// nobody.
    void mettreALAbri();
    void terminer();

    void NouveauCorpus() override;
    void OuvrirCorpus() override;
    void ImporterEntretien() override;
    void retirerEntretien() override;
    void DeplacerEntretien(int source, int cible) override;
    void annulerChangement() override;
    void refaireChangement() override;
    bool aAnnuler() const override;
    bool aRefaire() const override;

  signals:
    /// The last window is to go: the event loop ends.
    void fini();

  private:
    FrmCorpus& corpus();

    void brancher(Forme& forme);
    void transmettre(const Avis& avis);
    void montrerEtape(Etape etape);
    void rouvrirCorpus();
    void suivreListe(const SuiteListe& suite);
    void parcourir(Sens sens);
    void direVoisin();
    bool lireCorpus();
    void reprendreBrouillon();
    void montrerCorpusVide();
    void importer();
    void ouvrirEntretien(const EntretienVoulu& voulu);
    void montrerEntretien(Ouverture ouverture);
    void desactiverCorpus();
    void preparerVisu();

    Session& session_;
    Plateforme& plateforme_;
    Ecoute ecoute_; ///< the volume follows the player whatever window stands
    std::function<void(QProgressBar*)> brancherProgression_;
    Formes formes_;
    bool importEnCours_ = false;
    VerrouFichier corpusTenu_; ///< tells other programs that this one has the corpus open
    Utf8 nomTenu_;             ///< of that lock
    QTimer repos_;             ///< runs out when a corpus or an interview may be opened next
};

} // namespace vermo
