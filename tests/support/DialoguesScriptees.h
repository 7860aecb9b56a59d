#pragma once
#include "platform/Dialogues.h"

#include <deque>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace vermo::essai {

/// The person at the screen: answers given beforehand, in order. A question that nobody expected, and an
/// answer that nobody used, fail the test.
///
/// Each question leaves one line in the journal, line ends inside its text written "\n":
///     "Vermo|Supprimer cet extrait?|OuiNon|Question -> Oui"
///     "fichier|Ouvrir|Fichier projet|*.Crp|ouvrir -> /chemin/a.Crp"
class DialoguesScriptees : public Dialogues {
  public:
    DialoguesScriptees() = default;
    DialoguesScriptees(const DialoguesScriptees&) = delete;
    DialoguesScriptees& operator=(const DialoguesScriptees&) = delete;
    ~DialoguesScriptees() override { verifier(); }

    /// Next answer to a message box. `extrait`, when given, must stand in the box's text.
    DialoguesScriptees& repondre(Reponse reponse, std::string extrait = {}) {
        prevues_.push_back({false, reponse, {}, std::move(extrait)});
        return *this;
    }
    /// Next answer to a file dialog; empty: the person gives up.
    DialoguesScriptees& choisir(Utf8 chemin) {
        prevues_.push_back({true, Reponse::Ok, std::move(chemin), {}});
        return *this;
    }

    const std::vector<std::string>& journal() const { return journal_; }
    std::string dernier() const { return journal_.empty() ? std::string() : journal_.back(); }
    void effacerJournal() { journal_.clear(); }

    /// Fails for the answers that were not used, and forgets them.
    void verifier() {
        for (const auto& prevue : prevues_)
            ADD_FAILURE() << "answer never used: " << (prevue.fichier ? prevue.chemin : nom(prevue.reponse));
        prevues_.clear();
    }

    Reponse demander(const Message& message) override {
        const std::string question =
            message.titre + "|" + message.texte + "|" + nom(message.boutons) + "|" + nom(message.icone);
        Prevue prevue = prochaine(false, question, parDefaut(message.boutons));
        EXPECT_NE(message.texte.find(prevue.extrait), std::string::npos)
            << "expected \"" << prevue.extrait << "\" in: " << question;
        EXPECT_TRUE(offerte(prevue.reponse, message.boutons))
            << nom(prevue.reponse) << " is no button of: " << question;
        noter(question + " -> " + nom(prevue.reponse));
        return prevue.reponse;
    }

    Utf8 choisirFichier(const DemandeFichier& demande) override {
        const std::string question = "fichier|" + demande.titre + "|" + demande.filtre + "|" +
                                     (demande.enregistrer ? "enregistrer" : "ouvrir");
        Prevue prevue = prochaine(true, question, Reponse::Ok);
        noter(question + " -> " + prevue.chemin);
        return prevue.chemin;
    }

  private:
    struct Prevue {
        bool fichier;
        Reponse reponse;
        Utf8 chemin;
        std::string extrait;
    };

    Prevue prochaine(bool fichier, const std::string& question, Reponse sinon) {
        if (prevues_.empty() || prevues_.front().fichier != fichier) {
            ADD_FAILURE() << "nobody expected: " << question;
            return {fichier, sinon, {}, {}};
        }
        Prevue prevue = prevues_.front();
        prevues_.pop_front();
        return prevue;
    }

    void noter(const std::string& ligne) {
        std::string seule;
        for (char c : ligne)
            seule += c == '\n' ? std::string("\\n") : std::string(1, c);
        journal_.push_back(seule);
    }

    static Reponse parDefaut(Boutons boutons) {
        return boutons == Boutons::Ok       ? Reponse::Ok
               : boutons == Boutons::OuiNon ? Reponse::Non
                                            : Reponse::Annuler;
    }
    static bool offerte(Reponse reponse, Boutons boutons) {
        const std::string offertes = nom(boutons);
        return offertes.find(nom(reponse)) != std::string::npos;
    }
    static std::string nom(Boutons boutons) {
        constexpr const char* noms[] = {"Ok", "OkAnnuler", "OuiNon", "OuiNonAnnuler"};
        return noms[static_cast<int>(boutons)];
    }
    static std::string nom(Icone icone) {
        constexpr const char* noms[] = {"Aucune", "Information", "Exclamation", "Question", "Critique"};
        return noms[static_cast<int>(icone)];
    }
    static std::string nom(Reponse reponse) {
        constexpr const char* noms[] = {"Ok", "Annuler", "Oui", "Non"};
        return noms[static_cast<int>(reponse)];
    }

    std::deque<Prevue> prevues_;
    std::vector<std::string> journal_;
};

} // namespace vermo::essai
