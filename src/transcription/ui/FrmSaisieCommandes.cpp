// The commands of the window. Most keys hold in the text or in the list of thematics, which would take them.
#include "transcription/ui/FrmSaisie.h"

namespace vermo {

constinit const Commande FrmSaisie::COMMANDES[] = {
    {.id = "quitter",
     .bouton = "lbl_fermer0",
     .icone = "Fermer",
     .bulle = "Quitter sans enregistrer ({})",
     .touches = {{"Échap", "TextRtr", TOUS}},
     .faire = agir<&FrmSaisie::FermerSaisie>},
    {.id = "replier",
     .bouton = "lbl_fermer1",
     .icone = "Plier",
     .bulle = "Replier le volet des thématiques",
     .touches = {{"Échap", "FrmThms TXTcodethem TxtThema ImgMedia1", TOUS}},
     .faire = agir<&FrmSaisie::plier>},
    {.id = "deplier",
     .bulle = "Choisir la thématique de l'extrait",
     .ligne = "lbl_thm",
     .faire = agir<&FrmSaisie::deplier>},
    {.id = "supprimer",
     .bouton = "Imgsuppr",
     .icone = "Supprimer",
     .iconePressee = "SupprimerPresse",
     .bulle = "Supprimer l'extrait",
     .faire = agir<&FrmSaisie::supprimer>},
    {.id = "valider",
     .bouton = "Imgbtn0",
     .icone = "Valider",
     .iconePressee = "ValiderPresse",
     .bulle = "Valider l'extrait ({})",
     .touches = {{"Ctrl + Entrée", "TextRtr", ALT | MAJ}},
     .faire = agir<&FrmSaisie::valider>},
    {.id = "lecture",
     .bouton = "ImgMedia1",
     .icone = "Pause",
     .bulle = "Lire ou arrêter ({})",
     .touches = {{"Alt + Espace", "TextRtr FrmThms", CTRL | MAJ},
                 {"Ctrl + Espace", "TextRtr FrmThms"},
                 {"Alt + Entrée", "FrmThms", CTRL | MAJ},
                 {"Ctrl + Entrée", "FrmThms"}},
     .faire = agir<&FrmSaisie::basculerLecture>},
    {.id = "reculer",
     .aide = "Reculer d'une seconde",
     .touches = {{"Alt + ←", "TextRtr", CTRL | MAJ}},
     .faire = agir<&FrmSaisie::reculerSeconde>},
    {.id = "avancer",
     .aide = "Avancer d'une seconde",
     .touches = {{"Alt + →", "TextRtr", CTRL | MAJ}},
     .faire = agir<&FrmSaisie::avancerSeconde>},
    {.id = "portion",
     .aide = "Portion suivante de la dictée",
     .touches = {{"Entrée", "TextRtr", ALT | MAJ}},
     .faire = agir<&FrmSaisie::portionSuivante>,
     .permise = agir<&FrmSaisie::dicteeActive>},
    {.id = "allonger",
     .bouton = "ImgPlus0",
     .icone = "Allonger",
     .bulle = "Allonger la portion",
     .faire = agir<&FrmSaisie::allonger>},
    {.id = "arreter-allongement",
     .bouton = "ImgPlus1",
     .icone = "ArreterAllonger",
     .bulle = "Arrêter l'allongement",
     .faire = agir<&FrmSaisie::finirAllongement>},
    {.id = "boucle",
     .bouton = "BtnOpt0",
     .icone = "Boucle",
     .bulle = "Répéter la portion",
     .faire = agir<&FrmSaisie::basculerBoucle>},
    {.id = "dictee",
     .bouton = "BtnOpt1",
     .icone = "Dictee",
     .bulle = "Dictée par portions ({portion} : portion suivante)",
     .faire = agir<&FrmSaisie::basculerDictee>},
    {.id = "dictee-auto",
     .bouton = "BtnOpt2",
     .icone = "DicteeAuto",
     .bulle = "Dictée automatique : la suite vient trois secondes après la dernière touche",
     .faire = agir<&FrmSaisie::basculerDicteeAuto>},
    {.id = "coder",
     .aide = "Coder l'extrait avec la thématique choisie",
     .touches = {{"Entrée", "FrmThms"}, {"Espace", "FrmThms"}},
     .faire = agir<&FrmSaisie::coder>},
    {.id = "ligne-precedente",
     .aide = "Thématique précédente",
     .touches = {{"↑", "FrmThms", TOUS}},
     .faire = agir<&FrmSaisie::lignePrecedente>},
    {.id = "ligne-suivante",
     .aide = "Thématique suivante",
     .touches = {{"↓", "FrmThms", TOUS}},
     .faire = agir<&FrmSaisie::ligneSuivante>},
    {.id = "ajouter-thematique",
     .bouton = "Imgbtn2",
     .icone = "AjouterThm",
     .iconePressee = "AjouterThmPresse",
     .bulle = "Ajouter la thématique",
     .touches = {{"Entrée", "TxtThema", TOUS}},
     .faire = agir<&FrmSaisie::ajouterThematique>},
};

TableCommandes FrmSaisie::commandes() {
    return COMMANDES;
}

bool FrmSaisie::dicteeActive() const {
    return session_.transcription.DicteeActive;
}

void FrmSaisie::reculerSeconde() {
    positionner(plateforme_.media.currentPosition() - 1);
}

void FrmSaisie::avancerSeconde() {
    positionner(plateforme_.media.currentPosition() + 1);
}

void FrmSaisie::basculerBoucle() {
    session_.transcription.BoucleDictee = BtnOpt_[0]->isChecked();
}

void FrmSaisie::basculerDicteeAuto() {
    session_.transcription.DicteeAuto = BtnOpt_[2]->isChecked();
}

} // namespace vermo
