#pragma once
#include "audio/Onde.h"
#include "platform/Progression.h"
#include "window/Bitmap8.h"
#include "window/Element.h"

#include <array>
#include <string_view>

/// Waveforms: one sample a twip of the picture's width, joined by lines. Nothing is averaged and no peak is
/// kept. The same method serves the overview of a recording, the zoom band and the span being typed.
namespace vermo {

/// Height of the overview, to which the other pictures bring their Y coordinates too.
constexpr Twips HAUTEUR_PICTURE1 = 900;

/// The three pictures.
enum class Vue { Picture1, Pict_zoom, Pict_saisie };

/// Size of the picture in work, whole twips.
struct Cible {
    long LargeurCible = 0, HauteurCible = 0;
    bool operator==(const Cible&) const = default;
};

/// How samples become heights.
struct Echelles {
    std::array<std::int32_t, 2> MilieuCanal{}; ///< Y of each channel's mid line
    std::int32_t AmplitudeMax = 0;
    double Echelle = 0; ///< AmplitudeMax over the first mid line
};

/// Mid lines at the quarters with 2 channels, else at the half. Throws FauteExecution when the picture is too
/// low to have a mid line.
Echelles calculerEchelles(const EnTeteWav& entete, long HauteurCible);

/// Height for the zoom band: with 2 channels its own, divided by 3 (the "2,8" of the design, which counts as
/// 3 in every locale); else the overview's. The drawn Y are brought to the band's height afterwards, and kept
/// within it.
long hauteurCibleZoom(const EnTeteWav& entete, Twips hauteurZoom, Twips hauteurVue);

/// Turns samples into Y coordinates, for the first NbCanaux x largeur - 1 elements of at most two rows; the
/// last element of the last row is no point. Throws FauteExecution when the rounded scale of a 16-bit file is
/// 0.
void convertirPoints(PointsOnde& points, const EnTeteWav& entete, const Echelles& echelles, long largeur);

/// How many lines are drawn, counted from point 0, so that each joins two converted points: both rows in the
/// overview, the first row in the others.
long nombreLignes(Vue vue, const EnTeteWav& entete, long largeur);

/// Draws the lines in palette colour `indice`. `facteurY` brings Y to the picture's own height, `densite` is
/// its device pixels a twip. In the run of a stereo overview one line joins the two rows at the right edge.
void tracerOnde(Bitmap8& image, std::uint8_t indice, Vue vue, const PointsOnde& points,
                const EnTeteWav& entete, long largeur, double facteurY, double densite);

/// Everything a waveform is drawn from.
struct DemandeOnde {
    Vue vue = Vue::Picture1;
    Utf8 fichier;
    Empan empan;
    Twips largeur = 0, hauteur = 0;       ///< of the picture
    Twips hauteurVue = HAUTEUR_PICTURE1;  ///< of the overview
    double densite = 1 / TWIPS_PAR_PIXEL; ///< device pixels a twip
};

/// Probes, reads, converts and draws on `image`, in palette colour `indice`. Gives the header, defaults
/// applied. Throws FauteExecution when the file can't be opened, its wave can't be drawn from its bytes
/// (`refusOnde`) or the picture has no scale; `points` then keeps what it held and nothing is drawn.
EnTeteWav dessinerOnde(Bitmap8& image, std::uint8_t indice, const DemandeOnde& demande, PointsOnde& points,
                       Progression* progression = nullptr);

/// One line of text for a picture that has no wave: the reason. It stands below the track of extracts.
Dessin ligneSansOnde(const Utf8& raison);

/// A picture of `largeur` x `hauteur` twips in one colour, with black as its colour 0.
Bitmap8 fondUni(Twips largeur, Twips hauteur, double densite, Couleur fond);

/// The zoom band's backdrop, which lightens toward the middle; black is its colour 0.
Bitmap8 fondZoom(Twips largeur, Twips hauteur, double densite);

} // namespace vermo
