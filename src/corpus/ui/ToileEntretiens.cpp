#include "corpus/ui/ToileEntretiens.h"

#include "corpus/Pistes.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <algorithm>

namespace vermo {
namespace {

constexpr Couleur SURLIGNAGE = rvb(66, 72, 82);
constexpr Twips EPAISSEUR_INSERTION = 45;

} // namespace

ToileEntretiens::ToileEntretiens(Session& session, Fenetres& fenetres, QWidget* parent)
    : ToileDefilante(QStringLiteral("Frm_entretiens"), parent), session_(session), fenetres_(fenetres) {
    setAccessibleName(QStringLiteral("Entretiens"));
    surPression = [this](const Souris& s) { presser(s); };
    surMouvement = [this](const Souris& s) { bouger(s); };
    surRelachement = [this](const Souris& s) { relacher(s); };
    surClic = [this](const Souris& s) {
        if (s.element && !glisse_) cliquer(*s.element, s.y);
    };
    surDoubleClic = [this](const Souris& s) {
        if (s.element) doubleCliquer(*s.element);
    };
}

VueFrise ToileEntretiens::vue() const {
    return {.largeur = largeurTwips(),
            .defilement = defilement(),
            .hauteur = hauteurTwips(),
            .tailleReelle = tailleReelle_};
}

void ToileEntretiens::redessiner() {
    vues_ = cheminsVues(session_);
    oublierImagesChangees();
    vide_ = false;
    tailleReelle_ = session_.corpus.TailleReelle;
    lignes(lignesFrise(session_));
    defiler(defilement());
    disposer();
}

void ToileEntretiens::disposerPartie(Elements& liste, const Rectangle& partie) const {
    if (vide_) return;
    VueFrise bande = vue();
    bande.defilement = partie.haut;
    bande.hauteur = partie.hauteur;
    ajouterSurlignage(liste);
    disposerFrise(session_, bande, vues_, liste);
    disposerPistes(session_, bande, liste);
    ajouterInsertion(liste);
}

/// Which pictures were seen last is kept: those that are the same at the reopening are not read again.
void ToileEntretiens::vider() {
    dessin({});
    lignes({});
    vide_ = true;
    defiler(0);
    disposer();
}

Twips ToileEntretiens::hauteurSurface() const {
    return AjusterDefilement(session_, hauteurTwips()).hauteurSurface;
}

/// A little more than the row, and all that stands above the first.
std::array<Twips, 2> ToileEntretiens::etendue(int slot) const {
    const Rectangle barre = cadreImgEnt(session_, slot, vue(), dureeMax(session_.corpus));
    const Twips marge = slot == 1 ? barre.haut : TAILLES_FRISE.premiereLigne / 2;
    return {barre.haut - marge, barre.bas() + marge};
}

Rectangle ToileEntretiens::cadreLigne(int slot) const {
    return {0, lignes().debut(slot), largeurTwips(), lignes().fin(slot) - lignes().debut(slot)};
}

void ToileEntretiens::ajouterSurlignage(Elements& liste) const {
    const int slot = courant();
    if (slot < 1 || slot > lignes().nombre()) return;
    liste.push_back({.controle = Controle::ImgSurlig,
                     .index = 1,
                     .cadre = cadreLigne(slot),
                     .tag = {},
                     .fond = SURLIGNAGE,
                     .bord = theme::ACCENT,
                     .rempli = true,
                     .borde = hasFocus()});
}

/// The line stands where the dragged row will come to lie: above the target, or below it when it moves down.
void ToileEntretiens::ajouterInsertion(Elements& liste) const {
    if (!glisse_ || cible_ == 0 || cible_ == source_ || cible_ > lignes().nombre()) return;
    const Rectangle ligne = cadreLigne(cible_);
    const Twips milieu = cible_ > source_ ? ligne.bas() : ligne.haut;
    liste.push_back({.controle = Controle::ImgSurlig,
                     .index = 2,
                     .cadre = {0, milieu - EPAISSEUR_INSERTION / 2, largeurTwips(), EPAISSEUR_INSERTION},
                     .tag = {},
                     .fond = theme::ACCENT,
                     .rempli = true});
}

} // namespace vermo
