#pragma once
#include "window/Element.h"

/// Where the controls of the transcription window stand, in twips.
namespace vermo::tailles_saisie {

constexpr Twips LARGEUR_PLIEE = 7865;
constexpr Twips LARGEUR_NOUVEL_EXTRAIT = 14100;
constexpr Twips LARGEUR_FOND = 933 * TWIPS_PAR_PIXEL; ///< of the window's ground, unfolded
constexpr Twips HAUTEUR = 611 * TWIPS_PAR_PIXEL;

// What is listened to.
constexpr Rectangle ETQ_DEB_SEL{200, 155, 900, 300};
constexpr Rectangle ETQ_FIN_SEL{6420, 155, 900, 300};
constexpr Rectangle FICHIER{1200, 155, 5100, 300};
constexpr Rectangle LBL_FERMER_0{7320, 60, 495, 435};
constexpr Rectangle PICT_SAISIE{120, 560, 7625, 51 * TWIPS_PAR_PIXEL};
constexpr Twips LARGEUR_CURSEUR = 30;
constexpr Rectangle IMGMEDIA{240, 2310, 600, 600};
constexpr Rectangle IMGPLUS{900, 2310, 600, 600};
constexpr Rectangle PICTURE2{1590, 2310, 2130, 600};
constexpr Rectangle LBLVIT{120, 190, 1890, 375}; ///< inside Picture2
constexpr Rectangle BTNOPT_1{3800, 2340, 705, 540};
constexpr Twips LARGEUR_DICTEE = 1905;           ///< of that button while dictating, so that the seconds show
constexpr Rectangle LBLSEC{820, 120, 345, 300};  ///< inside the dictation button
constexpr Rectangle LABEL1{1180, 120, 600, 300}; ///< "sec.", beside it
constexpr Rectangle LBLTIMER{5745, 2460, 255, 300};
constexpr Rectangle BTNOPT_0{6060, 2340, 705, 540};
constexpr Rectangle BTNOPT_2{6860, 2340, 705, 540};
constexpr Rectangle LBLTIP{2880, 3000, 2295, 255};
constexpr Rectangle ETAT{200, 3210, 7440, 255};

// What is typed and coded.
constexpr Rectangle LBL_THM{480, 1710, 6855, 420};
constexpr Rectangle TEXTRTR{120, 3480, 7575, 4815};
constexpr Rectangle IMGSUPPR{240, 8415, 600, 600};
constexpr Rectangle IMGBTN_0{7020, 8415, 600, 600};

// The panel of thematics.
constexpr Rectangle LABEL3_0{8040, 120, 5200, 300};
constexpr Rectangle LBL_FERMER_1{13440, 0, 495, 435};
constexpr Rectangle FRMTHMS{8040, 480, 5775, 6255};
constexpr Rectangle LABEL3_1{8040, 6840, 5775, 300};
constexpr Rectangle SHPFDTHM{7920, 7200, 5940, 855};
constexpr Rectangle LABEL3_3{8040, 7440, 600, 375};
constexpr Rectangle TXTCODETHEM{8640, 7440, 615, 375};
constexpr Rectangle LABEL3_2{9840, 7215, 3855, 225};
constexpr Rectangle TXTTHEMA{9840, 7440, 3855, 375};
constexpr Rectangle SWATCH{8040, 8280, 225, 255}; ///< the first of fourteen
constexpr Twips PAS_SWATCH = 330;
constexpr Rectangle IMGBTN_2{13200, 8205, 600, 600};

/// The bands that take the thematic's colour, ShpFondSaisie 0 to 7.
constexpr Rectangle SHPFONDSAISIE[8] = {
    {120, 1560, 7625, 720}, {120, 3420, 7625, 60}, {120, 8295, 7625, 75}, {60, 1560, 60, 6810},
    {7745, 1560, 60, 6810}, {60, 8370, 7745, 15},  {60, 1545, 7745, 15},  {120, 2280, 7625, 15},
};

} // namespace vermo::tailles_saisie
