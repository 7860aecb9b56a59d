#pragma once
#include "audio/ImageOnde.h"
#include "window/Element.h"

/// Sizes of the interview window's controls, twips. Widths that follow from the screen's are computed.
namespace vermo::visu {

// The window: beside the corpus window's thematics, a little above its rows.
constexpr Twips GAUCHE = 3660, HAUT = 1545, MARGE_DROITE = 120;

constexpr Twips RETRAIT = 150;     ///< left edge of the pictures
constexpr Twips RETRAIT_VUE = 130; ///< of Picture1, which the cursor's 30 twips answer

// The title row.
constexpr Twips TITRE_HAUT = 90, TITRE_HAUTEUR = 540;
constexpr Twips BOUTON = 510, BOUTON_CROIX = 540;
constexpr int CORPS_FICHIER = 10; ///< points
constexpr Twips COMPTEUR = 1500, FICHIER = 6000, VOLUME = 900;

// The pictures, from top to bottom. The zoom band takes what is left.
constexpr Twips VUE_HAUT = 750;
constexpr Twips REGLE = 345;
constexpr Twips LECT_HAUT = VUE_HAUT + HAUTEUR_PICTURE1 + REGLE + 60;
constexpr Twips LECT_HAUTEUR = 2895;
constexpr Twips REGLE_ZOOM = 600;
constexpr Twips BAS = 360;      ///< the line under everything
constexpr Twips REPRISE = 3300; ///< at its end, the offer of the abandoned text

// The extract's text in PictLect.
constexpr Twips BARRE_LECT = 60, TEXTE_LECT_HAUT = 120, TEXTE_LECT_LARGEUR = 7500;

} // namespace vermo::visu
