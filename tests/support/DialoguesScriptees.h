#pragma once
#include "platform/Dialogues.h"

#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace vermo::essai {

/// The person at the screen: answers given beforehand, in order. A question that nobody expected, and an
/// answer that nobody used, fail the test.
///
/// Each question leaves one line in the journal, line ends inside its text written "\n":
///     "Vermo|Supprimer cet extrait?|OuiNon|Question -> Oui", "OuiNon:Non" where Enter says Non
///     "fichier|Ouvrir|Fichier projet|*.Crp|ouvrir -> /chemin/a.Crp"
class DialoguesScriptees : public Dialogues {
  public:
    std::optional<Utf8> accord; ///< agrees to what nobody expected, and names this file

    DialoguesScriptees() = default;
    DialoguesScriptees(const DialoguesScriptees&) = delete;
    /// Fails for the answers that were not used.
    ~DialoguesScriptees() override {
        for (const auto& prevue : prevues_)
            ADD_FAILURE() << "answer never used: " << (prevue.fichier ? "a file" : nom(prevue.reponse)) << " "
                          << prevue.texte;
    }

    /// Next answer to a message box. `extrait`, when given, must stand in the box's text.
    DialoguesScriptees& repondre(Reponse reponse, std::string extrait = {}) {
        prevues_.push_back({false, reponse, std::move(extrait)});
        return *this;
    }
    /// Next answer to a file dialog; empty: the person gives up.
    DialoguesScriptees& choisir(Utf8 chemin) {
        prevues_.push_back({true, Reponse::Ok, std::move(chemin)});
        return *this;
    }

    const std::vector<std::string>& journal() const { return journal_; }
    std::string dernier() const { return journal_.empty() ? std::string() : journal_.back(); }

    Reponse demander(const Message& message) override {
        constexpr const char* boutons[] = {"Ok", "OkAnnuler", "OuiNon", "OuiNonAnnuler"};
        constexpr const char* icones[] = {"Aucune", "Information", "Exclamation", "Question", "Critique"};
        const std::string offertes = boutons[static_cast<int>(message.boutons)] +
                                     (message.defaut ? ":" + std::string(nom(*message.defaut)) : "");
        const std::string question = message.titre + "|" + message.texte + "|" + offertes + "|" +
                                     icones[static_cast<int>(message.icone)];
        const Prevue prevue = prochaine(false, question, parDefaut(message.boutons));
        EXPECT_NE(message.texte.find(prevue.texte), std::string::npos)
            << "expected \"" << prevue.texte << "\" in: " << question;
        EXPECT_NE(offertes.find(nom(prevue.reponse)), std::string::npos)
            << nom(prevue.reponse) << " is no button of: " << question;
        noter(question + " -> " + nom(prevue.reponse));
        return prevue.reponse;
    }

    Utf8 choisirFichier(const DemandeFichier& demande) override {
        const std::string question = "fichier|" + demande.titre + "|" + demande.filtre + "|" +
                                     (demande.enregistrer ? "enregistrer" : "ouvrir");
        const Prevue prevue = prochaine(true, question, Reponse::Ok);
        noter(question + " -> " + prevue.texte);
        return prevue.texte;
    }

  private:
    struct Prevue {
        bool fichier;
        Reponse reponse;
        std::string texte; ///< the file chosen, or what must stand in the box
    };

    Prevue prochaine(bool fichier, const std::string& question, Reponse sinon) {
        if (prevues_.empty() || prevues_.front().fichier != fichier) {
            if (!accord) ADD_FAILURE() << "nobody expected: " << question;
            return {fichier, sinon, fichier ? accord.value_or("") : ""};
        }
        Prevue prevue = prevues_.front();
        prevues_.pop_front();
        return prevue;
    }

    void noter(const std::string& ligne) {
        journal_.push_back(ligne);
        for (std::size_t p = 0; (p = journal_.back().find('\n', p)) != std::string::npos;)
            journal_.back().replace(p, 1, "\\n");
    }

    /// To a question that nobody expected.
    Reponse parDefaut(Boutons boutons) const {
        if (boutons == Boutons::OuiNon) return accord ? Reponse::Oui : Reponse::Non;
        return boutons == Boutons::Ok || accord ? Reponse::Ok : Reponse::Annuler;
    }
    static const char* nom(Reponse reponse) {
        constexpr const char* noms[] = {"Ok", "Annuler", "Oui", "Non"};
        return noms[static_cast<int>(reponse)];
    }

    std::deque<Prevue> prevues_;
    std::vector<std::string> journal_;
};

} // namespace vermo::essai
