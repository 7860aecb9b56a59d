#include "corpus/ui/ToileEntretiens.h"

#include "corpus/Pistes.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <algorithm>
#include <cmath>

namespace vermo {
namespace {

constexpr Couleur SURLIGNAGE = rvb(66, 72, 82);
constexpr Twips MARGE_LIGNE = 60; ///< half of what parts two rows
constexpr Twips EPAISSEUR_INSERTION = 45;

} // namespace

ToileEntretiens::ToileEntretiens(Session& session, Fenetres& fenetres, QWidget* parent)
    : Toile(QStringLiteral("Frm_entretiens"), parent), session_(session), fenetres_(fenetres) {
    setAccessibleName(QStringLiteral("Entretiens"));
    setFocusPolicy(Qt::StrongFocus);
    surPression = [this](const Souris& s) { presser(s); };
    surMouvement = [this](const Souris& s) { bouger(s); };
    surRelachement = [this](const Souris& s) { relacher(s); };
    surClic = [this](const Souris& s) {
        if (s.element && !glisse_) cliquer(*s.element, s.y);
    };
    surDoubleClic = [this](const Souris& s) {
        if (s.element) doubleCliquer(*s.element);
    };
    surMolette = [this](int crans, Qt::KeyboardModifiers) {
        const Twips pas = session_.corpus.HauteurEntretien;
        defiler(defile_ - crans * std::min(pas, hauteurTwips() / 2));
    };
}

VueFrise ToileEntretiens::vue() const {
    return {.largeur = largeurTwips(),
            .defilement = defile_,
            .hauteur = hauteurTwips(),
            .tailleReelle = tailleReelle_};
}

void ToileEntretiens::redessiner() {
    std::vector<Utf8> vues = cheminsVues(session_);
    std::vector<IdentiteFichier> identites;
    for (const Utf8& chemin : vues)
        identites.push_back(chemin.empty() ? IdentiteFichier{} : identiteFichier(chemin));
    for (std::size_t i = 0; i < vues.size(); ++i)
        if (i >= vues_.size() || vues[i] != vues_[i] || identites[i] != identites_[i]) oublierImage(vues[i]);
    vues_ = std::move(vues);
    identites_ = std::move(identites);
    vide_ = false;
    tailleReelle_ = session_.corpus.TailleReelle;
    defiler(defile_);
    disposer();
}

void ToileEntretiens::disposer() {
    listeAJour_ = false;
    aPeindre_ = rect();
    update();
}

const Elements& ToileEntretiens::elements() const {
    if (!listeAJour_) disposerEntre(liste_, defile_, defile_ + hauteurTwips());
    listeAJour_ = true;
    return liste_;
}

void ToileEntretiens::disposerEntre(Elements& liste, Twips haut, Twips bas) const {
    VueFrise bande = vue();
    bande.defilement = haut;
    bande.hauteur = bas - haut;
    liste.clear();
    if (vide_) return;
    ajouterSurlignage(liste);
    disposerFrise(session_, bande, vues_, liste);
    disposerPistes(session_, bande, liste);
    ajouterInsertion(liste);
}

void ToileEntretiens::vider() {
    vues_.clear();
    identites_.clear();
    dessin({});
    defile_ = 0;
    decalage(0, 0);
    vide_ = true;
    disposer();
}

void ToileEntretiens::defiler(Twips voulu) {
    const double pas = TWIPS_PAR_PIXEL / devicePixelRatioF();
    defile_ = std::round(bornerDefilement(AjusterDefilement(session_, hauteurTwips()), voulu) / pas) * pas;
    decalage(0, defile_);
    listeAJour_ = false;
    if (surDefilement) surDefilement();
}

void ToileEntretiens::resizeEvent(QResizeEvent* evenement) {
    Toile::resizeEvent(evenement);
    disposer();
    defiler(defile_);
}

Rectangle ToileEntretiens::cadreLigne(int slot) const {
    const Rectangle barre = cadreImgEnt(session_, slot, vue(), dureeMax(session_.corpus));
    return {0, barre.haut - MARGE_LIGNE, largeurTwips(), barre.hauteur + 2 * MARGE_LIGNE};
}

void ToileEntretiens::ajouterSurlignage(Elements& liste) const {
    const EtatCorpus& corpus = session_.corpus;
    const int slot = corpus.EntretienCourant;
    if (slot < 1 || slot > nombreLignes(corpus)) return;
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
    if (!glisse_ || cible_ == 0 || cible_ == source_) return;
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
