#pragma once
#include "textfile/texte.h"

#include <optional>

namespace vermo {

enum class Boutons { Ok, OkAnnuler, OuiNon, OuiNonAnnuler };
enum class Icone { Aucune, Information, Exclamation, Question, Critique };
enum class Reponse { Ok, Annuler, Oui, Non };

/// One message box. Lines are separated by "\n". An empty title is shown as the program's name. The Enter key
/// gives `defaut`; none: the first button.
struct Message {
    Utf8 texte;
    Utf8 titre = {};
    Boutons boutons = Boutons::Ok;
    Icone icone = Icone::Aucune;
    std::optional<Reponse> defaut = {};
};

/// One file dialog. `filtre` is "label|pattern", as "Fichier projet|*.Crp"; several follow each other, the
/// first is chosen, and patterns of one label are parted by ";".
struct DemandeFichier {
    Utf8 titre;
    Utf8 filtre;
    Utf8 extension; ///< added to a name typed without one
    bool enregistrer = false;
    Utf8 repertoire = {}; ///< where it starts; empty: where the last one ended
};

/// What the program asks of a person.
class Dialogues {
  public:
    virtual ~Dialogues() = default;
    /// Shows the box and waits for its answer. Closing it means Annuler, Non or Ok, whichever it has first.
    virtual Reponse demander(const Message& message) = 0;
    /// Full path chosen; empty when the person gave up.
    virtual Utf8 choisirFichier(const DemandeFichier& demande) = 0;
};

} // namespace vermo
