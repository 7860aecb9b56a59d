#pragma once
#include "platform/Annonces.h"
#include "window/Element.h"

#include <string_view>
#include <variant>

namespace vermo {

/// The windows, from the ground up: one that stands further down this list lies over those before it.
// clang-format off
#define VERMO_FENETRES(X) X(FrmIntro) X(FrmCorpus) X(FrmVisu) X(FrmSaisie) X(FrmMenu)
// clang-format on
enum class Fenetre {
#define X(nom) nom,
    VERMO_FENETRES(X)
#undef X
};
inline constexpr Fenetre FENETRES[] = {
#define X(nom) Fenetre::nom,
    VERMO_FENETRES(X)
#undef X
};
std::string_view nomFenetre(Fenetre fenetre);

/// Panels of FrmMenu.
enum class Panneau { Corpus = 0, Entretiens = 1, Thematiques = 2, Attributs = 3, Volume = 5 };

/// How the interview window is opened.
enum class Ouverture { AvecFondu, SansFondu };

// What a window is asked to show.
struct PanneauVoulu { ///< FrmMenu: a panel under `ancre`, twips of the screen
    Panneau panneau;
    Rectangle ancre;
};
struct EntretienVoulu { ///< FrmVisu: the interview in `slot`, which becomes EntretienCourant
    int slot;
    Ouverture ouverture;
};
struct NouvelExtraitVoulu {}; ///< FrmSaisie: the span SaisieDebut..SaisieFin, a new extract
struct ExtraitVoulu {         ///< FrmSaisie: extract `numero` of the interview that FrmVisu shows
    int numero;
};
struct TexteAbandonneVoulu {}; ///< FrmSaisie: what was discarded last
using Contenu = std::variant<std::monostate, PanneauVoulu, EntretienVoulu, NouvelExtraitVoulu, ExtraitVoulu,
                             TexteAbandonneVoulu>;

/// What crosses windows. Windows know each other only through this; the program implements it, and one file
/// shows all of it. Each window is made at its first reference and lives until it is unloaded.
class Fenetres {
  public:
    virtual ~Fenetres() = default;

    /// The one request to open a window, with what it is to show. Without `contenu` it shows what it showed;
    /// one that is visible comes to the front.
    virtual void montrer(Fenetre fenetre, const Contenu& contenu = {}) = 0;
    virtual void cacher(Fenetre fenetre) = 0;
    /// Unloads a window; the next reference makes it afresh. Unloading FrmVisu also stops its player.
    virtual void decharger(Fenetre fenetre) = 0;
    virtual bool visible(Fenetre fenetre) const = 0;
    virtual bool entamee(Fenetre fenetre) const = 0; ///< visible, and holds what no file does
    virtual void finir() = 0;                        ///< ends the program, unless something is being typed
    virtual bool texteAbandonne() const = 0;         ///< whether FrmSaisie has one to take up
    virtual void annoncer(const Avis& avis) = 0;     ///< by the host's `annonces`: every window is told

    // Sequences that run through several windows.
    virtual void NouveauCorpus() = 0;
    virtual void OuvrirCorpus() = 0;      ///< reads OuvertureDirecte and CheminCorpus
    virtual void ImporterEntretien() = 0; ///< asks for the file
    virtual void retirerEntretien() = 0;  ///< asks, then takes EntretienCourant out of the corpus
    virtual void DeplacerEntretien(int source, int cible) = 0; ///< the list is saved and the corpus reopened
    virtual void annulerChangement() = 0;                      ///< takes the last change of the corpus back
    virtual void refaireChangement() = 0; ///< makes the last one that was taken back again
    virtual bool aAnnuler() const = 0;    ///< whether there is one
    virtual bool aRefaire() const = 0;
};

} // namespace vermo
