#pragma once
#include "textfile/texte.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vermo {

/// Lengths on windows: 15 to the logical pixel.
using Twips = double;
constexpr Twips TWIPS_PAR_PIXEL = 15;

/// 0xBBGGRR: red in the low byte.
using Couleur = std::uint32_t;
constexpr Couleur BLANC = 0xFFFFFF;

constexpr Couleur rvb(int rouge, int vert, int bleu) {
    return static_cast<Couleur>(rouge | vert << 8 | bleu << 16);
}

struct Rectangle {
    Twips gauche = 0, haut = 0, largeur = 0, hauteur = 0;
    Twips droite() const { return gauche + largeur; }
    Twips bas() const { return haut + hauteur; }
    bool contient(Twips x, Twips y) const { return x >= gauche && x < droite() && y >= haut && y < bas(); }
    bool operator==(const Rectangle&) const = default;
};

/// The controls that are painted rather than widgets. Prints as its name through `nomControle`.
/// The formatter never settles on a list of macros.
// clang-format off
#define VERMO_CONTROLES(X) \
    X(Aucun) X(lblpiste) X(lblfich) X(ImgEnt) X(ShpFich) X(ImgOnOff) X(ImgPlay) X(Lblthm) \
    X(LblCoul) X(ShpCoul) X(ImgCoul) X(ImgSurlig) X(LblScroll) X(LigneScroll) X(LblXtr) X(ShpXtr) \
    X(ShpXtrInt) X(LblXtrZ) X(LbltitreXtrZ) X(LbltxtXtrZ) X(ShpXtrZ) X(ShpXtrIntZ) \
    X(ImgBulleBlanche) X(ImgBulleBas) X(ImgBulleInt) X(LblMot) X(Shp_visu) X(Curseur) \
    X(TotalSelect) X(shp_curseur_zoom) X(ZoomSelect) X(SaisieSelect) X(ShpDict) X(ShpFondSaisie) \
    X(ShpFdThm) X(LblXtrBulle) X(ImgPuce) X(Shape2)
// clang-format on
enum class Controle : std::uint16_t {
#define X(nom) nom,
    VERMO_CONTROLES(X)
#undef X
};
std::string_view nomControle(Controle controle);

/// How a fill meets what lies under it: over it, blended so that what lies under stays seen, or as a thin
/// veil.
enum class Encre : std::uint8_t { Copie, Fusion, Voile };
enum class Alignement : std::uint8_t { Gauche, Centre, Droite };

/// One item of a picture: what it is, where, and how it looks. Lists stand in drawing order, the last on top.
struct Element {
    Controle controle = Controle::Aucun;
    int index = 0;
    Rectangle cadre;
    Texte tag = {};         ///< what links it back to the data
    Texte texte = {};       ///< caption
    Texte bulle = {};       ///< tooltip
    std::string image = {}; ///< ":/icones/Nom.svg", or the path of a picture on the disk, stretched
    Couleur fond = 0;
    Couleur bord = 0;
    Couleur encreTexte = BLANC;
    Encre encre = Encre::Copie;
    Alignement alignement = Alignement::Gauche;
    std::uint8_t corps = 8; ///< font size in points
    bool rempli = false;    ///< `fond` is painted
    bool borde = false;     ///< `bord` is painted, one pixel wide
    bool gras = false;
    bool souligne = false;
    bool visible = true;
    bool sensible = false; ///< takes the mouse
};

using Elements = std::vector<Element>;

/// One item a line, as tests compare them: "lblpiste[1] 60,365 300x210 \"1\" tag=…".
std::string decrire(const Elements& elements);

/// The item on top among those that take the mouse at (x, y); nullptr for none.
const Element* sous(const Elements& elements, Twips x, Twips y);

/// A straight line or a line of text of a ruler or a waveform's backdrop.
struct Trait {
    Twips x1, y1, x2, y2;
    Couleur couleur;
    bool operator==(const Trait&) const = default;
};
struct Inscription {
    Twips x, y; ///< top left corner
    Texte texte;
    Couleur couleur;
    std::uint8_t corps = 7;
    bool operator==(const Inscription&) const = default;
};
/// What a ruler shows.
struct Dessin {
    std::vector<Trait> traits;
    std::vector<Inscription> inscriptions;
    Twips bord = 0; ///< a text that would run over it ends there; 0: none does
    bool operator==(const Dessin&) const = default;
};

} // namespace vermo
