// The commands of the window, and the ways out of it.
#include "corpus/Session.h"
#include "corpus/ui/FrmIntro.h"

namespace vermo {

constinit const Commande FrmIntro::COMMANDES[] = {
    {.id = "creer",
     .ligne = "lblcorpus0",
     .texte = "Créer un nouveau projet...",
     .faire = agir<&FrmIntro::creer>},
    {.id = "ouvrir",
     .ligne = "lblcorpus1",
     .texte = "Ouvrir un projet...",
     .faire = agir<&FrmIntro::choisir>},
    {.id = "modele", .ligne = "lblcorpus2", .texte = "Modèle"},
    {.id = "son",
     .bouton = "ImgTestSon",
     .icone = "TestSon",
     .bulle = "Tester le volume sonore",
     .faire = agir<&FrmIntro::testerSon>},
    {.id = "continuer",
     .bouton = "ImgBtn1",
     .icone = "Suivant",
     .bulle = "Continuer sans ouvrir de corpus",
     .faire = agir<&FrmIntro::continuer>},
    {.id = "arreter",
     .bouton = "Image1",
     .icone = "Fermer",
     .bulle = "Arrêt du programme",
     .faire = agir<&FrmIntro::arreter>},
    {.id = "ligne-precedente",
     .aide = "Ligne précédente",
     .touches = {{"↑", {}, TOUS}},
     .faire = agir<&FrmIntro::lignePrecedente>},
    {.id = "ligne-suivante",
     .aide = "Ligne suivante",
     .touches = {{"↓", {}, TOUS}},
     .faire = agir<&FrmIntro::ligneSuivante>},
};

TableCommandes FrmIntro::commandes() {
    return COMMANDES;
}

void FrmIntro::creer() {
    garder([&] { fenetres_.montrer(Fenetre::FrmCorpus); });
    quitter([&] { fenetres_.NouveauCorpus(); });
}

void FrmIntro::choisir() {
    garder([&] { fenetres_.montrer(Fenetre::FrmCorpus); });
    quitter([&] {
        session_.corpus.OuvertureDirecte = false;
        fenetres_.OuvrirCorpus();
    });
}

void FrmIntro::ouvrir(const Utf8& chemin) {
    quitter([&] {
        session_.corpus.CheminCorpus = chemin;
        session_.corpus.OuvertureDirecte = true;
        fenetres_.OuvrirCorpus();
    });
}

/// Leaving this window is one-way: whatever comes of the opening, the corpus window takes over.
void FrmIntro::quitter(const std::function<void()>& ouverture) {
    garder(ouverture);
    garder([&] { continuer(); });
}

void FrmIntro::continuer() {
    fenetres_.montrer(Fenetre::FrmCorpus);
    fenetres_.decharger(Fenetre::FrmIntro);
}

} // namespace vermo
