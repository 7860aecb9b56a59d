#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"
#include "window/Element.h"

#include <array>
#include <optional>
#include <string_view>

/// The rules of the transcription window, without the window: spans, portions, speed, thematics, validation.
/// Lengths are twips of Pict_saisie (`largeur` is its width), times are seconds of the recording.
namespace vermo::saisie {

// --- The span
// ------------------------------------------------------------------------------------------------

/// ExtraitCourant, NouvelExtrait, and SaisieDebut, SaisieFin, SaisieDuree from the arrays.
/// Throws FauteExecution for an `n` outside the arrays or times that are no numbers.
void ouvrirSpan(Session& session, int n);

/// The end of the span is now `fin`: SaisieFin and SaisieDuree. Used while the span is lengthened.
void allonger(Session& session, double fin);

/// Where the player goes when lengthening begins.
double debutAllongement(const Session& session);

/// Left of Curseur for a position; 0 while no span is open.
Twips positionCurseur(const Session& session, double position, Twips largeur);

/// Time under X.
double tempsSousX(const Session& session, Twips x, Twips largeur);

// --- The play loop
// -------------------------------------------------------------------------------------------

/// What a tick of the play loop asks for, in this order.
struct Boucle {
    bool ouverte = false;           ///< false: no span is open, nothing else to do
    std::optional<double> position; ///< move the player there
    bool pause = false;
    bool demarrerDecompte = false; ///< enable Timer3
    Twips curseur = 0;             ///< Left of Curseur
};

/// Decides one tick from the player's position; sets Compteur to 0 where a portion ends.
/// `arrete`: the player has stopped at the recording's end, beyond which no position lies; the span is then
/// over, wherever its rounded end stands.
Boucle suivreBoucle(Session& session, double position, Twips largeur, bool arrete = false);

// --- Dictation by portions
// -----------------------------------------------------------------------------------

/// PortionDebut = `debut`, PortionFin = `debut` + `secondes` rounded; Compteur = 0.
/// Throws FauteExecution for an end beyond 32767 seconds.
void demarrerPortion(Session& session, double debut, double secondes);

/// Switches dictation on at the player's position, with the seconds that LblSec shows.
void activerDictee(Session& session, double position, int secondesLues);

/// The portion behind the current one, whatever the span's end. The result is where the player goes: one
/// second before the end of the last portion.
double avancerPortion(Session& session, double secondes);

/// The same for the Enter key: nothing at the span's last portion (Compteur becomes 0 all the same).
std::optional<double> portionSuivante(Session& session, double secondes);

/// Left and width of ShpDict for a portion; top and height are the window's.
Rectangle MontrerPortion(const Session& session, double debut, double fin, Twips largeur);

/// A selection from `x1` to `x2` becomes the portion. The result is the seconds that LblSec shows, at
/// least 1.
int selectionnerPortion(Session& session, Twips x1, Twips x2, Twips largeur);

/// True when a press at `debut` released at `x` is a click and not a selection.
constexpr bool estClic(Twips debut, Twips x) {
    return x < debut + 30;
}

/// What a tick of the countdown asks for.
struct Decompte {
    bool montrer = false; ///< shptimer and LblTimer show
    Texte LblTimer;
    std::optional<double> position; ///< move the player there and play; the portion has moved on
    bool arreter = false;           ///< disable Timer3
};
Decompte compter(Session& session, bool fenetreVisible, int secondesLues);

/// Seconds of a portion while LblSec is dragged: `tag` is its value at the press. At least 1.
int secondesGlissees(int tag, Twips y, Twips hauteurLblSec);

// --- Speed
// ---------------------------------------------------------------------------------------------------

/// VitesseLecture for a press at `x` on LblVit, 0.75 to 1.25. False, and nothing set, outside the label.
bool reglerVitesse(Session& session, Twips x, Twips largeurLblVit);

/// X on LblVit of a speed; the middle while none is set.
Twips positionVitesse(const Session& session, Twips largeurLblVit);

// --- Thematics
// -----------------------------------------------------------------------------------------------

/// What `lbl_thm` and the colour bands show.
struct ThematiqueAffichee {
    Texte tag;           ///< the code
    Texte caption;       ///< code, one blank, name
    Couleur couleur = 0; ///< ShpFondSaisie and ShpXtrIntZ(0)
    bool operator==(const ThematiqueAffichee&) const = default;
};

/// Before any choice: "000", "000 - Pas de thématique", black.
ThematiqueAffichee thematiqueParDefaut();

/// A row of the table. Throws FauteExecution for a row that isn't there.
ThematiqueAffichee thematiqueDuRang(const EtatCorpus& corpus, int rang);

/// What an extract opens with: the row of its code's first three characters, row 1 for an unknown code, the
/// default when the table is empty.
ThematiqueAffichee thematiqueDeCode(const EtatCorpus& corpus, std::string_view code);

/// Fore colour of `lbl_thm`: black for a code that is a non-zero number, (99, 99, 99) otherwise.
Couleur encreThematique(std::string_view tag);

/// The swatches ShpCoulT by index.
inline constexpr std::array<Couleur, 14> COULEURS = {
    rvb(128, 128, 255), rvb(0, 0, 255),     rvb(0, 0, 128),   rvb(0, 0, 127),     rvb(0, 128, 0),
    rvb(0, 128, 128),   rvb(255, 255, 128), rvb(255, 128, 0), rvb(255, 128, 128), rvb(255, 0, 255),
    rvb(128, 0, 128),   rvb(128, 0, 0),     rvb(255, 0, 0),   rvb(128, 128, 0)};

/// What TxtThema starts with, UTF-8.
inline constexpr std::string_view INVITE = "Saisissez ici le nom de la thématique";

/// What TXTcodethem starts with: the count of rows by "000".
Texte codePropose(const EtatCorpus& corpus);

/// The fields of the panel.
struct NouvelleThematique {
    Texte TXTcodethem;
    Texte TxtThema;
    Texte CouleurChoisie; ///< decimal value; empty: none
};

struct Refus {
    Message message{};       ///< without a text: it was said already
    bool codeFautif = false; ///< the code field is to be selected
};

/// Why a thematic can't be added; nothing when it can. Codes are compared as numbers.
std::optional<Refus> verifierThematique(const EtatCorpus& corpus, const NouvelleThematique& nouvelle);

/// Adds the thematic to the corpus file, behind the rows that it holds by now, and to the table. Why it
/// can't be added, or nothing. Throws FauteExecution when the file can't be read or written.
std::optional<Refus> ajouterThematique(Session& session, Plateforme& plateforme,
                                       const NouvelleThematique& nouvelle);

// --- Validation
// ----------------------------------------------------------------------------------------------

/// Puts the span, the whole caption of `lbl_thm` and the trimmed text into extract ExtraitCourant and
/// rewrites the transcript. False after a failure, which was shown: the arrays are as before, the text must
/// stay on the screen.
bool validerModification(Session& session, Plateforme& plateforme, const Texte& caption, Texte texte);

} // namespace vermo::saisie
