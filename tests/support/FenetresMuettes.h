#pragma once
#include "window/Fenetres.h"

#include <map>
#include <string>
#include <vector>

namespace vermo::essai {

/// Notes what windows ask of each other, and does nothing of it but keep what is shown. One line a request:
/// "montrer FrmVisu", "OuvrirEntretien 3 SansFondu", "OuvrirMenu 5".
class FenetresMuettes : public Fenetres {
  public:
    bool entamee = false; ///< a text is being typed

    const std::vector<std::string>& journal() const { return journal_; }
    void effacerJournal() { journal_.clear(); }

    void montrer(Fenetre f) override { noter("montrer " + nom(f)), visibles_[f] = true; }
    void cacher(Fenetre f) override { noter("cacher " + nom(f)), visibles_[f] = false; }
    void decharger(Fenetre f) override { noter("decharger " + nom(f)), visibles_[f] = false; }
    bool visible(Fenetre f) const override { return visibles_.contains(f) && visibles_.at(f); }
    bool saisieEntamee() const override { return entamee; }
    void finir() override { noter("finir"); }
    void NouveauCorpus() override { noter("NouveauCorpus"); }
    void OuvrirCorpus() override { noter("OuvrirCorpus"); }
    void ImporterEntretien() override { noter("ImporterEntretien"); }
    void OuvrirEntretien(int slot, Ouverture o) override {
        noter("OuvrirEntretien " + std::to_string(slot) +
              (o == Ouverture::AvecFondu ? " AvecFondu" : " SansFondu"));
    }
    void RetirerEntretien() override { noter("RetirerEntretien"); }
    void DeplacerEntretien(int source, int cible) override {
        noter("DeplacerEntretien " + std::to_string(source) + " " + std::to_string(cible));
    }
    void BasculerTailleReelle(bool redessiner) override {
        noter(redessiner ? "BasculerTailleReelle redessiner" : "BasculerTailleReelle");
    }
    void ReglerVolume(int part) override { noter("ReglerVolume " + std::to_string(part)); }
    void OuvrirMenu(Panneau p, Rectangle) override {
        noter("OuvrirMenu " + std::to_string(static_cast<int>(p)));
    }
    void RedessinerFrise() override { noter("RedessinerFrise"); }
    void RedessinerPistes() override { noter("RedessinerPistes"); }
    void ConstruireThematiques() override { noter("ConstruireThematiques"); }
    void rafraichirExtraits() override { noter("rafraichirExtraits"); }
    void quitterVisu() override { noter("quitterVisu"); }
    void PreparerSaisie() override { noter("PreparerSaisie"); }
    void OuvrirExtrait(int n) override { noter("OuvrirExtrait " + std::to_string(n)); }

  private:
    static std::string nom(Fenetre f) {
        constexpr const char* noms[] = {"FrmIntro", "FrmCorpus", "FrmMenu", "FrmVisu", "FrmSaisie"};
        return noms[static_cast<int>(f)];
    }
    void noter(std::string ligne) { journal_.push_back(std::move(ligne)); }

    std::vector<std::string> journal_;
    std::map<Fenetre, bool> visibles_;
};

} // namespace vermo::essai
