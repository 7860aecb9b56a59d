#pragma once
#include "audio/OndeDEssai.h"
#include "audio/ui/FrmVisu.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <memory>
#include <utility>
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
        corpus.Entretiens[1].Fichier = nom;
        corpus.Entretiens[1].Duree = static_cast<float>(duree);
        corpus.NbEntretiens = corpus.EntretienCourant = 1;
        corpus.ThmCode = {"", "000", "001", "002"};
        corpus.ThmNom = {"", "Pas de thematique", "Enfance", "Travail"};
        corpus.ThmCouleur = {"", "6513507", "16744448", "4227327"};
        corpus.ThmVisible = {0, 1, 1, 1};
        corpus.NbThm = 3;
        chemin = plateforme.dossier.ecrire(nom, wav(1, 8, sons(duree)));
        plateforme.media.dureeParDefaut = duree;
        plateforme.media.URL(chemin);
    }

    /// Writes a transcript with these spans, coded in turn 001 and 002.
    void transcrire(const std::vector<Bornes>& extraits, const Texte& texte = "Un texte.") {
        plateforme.dossier.ecrire("entretien1.Rtr", "");
        EtatTranscription& etat = session.transcription;
        etat.ExtraitDebut = etat.ExtraitFin = {0.0};
        etat.ExtraitCode = etat.ExtraitTexte = {""};
        for (const Bornes& extrait : extraits) {
            etat.ExtraitDebut.emplace_back(extrait.debut);
            etat.ExtraitFin.emplace_back(extrait.fin);
            etat.ExtraitCode.emplace_back(etat.ExtraitCode.size() % 2 ? "001" : "002");
            etat.ExtraitTexte.push_back(texte);
        }
        etat.NbExtraits = static_cast<float>(extraits.size());
        etat.lectureEntiere = true;
        EXPECT_TRUE(EnregistrerExtraits(session, plateforme));
    }

    bool ouvrir(Ouverture ouverture = Ouverture::SansFondu) {
        visu = std::make_unique<FrmVisu>(session, plateforme, fenetres);
        plateforme.media.surChangementEtat = [this](EtatLecture etat) { visu->Media_PlayStateChange(etat); };
        for (QTimer* timer : visu->findChildren<QTimer*>())
            timer->setInterval(3600 * 1000); // ticks are given by hand
        const bool ouvert = visu->OuvrirEntretienVue(ouverture);
        if (ouvert) visu->show();
        return ouvert;
    }
    ~EntretienDEssai() { plateforme.media.surChangementEtat = nullptr; }

    Toile& toile(const char* nom) { return *visu->findChild<Toile*>(QLatin1String(nom)); }
    QWidget* touches() { return visu->findChild<QLineEdit*>(QStringLiteral("TxtCtrl")); }
    std::string texte(const char* nom) {
        return visu->findChild<QLabel*>(QLatin1String(nom))->text().toStdString();
    }

    /// Place of a time on the zoom band, at a height in twips.
    QPoint ici(double temps, Twips y = 6000) {
        const EtatAudio& audio = session.audio;
        const int largeur = toile("Pict_zoom").width();
        return {qRound((temps - audio.DebutZoom) / audio.DureeZoom * largeur), qRound(y / 15)};
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
        constexpr int FREQUENCE = 200;
        return echantillons(static_cast<int>(duree * FREQUENCE), 8, [](int i) {
            const double t = i / double(FREQUENCE);
            const double phrase = std::pow(std::fabs(std::sin(t * 0.7)), 2) * std::fabs(std::sin(t * 5.3));
            return 128 + static_cast<int>(100 * phrase * std::sin(i * 1.9));
        });
    }
};

} // namespace vermo::essai
