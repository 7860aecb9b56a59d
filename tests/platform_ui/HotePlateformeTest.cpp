// Boxes, waits and pointers, answered as a person would: by keys and clicks.
#include "platform/qt/HotePlateforme.h"
#include "platform/qt/Francais.h"
#include "support/DossierTemporaire.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace vermo::essai {
namespace {

/// Hands each box that opens, in turn, to the next of `gestes`.
class Personne {
  public:
    explicit Personne(std::vector<std::function<void(QDialog&)>> gestes) : gestes_(std::move(gestes)) {
        QObject::connect(&guet_, &QTimer::timeout, &guet_, [this] { regarder(); });
        guet_.start(5);
    }
    ~Personne() { EXPECT_EQ(fait_, gestes_.size()) << "boxes answered"; }

  private:
    void regarder() {
        auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!boite || boite == derniere_ || fait_ == gestes_.size()) return;
        derniere_ = boite;
        // Not from the timer's own call: a gesture may open a further box, which is to be seen too.
        QTimer::singleShot(0, boite, [boite, geste = gestes_[fait_++]] { geste(*boite); });
    }
    std::vector<std::function<void(QDialog&)>> gestes_;
    std::size_t fait_ = 0;
    QPointer<QDialog> derniere_; // the next one may stand at the same address
    QTimer guet_;
};

std::string boutonsDe(const QMessageBox& boite) {
    std::string resultat;
    for (auto bouton : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        if (const auto* present = boite.button(bouton))
            resultat += present->text().remove(QLatin1Char('&')).toStdString() + " ";
    return resultat;
}

class HotePlateformeTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { ASSERT_TRUE(installerFrancais(*qApp)); }
    DossierTemporaire dossier;
    HotePlateforme hote{"null"};
    Dialogues& dialogues = hote.plateforme().dialogues;
};

TEST_F(HotePlateformeTest, BoxesAreFrenchAndEscapeNeverAgrees) {
    const struct {
        Boutons boutons;
        std::string affiches;
        Reponse entree, echappe;
        std::optional<Reponse> defaut = {};
    } cas[] = {
        {Boutons::Ok, "OK ", Reponse::Ok, Reponse::Ok},
        {Boutons::OuiNon, "Oui Non ", Reponse::Oui, Reponse::Non},
        {Boutons::OuiNonAnnuler, "Oui Non Annuler ", Reponse::Oui, Reponse::Annuler},
        {Boutons::OuiNonAnnuler, "Oui Non Annuler ", Reponse::Non, Reponse::Annuler, Reponse::Non},
    };
    hote.plateforme().ecran.pointeur(Pointeur::Sablier);
    for (const auto& c : cas) {
        Personne personne({[&](QDialog& boite) {
                               const auto& message = dynamic_cast<QMessageBox&>(boite);
                               EXPECT_EQ(boutonsDe(message), c.affiches);
                               EXPECT_EQ(message.textFormat(), Qt::PlainText);
                               EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
                               QTest::keyClick(&boite, Qt::Key_Return);
                           },
                           [](QDialog& boite) { QTest::keyClick(&boite, Qt::Key_Escape); }});
        EXPECT_EQ(dialogues.demander({"L'été <b>\nest là.", {}, c.boutons, Icone::Aucune, c.defaut}),
                  c.entree);
        EXPECT_EQ(dialogues.demander({"?", "Titre", c.boutons}), c.echappe);
    }
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    hote.plateforme().ecran.pointeur(Pointeur::Normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(HotePlateformeTest, FilesAreOfferedInAnyCaseAndStrangeNamesDoNoHarm) {
    for (const char* nom : {"Été 1.WAV", "b.wav", "c.txt", "mal\xE9nomm\xE9.wav"})
        dossier.ecrire(nom, "x");
    const auto vus = [](QFileDialog& boite) {
        const auto* liste = boite.findChild<QListView*>(QStringLiteral("listView"));
        return liste->model()->rowCount(liste->rootIndex());
    };
    Personne personne({[&](QDialog& boite) {
        auto& fichiers = dynamic_cast<QFileDialog&>(boite);
        EXPECT_TRUE(QTest::qWaitFor([&] { return vus(fichiers) == 2; }, 5000)) << vus(fichiers);
        boite.findChild<QLineEdit*>()->setText(QStringLiteral("Été 1.WAV"));
        QTest::keyClick(&boite, Qt::Key_Return);
    }});
    EXPECT_EQ(dialogues.choisirFichier(
                  {"Choisissez un fichier Son", "Fichiers WAV|*.Wav", "Wav", false, dossier.chemin()}),
              dossier.chemin("Été 1.WAV"));
}

TEST_F(HotePlateformeTest, SavingAddsTheExtensionAndAsksBeforeOverwriting) {
    dossier.ecrire("a.Crp", "x");
    const DemandeFichier demande{"Créer", "Fichier projet|*.Crp", "Crp", true, dossier.chemin()};
    const auto taper = [](const QString& nom) {
        return [nom](QDialog& boite) {
            boite.findChild<QLineEdit*>()->setText(nom);
            QTest::keyClick(&boite, Qt::Key_Return);
        };
    };
    bool demandee = false;
    Personne personne({taper(QStringLiteral("neuf")), taper(QStringLiteral("a")), [&](QDialog& boite) {
                           demandee = qobject_cast<QMessageBox*>(&boite) != nullptr;
                           boite.reject();
                           QTimer::singleShot(0, [] {
                               for (auto* fenetre : QApplication::topLevelWidgets())
                                   if (auto* fichiers = qobject_cast<QFileDialog*>(fenetre))
                                       fichiers->reject();
                           });
                       }});
    EXPECT_EQ(dialogues.choisirFichier(demande), dossier.chemin("neuf.Crp"));
    EXPECT_EQ(dialogues.choisirFichier(demande), "");
    EXPECT_TRUE(demandee);
}

TEST_F(HotePlateformeTest, ALongWaitCanBeGivenUpAndItsBoxGoesAwayWithIt) {
    Progression& attente = hote.plateforme().progression;
    QElapsedTimer montre;
    montre.start();
    Personne personne({[&](QDialog& boite) {
        EXPECT_GE(montre.elapsed(), 1500);
        QTest::mouseClick(boite.findChild<QPushButton*>(QStringLiteral("Annuler")), Qt::LeftButton);
    }});
    while (attente.patienter(ATTENTE_DUREE) && montre.elapsed() < 10000) {
    }
    EXPECT_LT(montre.elapsed(), 10000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace vermo::essai
