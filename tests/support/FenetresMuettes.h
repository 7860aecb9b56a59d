#pragma once
#include "window/Fenetres.h"

#include <map>
#include <string>
#include <vector>

namespace vermo::essai {

/// Notes what windows ask of each other and announce, and does nothing of it but keep what is shown. One line
/// a request: "montrer FrmVisu", "montrer FrmVisu 3 SansFondu", "montrer FrmMenu 5", "annoncer Bascules".
class FenetresMuettes : public Fenetres {
  public:
    bool enSaisie = false;  ///< a text is being typed
    bool abandonne = false; ///< one was abandoned

    const std::vector<std::string>& journal() const { return journal_; }
    void effacerJournal() { journal_.clear(); }

    void montrer(Fenetre f, const Contenu& contenu = {}) override {
        noter("montrer " + nom(f) + std::visit([](const auto& voulu) { return dit(voulu); }, contenu));
        visibles_[f] = contenu.index() == 0;
    }
    void cacher(Fenetre f) override { noter("cacher " + nom(f)), visibles_[f] = false; }
    void decharger(Fenetre f) override { noter("decharger " + nom(f)), visibles_[f] = false; }
    bool visible(Fenetre f) const override { return visibles_.contains(f) && visibles_.at(f); }
    bool entamee(Fenetre) const override { return enSaisie; }
    void finir() override { noter("finir"); }
    void annoncer(const Avis& avis) override {
        constexpr const char* SUJETS[] = {"Thematiques", "Bascules", "Entretiens",    "Extraits",
                                          "Attributs",   "Volume",   "TexteAbandonne"};
        noter(std::string("annoncer ") + SUJETS[static_cast<int>(avis.sujet)]);
    }
    bool texteAbandonne() const override { return abandonne; }
    void NouveauCorpus() override { noter("NouveauCorpus"); }
    void OuvrirCorpus() override { noter("OuvrirCorpus"); }
    void ImporterEntretien() override { noter("ImporterEntretien"); }
    void retirerEntretien() override { noter("retirerEntretien"); }
    void DeplacerEntretien(int source, int cible) override {
        noter("DeplacerEntretien " + std::to_string(source) + " " + std::to_string(cible));
    }

    void annulerChangement() override { noter("annulerChangement"); }
    void refaireChangement() override { noter("refaireChangement"); }
    bool aAnnuler() const override { return true; }
    bool aRefaire() const override { return true; }

  private:
    static std::string nom(Fenetre f) { return std::string(nomFenetre(f)); }
    static std::string dit(std::monostate) { return {}; }
    static std::string dit(const PanneauVoulu& v) {
        return " " + std::to_string(static_cast<int>(v.panneau));
    }
    static std::string dit(const EntretienVoulu& v) {
        return " " + std::to_string(v.slot) +
               (v.ouverture == Ouverture::AvecFondu ? " AvecFondu" : " SansFondu");
    }
    static std::string dit(NouvelExtraitVoulu) { return " nouvel extrait"; }
    static std::string dit(TexteAbandonneVoulu) { return " texte abandonné"; }
    static std::string dit(const ExtraitVoulu& v) { return " extrait " + std::to_string(v.numero); }
    void noter(std::string ligne) { journal_.push_back(std::move(ligne)); }

    std::vector<std::string> journal_;
    std::map<Fenetre, bool> visibles_;
};

} // namespace vermo::essai
