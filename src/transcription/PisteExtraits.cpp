#include "transcription/PisteExtraits.h"

#include "textfile/nombres.h"
#include "transcription/Marquage.h"
#include "transcription/Retranscription.h"
#include "window/MiseEnMots.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vermo {
namespace {

constexpr Twips LARGEUR_COLONNE_MIN = 3255;
constexpr Twips MARGE_MOTS = 240;   ///< what the word layout leaves free in a column
constexpr int CLARTE_LISIBLE = 140; ///< of 255: paler titles need a dark ground

const Texte& codeExtrait(const Session& session, int n) {
    return ligneDe(session.transcription.ExtraitCode, n);
}

bool trouvee(const EtatCorpus& corpus, std::string_view code) {
    return rangThematique(corpus, code) != 0;
}

/// Row of a code; the last one searched when there is none, 0 in an empty table.
int rangCherche(const EtatCorpus& corpus, std::string_view code) {
    const int rang = rangThematique(corpus, code);
    return rang != 0 ? rang : nombreThematiques(corpus);
}

int clarte(Couleur couleur) {
    return static_cast<int>(
        (299 * (couleur & 255) + 587 * (couleur >> 8 & 255) + 114 * (couleur >> 16 & 255)) / 1000);
}

/// One bubble under construction: its rectangles, then its items.
class Bulle {
  public:
    Bulle(const Session& session, int extrait, int numero, Twips x, Twips w, Twips hauteurZoom,
          const TailleBulle& taille)
        : session_(session), extrait_(extrait), numero_(numero), x_(x), w_(w), hauteurZoom_(hauteurZoom),
          taille_(taille), hauteur_(std::max(0.0, std::min(taille.hauteur, hauteurZoom - taille.haut))),
          dedans_{x + 120, taille.haut, std::max(0.0, w - 240), hauteur_},
          couleur_(couleurExtrait(session.corpus, codeExtrait(session, extrait))) {}

    void bandes(Elements& sortie) const {
        const Rectangle bande{dedans_.gauche, 0, dedans_.largeur, hauteurZoom_};
        Element& dehors = ajouter(sortie, Controle::ShpXtrZ, numero_, bande);
        dehors.borde = true;
        dehors.bord = couleur_;
        Element& interieur = ajouter(sortie, Controle::ShpXtrIntZ, numero_, bande);
        interieur.rempli = true;
        interieur.encre = Encre::Fusion;
        interieur.fond = couleur_;
    }

    void morceaux(Elements& sortie) const {
        const Twips coin = taille_.coin;
        const Twips milieu = w_ - 2 * coin > 0 ? w_ - 2 * coin : TWIPS_PAR_PIXEL;
        const Twips gauche = x_ + coin - 10;
        const Twips basTop = taille_.haut + hauteur_ - coin;
        Twips droite = x_ + w_ - coin - 20;
        if (droite + coin < gauche + milieu) droite = gauche + milieu - 10;
        const int blanche = 4 * numero_ - 3, bas = 3 * numero_ - 2, poignee = 2 * numero_ - 1;
        piece(sortie, Controle::ImgBulleBlanche, blanche, {x_, taille_.haut, coin, coin});
        poser(sortie, poignee, x_);
        piece(sortie, Controle::ImgBulleBas, bas, {x_, basTop, coin, coin});
        piece(sortie, Controle::ImgBulleBlanche, blanche + 1, {gauche, taille_.haut, milieu, coin});
        piece(sortie, Controle::ImgBulleBlanche, blanche + 2,
              {gauche, taille_.haut + coin - 1, milieu, std::max(0.0, hauteur_ - 2 * coin)});
        piece(sortie, Controle::ImgBulleBas, bas + 1, {gauche, basTop, milieu, coin});
        piece(sortie, Controle::ImgBulleBlanche, blanche + 3, {droite, taille_.haut, coin, coin});
        poser(sortie, poignee + 1, x_ + w_ - taille_.poignee - 35);
        piece(sortie, Controle::ImgBulleBas, bas + 2, {droite, basTop, coin, coin});
    }

    void etiquettes(Elements& sortie) const {
        ajouter(sortie, Controle::LblXtrZ, numero_, dedans_).bulle = codeExtrait(session_, extrait_);
        titre(sortie);
        ajouter(sortie, Controle::LbltxtXtrZ, numero_, cadreTexte()).sensible = true;
    }

    /// Words in view; `rang` numbers them through all bubbles.
    void mots(Elements& sortie, int& rang, Twips largeurZoom, const Metriques& metriques) const {
        const Rectangle cadre = cadreTexte();
        if (cadre.largeur <= MARGE_MOTS) return;
        const Twips pas = metriques.hauteur(taille_.corps);
        constexpr double COLONNES_MAX = 1000; // of a bubble that runs far out of the picture
        const int colonnes = static_cast<int>(borner(cadre.largeur / LARGEUR_COLONNE_MIN, COLONNES_MAX));
        const MotsDisposes disposes = disposerMots(ligneDe(session_.transcription.ExtraitTexte, extrait_),
                                                   {.depart = cadre.gauche,
                                                    .haut = cadre.haut,
                                                    .LargeurTexte = cadre.largeur,
                                                    .ColonnesTexte = std::max(1, colonnes),
                                                    .PasListe = pas,
                                                    .corps = taille_.corps},
                                                   metriques);
        for (const Mot& mot : disposes.mots) {
            ++rang;
            const bool vu = mot.visible && mot.largeur > 0 && mot.haut + pas <= cadre.bas() &&
                            mot.gauche < largeurZoom && mot.gauche + mot.largeur > 0;
            if (vu) etiquetteMot(sortie, rang, mot, disposes.texte, pas);
        }
    }

  private:
    Element& ajouter(Elements& sortie, Controle controle, int index, const Rectangle& cadre) const {
        Element& element = sortie.emplace_back();
        element.controle = controle;
        element.index = index;
        element.cadre = cadre;
        element.tag = std::to_string(extrait_);
        element.corps = taille_.corps;
        return element;
    }

    void piece(Elements& sortie, Controle controle, int index, const Rectangle& cadre) const {
        Element& element = ajouter(sortie, controle, index, cadre);
        element.rempli = true;
        element.fond = taille_.fond;
        element.sensible = true;
    }

    /// A handle runs down to the picture's edge, so that a bound can be taken anywhere below the bubble's
    /// top.
    void poser(Elements& sortie, int index, Twips gauche) const {
        const Rectangle cadre{gauche, taille_.haut, taille_.poignee,
                              std::max(0.0, hauteurZoom_ - taille_.haut)};
        piece(sortie, Controle::ImgBulleInt, index, cadre);
    }

    void titre(Elements& sortie) const {
        const Rectangle cadre{dedans_.gauche + 120, taille_.haut + taille_.titreHaut,
                              std::max(0.0, dedans_.largeur - 160), taille_.titreHauteur};
        Element& element = ajouter(sortie, Controle::LbltitreXtrZ, numero_, cadre);
        const int rang = rangCherche(session_.corpus, codeExtrait(session_, extrait_));
        if (rang != 0) element.texte = ligneDe(session_.corpus.ThmNom, rang);
        element.encreTexte = couleur_;
        element.gras = true;
        element.sensible = true;
        element.rempli = clarte(couleur_) > CLARTE_LISIBLE;
        element.fond = taille_.fondTitre;
    }

    Rectangle cadreTexte() const {
        return {dedans_.gauche + 120, taille_.haut + taille_.texteHaut, std::max(0.0, dedans_.largeur - 160),
                std::max(0.0, hauteur_ - taille_.texteHaut - taille_.titreHaut)};
    }

    void etiquetteMot(Elements& sortie, int rang, const Mot& mot, const Texte& texte, Twips pas) const {
        Element& element = ajouter(sortie, Controle::LblMot, rang, {mot.gauche, mot.haut, mot.largeur, pas});
        element.texte = texte.substr(mot.debut, mot.longueur);
        if (element.texte.back() == CR) element.texte.pop_back();
        element.tag = std::to_string(mot.ligne);
        element.encreTexte = taille_.encreMots;
    }

    const Session& session_;
    int extrait_, numero_;
    Twips x_, w_, hauteurZoom_;
    const TailleBulle& taille_;
    Twips hauteur_;
    Rectangle dedans_;
    Couleur couleur_;
};

bool dansLeZoom(const Bornes& extrait, const EtatAudio& audio) {
    const auto entre = [&](double t) { return t > audio.DebutZoom && t < audio.FinZoom; };
    return entre(extrait.debut) || entre(extrait.fin) ||
           (extrait.debut < audio.DebutZoom && extrait.fin > audio.FinZoom);
}

Element barre(Controle controle, int n, const Rectangle& cadre, Couleur fond) {
    Element element;
    element.controle = controle;
    element.index = n;
    element.cadre = cadre;
    element.tag = std::to_string(n);
    element.rempli = true;
    element.fond = fond;
    return element;
}

} // namespace

Couleur couleurExtrait(const EtatCorpus& corpus, std::string_view code) {
    const int rang = rangCherche(corpus, code);
    return rang == 0 ? 0 : couleur(ligneDe(corpus.ThmCouleur, rang));
}

Elements disposerPiste(const Session& session, Twips largeurPicture1, const TaillePiste& taille) {
    Elements elements;
    const double duree = session.audio.DureeFichier;
    if (duree <= 0) return elements;
    elements.reserve(3 * static_cast<std::size_t>(nombreExtraits(session)));
    for (int n = 1; n <= nombreExtraits(session); ++n) {
        const auto extrait = bornesExtrait(session, n);
        if (!extrait) continue;
        const Texte& code = codeExtrait(session, n);
        const Couleur teinte = couleurExtrait(session.corpus, code);
        const Rectangle dehors{extrait->debut / duree * largeurPicture1, taille.haut,
                               (extrait->fin - extrait->debut) / duree * largeurPicture1, taille.hauteur};
        Rectangle dedans = dehors, clic = dehors;
        dedans.gauche += TWIPS_PAR_PIXEL;
        clic.haut += TWIPS_PAR_PIXEL;
        clic.hauteur -= 2 * TWIPS_PAR_PIXEL;
        for (const auto& [controle, cadre] :
             {std::pair(Controle::ShpXtr, dehors), std::pair(Controle::ShpXtrInt, dedans)}) {
            elements.push_back(barre(controle, n, cadre, teinte));
            elements.back().borde = true;
            elements.back().bord = taille.bord;
        }
        elements.push_back(
            barre(Controle::LblXtr, n, clic, trouvee(session.corpus, code) ? teinte : taille.modele));
        elements.back().bulle = code;
        elements.back().sensible = true;
    }
    return elements;
}

Elements disposerBulles(const Session& session, Twips largeurZoom, Twips hauteurZoom,
                        const Metriques& metriques, const TailleBulle& taille) {
    Elements elements;
    const EtatAudio& audio = session.audio;
    if (audio.DureeZoom <= 0) return elements;
    std::vector<Bulle> bulles;
    for (int n = 1; n <= nombreExtraits(session); ++n) {
        const auto extrait = bornesExtrait(session, n);
        if (!extrait || !dansLeZoom(*extrait, audio)) continue;
        const Twips x = (extrait->debut - audio.DebutZoom) / audio.DureeZoom * largeurZoom;
        const Twips w = (extrait->fin - extrait->debut) / audio.DureeZoom * largeurZoom;
        bulles.emplace_back(session, n, static_cast<int>(bulles.size()) + 1, x, w, hauteurZoom, taille);
    }
    for (const Bulle& bulle : bulles)
        bulle.bandes(elements);
    int mot = 0;
    for (const Bulle& bulle : bulles) {
        bulle.morceaux(elements);
        bulle.etiquettes(elements);
        bulle.mots(elements, mot, largeurZoom, metriques);
    }
    return elements;
}

} // namespace vermo
