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
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

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

void appuyer(QDialog& boite, Qt::Key touche) {
    QTest::keyClick(&boite, touche);
}

std::string boutonsDe(const QMessageBox& boite) {
    std::string resultat;
    for (auto bouton : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        if (const auto* present = boite.button(bouton))
            resultat += present->text().remove(QLatin1Char('&')).toStdString() + " ";
    return resultat;
}

class Hote : public testing::Test {
  protected:
    static void SetUpTestSuite() { ASSERT_TRUE(installerFrancais(*qApp)); }
    DossierTemporaire dossier;
    HotePlateforme hote{"null"};
    Dialogues& dialogues = hote.plateforme().dialogues;
};

TEST_F(Hote, boxesAreFrenchAndEscapeNeverAgrees) {
    const struct {
        Boutons boutons;
        std::string affiches;
        Reponse entree, echappe;
    } cas[] = {
        {Boutons::Ok, "OK ", Reponse::Ok, Reponse::Ok},
        {Boutons::OkAnnuler, "OK Annuler ", Reponse::Ok, Reponse::Annuler},
        {Boutons::OuiNon, "Oui Non ", Reponse::Oui, Reponse::Non},
        {Boutons::OuiNonAnnuler, "Oui Non Annuler ", Reponse::Oui, Reponse::Annuler},
    };
    hote.plateforme().ecran.pointeur(Pointeur::Sablier);
    for (const auto& c : cas) {
        Personne personne({[&](QDialog& boite) {
                               const auto& message = dynamic_cast<QMessageBox&>(boite);
                               EXPECT_EQ(boutonsDe(message), c.affiches);
                               EXPECT_EQ(message.text(), QStringLiteral("L'été <b>\nest là."));
                               EXPECT_EQ(message.textFormat(), Qt::PlainText);
                               EXPECT_EQ(message.windowTitle(), QStringLiteral("Vermo"));
                               EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
                               appuyer(boite, Qt::Key_Return);
                           },
                           [](QDialog& boite) { appuyer(boite, Qt::Key_Escape); }});
        EXPECT_EQ(dialogues.demander({"L'été <b>\nest là.", {}, c.boutons}), c.entree);
        EXPECT_EQ(dialogues.demander({"?", "Titre", c.boutons}), c.echappe);
    }
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    hote.plateforme().ecran.pointeur(Pointeur::FlecheSablier);
    hote.plateforme().ecran.pointeur(Pointeur::Normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Hote, filesAreOfferedInAnyCaseAndStrangeNamesDoNoHarm) {
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
        appuyer(boite, Qt::Key_Return);
    }});
    EXPECT_EQ(dialogues.choisirFichier(
                  {"Choisissez un fichier Son", "Fichiers WAV|*.Wav", "Wav", false, dossier.chemin()}),
              dossier.chemin("Été 1.WAV"));
    EXPECT_EQ(filtreQt("Sons|*.Wav;*.Mp3|Tous (oui)|*"),
              QStringLiteral("Sons (*.Wav *.Mp3);;Tous (oui) (*)"));
}

TEST_F(Hote, savingAddsTheExtensionAndAsksBeforeOverwriting) {
    dossier.ecrire("a.Crp", "x");
    const DemandeFichier demande{"Créer", "Fichier projet|*.Crp", "Crp", true, dossier.chemin()};
    const auto taper = [](const QString& nom) {
        return [nom](QDialog& boite) {
            boite.findChild<QLineEdit*>()->setText(nom);
            appuyer(boite, Qt::Key_Return);
        };
    };
    {
        Personne personne({taper(QStringLiteral("neuf"))});
        EXPECT_EQ(dialogues.choisirFichier(demande), dossier.chemin("neuf.Crp"));
    }
    bool demandee = false;
    Personne personne({taper(QStringLiteral("a")), [&](QDialog& boite) {
                           demandee = qobject_cast<QMessageBox*>(&boite) != nullptr;
                           boite.reject();
                           QTimer::singleShot(0, [] {
                               for (auto* fenetre : QApplication::topLevelWidgets())
                                   if (auto* fichiers = qobject_cast<QFileDialog*>(fenetre))
                                       fichiers->reject();
                           });
                       }});
    EXPECT_EQ(dialogues.choisirFichier(demande), "");
    EXPECT_TRUE(demandee);
}

TEST_F(Hote, aLongWaitCanBeGivenUpAndItsBoxGoesAwayWithIt) {
    Progression& attente = hote.plateforme().progression;
    QElapsedTimer montre;
    montre.start();
    Personne personne({[&](QDialog& boite) {
                           EXPECT_GE(montre.elapsed(), 1500);
                           QTest::mouseClick(boite.findChild<QPushButton*>(QStringLiteral("Annuler")),
                                             Qt::LeftButton);
                       },
                       [](QDialog&) {}});
    while (attente.patienter() && montre.elapsed() < 10000) {
    }
    EXPECT_LT(montre.elapsed(), 10000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    montre.start();
    while (!QApplication::activeModalWidget() && montre.elapsed() < 10000)
        EXPECT_TRUE(attente.patienter()) << "a new wait";
    EXPECT_GE(montre.elapsed(), 1500);
    QTest::qWait(50);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }, 5000));
}

TEST_F(Hote, theBarFollowsTheWorkAndMayGoAway) {
    Progression& travail = hote.plateforme().progression;
    auto barre = std::make_unique<QProgressBar>();
    hote.progression().brancher(barre.get());
    travail.debut(0, 100);
    EXPECT_TRUE(barre->isVisible());
    for (long i = 0; barre->value() == 0 && i < 100000000; ++i)
        travail.avance(60);
    EXPECT_EQ(barre->value(), 60);
    travail.fin();
    EXPECT_FALSE(barre->isVisible());
    barre.reset();
    travail.debut(0, 10);
    travail.avance(5);
    travail.fin();
}

TEST_F(Hote, onlyAProgramIsStarted) {
    Lanceur& lanceur = hote.plateforme().lanceur;
    const Utf8 script =
        dossier.ecrire("Convertisseur été.exe", "#!/bin/sh\n: > \"$(dirname \"$0\")/lancé\"\n");
    EXPECT_FALSE(lanceur.lancer(script)) << "no right to execute";
    EXPECT_FALSE(lanceur.lancer(dossier.chemin("absent")));
    EXPECT_FALSE(lanceur.lancer(dossier.chemin()));
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    EXPECT_TRUE(lanceur.lancer(script));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dossier.existe("lancé"); }, 5000));
}

} // namespace
} // namespace vermo::essai
