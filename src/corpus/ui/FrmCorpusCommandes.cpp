// The commands of the window.
#include "corpus/Session.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/ToileEntretiens.h"
#include "corpus/ui/ToileThematiques.h"
#include "textfile/tables.h"
#include "window/ui/Lien.h"

namespace vermo {

constinit const Commande FrmCorpus::COMMANDES[] = {
    {.id = "menu-corpus",
     .bulle = "{+}",
     .ligne = "lblmenu0",
     .texte = "Corpus",
     .aide = "Menu Corpus",
     .touches = {{"Alt + C", {}, 0}},
     .faire = agir<&FrmCorpus::ouvrirMenu<Panneau::Corpus>>},
    {.id = "menu-entretiens",
     .bulle = "{+}",
     .ligne = "lblmenu1",
     .texte = "Entretiens",
     .aide = "Menu Entretiens",
     .touches = {{"Alt + E", {}, 0}},
     .faire = agir<&FrmCorpus::ouvrirMenu<Panneau::Entretiens>>},
    {.id = "menu-thematiques",
     .bulle = "{+}",
     .ligne = "lblmenu2",
     .texte = "Thématiques",
     .aide = "Menu Thématiques",
     .touches = {{"Alt + T", {}, 0}},
     .faire = agir<&FrmCorpus::ouvrirMenu<Panneau::Thematiques>>},
    {.id = "menu-attributs",
     .bulle = "{+}",
     .ligne = "lblmenu3",
     .texte = "Attributs",
     .aide = "Menu Attributs",
     .touches = {{"Alt + A", {}, 0}},
     .faire = agir<&FrmCorpus::ouvrirMenu<Panneau::Attributs>>},
    {.id = "volume",
     .aide = "Régler le volume sonore",
     .touches = {{"Alt + V", {}, 0}, {"Entrée", "PictVol", TOUS}, {"Espace", "PictVol", TOUS}},
     .faire = agir<&FrmCorpus::ouvrirVolume>},
    {.id = "reduire",
     .bouton = "ImgCroix0",
     .bulle = "Réduire la fenêtre",
     .faire = agir<&FrmCorpus::reduire>},
    {.id = "quitter", .bouton = "ImgCroix0", .bulle = "Quitter Vermo", .faire = agir<&FrmCorpus::quitter>},
    {.id = "donnees", .bouton = "Imgbtn0", .icone = "Donnees", .bulle = "Base de données des attributs"},
    {.id = "stats", .bouton = "Imgbtn1", .icone = "Stats", .bulle = "Statistiques du corpus"},
    {.id = "synthese", .bouton = "Imgbtn4", .icone = "Synthese", .bulle = "Synthèse des extraits choisis"},
    {.id = "paquet",
     .bouton = "Imgbtn8",
     .icone = "Paquet",
     .bulle = "Lire le corpus comme un paquet (*.Vrm)"},
    {.id = "ajouter",
     .bouton = "Imgbtn7",
     .icone = "Ajouter",
     .bulle = "Ajouter un entretien",
     .faire = agir<&FrmCorpus::ajouterEntretien>},
    {.id = "trier", .bouton = "Imgbtn6", .icone = "Tri", .bulle = "Trier les entretiens"},
    {.id = "taille-reelle",
     .bouton = "Imgbtn3",
     .icone = "Taille0",
     .bulle = "Afficher ou non la taille réelle des entretiens",
     .faire = agir<&FrmCorpus::tailleReelle>},
    {.id = "tri-a-plat", .bouton = "Imgbtn5", .icone = "TriAPlat", .bulle = "Tri à plat des attributs"},
    {.id = "thematiques",
     .bouton = "ImgOnOffthm0",
     .icone = "ImgOn",
     .bulle = "Activer ou désactiver toutes les thématiques",
     .faire = agir<&FrmCorpus::basculerThematiques>},
    {.id = "entretiens",
     .bouton = "ImgOnOffent",
     .icone = "ImgOn",
     .bulle = "Activer ou désactiver tous les entretiens",
     .faire = agir<&FrmCorpus::basculerEntretiens>},
    {.id = "zoom-avant",
     .bouton = "ImgZoom0",
     .icone = "ZoomPlus",
     .bulle = "Agrandir les lignes (double clic : au plus grand)",
     .touches = {{"+", {}, TOUS}},
     .faire = agir<&FrmCorpus::zoomPlus>},
    {.id = "zoom-arriere",
     .bouton = "ImgZoom1",
     .icone = "ZoomMoins",
     .bulle = "Réduire les lignes (double clic : au plus petit)",
     .touches = {{"-", {}, TOUS}},
     .faire = agir<&FrmCorpus::zoomMoins>},
    {.id = "ouvrir",
     .aide = "Ouvrir l'entretien choisi",
     .touches = {{"Entrée", "Frm_entretiens", CTRL | MAJ}},
     .faire = agir<&FrmCorpus::ouvrirRang>,
     .permise = agir<&FrmCorpus::rangChoisi>},
    {.id = "basculer",
     .aide = "Activer ou désactiver l'entretien choisi",
     .touches = {{"Espace", "Frm_entretiens", CTRL}},
     .faire = agir<&FrmCorpus::basculerRang<false>>,
     .permise = agir<&FrmCorpus::rangChoisi>},
    {.id = "isoler",
     .aide = "Désactiver les autres entretiens",
     .touches = {{"Maj + Espace", "Frm_entretiens", CTRL}},
     .faire = agir<&FrmCorpus::basculerRang<true>>,
     .permise = agir<&FrmCorpus::rangChoisi>},
    {.id = "monter",
     .aide = "Monter l'entretien choisi",
     .touches = {{"Alt + ↑", "Frm_entretiens", CTRL | MAJ}},
     .faire = agir<&FrmCorpus::deplacerRang<-1>>,
     .permise = agir<&FrmCorpus::rangChoisi>},
    {.id = "descendre",
     .aide = "Descendre l'entretien choisi",
     .touches = {{"Alt + ↓", "Frm_entretiens", CTRL | MAJ}},
     .faire = agir<&FrmCorpus::deplacerRang<1>>,
     .permise = agir<&FrmCorpus::rangChoisi>},
    {.id = "basculer-thematique",
     .aide = "Activer ou désactiver la thématique choisie",
     .touches = {{"Espace", "Frm_thm", CTRL | ALT}},
     .faire = agir<&FrmCorpus::basculerThematique<false>>,
     .permise = agir<&FrmCorpus::listeThematiques>},
    {.id = "isoler-thematique",
     .aide = "Désactiver les autres thématiques",
     .touches = {{"Maj + Espace", "Frm_thm", CTRL | ALT}},
     .faire = agir<&FrmCorpus::basculerThematique<true>>,
     .permise = agir<&FrmCorpus::listeThematiques>},
};

TableCommandes FrmCorpus::commandes() {
    return COMMANDES;
}

template <Panneau panneau>
void FrmCorpus::ouvrirMenu() {
    session_.EtatFondu = 1;
    fenetres_.montrer(Fenetre::FrmMenu,
                      PanneauVoulu{panneau, surEcran(ligneDe(lblmenu_, static_cast<int>(panneau)))});
}

bool FrmCorpus::rangChoisi() const {
    return nombreLignes(session_.corpus) > 0 && session_.corpus.EntretienCourant != 0;
}

void FrmCorpus::ouvrirRang() {
    Frm_entretiens_->ouvrirCourant();
}

template <bool seul>
void FrmCorpus::basculerRang() {
    Frm_entretiens_->basculerCourant(seul);
}

template <int pas>
void FrmCorpus::deplacerRang() {
    Frm_entretiens_->deplacerCourant(pas);
}

bool FrmCorpus::listeThematiques() const {
    return Frm_thm_->lignes().nombre() > 0;
}

template <bool seule>
void FrmCorpus::basculerThematique() {
    Frm_thm_->basculerChoisie(seule);
}

} // namespace vermo
