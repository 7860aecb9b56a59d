#include "corpus/Panneaux.h"

#include "corpus/Pistes.h"

#include <algorithm>

namespace vermo {
namespace {

constexpr Couleur ENCRE = rvb(0, 0, 0), ENCRE_SANS_THEMATIQUE = 0x636363;
constexpr const char* SANS_THEMATIQUE = "000";
constexpr Twips HAUTEUR_THM_MAX = 495, CREUX_LBLCOUL = 30, CREUX_IMGCOUL = 255;
constexpr int CORPS = 8, CORPS_MIN = 5;

/// The size of a text that fits a row.
std::uint8_t corpsPour(Twips h) {
    return static_cast<std::uint8_t>(std::clamp(static_cast<int>(h / 30), CORPS_MIN, CORPS));
}

Element rangDe(Controle controle, int rang, Rectangle cadre) {
    Element element;
    element.controle = controle;
    element.index = rang;
    element.cadre = cadre;
    return element;
}

Element labelDe(const EtatCorpus& corpus, int rang, Rectangle cadre, Legende legende) {
    static const Texte bulle = depuisUtf8("Clic gauche pour éteindre, Clic droit pour renommer...");
    const auto i = static_cast<std::size_t>(rang);
    Element LblCoul = rangDe(Controle::LblCoul, rang, cadre);
    LblCoul.texte = corpus.ThmNom[i];
    LblCoul.tag = corpus.ThmCode[i];
    LblCoul.fond = couleurThematique(corpus, rang);
    LblCoul.encreTexte = corpus.ThmCode[i] == SANS_THEMATIQUE ? ENCRE_SANS_THEMATIQUE : ENCRE;
    LblCoul.corps = corpsPour(cadre.hauteur);
    LblCoul.sensible = true;
    if (legende == Legende::Corpus) LblCoul.bulle = bulle;
    return LblCoul;
}

void allumerThematiques(EtatCorpus& corpus, std::int16_t etat) {
    corpus.ThmVisible.assign(static_cast<std::size_t>(nombreThematiques(corpus)) + 1, etat);
}

} // namespace

Twips hauteurThematique(int nombre, Twips hauteurCadre) {
    return nombre < 1 ? HAUTEUR_THM_MAX : std::min(hauteurCadre / nombre, HAUTEUR_THM_MAX);
}

Rangs lignesThematiques(const Session& session, Twips hauteurCadre) {
    const int nombre = nombreThematiques(session.corpus);
    return Rangs::egaux(nombre, hauteurThematique(nombre, hauteurCadre), CREUX_LBLCOUL);
}

Elements disposerThematiques(const Session& session, Twips largeur, Twips hauteurCadre, Legende legende) {
    const EtatCorpus& corpus = session.corpus;
    Elements liste;
    const Twips h = hauteurThematique(nombreThematiques(corpus), hauteurCadre);
    for (int rang = 1; rang <= nombreThematiques(corpus); ++rang) {
        const Twips haut = (rang - 1) * h;
        const Twips creux = std::max(h - CREUX_IMGCOUL, 0.0);
        Element& ImgCoul =
            liste.emplace_back(rangDe(Controle::ImgCoul, rang, {0, haut + (h - creux) / 2, largeur, creux}));
        ImgCoul.visible = h >= CREUX_IMGCOUL;
        Element& ShpCoul = liste.emplace_back(rangDe(Controle::ShpCoul, rang, {0, haut, largeur, h}));
        const bool eteinte = legende == Legende::Corpus && !thematiqueVisible(corpus, rang);
        ShpCoul.fond = eteinte ? GRIS : couleurThematique(corpus, rang);
        ShpCoul.rempli = true;
        liste.push_back(labelDe(corpus, rang, {0, haut + CREUX_LBLCOUL, largeur, h}, legende));
    }
    return liste;
}

void basculerEntretien(EtatCorpus& corpus, int slot) {
    Entretien& entretien = corpus.Entretiens.at(static_cast<std::size_t>(slot));
    entretien.Visible = !entretien.Visible;
}

void isolerEntretien(EtatCorpus& corpus, int slot) {
    for (int i = 1; i <= corpus.NbEntretiens; ++i)
        ligneDe(corpus.Entretiens, i).Visible = i == slot;
}

void basculerThematique(EtatCorpus& corpus, int rang) {
    std::int16_t& etat = corpus.ThmVisible.at(static_cast<std::size_t>(rang));
    etat = etat == 1 ? 0 : 1;
}

void isolerThematique(EtatCorpus& corpus, int rang) {
    allumerThematiques(corpus, 0);
    corpus.ThmVisible.at(static_cast<std::size_t>(rang)) = 1;
}

bool basculerTousEntretiens(EtatCorpus& corpus) {
    int actifs = 0;
    for (int i = 1; i <= corpus.NbEntretiens; ++i)
        actifs += ligneDe(corpus.Entretiens, i).Visible ? 1 : 0;
    const bool allumer = actifs <= 1;
    for (int i = 1; i <= corpus.NbEntretiens; ++i)
        ligneDe(corpus.Entretiens, i).Visible = allumer;
    return allumer;
}

bool basculerToutesThematiques(EtatCorpus& corpus) {
    bool toutes = true;
    for (int rang = 1; rang <= nombreThematiques(corpus); ++rang)
        toutes = toutes && thematiqueVisible(corpus, rang);
    allumerThematiques(corpus, toutes ? 0 : 1);
    return !toutes;
}

} // namespace vermo
