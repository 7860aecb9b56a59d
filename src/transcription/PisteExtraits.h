#pragma once
#include "corpus/Session.h"
#include "window/Element.h"
#include "window/Metriques.h"

/// The extracts of the current interview as FrmVisu draws them: a thin coloured track over the whole
/// recording on Picture1, and one bubble an extract over the zoomed span on Pict_zoom. Both lists are made
/// afresh from the working arrays at each call. An extract whose times are no numbers is in neither.
namespace vermo {

/// Tops and heights of the track on Picture1, twips.
struct TaillePiste {
    Twips haut = 60;
    Twips hauteur = 210;
    Couleur modele = rvb(99, 99, 99);  ///< LblXtr of a code that the thematic table doesn't hold
    Couleur bord = rvb(120, 120, 120); ///< ShpXtr and ShpXtrInt while the pointer is elsewhere
};

/// Pieces of a bubble and what stands in it, twips.
struct TailleBulle {
    Twips haut = 120;
    Twips hauteur = 4885; ///< cut at the lower edge of Pict_zoom
    Twips coin = 180;     ///< width and height of HG, HDimg, BG and BD; height of CH and CB
    Twips poignee = 105;  ///< width of CG and CD
    Twips titreHaut = 90; ///< below the bubble's top
    Twips titreHauteur = 255;
    Twips texteHaut = 375;
    std::uint8_t corps = 8;
    Couleur fond = rvb(244, 244, 246);
    Couleur encreMots = rvb(32, 32, 36);
    Couleur fondTitre = rvb(70, 70, 74); ///< under a title too pale to be read on `fond`
};

/// For extract n: ShpXtr[n], ShpXtrInt[n], then LblXtr[n], which takes the mouse. Empty while DureeFichier is
/// 0. Bounds are taken as they stand: `redresserBornes` first.
Elements disposerPiste(const Session& session, Twips largeurPicture1, const TaillePiste& taille = {});

/// Bubbles of the extracts that the span DebutZoom..FinZoom shows, touching a bound not counted. Indexes are
/// bubble numbers from 1, tags the extracts' numbers; bubble k owns the handles ImgBulleInt[2k - 1] (start)
/// and ImgBulleInt[2k] (end), which take the mouse, as its other pieces, LbltitreXtrZ and LbltxtXtrZ do;
/// LblXtrZ, which they cover, carries the tooltip. LblMot carry
/// one word each, numbered through all bubbles, tag its line; words outside the picture or below their bubble
/// are left out. LbltxtXtrZ frames the words and has no caption of its own.
Elements disposerBulles(const Session& session, Twips largeurZoom, Twips hauteurZoom,
                        const Metriques& metriques, const TailleBulle& taille = {});

/// Colour of the row that an extract's code finds, or, for an unknown code, of the last row searched.
Couleur couleurExtrait(const EtatCorpus& corpus, std::string_view code);

} // namespace vermo
