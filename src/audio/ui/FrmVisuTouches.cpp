#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "transcription/Retranscription.h"

#include <QKeyEvent>
#include <algorithm>

namespace vermo {

/// Keys that a focused button leaves to its window.
void FrmVisu::keyPressEvent(QKeyEvent* evenement) {
    garder([&] { evenement->setAccepted(presserTouche(*evenement)); });
}

bool FrmVisu::presserTouche(const QKeyEvent& touche) {
    if (touche.key() == Qt::Key_Tab || touche.key() == Qt::Key_Backtab) return false;
    if (ferme_ || presserRaccourci(touche)) return true;
    switch (touche.key()) {
    case Qt::Key_Right:
        empanAvant();
        break;
    case Qt::Key_Left:
        empanArriere();
        break;
    case Qt::Key_Escape:
        fermer();
        break;
    case Qt::Key_Space:
        plateforme_.media.enLecture() ? mettreEnPause() : jouer();
        break;
    case Qt::Key_Plus:
        zoomAvant();
        break;
    case Qt::Key_Minus:
        zoomArriere();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!touche.isAutoRepeat()) marquer();
        break;
    default:
        break;
    }
    return true;
}

/// What the mouse does elsewhere: extracts one by one, their bounds by a tenth of a second, the overview, the
/// volume and the way back. True when the key was one of these.
bool FrmVisu::presserRaccourci(const QKeyEvent& touche) {
    constexpr double DIXIEME = 0.1, GRILLE = 15;
    const bool ctrl = touche.modifiers() & Qt::ControlModifier, alt = touche.modifiers() & Qt::AltModifier;
    const bool maj = touche.modifiers() & Qt::ShiftModifier;
    const int cle = touche.key();
    const int sens = cle == Qt::Key_Left ? -1 : cle == Qt::Key_Right ? 1 : 0;
    if (ctrl && sens != 0)
        extraitVoisin(sens);
    else if (alt && sens != 0)
        decalerBorne(!maj, sens * DIXIEME);
    else if (cle == Qt::Key_PageUp || cle == Qt::Key_PageDown)
        sauterSurVue(cle == Qt::Key_PageUp ? -GRILLE : GRILLE);
    else if (cle == Qt::Key_F2)
        ouvrirExtrait(PictLect_->extraitDit());
    else if (cle == Qt::Key_F4 && !alt)
        montrerVolume();
    else if (cle == Qt::Key_Home && alt)
        retournerAuCorpus();
    else
        return ctrl || alt;
    return true;
}

bool FrmVisu::relacherTouche(const QKeyEvent& touche) {
    const bool fleche = touche.key() == Qt::Key_Left || touche.key() == Qt::Key_Right;
    const bool nue = !(touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (fleche && nue && !ferme_) jouer();
    return true;
}

void FrmVisu::extraitVoisin(int sens) {
    const int nombre = nombreExtraits(session_);
    if (nombre == 0) return;
    const int k = std::clamp(PictLect_->extraitDit() + sens, 1, nombre);
    zoomerExtrait(k);
    AfficherBulleExtrait(k);
}

void FrmVisu::decalerBorne(bool debut, double secondes) {
    const int k = PictLect_->extraitDit();
    if (k < 1 || k > nombreExtraits(session_)) return;
    const double avant = debut ? secondesDebut(session_, k) : secondesFin(session_, k);
    poserBorne(k, debut, std::max(avant + secondes, 0.0));
}

void FrmVisu::sauterSurVue(double secondes) {
    const EtatAudio& audio = session_.audio;
    const double t = std::clamp(audio.DebutZoom + secondes, 0.0, audio.DureeFichier);
    const Twips x = xVue(audio, t, Picture1_->largeurTwips());
    choisir({x, x});
}

} // namespace vermo
