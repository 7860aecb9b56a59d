#include "corpus/Pistes.h"

#include "textfile/faute.h"
#include "textfile/memoire.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vermo {
namespace {

constexpr Twips MARGE_BARRE = 10;    ///< above and below a bar, inside its row's picture
constexpr Twips LARGEUR_MODELE = 45; ///< of a bar that has no length, and of the mark of the empty row

/// How a bar looks.
struct Teinte {
    Couleur fond = BLANC;
    Encre encre = Encre::Copie;
    bool rempli = true;
};

Teinte teinteDe(const EtatCorpus& corpus, int rang) {
    return {couleurThematique(corpus, rang), rang == 1 ? Encre::Copie : Encre::Fusion,
            thematiqueVisible(corpus, rang)};
}

/// Looks of bars by thematic code; white for a code that is not in the table.
class Teintes {
  public:
    explicit Teintes(const EtatCorpus& corpus) {
        for (int rang = 1; rang <= static_cast<int>(corpus.NbThm); ++rang)
            parCode_.emplace(corpus.ThmCode.at(static_cast<std::size_t>(rang)), teinteDe(corpus, rang));
    }
    Teinte pour(std::string_view code, bool entretienVisible) const {
        const auto trouvee = parCode_.find(code);
        if (trouvee == parCode_.end()) return {};
        Teinte teinte = trouvee->second;
        if (!entretienVisible) teinte.fond = GRIS;
        return teinte;
    }

  private:
    std::unordered_map<std::string_view, Teinte> parCode_;
};

void ecrireNombre(Texte& texte, int nombre) {
    char chiffres[12];
    texte.assign(chiffres, std::to_chars(chiffres, chiffres + sizeof chiffres, nombre).ptr);
}

/// The bars of one row.
class Piste {
  public:
    Piste(const Session& session, int slot, Rectangle cadre, const Teintes& teintes, Elements& sortie)
        : entretien_(session.corpus.Entretiens[static_cast<std::size_t>(slot)]), cadre_(cadre),
          teintes_(teintes), sortie_(sortie) {}

    void disposer(const ExtraitsEntretien& table, int& index) {
        int n = 0;
        for (const LigneExtrait& ligne : table.lignes) {
            const Twips longueur = surBarre(ligne.secondesFin - ligne.secondesDebut);
            ajouterBarre(++index, ++n, surBarre(ligne.secondesDebut), longueur,
                         teintes_.pour(codeDe(ligne), entretien_.Visible));
        }
        ajouterBarre(++index, n + 1, 0, 0, teintes_.pour({}, entretien_.Visible));
    }

  private:
    Twips surBarre(float secondes) const {
        return static_cast<Twips>(secondes) / static_cast<Twips>(entretien_.Duree) * cadre_.largeur;
    }

    void ajouterBarre(int index, int n, Twips x, Twips longueur, const Teinte& teinte) {
        Element& Lblthm = sortie_.emplace_back();
        Lblthm.controle = Controle::Lblthm;
        Lblthm.index = index;
        Lblthm.cadre = {cadre_.gauche + x, cadre_.haut + MARGE_BARRE,
                        longueur > 0 ? longueur : LARGEUR_MODELE, cadre_.hauteur - 2 * MARGE_BARRE};
        ecrireNombre(Lblthm.tag, n);
        Lblthm.fond = teinte.fond;
        Lblthm.encre = teinte.encre;
        Lblthm.rempli = teinte.rempli;
        Lblthm.sensible = true;
    }

    const Entretien& entretien_;
    Rectangle cadre_;
    const Teintes& teintes_;
    Elements& sortie_;
};

void disposerImgPlay(int slot, Rectangle barre, Elements& sortie) {
    static const Texte bulle = depuisUtf8("Ouvrir la fenêtre de saisie");
    const Rectangle modele = TAILLES_FRISE.ImgPlay;
    Element& ImgPlay = sortie.emplace_back();
    ImgPlay.controle = Controle::ImgPlay;
    ImgPlay.index = slot;
    ImgPlay.cadre = {barre.droite() + modele.gauche, barre.haut + barre.hauteur / 2 - 122, modele.largeur,
                     modele.hauteur};
    ImgPlay.image = ":/icones/ImgPlay.svg";
    ImgPlay.bulle = bulle;
    ImgPlay.sensible = true;
}

/// Room for all bars at once: growing step by step would touch fresh memory again and again.
void reserver(const EtatCorpus& corpus, LignesEnVue lignes, Elements& sortie) {
    std::size_t nombre = sortie.size();
    for (auto i = static_cast<std::size_t>(lignes.premiere); static_cast<int>(i) <= lignes.derniere; ++i)
        nombre += i < corpus.extraits.size() ? corpus.extraits[i].lignes.size() + 2 : 1;
    if (nombre <= sortie.capacity()) return;
    sortie.reserve(nombre);
    peuplerMemoire(sortie.data(), nombre * sizeof(Element));
}

Texte compte(const Utf8& quoi, std::ptrdiff_t allumes, int nombre) {
    return depuisUtf8(quoi) + "  (" + std::to_string(allumes) + "/" + std::to_string(nombre) + ")";
}

} // namespace

Couleur couleurThematique(const EtatCorpus& corpus, int rang) {
    try {
        return couleur(corpus.ThmCouleur.at(static_cast<std::size_t>(rang)));
    } catch (const FauteExecution&) {
        return GRIS;
    }
}

bool thematiqueVisible(const EtatCorpus& corpus, int rang) {
    const auto i = static_cast<std::size_t>(rang);
    return i < corpus.ThmVisible.size() && corpus.ThmVisible[i] == 1;
}

void disposerPistes(const Session& session, const VueFrise& vue, Elements& sortie) {
    const EtatCorpus& corpus = session.corpus;
    const Teintes teintes(corpus);
    const float durmax = dureeMax(corpus);
    const LignesEnVue lignes = lignesEnVue(session, vue);
    reserver(corpus, lignes, sortie);
    int index = 0;
    for (int slot = lignes.premiere; slot <= lignes.derniere; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        if (corpus.Entretiens[i].Duree == 0 || i >= corpus.extraits.size()) continue;
        Piste(session, slot, cadreImgEnt(session, slot, vue, durmax), teintes, sortie)
            .disposer(corpus.extraits[i], index);
    }
    for (int slot = lignes.premiere; slot <= lignes.derniere; ++slot)
        disposerImgPlay(slot, cadreImgEnt(session, slot, vue, durmax), sortie);
}

Texte compteThematiques(const EtatCorpus& corpus) {
    const int nombre = corpus.ouvertureInachevee ? 0 : nombreThematiques(corpus);
    int allumees = 0;
    for (int rang = 1; rang <= nombre; ++rang)
        allumees += thematiqueVisible(corpus, rang) ? 1 : 0;
    return compte("Thématiques", allumees, nombre);
}

Texte compteEntretiens(const EtatCorpus& corpus) {
    const int nombre = nombreLignes(corpus);
    const auto premier = corpus.Entretiens.begin() + (nombre > 0 ? 1 : 0);
    return compte("Entretiens",
                  std::count_if(premier, premier + nombre, [](const Entretien& e) { return e.Visible; }),
                  nombre);
}

void signalerDureesNulles(Session& session, Plateforme& plateforme, int premier, int dernier) {
    dernier = std::min(dernier, nombreLignes(session.corpus));
    for (int slot = std::max(premier, 1); slot <= dernier; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        const Entretien& entretien = session.corpus.Entretiens[i];
        if (entretien.Duree == 0 && session.corpus.extraits[i].dureeNulleDite.nouveau())
            plateforme.dialogues.demander(
                {"Un problème est survenu lors de l'ouverture de l'entretien " + versUtf8(entretien.Fichier),
                 "Vermo", Boutons::OkAnnuler, Icone::Exclamation});
    }
}

} // namespace vermo
