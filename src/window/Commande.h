#pragma once
#include "textfile/texte.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vermo {

class Forme; // known by name alone below the glass

/// What is held down beside a key, as bits.
enum Modificateur : std::uint8_t { CTRL = 1, ALT = 2, MAJ = 4, TOUS = 7 };

/// A key, as it is printed: "Ctrl + Entrée", "Alt + Origine", "Échap", "+". Both Enter keys are one.
struct Touche {
    std::uint8_t avec = 0;     ///< Modificateur
    std::string_view cle = {}; ///< empty: none

    constexpr Touche() = default;
    /// From the printed form; it must outlive the key.
    constexpr Touche(std::string_view texte) : cle(texte) {
        constexpr std::pair<std::string_view, Modificateur> NOMS[] = {
            {"Ctrl + ", CTRL}, {"Alt + ", ALT}, {"Maj + ", MAJ}};
        for (const auto& [nom, modificateur] : NOMS)
            if (cle.starts_with(nom)) {
                avec |= modificateur;
                cle.remove_prefix(nom.size());
            }
    }
    constexpr Touche(const char* texte) : Touche(std::string_view(texte)) {}
    bool operator==(const Touche&) const = default;
};
/// "Ctrl + Entrée"; another `lien` stands between its parts in the place of " + ".
Utf8 nomTouche(const Touche& touche, std::string_view lien = " + ");

/// A key that a command answers to.
struct Raccourci {
    Touche touche = {};
    /// Object names of the controls that have the focus, blanks between; the key is then taken before the
    /// control sees it. None: anywhere in the window, once the control left the key.
    std::string_view ou = {};
    std::uint8_t libres = MAJ; ///< Modificateur that may be held or not

    bool vaut(const Touche& pressee) const {
        return !touche.cle.empty() && pressee.cle == touche.cle && (pressee.avec & ~libres) == touche.avec;
    }
    bool tientDans(std::string_view controle) const;
};

/// All that a window says and does of one command. In its texts "{}" stands for the command's first key,
/// "{id}" for that of another command of the same window; "{+}" is "{}" without blanks.
struct Commande {
    using Action = void (*)(Forme&);
    using Question = bool (*)(const Forme&);

    std::string_view id;          ///< unique in its window
    std::string_view bouton = {}; ///< object name of its button
    std::string_view icone = {};  ///< of the button, a name of the resources
    std::string_view iconePressee = {};
    std::string_view bulle = {};  ///< tooltip of the button or of the row
    std::string_view ligne = {};  ///< object name of its row in a menu
    std::string_view texte = {};  ///< of the row; blanks in front make room for an icon
    std::string_view indice = {}; ///< in the hint line
    std::string_view aide = {};   ///< in the list of all commands, where neither tooltip nor row says it
    Raccourci touches[4] = {};
    bool auPresser = false;     ///< the button acts when it is pressed, not when it is let go
    bool seule = false;         ///< a key that is held down acts once
    Action faire = nullptr;     ///< none: nothing answers it yet, and it is disabled
    Action relacher = nullptr;  ///< when its key is let go
    Question permise = nullptr; ///< whether it may be used now; none: always
};
using TableCommandes = std::span<const Commande>;

/// Throws FauteExecution when the window has no such command.
const Commande& commandeDe(TableCommandes table, std::string_view id);
/// `texte` with the keys that it names; `commande` is the one that "{}" means.
Utf8 avecTouches(TableCommandes table, std::string_view texte, const Commande* commande = nullptr);
/// The hint line: "Espace : lecture    ← → : déplacer". Neighbours with the same hint share it.
Utf8 ligneIndices(TableCommandes table);
/// What the command does, for a list of all: one line, without its key.
Utf8 aideDe(TableCommandes table, const Commande& commande);

} // namespace vermo
