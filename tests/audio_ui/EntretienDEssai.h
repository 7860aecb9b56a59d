#pragma once
#include "audio/OndeDEssai.h"
#include "audio/ui/FrmVisu.h"
#include "support/CommandesCouvertes.h"
#include "support/Gestes.h"

#include <QTimer>
#include <iomanip>
#include <memory>

namespace vermo::essai {

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
        chemin = hote.dossier.ecrire(nom, wav(1, 8, sons(duree)));
        hote.media.dureeParDefaut = duree;
        hote.media.URL(chemin);
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
    /// Writes a transcript with these spans, coded in turn 001 and 002.
    void transcrire(const std::vector<Bornes>& extraits,
                    const Texte& texte = "Un texte, puis\ranticonstitutionnellement la suite.") {
        std::ostringstream rtr;
        rtr << std::fixed << std::setprecision(2)
            << " 600 \r\n<|OBS|\r\n\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";
        for (std::size_t i = 0; i < extraits.size(); ++i)
            rtr << "::" << extraits[i].debut << (i % 2 ? "::002\r\n" : "::001\r\n") << texte
                << "\r\r\n::" << extraits[i].fin << "::\r\n";
        hote.dossier.ecrire("entretien1.Rtr", rtr.str());
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

    Utf8 chemin; ///< of the recording

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

} // namespace vermo::essai
