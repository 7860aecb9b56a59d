#pragma once
#include "window/Element.h"

namespace vermo {

enum class Fenetre { FrmIntro, FrmCorpus, FrmMenu, FrmVisu, FrmSaisie };

/// Panels of FrmMenu, by the index that `OuvrirMenu` takes.
enum class Panneau { Corpus = 0, Entretiens = 1, Thematiques = 2, Attributs = 3, Volume = 5 };

/// How the interview window is opened.
enum class Ouverture { AvecFondu, SansFondu };

/// What crosses windows. Windows know each other only through this; the program implements it, and one file
/// shows all of it. Each window is made at its first reference and lives until it is unloaded.
class Fenetres {
  public:
    virtual ~Fenetres() = default;

    virtual void montrer(Fenetre fenetre) = 0; ///< one that is visible comes to the front
    virtual void cacher(Fenetre fenetre) = 0;
    /// Unloads a window; the next reference makes it afresh. Unloading FrmVisu also stops its player.
    virtual void decharger(Fenetre fenetre) = 0;
    virtual bool visible(Fenetre fenetre) const = 0;
    virtual bool saisieEntamee() const = 0; ///< FrmSaisie is open and holds what no file does
    virtual void finir() = 0;               ///< ends the program, unless something is being typed

    // Sequences that run through several windows.
    virtual void NouveauCorpus() = 0;
    virtual void OuvrirCorpus() = 0;      ///< reads OuvertureDirecte and CheminCorpus
    virtual void ImporterEntretien() = 0; ///< asks for the file
    virtual void ouvrirEntretien(int slot,
                                 Ouverture ouverture) = 0; ///< EntretienCourant = slot, then FrmVisu
    virtual void retirerEntretien() = 0; ///< asks, then takes EntretienCourant out of the corpus
    virtual void DeplacerEntretien(int source, int cible) = 0; ///< the list is saved and the corpus reopened
    virtual void basculerTailleReelle(bool redessiner) = 0;    ///< inverts TailleReelle; redraws when asked
    virtual void reglerVolume(int part) = 0; ///< VolumeLecture and the player, 0 to 100; gauges redrawn

    // What one window asks of another.
    virtual void OuvrirMenu(Panneau panneau, Rectangle ancre) = 0; ///< under `ancre`, twips of the screen
    virtual void RedessinerFrise() = 0;  ///< FrmCorpus shows its rows anew, from the Session
    virtual void RedessinerPistes() = 0; ///< FrmCorpus shows its bars and counters anew, from the Session
    virtual void ConstruireThematiques() = 0; ///< the thematic lists of FrmCorpus and FrmSaisie
    virtual void rafraichirExtraits() = 0;    ///< LireRetranscription and AfficherExtraits of FrmVisu
    virtual void quitterVisu() = 0;    ///< RelireEntretien and redraws for the interview that FrmVisu leaves
    virtual void PreparerSaisie() = 0; ///< FrmSaisie for the span SaisieDebut..SaisieFin, a new extract
    virtual void OuvrirExtrait(int n) = 0; ///< FrmSaisie on extract n
};

} // namespace vermo
