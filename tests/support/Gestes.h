#pragma once
#include "support/Scene.h"

#include <fstream>
#include <regex>

namespace vermo::essai {

/// One row of a file "*.gestes" (UTF-8; blank lines and those that begin with "#" are none):
///
///     name: what is done before | gestures -> all that they change
///
/// The name and what is done before may be missing. What isn't named after the arrow must stay as it was.
/// Gestures are parted by "; ", each a verb and what follows it; "6x " in front repeats it:
///  - clic, droit, double, survole CONTROL[@PLACE]; glisse CONTROL@PLACE>PLACE, or tient: without letting go;
///    roule CONTROL NOTCHES [Ctrl]; entre CONTROL, sort CONTROL (the mouse); bulle CONTROL[@PLACE] (it rests)
///  - focus CONTROL; touche KEY; tape TEXT; colle TEXT: where the focus is, in the topmost window or that of
///    the last `focus`
///  - repondre ANSWER [PART-OF-THE-QUESTION], before the question comes; position SECONDS; ecoule SECONDS
///    (while it plays); pause;
///    attend (once through the waiting events); tic TIMER
///  - photo NAME, fiche NAME: the topmost window looks like tests/vues/NAME.png, and its controls are as the
///    lines of NAME.txt tell
///  - volume PART (of the session); sourd (no sound output); panne disque (every write fails); perdre FILE;
///    muer FILE (a folder stands in its place); and what the window's test adds
/// A PLACE is an item of a canvas ("LblXtr2"), "x,y" in pixels, or a number that the test makes a place of.
/// Changes are parted by "; ": "name=value", "name~" where it only tells that it changed, and of files
/// "disque path=" with the lines that went (-) and came (+), CR written "/"; " +", " -", " ~" for others.
struct Geste {
    int ligne;
    std::string id, avant, geste, effet;
};

inline std::vector<Geste> lireGestes(const std::string& chemin) {
    static const std::regex FORME("(?:([a-z0-9-]+): )?(?:(.*?) \\| )?(.+?) ->(?: (.*))?");
    std::vector<Geste> gestes;
    std::ifstream lecture(chemin);
    std::string texte;
    for (int ligne = 1; std::getline(lecture, texte); ++ligne) {
        std::smatch parts;
        if (texte.empty() || texte[0] == '#') continue;
        if (std::regex_match(texte, parts, FORME))
            gestes.push_back({ligne, parts[1], parts[2], parts[3], parts[4]});
        else
            ADD_FAILURE_AT(chemin.c_str(), ligne) << "not a row: " << texte;
    }
    EXPECT_FALSE(gestes.empty()) << chemin << " has no row";
    return gestes;
}

/// In the file, what the row `geste` changes is `effet` from now on.
inline void refaireEffet(const std::string& chemin, const Geste& geste, const std::string& effet) {
    std::ifstream lecture(chemin);
    std::string texte, ligne;
    for (int n = 1; std::getline(lecture, ligne); ++n)
        texte += (n == geste.ligne ? ligne.substr(0, ligne.find(" ->")) + (" -> " + effet) : ligne) + "\n";
    std::ofstream(chemin) << remplacer(texte, " -> \n", " ->\n");
}

/// Plays each row of tests/`fichier` in a scene of its own, made by `ouvrir`, and compares all that it
/// changed.
template <class Ouvrir>
Essais jouerTable(const std::string& fichier, const Ouvrir& ouvrir) {
    const std::string chemin = VERMO_RACINE "/tests/" + fichier;
    Essais essais;
    for (const Geste& geste : lireGestes(chemin)) {
        const testing::ScopedTrace trace(chemin.c_str(), geste.ligne, geste.id);
        try {
            const auto scene = ouvrir();
            scene->faire(geste.avant);
            const std::string effet = scene->effetDe(geste.geste);
            if (aRefaire())
                refaireEffet(chemin, geste, effet);
            else
                EXPECT_EQ(effet, geste.effet);
            essais.faits.merge(scene->essais.faits);
            for (auto& [fenetre, controles] : scene->essais.offerts)
                essais.offerts[fenetre].merge(controles);
        } catch (const std::exception& faute) {
            ADD_FAILURE() << faute.what();
        }
    }
    return essais;
}

} // namespace vermo::essai
