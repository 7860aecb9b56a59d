#pragma once
#include "audio/OndeDEssai.h"
#include "audio/ui/FrmVisu.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <iomanip>
#include <memory>
#include <sstream>
#include <vector>

namespace vermo::essai {

/// A corpus of one interview with three thematics, its recording on the disk and in the player, and FrmVisu
/// on it.
class EntretienDEssai {
  public:
    Session session;
    PlateformeDeTest plateforme;
    FenetresMuettes fenetres;
    std::unique_ptr<FrmVisu> visu;

    explicit EntretienDEssai(double duree, const Utf8& nom = "entretien1.wav") {
        session.reglages.separateurDecimal = '.';
        EtatCorpus& corpus = session.corpus;
        corpus.RepCorpus = plateforme.dossier.chemin();
        corpus.Entretiens.resize(2);
        corpus.Entretiens[1].Fichier = nom, corpus.Entretiens[1].Duree = static_cast<float>(duree);
        corpus.NbEntretiens = corpus.EntretienCourant = 1;
        corpus.ThmCode = {"", "000", "001", "002"};
        corpus.ThmNom = corpus.ThmCouleur = {"", "6513507", "16744448", "4227327"};
        corpus.ThmVisible = {0, 1, 1, 1}, corpus.NbThm = 3;
        chemin = plateforme.dossier.ecrire(nom, wav(1, 8, sons(duree)));
        plateforme.media.dureeParDefaut = duree;
        plateforme.media.URL(chemin);
    }

    /// Writes a transcript with these spans, coded in turn 001 and 002.
    void transcrire(const std::vector<Bornes>& extraits, const Texte& texte = "Un texte.") {
        std::ostringstream rtr;
        rtr << std::fixed << std::setprecision(2) << " 60 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";
        for (std::size_t i = 0; i < extraits.size(); ++i)
            rtr << "::" << extraits[i].debut << (i % 2 ? "::002\r\n" : "::001\r\n") << texte
                << "\r\n::" << extraits[i].fin << "::\r\n";
        plateforme.dossier.ecrire("entretien1.Rtr", rtr.str());
    }

    bool ouvrir() {
        visu = std::make_unique<FrmVisu>(session, plateforme, fenetres);
        for (QTimer* timer : visu->findChildren<QTimer*>())
            timer->setInterval(3600 * 1000); // ticks are given by hand
        if (!visu->OuvrirEntretienVue()) return false;
        visu->show();
        return true;
    }

    Toile& toile(const char* nom) { return *visu->findChild<Toile*>(QLatin1String(nom)); }
    QWidget* touches() { return visu->findChild<QLineEdit*>(QStringLiteral("TxtCtrl")); }
    std::string texte(const char* nom) {
        return visu->findChild<QLabel*>(QLatin1String(nom))->text().toStdString();
    }

    /// Place of a time on the zoom band.
    QPoint ici(double temps) {
        const EtatAudio& audio = session.audio;
        return {qRound((temps - audio.DebutZoom) / audio.DureeZoom * toile("Pict_zoom").width()), 400};
    }
    void survoler(const char* nom, QPoint ou, Qt::MouseButtons tenus = {}) {
        Toile& cible = toile(nom);
        QMouseEvent evenement(QEvent::MouseMove, QPointF(ou), QPointF(cible.mapToGlobal(ou)), Qt::NoButton,
                              tenus, {});
        QApplication::sendEvent(&cible, &evenement);
    }
    void glisser(const char* nom, QPoint de, QPoint a) {
        Toile& cible = toile(nom);
        QTest::mousePress(&cible, Qt::LeftButton, {}, de);
        survoler(nom, (de + a) / 2, Qt::LeftButton);
        survoler(nom, a, Qt::LeftButton);
        QTest::mouseRelease(&cible, Qt::LeftButton, {}, a);
    }

    Utf8 chemin; ///< of the recording

  private:
    static std::string sons(double duree) {
        return echantillons(static_cast<int>(duree * 200), 8,
                            [](int i) { return 128 + static_cast<int>(100 * std::sin(i * 1.9)); });
    }
};

} // namespace vermo::essai
