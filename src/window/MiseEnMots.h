#pragma once
#include "window/Metriques.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace vermo {

/// The word layout that bubbles, synthesis and reader share: a text laid out word by word in justified
/// columns. Words end at a blank or at a carriage return, and keep it (a return has no width). A line is
/// filled up to 240 twips before the column's right edge, counted from `depart`, and justified; one that a
/// return ends has 30 between its words. A word wider than a line stands alone, behind an empty line if it
/// came first. Texts of fewer than ten lines stand in one column.
struct ReglagesMots {
    Twips depart = 0; ///< Left of a line's first word, and of `PosMot` at the start
    Twips haut = 0;   ///< Top of the first line
    Twips LargeurTexte = 0;
    int ColonnesTexte = 1; ///< 0: never chosen, taken as 2
    Twips PasListe = 0;    ///< line pitch
    int corps = 8;
    /// True for a word (its caption, blank included) that is to be marked. Empty: none is.
    std::function<bool(std::string_view)> marque = {};
};

/// One word: its place in the text, its line from 1, and where it stands.
struct Mot {
    std::size_t debut, longueur; ///< in the text as laid out; the blank behind it belongs to it
    int ligne;
    Twips gauche, haut, largeur;
    bool marque;
    bool visible; ///< false for words of the last line number, which holds what follows the last line end
};

struct MotsDisposes {
    Texte texte; ///< the text as laid out: a blank was added at its end unless one stood before the last
                 ///< character
    std::vector<Mot> mots;
    int LigneTexte = 0; ///< lines shown
    int lignesParColonne = 0;
};

/// A text of fewer than two characters has no words.
MotsDisposes disposerMots(std::string_view texte, const ReglagesMots& reglages, const Metriques& metriques);

} // namespace vermo
