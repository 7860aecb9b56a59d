#include "corpus/Frise.h"

#include "corpus/AnalyserEntretiens.h"
#include "textfile/chemins.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <cmath>

namespace vermo {
namespace {

constexpr Couleur BARRE_VIDE = rvb(64, 64, 64), BORD_BARRE = rvb(84, 84, 90), NUMERO = rvb(164, 166, 172);
constexpr Couleur HEURE = 0x636363, TRAIT = rvb(96, 96, 102), DEMI_TRAIT = 0x242424;
constexpr Twips BAS_LIGNES_TPS = 33500;
constexpr Twips ENTRE_LIGNES = 120;
constexpr int SUFFIXE_NOM = 4; ///< of a recording's name: its extension and the point

Twips hauteurLigne(const EtatCorpus& corpus) {
    return corpus.HauteurEntretien > 0 ? corpus.HauteurEntretien : HAUTEUR_MIN;
}

Twips base(const EtatCorpus& corpus, int slot) {
    return TAILLES_FRISE.premiereLigne + (slot - 1) * hauteurLigne(corpus);
}

/// Number of the row at a height, whether there is such a row or not.
int ligneA(const EtatCorpus& corpus, Twips y) {
    const double ligne = std::floor((y - TAILLES_FRISE.premiereLigne) / hauteurLigne(corpus)) + 1;
    return static_cast<int>(std::clamp(ligne, 0.0, 1.0 + ENTRETIENS_MAX));
}

Element& ajouter(Elements& sortie, Controle controle, int slot, Rectangle cadre) {
    Element& element = sortie.emplace_back();
    element.controle = controle;
    element.index = slot;
    element.cadre = cadre;
    return element;
}

void disposerNumeroEtNom(const EtatCorpus& corpus, int slot, Elements& sortie) {
    const Texte& fichier = entretienDe(corpus, slot).Fichier;
    const Twips y = base(corpus, slot), h = hauteurLigne(corpus);
    const Rectangle numero = TAILLES_FRISE.lblpiste, nom = TAILLES_FRISE.lblfich;
    Element& lblpiste =
        ajouter(sortie, Controle::lblpiste, slot, {numero.gauche, y + 125, numero.largeur, h - 125});
    lblpiste.texte = std::to_string(slot) + CR;
    lblpiste.encreTexte = NUMERO;
    lblpiste.alignement = Alignement::Droite;
    lblpiste.sensible = true;
    Element& lblfich = ajouter(sortie, Controle::lblfich, slot, {nom.gauche, y, nom.largeur, h - 120});
    lblfich.texte = fichier.substr(0, fichier.size() - std::min<std::size_t>(fichier.size(), SUFFIXE_NOM));
    lblfich.bulle = fichier;
    lblfich.sensible = true;
}

void disposerBarre(const EtatCorpus& corpus, int slot, Rectangle cadre, const Utf8& vue, Elements& sortie) {
    Element& ImgEnt = ajouter(sortie, Controle::ImgEnt, slot, cadre);
    ImgEnt.image = vue;
    if (!vue.empty()) ImgEnt.tag = entretienDe(corpus, slot).Fichier;
    ImgEnt.rempli = vue.empty();
    ImgEnt.fond = BARRE_VIDE;
    ImgEnt.sensible = true;
    Element& ShpFich = ajouter(sortie, Controle::ShpFich, slot, cadre);
    ShpFich.borde = true;
    ShpFich.bord = BORD_BARRE;
}

void disposerInterrupteur(const EtatCorpus& corpus, int slot, Elements& sortie) {
    static const Texte bulle = depuisUtf8("Activer/désactiver l'entretien");
    Rectangle cadre = TAILLES_FRISE.ImgOnOff;
    cadre.haut = base(corpus, slot);
    Element& ImgOnOff = ajouter(sortie, Controle::ImgOnOff, slot, cadre);
    ImgOnOff.image = entretienDe(corpus, slot).Visible ? ":/icones/ImgOn.svg" : ":/icones/ImgOff.svg";
    ImgOnOff.bulle = bulle;
    ImgOnOff.sensible = true;
}

double pasRegle(double durmax) {
    constexpr double marques = 5000;
    double pas = durmax >= 360 ? 300 : 60;
    while (durmax / pas > marques)
        pas *= 2;
    return pas;
}

/// Seconds at which the ruler has a line: every half step, and the end when it falls on a whole second.
std::vector<double> marquesRegle(double durmax, double pas) {
    std::vector<double> marques;
    const double demi = pas / 2;
    for (double t = demi; t <= durmax; t += demi)
        marques.push_back(t);
    const bool entiere = std::floor(durmax) == durmax;
    if (entiere && (marques.empty() || marques.back() != durmax)) marques.push_back(durmax);
    return marques;
}

} // namespace

float preparerFrise(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    const int nombre = nombreLignes(corpus);
    if (nombre == 0) return 0;
    plateforme.progression.debut(1, nombre);
    AnalyserEntretiens(session, plateforme, 1, nombre);
    plateforme.progression.fin();
    const float durmax = dureeMax(corpus);
    if (durmax == 0) {
        plateforme.dialogues.demander({"Durmax à Zéro"});
        corpus.TailleReelle = false;
    }
    return durmax;
}

float dureeMax(const EtatCorpus& corpus) {
    float durmax = 0;
    for (int slot = 1; slot <= nombreLignes(corpus); ++slot)
        durmax = std::max(durmax, entretienDe(corpus, slot).Duree);
    return durmax;
}

int nombreLignes(const EtatCorpus& corpus) {
    return corpus.ouvertureInachevee ? 0 : corpus.NbEntretiens;
}

std::vector<Utf8> cheminsVues(const Session& session) {
    const EtatCorpus& corpus = session.corpus;
    const CompagnonsRepertoire images(corpus.RepCorpus, "Bmp");
    std::vector<Utf8> vues(1);
    for (int slot = 1; slot <= nombreLignes(corpus); ++slot)
        vues.push_back(images.de(versUtf8(entretienDe(corpus, slot).Fichier)));
    return vues;
}

Twips largeurBarre(const VueFrise& vue) {
    return std::max(vue.largeur - TAILLES_FRISE.gaucheImgEnt - TAILLES_FRISE.margeImgEnt, 0.0);
}

Rectangle cadreImgEnt(const Session& session, int slot, const VueFrise& vue, float durmax) {
    const EtatCorpus& corpus = session.corpus;
    Twips largeur = largeurBarre(vue);
    if (vue.tailleReelle && durmax > 0)
        largeur *= static_cast<double>(entretienDe(corpus, slot).Duree) / static_cast<double>(durmax);
    return {TAILLES_FRISE.gaucheImgEnt, base(corpus, slot), largeur, hauteurLigne(corpus) - ENTRE_LIGNES};
}

LignesEnVue lignesEnVue(const Session& session, const VueFrise& vue) {
    const EtatCorpus& corpus = session.corpus;
    return {std::max(ligneA(corpus, vue.defilement), 1),
            std::min(ligneA(corpus, vue.defilement + vue.hauteur), nombreLignes(corpus))};
}

Rangs lignesFrise(const Session& session) {
    const EtatCorpus& corpus = session.corpus;
    return Rangs::egaux(nombreLignes(corpus), hauteurLigne(corpus),
                        TAILLES_FRISE.premiereLigne - ENTRE_LIGNES / 2);
}

int slotSous(const Session& session, Twips y) {
    const int ligne = ligneA(session.corpus, y);
    return ligne <= nombreLignes(session.corpus) ? ligne : 0;
}

void disposerFrise(const Session& session, const VueFrise& vue, const std::vector<Utf8>& vues,
                   Elements& sortie) {
    const EtatCorpus& corpus = session.corpus;
    const float durmax = dureeMax(corpus);
    const LignesEnVue lignes = lignesEnVue(session, vue);
    for (int slot = lignes.premiere; slot <= lignes.derniere; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        disposerNumeroEtNom(corpus, slot, sortie);
        disposerBarre(corpus, slot, cadreImgEnt(session, slot, vue, durmax), i < vues.size() ? vues[i] : "",
                      sortie);
        disposerInterrupteur(corpus, slot, sortie);
    }
}

Dessin disposerRegle(const Session& session, Twips largeurBarre) {
    Dessin dessin;
    const double durmax = dureeMax(session.corpus);
    if (!session.corpus.TailleReelle || !(durmax > 0)) return dessin;
    const double pas = pasRegle(durmax);
    for (const double t : marquesRegle(durmax, pas)) {
        const Twips x = largeurBarre * t / durmax;
        const double dansLePas = std::fmod(t, pas);
        if (dansLePas == 0) dessin.inscriptions.push_back({x, 0, HeureTexte(t), HEURE});
        const Twips trait = TAILLES_FRISE.gaucheImgEnt + x;
        dessin.traits.push_back({trait, 0, trait, BAS_LIGNES_TPS, 2 * dansLePas == pas ? DEMI_TRAIT : TRAIT});
    }
    return dessin;
}

Defilement AjusterDefilement(const Session& session, Twips hauteurCadre) {
    const int derniere = nombreLignes(session.corpus);
    const Twips bas = derniere == 0 ? 0 : base(session.corpus, derniere + 1) - ENTRE_LIGNES;
    return disposerDefilement(static_cast<Twips>(arrondi(bas)), hauteurCadre);
}

float zoomAvant(float hauteur) {
    return hauteur < HAUTEUR_ZOOM_MAX ? hauteur * 3 / 2 : hauteur;
}

float zoomArriere(float hauteur) {
    return hauteur > HAUTEUR_ZOOM_MIN ? hauteur / 3 * 2 : hauteur;
}

} // namespace vermo
