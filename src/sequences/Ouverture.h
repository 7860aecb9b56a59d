#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "textfile/faute.h"
#include "window/Element.h"

#include <functional>
#include <optional>

/// The sequences on a whole corpus, from top to bottom, without a window: a program without a screen runs
/// them as they stand. What fails in the system's own words has been said through `Dialogues` when they
/// return.
namespace vermo {

/// What an opening has just made ready to be shown.
enum class Etape {
    Debut,       ///< nothing yet: a corpus was chosen, and long work begins
    Vide,        ///< nothing of the corpus that was open is left
    Thematiques, ///< the thematic table
    Frise,       ///< the interviews, scanned, and the height of their rows
    Pistes,      ///< their bars
};

/// The window over an opening; none by default.
struct Spectateur {
    Twips hauteurCadre = 0; ///< of Frm_fond_entretiens, which the rows are to fill
    std::function<void(Etape)> montrer = [](Etape) {};
};

/// What became of an opening.
enum class IssueOuverture {
    Renoncee, ///< the person gave up, or chose the corpus that is open: nothing was touched
    Echouee,  ///< the corpus that was open is gone, and this one could not be read
    Ouverte,
};

/// Reads OuvertureDirecte and CheminCorpus; asks which corpus unless it is a direct opening. Everything is
/// read from the disk anew: it is also the reload after any change in the interview list. Throws
/// FauteExecution for a corpus file that can't be read; the corpus then counts as unread.
IssueOuverture ouvrirCorpus(Session& session, Plateforme& plateforme, const Spectateur& spectateur = {});

/// Asks for a name, writes an empty corpus there. True when there is one to be opened: CheminCorpus and
/// OuvertureDirecte ask for it.
bool nouveauCorpus(Session& session, Plateforme& plateforme);

/// Full path of the file by whose lock programs on this machine know that the corpus is open; empty where the
/// system gives no place for it.
Utf8 nomVerrou(const Emplacements& emplacements, const EtatCorpus& corpus);

/// The attributes of the interview in `slot`. A fault in them is told once for this state of its file.
void lireAttributs(Session& session, Plateforme& plateforme, int slot);

/// Reads the transcript of the interview in `slot` again unless it certainly is as the scan found it: one
/// that was missing or faulty, or that another program changed, counts from now on.
void actualiserEntretien(Session& session, Plateforme& plateforme, int slot);

/// What became of a change in the interview list.
struct SuiteListe {
    bool aRouvrir = false; ///< the list was changed: the corpus is to be opened again, directly
    std::optional<FauteExecution>
        faute; ///< why the file doesn't hold it; the opening brings the old list back
};

/// Asks, then takes EntretienCourant out of the corpus.
SuiteListe retirerEntretien(Session& session, Plateforme& plateforme);

/// Moves the interview in `source` to `cible`.
SuiteListe deplacerDansListe(Session& session, Plateforme& plateforme, int source, int cible);

} // namespace vermo
