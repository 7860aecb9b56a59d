// The commands of the panels.
#include "corpus/Panneaux.h"
#include "corpus/Session.h"
#include "corpus/ui/FrmMenu.h"

namespace vermo {

/// The blanks in front of a text make room for an icon.
constinit const Commande FrmMenu::COMMANDES[] = {
    {.id = "nouveau",
     .ligne = "lblmenu0",
     .texte = "Nouveau corpus...",
     .faire = agir<&FrmMenu::nouveauCorpus>},
    {.id = "ouvrir",
     .ligne = "lblmenu1",
     .texte = "Ouvrir un corpus existant...",
     .faire = agir<&FrmMenu::ouvrirParDialogue>},
    {.id = "thematiques", .ligne = "lblmenu2", .texte = "Gérer les thématiques ..."},
    {.id = "ajouter",
     .ligne = "lblmenu3",
     .texte = "Ajouter un entretien...",
     .faire = agir<&FrmMenu::ajouterEntretien>},
    {.id = "donnees", .ligne = "lblmenu4", .texte = "Afficher la base de données "},
    {.id = "volet-thematiques",
     .ligne = "lblmenu5",
     .texte = "Afficher/Masquer le volet des thématiques ..."},
    {.id = "vide", .ligne = "lblmenu6"},
    {.id = "importer-thematiques",
     .ligne = "lblmenu7",
     .texte = "Importer les thématiques d'un autre corpus"},
    {.id = "tri-a-plat", .ligne = "lblmenu8", .texte = "Afficher/Masquer le tri à plat"},
    {.id = "taille-reelle",
     .ligne = "lblmenu9",
     .texte = "Représenter la taille réelle des entretiens",
     .faire = agir<&FrmMenu::tailleReelle>},
    {.id = "lire",
     .bouton = "ImgPlay",
     .icone = "ImgPlay",
     .bulle = "Ouvrir la fenêtre de saisie",
     .ligne = "lblmenu10",
     .texte = "         Lire",
     .faire = agir<&FrmMenu::lire>,
     .permise = agir<&FrmMenu::entretienChoisi>},
    {.id = "informations", .ligne = "lblmenu11", .texte = "         Informations"},
    {.id = "retirer",
     .ligne = "lblmenu12",
     .texte = "         Supprimer",
     .faire = agir<&FrmMenu::retirer>,
     .permise = agir<&FrmMenu::entretienChoisi>},
    {.id = "retirer-plusieurs", .ligne = "lblmenu13", .texte = "Supprimer un ou plusieurs entretiens..."},
    {.id = "convertir", .ligne = "lblmenu14", .texte = "Convertir des fichiers..."},
    {.id = "tri-alpha", .ligne = "lblmenu15", .texte = "Ordre Alphabétique"},
    {.id = "tri-duree", .ligne = "lblmenu16", .texte = "Durée"},
    {.id = "tri-retranscrits", .ligne = "lblmenu17", .texte = "% Retranscrits"},
    {.id = "tri-ecoutes", .ligne = "lblmenu18", .texte = "% Ecoutés"},
    {.id = "tri-date", .ligne = "lblmenu19", .texte = "Date de Création"},
    {.id = "tri-activite", .ligne = "lblmenu20", .texte = "Activité"},
    {.id = "synthese-word", .ligne = "lblmenu21", .texte = "              Ouvrir dans Word"},
    {.id = "synthese-rtf", .ligne = "lblmenu22", .texte = "           Exporter dans  Fichier *.Rtf"},
    {.id = "sauvegarder", .ligne = "lblmenu23", .texte = "Créer un dossier de sauvegarde"},
    {.id = "synthese-paquet", .ligne = "lblmenu24", .texte = "           Ouvrir dans Reader (*.Vrm)"},
    {.id = "basculer",
     .bouton = "ImgOnOff",
     .icone = "ImgOn",
     .bulle = "Activer/désactiver l'entretien",
     .faire = agir<&FrmMenu::basculer>,
     .permise = agir<&FrmMenu::entretienChoisi>},
    {.id = "fermer",
     .aide = "Fermer le menu",
     .touches = {{"Échap", {}, TOUS}},
     .faire = agir<&FrmMenu::fermer>},
    {.id = "ligne-precedente",
     .aide = "Ligne précédente",
     .touches = {{"↑", {}, TOUS}},
     .faire = agir<&FrmMenu::lignePrecedente>},
    {.id = "ligne-suivante",
     .aide = "Ligne suivante",
     .touches = {{"↓", {}, TOUS}},
     .faire = agir<&FrmMenu::ligneSuivante>},
};

TableCommandes FrmMenu::commandes() {
    return COMMANDES;
}

bool FrmMenu::entretienChoisi() const {
    return session_.corpus.EntretienCourant != 0;
}

void FrmMenu::ouvrirParDialogue() {
    session_.corpus.OuvertureDirecte = false;
    fenetres_.OuvrirCorpus();
}

void FrmMenu::ouvrirRecent(const Utf8& chemin) {
    session_.corpus.CheminCorpus = chemin;
    session_.corpus.OuvertureDirecte = true;
    fenetres_.OuvrirCorpus();
}

void FrmMenu::tailleReelle() {
    session_.corpus.TailleReelle = !session_.corpus.TailleReelle;
}

void FrmMenu::lire() {
    fenetres_.montrer(Fenetre::FrmVisu,
                      EntretienVoulu{session_.corpus.EntretienCourant, Ouverture::SansFondu});
}

void FrmMenu::basculer() {
    basculerEntretien(session_.corpus, session_.corpus.EntretienCourant);
    fenetres_.annoncer({Sujet::Bascules});
}

} // namespace vermo
