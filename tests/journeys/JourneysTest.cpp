// The whole program as a person goes through it: real windows, simulated host.
#include "Programme.h"
#include "audio/ui/FrmVisu.h"
#include "support/Pannes.h"
#include "textfile/faute.h"

#include <QPlainTextEdit>
#include <algorithm>
#include <cerrno>
#include <cmath>

namespace vermo {
namespace {

using namespace essai;

class JourneysTest : public testing::Test, protected Programme {
  protected:
    static std::string noms() {
        std::string suite;
        for (const Element& e : rangees().elements())
            if (e.controle == Controle::lblfich) suite += e.texte + " ";
        return suite;
    }
    float extraits(std::size_t slot) const { return session.corpus.Entretiens.at(slot).NbExtraits; }
};

TEST_F(JourneysTest, ARecordingThatLiesElsewhereIsBroughtInAndOpened) {
    ouvrirCorpus();
    EXPECT_EQ(noms(), "a b ");
    const std::string octets = wav(2, 16, std::string(40000, '\0'));
    hote.dossier.ecrire("ailleurs/été.wav", octets);
    hote.media.durees["été.wav"] = 75.5;
    hote.dialogues.choisir(hote.dossier.chemin("ailleurs/été.wav"))
        .repondre(Reponse::Non, "Stereo - 16 bits")
        .repondre(Reponse::Ok, "hors du répertoire")
        .repondre(Reponse::Ok, "a été copié");
    cliquer(forme("FrmCorpus"), "Imgbtn7");
    EXPECT_EQ(hote.dossier.lire("c/E.Crp"),
              std::string(TETE) + "a.wav\r\nb.wav\r\n\xE9t\xE9.wav\r\n>|ENTR|\r\n");
    EXPECT_EQ(hote.dossier.lire("c/été.Rtr"), std::string(RTR).replace(1, 2, "75.5"));
    EXPECT_EQ(hote.dossier.lire("c/été.wav"), octets);
    EXPECT_EQ(noms(), "a b \xE9t\xE9 ");
    EXPECT_EQ(forme("FrmVisu").alpha(), 250);
    EXPECT_TRUE(hote.media.enLecture());
}

TEST_F(JourneysTest, AnInterviewFadesInAndTheCorpusIsInUseAgainAfterIt) {
    ouvrirCorpus();
    QTest::mouseClick(&rangees(), Qt::LeftButton, {}, place(rangees(), Controle::ImgPlay, 2));
    auto& visu = dynamic_cast<FrmVisu&>(forme("FrmVisu"));
    EXPECT_EQ(visu.alpha(), 0);
    for (int tic = 0; tic < 25; ++tic)
        visu.Timer3_Tick();
    EXPECT_EQ(visu.alpha(), 247);
    app.decharger(Fenetre::FrmVisu);
    EXPECT_TRUE(forme("FrmCorpus").isEnabled());
    EXPECT_EQ(hote.media.URL(), "");
}

TEST_F(JourneysTest, TheLateAnswerOfThePlayerIsShownWhereItBelongs) {
    hote.media.lent = true;
    ouvrirCorpus();
    session.audio.VolumeLecture = 40;
    QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, place(rangees(), Controle::lblfich, 2));
    const auto lecture = [] { return membre<QWidget>(forme("FrmVisu"), "ImgMedia4")->isVisible(); };
    EXPECT_FALSE(lecture());
    hote.media.pret();
    EXPECT_TRUE(lecture());
    EXPECT_EQ(hote.media.volume(), 40);
    app.decharger(Fenetre::FrmVisu);
    EXPECT_FALSE(hote.media.enLecture());
    EXPECT_TRUE(forme("FrmCorpus").isEnabled());
}

TEST_F(JourneysTest, AReopeningReadsWhatWasWrittenMeanwhile) {
    ouvrirCorpus();
    hote.dossier.ecrire("c/b.Rtr", std::string(RTR) + EXTRAIT + "::5.00::000\r\nautre\r\n::7.00::\r\n");
    cliquer(forme("FrmCorpus"), "lblmenu0");
    cliquer(forme("FrmMenu"), "lblcorpus1");
    EXPECT_EQ(extraits(1), 1);
    EXPECT_EQ(extraits(2), 2);
    EXPECT_EQ(CorpusTexte(session, 2, 2), "autre\r");
    EXPECT_EQ(std::ranges::count(rangees().elements(), Controle::Lblthm, &Element::controle), 5) << "bars";
}

TEST_F(JourneysTest, TrueSizesApplyWithTheNextRedraw) {
    hote.dossier.ecrire("c/b.Rtr", std::string(RTR).replace(1, 2, "30"));
    ouvrirCorpus();
    const auto largeur = [] {
        for (const Element& e : rangees().elements())
            if (e.controle == Controle::ImgEnt && e.index == 2) return e.cadre.largeur;
        return 0.0;
    };
    const Twips pleine = largeur();
    session.corpus.TailleReelle = true;
    rangees().grab();
    EXPECT_EQ(largeur(), pleine);
    app.annoncer({Sujet::Entretiens});
    EXPECT_EQ(largeur(), pleine / 2);
}

TEST_F(JourneysTest, AnInterviewOpenedAfterARestIsAsMuchInUse) {
    ouvrirCorpus();
    EXPECT_TRUE(QTest::qWaitFor([] {
        const auto fenetres = QApplication::topLevelWidgets();
        return std::any_of(fenetres.begin(), fenetres.end(),
                           [](QWidget* f) { return f->objectName() == QLatin1String("FrmVisu"); });
    }));
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    EXPECT_FALSE(forme("FrmCorpus").isEnabled());
    EXPECT_TRUE(membre<QWidget>(forme("FrmVisu"), "ImgMedia2")->isEnabled());
}

TEST_F(JourneysTest, AnExtractMarkedAndTypedIsOnTheTimelineAfterTheClosing) {
    ouvrirCorpus();
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    auto& visu = dynamic_cast<FrmVisu&>(forme("FrmVisu"));
    auto* touches = membre<QWidget>(visu, "TxtCtrl");
    hote.media.currentPosition(2); // within its neighbour: nobody asks
    QTest::keyClick(touches, Qt::Key_Return);
    hote.media.avancer(15);
    QTest::keyClick(touches, Qt::Key_Return);
    Forme& saisie = forme("FrmSaisie");
    QTest::keyClicks(membre<QPlainTextEdit>(saisie, "TextRtr"), QStringLiteral("bonjour"));
    cliquer(saisie, "Imgbtn0");
    EXPECT_EQ(hote.dossier.lire("c/a.Rtr"),
              std::string(RTR) + EXTRAIT + "::2.00::000\r\nbonjour\r\n::17.00::\r\n");
    cliquer(visu, "ImgCorpus");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.visible(Fenetre::FrmVisu); }));
    EXPECT_EQ(extraits(1), 2);
    EXPECT_EQ(CorpusTexte(session, 1, 2), "bonjour\r");
    EXPECT_TRUE(forme("FrmCorpus").isEnabled());
}

TEST_F(JourneysTest, TheOpenExtractShowsWhereAPausedPlayerIsSent) {
    ouvrirCorpus();
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    app.montrer(Fenetre::FrmSaisie, ExtraitVoulu{1}); // 1 s to 3 s
    hote.media.pause();
    auto* onde = membre<Toile>(forme("FrmSaisie"), "Pict_saisie");
    for (const double part : {0.25, 0.75, 0.5}) {
        hote.media.currentPosition(1 + 2 * part);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return std::abs(onde->elements().back().cadre.gauche - part * onde->largeurTwips()) < 30;
        })) << part;
    }
}

TEST_F(JourneysTest, NothingOpensOverATextThatIsBeingTyped) {
    ouvrirCorpus();
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    auto* touches = membre<QWidget>(forme("FrmVisu"), "TxtCtrl");
    const auto marquer = [&](double debut, double fin) {
        for (const double temps : {debut, fin}) {
            hote.media.currentPosition(temps);
            QTest::keyClick(touches, Qt::Key_Return);
        }
    };
    marquer(10, 20);
    auto* texte = membre<QPlainTextEdit>(forme("FrmSaisie"), "TextRtr");
    marquer(30, 40);
    EXPECT_EQ(session.transcription.SaisieDebut, 30) << "nothing was typed yet";
    QTest::keyClicks(texte, QStringLiteral("bonjour"));
    QTest::keyClick(touches, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(touches, Qt::Key_F2);
    marquer(50, 55);
    EXPECT_EQ(texte->toPlainText(), QStringLiteral("bonjour"));
    EXPECT_EQ(session.transcription.SaisieDebut, 30);
    cliquer(forme("FrmSaisie"), "Imgbtn0");
    QTest::keyClick(touches, Qt::Key_F2);
    EXPECT_EQ(texte->toPlainText(), QStringLiteral("mot\n"));

    for (int fois = 0; fois < 2; ++fois) { // the span may move until something is typed
        QTest::keyClick(touches, Qt::Key_Right, Qt::AltModifier);
        EXPECT_EQ(session.transcription.SaisieDebut, 1.1);
        EXPECT_NE(hote.dossier.lire("c/a.Rtr").find("::1.10::001"), std::string::npos);
        QTest::keyClicks(texte, QStringLiteral("un "));
    }

    EXPECT_FALSE(forme("FrmCorpus").close());
    app.finir();
    EXPECT_TRUE(texte->isVisible());
    QTest::keyClick(texte, Qt::Key_Escape);
    app.finir();
    EXPECT_FALSE(app.visible(Fenetre::FrmCorpus));
}

TEST_F(JourneysTest, FaultsInSingleTranscriptsAreEachToldOnceAndTheCorpusOpens) {
    std::string mille = RTR;
    for (int i = 0; i < 1000; ++i)
        mille += EXTRAIT;
    hote.dossier.ecrire("c/a.Rtr", std::string(RTR) + EXTRAIT + "::5.00::001\r\ncoup");
    hote.dossier.ecrire("c/b.Rtr", mille);
    hote.dialogues.repondre(Reponse::Ok, "coupée").repondre(Reponse::Ok, "au plus 999 extraits");
    ouvrirCorpus();
    EXPECT_EQ(noms(), "a b ");
    EXPECT_EQ(extraits(2), 999);
    session.corpus.TailleReelle = true;
    app.annoncer({Sujet::Entretiens}); // a redraw says nothing anew
    EXPECT_EQ(hote.dossier.lire("c/b.Rtr"), mille);
}

TEST_F(JourneysTest, AnOpeningThatFailsLeavesTheWindowEmptied) {
    ouvrirCorpus();
    const Utf8 parti = hote.dossier.chemin("c/parti.Crp");
    hote.dialogues.choisir(parti).repondre(Reponse::Ok, "Le corpus suivant est inaccessible :\n" + parti);
    app.montrer(Fenetre::FrmMenu, PanneauVoulu{Panneau::Corpus, {}});
    cliquer(forme("FrmMenu"), "lblmenu1");
    EXPECT_EQ(noms(), "");
    QTest::mouseClick(&rangees(), Qt::LeftButton, {}, {200, 60});
    QTest::keyClick(&rangees(), Qt::Key_Down);
    app.retirerEntretien();
    forme("FrmCorpus").grab();
    EXPECT_EQ(hote.dossier.lire("c/E.Crp"), std::string(TETE) + "a.wav\r\nb.wav\r\n>|ENTR|\r\n");
}

TEST_F(JourneysTest, AListThatCantBeWrittenIsReadAnew) {
    ouvrirCorpus();
    {
        const Pannes pannes({.rang = 1, .erreur = ENOSPC, .appel = "write", .toujours = true});
        hote.dialogues.repondre(Reponse::Ok, "Projets.ini");
        EXPECT_THROW(app.DeplacerEntretien(1, 2), FauteExecution);
    }
    EXPECT_EQ(noms(), "a b ");
    EXPECT_EQ(session.corpus.Entretiens[1].Fichier, "a.wav");
}

TEST_F(JourneysTest, ARecordingThatCantBeReadLeavesTheCorpusWindowInUse) {
    ouvrirCorpus();
    std::filesystem::remove(hote.dossier.chemin("c/a.wav"));
    std::filesystem::create_directory(hote.dossier.chemin("c/a.wav"));
    EXPECT_THROW(app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu}), FauteExecution);
    EXPECT_FALSE(app.visible(Fenetre::FrmVisu));
    EXPECT_TRUE(forme("FrmCorpus").isEnabled());
    EXPECT_EQ(hote.ecran.pointeurCourant, Pointeur::Normal);
}

TEST_F(JourneysTest, WhatIsBeingTypedHoldsTheInterviewOpenAndItsTranscriptKeepsItsDuration) {
    std::filesystem::remove(hote.dossier.chemin("c/a.Rtr"));
    hote.media.durees["a.wav"] = 60;
    hote.dialogues.repondre(Reponse::Ok, "introuvable").repondre(Reponse::Ok, "Un problème est survenu");
    ouvrirCorpus();
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    session.transcription.SaisieFin = 2;
    session.transcription.NouvelExtrait = true;
    app.montrer(Fenetre::FrmSaisie, NouvelExtraitVoulu{});
    cliquer(forme("FrmVisu"), "ImgCorpus");
    QTest::qWait(10);
    cliquer(forme("FrmSaisie"), "Imgbtn0");
    EXPECT_EQ(session.corpus.Entretiens[1].Duree, 60);
    cliquer(forme("FrmVisu"), "ImgCorpus");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !app.visible(Fenetre::FrmVisu); }));
    EXPECT_EQ(extraits(1), 1);
}

} // namespace
} // namespace vermo
