// What the buttons and keys of the window do.
#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "transcription/Retranscription.h"

#include <algorithm>

namespace vermo {

constinit const Commande FrmVisu::COMMANDES[] = {
    {.id = "lire",
     .bouton = "ImgMedia1",
     .icone = "Lecture",
     .bulle = "Lire ({lecture})",
     .faire = agir<&FrmVisu::jouer>},
    {.id = "pause",
     .bouton = "ImgMedia4",
     .icone = "Pause",
     .bulle = "Pause ({lecture})",
     .faire = agir<&FrmVisu::mettreEnPause>},
    {.id = "lecture",
     .indice = "lecture, pause",
     .aide = "Lire ou mettre en pause",
     .touches = {{"Espace"}},
     .faire = agir<&FrmVisu::basculerLecture>},
    {.id = "reculer",
     .bouton = "ImgMedia5",
     .icone = "Precedent",
     .bulle = "Reculer dans l'entretien ({})",
     .indice = "déplacer",
     .touches = {{"←"}},
     .faire = agir<&FrmVisu::empanArriere>,
     .relacher = agir<&FrmVisu::jouer>},
    {.id = "avancer",
     .bouton = "ImgMedia6",
     .icone = "Suivant",
     .bulle = "Avancer dans l'entretien ({})",
     .indice = "déplacer",
     .touches = {{"→"}},
     .faire = agir<&FrmVisu::empanAvant>,
     .relacher = agir<&FrmVisu::jouer>},
    {.id = "zoom-avant",
     .bouton = "ImgMedia2",
     .icone = "ZoomPlus",
     .bulle = "Zoom avant ({})",
     .indice = "zoom",
     .touches = {{"+"}},
     .faire = agir<&FrmVisu::zoomAvant>},
    {.id = "zoom-arriere",
     .bouton = "ImgMedia3",
     .icone = "ZoomMoins",
     .bulle = "Zoom arrière ({})",
     .indice = "zoom",
     .touches = {{"-"}},
     .faire = agir<&FrmVisu::zoomArriere>},
    {.id = "marquer",
     .indice = "marquer un extrait",
     .aide = "Marquer le début, puis la fin d'un extrait",
     .touches = {{"Entrée"}},
     .seule = true,
     .faire = agir<&FrmVisu::marquer>},
    {.id = "ouvrir",
     .indice = "ouvrir l'extrait",
     .aide = "Ouvrir l'extrait qui est montré",
     .touches = {{"F2", {}, TOUS}},
     .faire = agir<&FrmVisu::ouvrirExtraitDit>},
    {.id = "reprendre",
     .bulle = "Rouvrir la saisie avec le texte qui a été quitté sans être validé",
     .ligne = "LblReprendre",
     .texte = "Reprendre le texte abandonné",
     .faire = agir<&FrmVisu::reprendreTexte>,
     .permise = agir<&FrmVisu::aReprendre>},
    {.id = "fermer",
     .bouton = "ImgCroix",
     .icone = "Croix",
     .bulle = "Fermer l'entretien ({})",
     .indice = "fermer",
     .touches = {{"Échap"}},
     .auPresser = true,
     .faire = agir<&FrmVisu::fermer>},
    {.id = "corpus",
     .bouton = "ImgCorpus",
     .icone = "RetourCorpus",
     .bulle = "Revenir au corpus ({})",
     .touches = {{"Alt + Origine", {}, CTRL | MAJ}},
     .faire = agir<&FrmVisu::retournerAuCorpus>},
    {.id = "volume",
     .bulle = "Volume sonore ({})",
     .touches = {{"F4", {}, CTRL | MAJ}},
     .faire = agir<&FrmVisu::montrerVolume>},
    {.id = "extrait-precedent",
     .aide = "Extrait précédent",
     .touches = {{"Ctrl + ←", {}, ALT | MAJ}},
     .faire = agir<&FrmVisu::extraitVoisin<-1>>},
    {.id = "extrait-suivant",
     .aide = "Extrait suivant",
     .touches = {{"Ctrl + →", {}, ALT | MAJ}},
     .faire = agir<&FrmVisu::extraitVoisin<1>>},
    {.id = "debut-plus-tot",
     .aide = "Début de l'extrait un dixième de seconde plus tôt",
     .touches = {{"Alt + ←", {}, 0}},
     .faire = agir<&FrmVisu::decalerBorne<true, -1>>},
    {.id = "debut-plus-tard",
     .aide = "Début de l'extrait un dixième de seconde plus tard",
     .touches = {{"Alt + →", {}, 0}},
     .faire = agir<&FrmVisu::decalerBorne<true, 1>>},
    {.id = "fin-plus-tot",
     .aide = "Fin de l'extrait un dixième de seconde plus tôt",
     .touches = {{"Alt + Maj + ←", {}, 0}},
     .faire = agir<&FrmVisu::decalerBorne<false, -1>>},
    {.id = "fin-plus-tard",
     .aide = "Fin de l'extrait un dixième de seconde plus tard",
     .touches = {{"Alt + Maj + →", {}, 0}},
     .faire = agir<&FrmVisu::decalerBorne<false, 1>>},
    {.id = "page-precedente",
     .aide = "Quinze secondes plus tôt sur la vue d'ensemble",
     .touches = {{"Page précédente", {}, TOUS}},
     .faire = agir<&FrmVisu::sauterSurVue<-1>>},
    {.id = "page-suivante",
     .aide = "Quinze secondes plus tard sur la vue d'ensemble",
     .touches = {{"Page suivante", {}, TOUS}},
     .faire = agir<&FrmVisu::sauterSurVue<1>>},
};

TableCommandes FrmVisu::commandes() {
    return COMMANDES;
}

void FrmVisu::basculerLecture() {
    plateforme_.media.enLecture() ? mettreEnPause() : jouer();
}

void FrmVisu::ouvrirExtraitDit() {
    ouvrirExtrait(PictLect_->extraitDit());
}

template <int sens>
void FrmVisu::extraitVoisin() {
    const int nombre = nombreExtraits(session_);
    if (nombre == 0) return;
    const int k = std::clamp(PictLect_->extraitDit() + sens, 1, nombre);
    zoomerExtrait(k);
    AfficherBulleExtrait(k);
}

template <bool debut, int sens>
void FrmVisu::decalerBorne() {
    constexpr double DIXIEME = 0.1;
    const int k = PictLect_->extraitDit();
    if (k < 1 || k > nombreExtraits(session_)) return;
    const double avant = debut ? secondesDebut(session_, k) : secondesFin(session_, k);
    poserBorne(k, debut, std::max(avant + sens * DIXIEME, 0.0));
}

template <int sens>
void FrmVisu::sauterSurVue() {
    constexpr double GRILLE = 15;
    const EtatAudio& audio = session_.audio;
    const double t = std::clamp(audio.DebutZoom + sens * GRILLE, 0.0, audio.DureeFichier);
    const Twips x = xVue(audio, t, Picture1_->largeurTwips());
    choisir({x, x});
}

} // namespace vermo
