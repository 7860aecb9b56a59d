#include "window/MiseEnMots.h"

#include <algorithm>

namespace vermo {

namespace {

constexpr Twips MARGE_DROITE = 240;
constexpr Twips ECART_FIN_DE_LIGNE = 30; ///< between the words of a line that a CR ends
constexpr int LIGNES_EN_COLONNES = 10;   ///< shorter texts stand in one column
constexpr int COLONNES_AU_DEPART = 2;

/// One pass over the text: words get their line, lines their spacing.
class Composition {
  public:
    Composition(std::string_view texte, const ReglagesMots& reglages, const Metriques& metriques)
        : texte_(texte), reglages_(reglages), metriques_(metriques),
          colonnes_(reglages.ColonnesTexte > 0 ? reglages.ColonnesTexte : COLONNES_AU_DEPART),
          largeurColonne_(reglages.LargeurTexte / colonnes_) {}

    void couper(MotsDisposes& sortie) {
        std::size_t premier = 0;
        for (std::size_t c = 0; c < texte_.size(); ++c) {
            if (texte_[c] != ' ' && texte_[c] != CR) continue;
            ajouter(sortie.mots, premier, c - premier + 1);
            premier = c + 1;
            if (texte_[c] == CR) finirLigne(ECART_FIN_DE_LIGNE);
        }
        sortie.LigneTexte = static_cast<int>(ecarts_.size());
    }

    void placer(MotsDisposes& sortie) const {
        const int lignes = sortie.LigneTexte;
        int parColonne = (lignes + colonnes_ - 1) / colonnes_;
        if (lignes < LIGNES_EN_COLONNES) parColonne = lignes;
        sortie.lignesParColonne = parColonne;
        int courante = 0;
        Twips gauche = 0;
        for (Mot& mot : sortie.mots) {
            mot.visible = mot.ligne <= lignes;
            if (!mot.visible) break;
            const int n = mot.ligne - 1;
            const int colonne = n / parColonne;
            if (mot.ligne != courante) gauche = reglages_.depart + largeurColonne_ * colonne;
            courante = mot.ligne;
            mot.gauche = gauche;
            mot.haut = reglages_.haut + reglages_.PasListe * (n % parColonne);
            gauche += mot.largeur + ecarts_[static_cast<std::size_t>(n)];
        }
    }

  private:
    void ajouter(std::vector<Mot>& mots, std::size_t debut, std::size_t longueur) {
        const std::string_view legende = texte_.substr(debut, longueur);
        const bool marque = reglages_.marque && reglages_.marque(legende);
        const std::string_view vu = legende.back() == CR ? legende.substr(0, longueur - 1) : legende;
        const Twips largeur = metriques_.largeur(vu, reglages_.corps, marque);
        const Twips limite = largeurColonne_ - MARGE_DROITE;
        if (PosMot_ + largeur > limite)
            finirLigne(motsDeLigne_ > 1 ? (limite - PosMot_) / (motsDeLigne_ - 1) : 0);
        mots.push_back({debut, longueur, static_cast<int>(ecarts_.size()) + 1, reglages_.depart + PosMot_,
                        reglages_.haut, largeur, marque, false});
        ++motsDeLigne_;
        PosMot_ += largeur;
    }

    void finirLigne(Twips ecart) {
        ecarts_.push_back(ecart);
        motsDeLigne_ = 0;
        PosMot_ = 0;
    }

    std::string_view texte_;
    const ReglagesMots& reglages_;
    const Metriques& metriques_;
    int colonnes_;
    Twips largeurColonne_;
    Twips PosMot_ = 0; ///< from `depart`
    int motsDeLigne_ = 0;
    std::vector<Twips> ecarts_; ///< spacing of each line that has ended
};

} // namespace

MotsDisposes disposerMots(std::string_view texte, const ReglagesMots& reglages, const Metriques& metriques) {
    MotsDisposes sortie;
    sortie.texte = texte;
    if (texte.size() < 2) return sortie;
    if (texte[texte.size() - 2] != ' ') sortie.texte += ' ';
    Composition composition(sortie.texte, reglages, metriques);
    composition.couper(sortie);
    composition.placer(sortie);
    return sortie;
}

} // namespace vermo
