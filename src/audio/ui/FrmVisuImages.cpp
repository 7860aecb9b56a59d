#include "audio/Regles.h"
#include "audio/Vues.h"
#include "audio/ui/FrmVisu.h"
#include "platform/Sablier.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "transcription/Retranscription.h"
#include "window/JaugeVolume.h"
#include "window/ui/Glace.h"

#include <QPainter>
#include <QScopedValueRollback>

namespace vermo {

namespace {

Bitmap8 versBitmap8(const QImage& image) {
    const QImage indexee = image.convertToFormat(QImage::Format_Indexed8);
    std::vector<Couleur> palette;
    for (const QRgb couleur : indexee.colorTable())
        palette.push_back(rvb(qRed(couleur), qGreen(couleur), qBlue(couleur)));
    Bitmap8 resultat(indexee.width(), indexee.height(), palette, 0);
    for (int y = 0; y < indexee.height(); ++y)
        for (int x = 0; x < indexee.width(); ++x)
            resultat.pixel(x, y, static_cast<std::uint8_t>(indexee.pixelIndex(x, y)));
    return resultat;
}

} // namespace

double FrmVisu::densite() const {
    return devicePixelRatioF() / TWIPS_PAR_PIXEL;
}

void FrmVisu::remplirVue() {
    const Utf8 enregistrement = plateforme_.media.URL(), cache = cheminCache(enregistrement);
    Picture1_->dessin({});
    const QImage gardee = fichierExiste(cache) ? QImage(utf8VersQt(cache)) : QImage();
    switch (sourceVue(enregistrement, !gardee.isNull())) {
    case SourceVue::Cache:
        return Picture1_->image(gardee.convertToFormat(QImage::Format_RGB32));
    case SourceVue::Onde:
        return DessinerVueEtCache(cache);
    case SourceVue::Regle:
        return dessinerRegleEnVue(cache);
    }
}

void FrmVisu::DessinerVueEtCache(const Utf8& cache) {
    const Twips largeur = Picture1_->largeurTwips();
    const Utf8 enregistrement = plateforme_.media.URL();
    Bitmap8 image = fondUni(largeur, HAUTEUR_PICTURE1, densite(), theme::ONDE);
    if (const Utf8 refus = refusOnde(FichierOnde(enregistrement)); !refus.empty()) {
        Picture1_->image(versQImage(image));
        return Picture1_->dessin(ligneSansOnde(refus));
    }
    PointsVue_.allouer(static_cast<std::size_t>(2 * largeur) + 1);
    session_.audio.EnteteWav = dessinerOnde(image, 0, demandeVue(enregistrement, largeur, densite()),
                                            PointsVue_, &plateforme_.progression);
    Picture1_->image(versQImage(image));
    enregistrerCache(cache, image);
}

void FrmVisu::dessinerRegleEnVue(const Utf8& cache) {
    Pict_tps_->dessin({});
    QImage image(Picture1_->size() * devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(couleurQt(theme::ONDE));
    QPainter peintre(&image);
    peindreDessin(peintre, dessinerRegleMinutes(session_.audio.DureeFichier, Picture1_->largeurTwips(),
                                                etiquetteRegle(entretien().Fichier)));
    peintre.end();
    Picture1_->image(image);
    enregistrerCache(cache, versBitmap8(image));
}

/// A directory that can't be written costs a message, not the opening.
void FrmVisu::enregistrerCache(const Utf8& cache, const Bitmap8& image) {
    garder([&] { garderCache(cache, image); });
}

QImage FrmVisu::ondeZoom() {
    const Twips largeur = Pict_zoom_->largeurTwips(), hauteur = Pict_zoom_->hauteurTwips();
    Bitmap8 image = fondZoom(largeur, hauteur, densite());
    const Utf8 enregistrement = plateforme_.media.URL();
    if (!estWav(enregistrement)) return versQImage(image);
    PointsZoom_.allouer(static_cast<std::size_t>(2 * largeur) + 1);
    try {
        session_.audio.EnteteWav =
            dessinerOnde(image, 0, demandeZoom(session_.audio, enregistrement, largeur, hauteur, densite()),
                         PointsZoom_, &plateforme_.progression);
    } catch (const FauteExecution&) {
        // A recording that has gone leaves an empty band, as the player's own line says, and so does one
        // whose wave can't be drawn, as the overview says.
    }
    return versQImage(image);
}

void FrmVisu::DessinerZoom() {
    if (dessinEnCours_) return;
    const QScopedValueRollback enCours(dessinEnCours_, true);
    const Sablier sablier(plateforme_.ecran);
    cacherSelections();
    const EtatAudio& audio = session_.audio;
    Pict_zoom_->image(ondeZoom());
    Pict_tpsZ_->dessin(dessinerRegleSecondes(audio.DebutZoom, audio.DureeZoom, Pict_zoom_->largeurTwips()));
    garder([this] { LireRetranscription(session_, plateforme_); });
    AfficherExtraits();
    TxtCtrl_->setFocus();
}

void FrmVisu::DessinerVolume() {
    EtatAudio& audio = session_.audio;
    if (audio.VolumeLecture == 0) audio.VolumeLecture = static_cast<float>(plateforme_.media.volume());
    PictVol_->dessin(
        jauge::DessinerVolume(audio.VolumeLecture, PictVol_->largeurTwips(), PictVol_->hauteurTwips()));
}

} // namespace vermo
