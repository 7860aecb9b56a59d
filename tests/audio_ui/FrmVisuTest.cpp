#include "audio/ui/FrmVisu.h"
#include "audio/OndeDEssai.h"
#include "support/CommandesCouvertes.h"
#include "support/Gestes.h"

#include <QImage>
#include <QTimer>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// A corpus of one interview with three thematics, its recording on the disk and in the player, and FrmVisu
/// on it. Places on Picture1, Pict_zoom and Pict_tpsZ are seconds.
class EntretienDEssai : public Scene {
  public:
    std::unique_ptr<FrmVisu> visu;

    explicit EntretienDEssai(double duree, const Utf8& nom = "entretien1.wav") {
        session.reglages.separateurDecimal = '.';
        EtatCorpus& corpus = session.corpus;
        corpus.RepCorpus = hote.dossier.chemin();
        corpus.Entretiens.resize(2);
        corpus.Entretiens[1].Fichier = nom, corpus.Entretiens[1].Duree = static_cast<float>(duree);
        corpus.NbEntretiens = corpus.EntretienCourant = 1;
        corpus.ThmCode = {"", "000", "001", "002"};
        corpus.ThmNom = corpus.ThmCouleur = {"", "6513507", "16744448", "4227327"};
        corpus.ThmVisible = {0, 1, 1, 1}, corpus.NbThm = 3;
        hote.media.dureeParDefaut = duree;
        hote.media.URL(hote.dossier.ecrire(nom, wav(1, 8, sons(duree))));
        montres = {"Shp_visu0", "Curseur0", "TotalSelect0", "ZoomSelect0", "shp_curseur_zoom0"};
        hote.annonces.surAvis = [this](const Avis& avis) {
            fenetres.annoncer(avis);
            visu->surAvis(avis);
        };
        verbes["abandon"] = [this](const std::string& quoi) {
            fenetres.abandonne = quoi == "offert";
            hote.annonces.annoncer({Sujet::TexteAbandonne, 1});
        };
        verbes["saisie"] = [this](const std::string& etat) {
            fenetres.enSaisie = etat == "entamée";
            fenetres.montrer(Fenetre::FrmSaisie);
        };
    }

    bool ouvrir() {
        visu = std::make_unique<FrmVisu>(session, hote, fenetres);
        for (QTimer* timer : visu->findChildren<QTimer*>())
            if (!timer->objectName().endsWith(QLatin1String("s"))) // those of the held buttons run
                timer->setInterval(3600 * 1000);                   // ticks are given by hand
        if (!visu->OuvrirEntretienVue()) return false;
        visu->show();
        QApplication::processEvents();
        return true;
    }

    std::vector<Forme*> formes() override { return {visu.get()}; }
    QPoint lieu(const QWidget& toile, const std::string& ou) override {
        const EtatAudio& a = session.audio;
        const bool vue = toile.objectName() == QLatin1String("Picture1");
        const double t = std::stod(ou), part = vue ? t / a.DureeFichier : (t - a.DebutZoom) / a.DureeZoom;
        return {qRound(part * toile.width()), std::min(400, toile.height() - 20)};
    }

  private:
    /// A thousand samples a second, louder and softer.
    static const std::string& sons(double duree) {
        static std::map<double, std::string> faits;
        std::string& octets = faits[duree];
        if (octets.empty())
            octets = echantillons(static_cast<int>(duree * 1000), 8, [](int i) {
                return 128 + static_cast<int>((i / 1000 % 10 * 10 + 20) * std::sin(i * 1.9));
            });
        return octets;
    }
};

/// Ten minutes, the first shown; extracts at 0, 20 and 40 seconds.
std::unique_ptr<EntretienDEssai> ouvert() {
    std::string rtr = " 600 \r\n<|OBS|\r\n\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";
    for (const auto& [debut, fin] :
         {std::pair("0.00::001", "5.00"), {"20.00::002", "30.00"}, {"40.00::001", "45.00"}})
        rtr += "::" + std::string(debut) +
               "\r\nUn texte, puis\ranticonstitutionnellement la suite.\r\r\n::" + fin + "::\r\n";
    auto essai = std::make_unique<EntretienDEssai>(600);
    essai->hote.dossier.ecrire("entretien1.Rtr", rtr);
    EXPECT_TRUE(essai->ouvrir());
    essai->faire("position 10; tic Timer1");
    return essai;
}

} // namespace

TEST(FrmVisu, EveryGestureHasItsEffectAndNoOther) {
    couvrir("FrmVisu", FrmVisu::commandes(), jouerTable("audio_ui/entretien.gestes", ouvert));
}

TEST(FrmVisu, WhatIsRefusedLeavesEverything) {
    jouerTable("audio_ui/entretien-refus.gestes", ouvert);
}

TEST(FrmVisu, OpensOnTheFirstMinuteAndKeepsItsPicture) {
    EntretienDEssai essai(610);
    essai.session.corpus.Entretiens[1].Reprise = 42;
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.FacteurZoom, 10);
    EXPECT_EQ(essai.hote.media.currentPosition(), 42);

    const Toile& vue = essai.controle<Toile>("Picture1");
    const QImage image(QString::fromStdString(essai.hote.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(image.size(), vue.size());
    EXPECT_EQ(image.depth(), 8);

    // The cache alone decides: a recording that changed keeps its picture.
    const std::string octets = essai.hote.dossier.lire("entretien1.Bmp");
    essai.hote.dossier.ecrire("entretien1.wav", wav(1, 8, std::string(5000, '\x80')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.hote.dossier.lire("entretien1.Bmp"), octets);
    EXPECT_EQ(essai.controle<Toile>("Picture1").image().convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32));
}

TEST(FrmVisu, ARecordingWithoutSamplesShowsARulerAndIsNeverProbed) {
    EntretienDEssai essai(125, "entretien1.Mp3"); // no question is expected
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.EnteteWav, EnTeteWav());
    essai.faire("photo visu-mp3");
}

TEST(FrmVisu, ARecordingWhoseWaveCantBeDrawnIsShownWithoutOneAndKeepsNoPicture) {
    EntretienDEssai essai(60);
    essai.hote.dossier.ecrire("entretien1.wav", wav(1, 24, std::string(6000, 'x')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_FALSE(essai.hote.dossier.existe("entretien1.Bmp"));
    essai.faire("photo visu-sans-onde");
}
