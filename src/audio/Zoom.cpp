#include "audio/Zoom.h"

#include "audio/Regles.h"
#include "textfile/nombres.h"

#include <algorithm>

namespace vermo {

namespace {

constexpr long GRILLE = 15; ///< seconds
constexpr double MARGE = 5; ///< seconds around an extract

void suivreFin(EtatAudio& audio) {
    audio.FinZoom = audio.DebutZoom + audio.DureeZoom;
}

void changerFacteur(EtatAudio& audio, float facteur) {
    audio.FacteurZoom = facteur;
    audio.DureeZoom = audio.DureeFichier / audio.FacteurZoom;
    suivreFin(audio);
}

void choisirEmpan(EtatAudio& audio, double debut, double fin) {
    audio.DebutZoom = debut;
    audio.FinZoom = fin;
    audio.DureeZoom = fin - debut;
    audio.FacteurZoom = static_cast<float>(audio.DureeFichier / audio.DureeZoom);
}

double surGrille(double temps) {
    const long cases = arrondi(temps) / GRILLE;
    return static_cast<double>(cases * GRILLE);
}

} // namespace

Twips xVue(const EtatAudio& audio, double temps, Twips W) {
    return temps / audio.DureeFichier * W;
}

double tempsVue(const EtatAudio& audio, Twips x, Twips W) {
    return x / W * audio.DureeFichier;
}

Twips xZoom(const EtatAudio& audio, double temps, Twips Z) {
    return (temps - audio.DebutZoom) / audio.DureeZoom * Z;
}

double tempsZoom(const EtatAudio& audio, Twips x, Twips Z) {
    return x / Z * audio.DureeZoom + audio.DebutZoom;
}

Rectangle cadreShpVisu(const EtatAudio& audio, Twips W) {
    return {.gauche = xVue(audio, audio.DebutZoom, W), .largeur = W / audio.FacteurZoom};
}

void ouvrirZoom(EtatAudio& audio, double DureeFichier) {
    audio.DureeFichier = DureeFichier;
    audio.DebutZoom = 0;
    const long minutes = minutesEntieres(DureeFichier);
    changerFacteur(audio, minutes == 0 ? 1.0F : static_cast<float>(minutes));
}

bool zoomer(EtatAudio& audio) {
    if (audio.FacteurZoom > 256) return false;
    changerFacteur(audio, audio.FacteurZoom * 2);
    return true;
}

bool dezoomer(EtatAudio& audio) {
    if (audio.FacteurZoom <= 1) return false;
    changerFacteur(audio, audio.FacteurZoom / 2);
    return true;
}

void reculerEmpan(EtatAudio& audio) {
    audio.DebutZoom = std::max(audio.DebutZoom - audio.DureeZoom / 20, 0.0);
    suivreFin(audio);
}

void avancerEmpan(EtatAudio& audio) {
    tournerPage(audio, audio.DebutZoom + audio.DureeZoom / 20);
}

double choisirSurVue(EtatAudio& audio, Twips debut, Twips x, Twips W) {
    const bool glisse = x >= debut + SEUIL_GLISSE;
    const double t = surGrille(tempsVue(audio, glisse ? debut : x, W));
    if (glisse && tempsVue(audio, x, W) > t) {
        choisirEmpan(audio, t, tempsVue(audio, x, W));
    } else {
        audio.DebutZoom = t;
        suivreFin(audio);
    }
    audio.EchelleVue = W / audio.DureeFichier;
    return t;
}

void zoomerSurExtrait(EtatAudio& audio, double debut, double fin) {
    choisirEmpan(audio, std::max(debut - MARGE, 0.0), std::min(fin + MARGE, audio.DureeFichier));
}

void tournerPage(EtatAudio& audio, double p) {
    audio.DebutZoom = p > audio.DureeFichier ? audio.DureeFichier - audio.DureeZoom : p;
    suivreFin(audio);
}

void deplacerEmpan(EtatAudio& audio, Twips debut, Twips x, Twips Z) {
    audio.DebutZoom = std::max(audio.DebutZoom + (debut - x) / Z * audio.DureeZoom, 0.0);
    suivreFin(audio);
}

bool defilerSelection(EtatAudio& audio, Twips& glisse, Twips Z) {
    if (audio.DebutZoom + audio.DureeZoom / 20 > audio.DureeFichier) return false;
    audio.DebutZoom += audio.DureeZoom / 20;
    suivreFin(audio);
    glisse -= Z / 20;
    return true;
}

} // namespace vermo
