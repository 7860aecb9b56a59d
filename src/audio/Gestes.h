#pragma once
#include "audio/Suivi.h"
#include "window/Element.h"

#include <optional>

/// What the left button of the mouse means on the two pictures of the interview window. A press leaves what
/// it took hold of; moves and the release, wherever it ends, are read against it. Positions are twips of the
/// picture, `W` is the width of Picture1, `Z` that of Pict_zoom.
///
/// A drag is told by where it began, 0 for none: one that begins at X = 0 counts as none on the zoom band.
/// One that is released where nothing answers stays set.
namespace vermo {

/// What a press took hold of on the overview.
struct PriseVue {
    bool tenue = false;       ///< the button is down
    bool surBarre = false;    ///< on an extract's bar, whose clicks are its own
    Twips GlisseVueDebut = 0; ///< where a drag began
    bool operator==(const PriseVue&) const = default;
};
void presser(PriseVue& prise, const Element* sous, Twips x);

/// The span that a move shows in TotalSelect; none: it stays as it is.
std::optional<Etendue> selectionVue(const PriseVue& prise, Twips x);

/// A span or a place of the overview, chosen (`choisirSurVue`).
struct GesteVue {
    Twips debut = 0, x = 0; ///< press and release
    bool operator==(const GesteVue&) const = default;
};
/// None for an extract's bar, and beyond the picture's ends.
std::optional<GesteVue> relacher(PriseVue& prise, Twips x, Twips W);

/// What a press took hold of on the zoom band.
struct PriseZoom {
    bool tenue = false;                  ///< the button is down
    Controle controle = Controle::Aucun; ///< piece of a bubble, none for the band itself
    int index = 0, extrait = 0;          ///< of the piece, and of what it shows
    Twips gauche = 0;                    ///< of the piece
    Twips GlisseZoomDebut = 0;           ///< where a drag began
    Twips presse = 0;                    ///< where the button went down
    bool operator==(const PriseZoom&) const = default;
};

enum class ActeZoom {
    Aucun,
    Ecouter,  ///< play from `x`
    Chercher, ///< the same, the cursor shown there at once
    Defiler,  ///< the content follows the hand from `debut` to `x`, then Chercher
    Creer,    ///< an extract from `debut` to `x`
    Borner,   ///< bound of `extrait` to `x`
    Elargir,  ///< label `index` as wide as `x`
    Ouvrir,   ///< `extrait`
};
struct GesteZoom {
    ActeZoom acte = ActeZoom::Aucun;
    Twips debut = 0, x = 0;
    int extrait = 0;
    bool borneDebut = false; ///< the start is moved, else the end
    int index = 0;
    bool operator==(const GesteZoom&) const = default;
};

/// A piece of a bubble that is neither handle nor text: the band under it is dragged, a click opens the
/// extract.
bool estBulle(const Element* sous);

/// A press on a bubble's text plays from there at once.
GesteZoom presser(PriseZoom& prise, const Element* sous, Twips x);
/// While a span is marked by the keyboard (`marque`), no drag makes an extract.
GesteZoom relacher(PriseZoom& prise, Twips x, bool marque);

// What a move does: a handle draws its band, a drag to the right selects, unless a span is being marked.
bool poigneeTenue(const PriseZoom& prise); ///< not one that stands at X = 0
bool debutTenu(const PriseZoom& prise);    ///< the handle held is its bubble's first
bool selectionne(const PriseZoom& prise, Twips x, bool marque);

/// Where ShpXtrIntZ stands while its handle is drawn to `x`, from where it and LbltxtXtrZ stand.
Etendue bandeTiree(const PriseZoom& prise, Etendue bande, Etendue texte, Twips x);

/// The span being selected on both pictures.
struct SelectionZoom {
    Etendue ZoomSelect, TotalSelect;
    bool operator==(const SelectionZoom&) const = default;
};
SelectionZoom selectionZoom(const EtatAudio& audio, Twips debut, Twips x, Twips Z, Twips W);

/// The extract that a click or a double click on an item opens; 0: none.
int extraitOuvert(const Element* sous, bool doubleClic);

} // namespace vermo
