// The whole program as a person goes through it: real windows, simulated host.
#include "Programme.h"
#include "corpus/Brouillon.h"
#include "sequences/Ouverture.h"

#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace vermo::essai {
namespace {

class JourneysTest : public testing::Test, protected Programme {
  protected:
    std::string noms() { return relever()["rangs"]; }
    float extraits(std::size_t slot) const { return session.corpus.Entretiens.at(slot).NbExtraits; }
    void ouvrirEntretien() {
        ouvrirCorpus();
        app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    }
    std::string tape() { return controle<QPlainTextEdit>("TextRtr").toPlainText().toStdString(); }
    bool rendre() {
        return QTest::qWaitFor([&] { return !app.visible(Fenetre::FrmVisu); });
    }
    bool enUsage() { return forme("FrmCorpus").isEnabled(); }
};

TEST_F(JourneysTest, AnInterviewFadesInAndTheCorpusIsInUseAgainAfterIt) {
    ouvrirCorpus();
    faire("clic Frm_entretiens@ImgPlay2");
    EXPECT_EQ(forme("FrmVisu").alpha(), 0);
    faire("9x tic Timer3; 9x tic Timer3; 7x tic Timer3");
    EXPECT_EQ(fenetre().alpha(), 247);
    app.decharger(Fenetre::FrmVisu);
    EXPECT_TRUE(enUsage());
    EXPECT_EQ(hote.media.URL(), "");
}

TEST_F(JourneysTest, TheLateAnswerOfThePlayerIsShownWhereItBelongs) {
    hote.media.lent = true;
    ouvrirCorpus();
    session.audio.VolumeLecture = 40;
    faire("clic Frm_entretiens@lblfich2; double Frm_entretiens@lblfich2");
    EXPECT_FALSE(controle("ImgMedia4").isVisible());
    hote.media.pret();
    faire("attend");
    EXPECT_TRUE(controle("ImgMedia4").isVisible());
    EXPECT_EQ(hote.media.volume(), 40);
    app.decharger(Fenetre::FrmVisu);
    EXPECT_FALSE(hote.media.enLecture());
    EXPECT_TRUE(enUsage());
}

TEST_F(JourneysTest, AReopeningReadsWhatWasWrittenMeanwhile) {
    ouvrirCorpus();
    hote.dossier.ecrire("c/b.Rtr", std::string(RTR) + EXTRAIT + "::5.00::000\r\nautre\r\n::7.00::\r\n");
    faire("clic lblmenu0; clic lblcorpus1");
    EXPECT_EQ(extraits(1), 1);
    EXPECT_EQ(CorpusTexte(session, 2, 2), "autre\r");
    const Elements& barres = controle<Toile>("Frm_entretiens").elements();
    EXPECT_EQ(std::ranges::count(barres, Controle::Lblthm, &Element::controle), 5);
}

TEST_F(JourneysTest, AnInterviewOpenedAfterARestIsAsMuchInUse) {
    ouvrirCorpus();
    EXPECT_TRUE(QTest::qWaitFor([] {
        return std::ranges::any_of(QApplication::topLevelWidgets(),
                                   [](auto* f) { return f->objectName() == QLatin1String("FrmVisu"); });
    }));
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    EXPECT_FALSE(enUsage());
    EXPECT_TRUE(controle("ImgMedia2").isEnabled());
}

TEST_F(JourneysTest, AnExtractMarkedAndTypedIsOnTheTimelineAfterTheClosing) {
    ouvrirEntretien();
    faire("position 2; touche Return"); // within its neighbour: nobody asks
    hote.media.avancer(15);
    EXPECT_EQ(effetDe("touche Return; tape bonjour; clic Imgbtn0"),
              "disque c/a.Rtr= +::2.00::000/ +bonjour/ +::17.00::/");
    faire("clic ImgCorpus");
    EXPECT_TRUE(rendre());
    EXPECT_EQ(CorpusTexte(session, 1, 2), "bonjour\r");
    EXPECT_TRUE(enUsage());
}

TEST_F(JourneysTest, TheOpenExtractShowsWhereAPausedPlayerIsSent) {
    ouvrirEntretien();
    app.montrer(Fenetre::FrmSaisie, ExtraitVoulu{1}); // 1 s to 3 s
    hote.media.pause();
    auto& onde = controle<Toile>("Pict_saisie");
    for (const double part : {0.25, 0.75, 0.5}) {
        hote.media.currentPosition(1 + 2 * part);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return std::abs(onde.elements().back().cadre.gauche - part * onde.largeurTwips()) < 30;
        })) << part;
    }
}

TEST_F(JourneysTest, NothingOpensOverATextThatIsBeingTyped) {
    ouvrirEntretien();
    faire("focus TxtCtrl; position 10; touche Return; position 20; touche Return");
    faire("focus TxtCtrl; position 30; touche Return; position 40; touche Return");
    EXPECT_EQ(session.transcription.SaisieDebut, 30) << "nothing was typed yet";
    faire("focus TextRtr; tape bonjour");
    faire("focus TxtCtrl; touche Ctrl+Right; touche F2");
    faire("position 50; touche Return; position 55; touche Return");
    EXPECT_EQ(tape(), "bonjour");
    EXPECT_EQ(session.transcription.SaisieDebut, 30);
    faire("clic Imgbtn0; focus TxtCtrl; touche F2");
    EXPECT_EQ(tape(), "mot\n");

    for (int fois = 0; fois < 2; ++fois) { // the span may move until something is typed
        faire("focus TxtCtrl; touche Alt+Right");
        EXPECT_EQ(session.transcription.SaisieDebut, 1.1);
        EXPECT_NE(hote.dossier.lire("c/a.Rtr").find("::1.10::001"), std::string::npos);
        faire("focus TextRtr; tape un ");
    }

    EXPECT_FALSE(forme("FrmCorpus").close());
    app.finir();
    EXPECT_TRUE(app.visible(Fenetre::FrmSaisie));
    faire("focus TextRtr; touche Escape");
    app.finir();
    EXPECT_FALSE(app.visible(Fenetre::FrmCorpus));
}

/// Typed about b, on a new extract, then about its first one; the program ended in each.
TEST_F(JourneysTest, WhatWasTypedWhenTheProgramEndedIsOfferedWhereverItsCorpusLies) {
    hote.plateforme.emplacements.etat = hote.dossier.chemin("etat/");
    const auto finirBrutalement = [&] {
        app.mettreALAbri();
        app.decharger(Fenetre::FrmVisu);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    ouvrirCorpus();
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{2, Ouverture::SansFondu});
    faire("position 10; touche Return; position 20; touche Return; focus TextRtr; tape bonjour");
    finirBrutalement();
    std::filesystem::rename(hote.dossier.chemin("c"), hote.dossier.chemin("d"));

    faire("fichier d/E.Crp; repondre Annuler « bonjour »; clic lblmenu0; clic lblmenu1");
    EXPECT_FALSE(app.visible(Fenetre::FrmVisu));
    faire("repondre Oui Entretien : b; clic lblmenu0; clic lblcorpus1");
    EXPECT_EQ(tape(), "bonjour");
    EXPECT_EQ(effetDe("focus TextRtr; touche Ctrl+Return").find("disque d/b.Rtr= +::10.00::000/ +bonjour/"),
              0U);
    faire("focus TxtCtrl; touche Ctrl+Right; touche F2; focus TextRtr; tape X");
    finirBrutalement();

    faire("repondre Oui « mXot »; clic lblmenu0; clic lblcorpus1");
    EXPECT_EQ(session.transcription.ExtraitCourant, 1);
    EXPECT_EQ(tape(), "mXot\n");
    finirBrutalement();
    hote.dossier.ecrire("etat/brouillons/x.brouillon", ecrireBrouillon({.genre = "extrait",
                                                                        .corpus = session.corpus.CheminCorpus,
                                                                        .enregistrement = "b.wav",
                                                                        .instant = {}}));
    faire("repondre Non « mXot »; repondre Ok mis de côté; clic lblmenu0; clic lblcorpus1");
    faire("clic lblmenu0; clic lblcorpus1");
}

TEST_F(JourneysTest, ADiscardedTextIsTakenUpUntilTheInterviewIsLeft) {
    ouvrirEntretien();
    faire(
        "position 10; touche Return; position 20; touche Return; focus TextRtr; tape bonjour; touche Escape");
    faire("clic LblReprendre");
    EXPECT_EQ(tape(), "bonjour");
    faire("focus TextRtr; touche Escape; clic ImgCorpus");
    EXPECT_TRUE(rendre());
    app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    EXPECT_FALSE(controle("LblReprendre").isVisible());
}

TEST_F(JourneysTest, FaultsInSingleTranscriptsAreEachToldOnceAndTheCorpusOpens) {
    std::string mille = RTR;
    for (int i = 0; i < 1000; ++i)
        mille += EXTRAIT;
    hote.dossier.ecrire("c/a.Rtr", std::string(RTR) + EXTRAIT + "::5.00::001\r\ncoup");
    hote.dossier.ecrire("c/b.Rtr", mille);
    faire("repondre Ok coupée; repondre Ok au plus 999 extraits");
    ouvrirCorpus();
    EXPECT_EQ(noms(), "ab");
    EXPECT_EQ(extraits(2), 999);
    session.corpus.TailleReelle = true;
    app.annoncer({Sujet::Entretiens}); // a redraw says nothing anew
    EXPECT_EQ(hote.dossier.lire("c/b.Rtr"), mille);
}

TEST_F(JourneysTest, AnOpeningThatFailsLeavesTheWindowEmptied) {
    ouvrirCorpus();
    hote.dialogues.choisir(hote.dossier.chemin("c/parti.Crp"))
        .repondre(Reponse::Ok, "Le corpus suivant est inaccessible :\n" + hote.dossier.chemin("c/parti.Crp"));
    faire("clic lblmenu0; clic lblmenu1");
    EXPECT_EQ(effetDe("clic Frm_entretiens@200,60; touche Down"), "");
    EXPECT_EQ(noms(), "");
    app.retirerEntretien();
    forme("FrmCorpus").grab();
    EXPECT_EQ(hote.dossier.lire("c/E.Crp"), std::string(TETE) + "a.wav\r\nb.wav\r\n>|ENTR|\r\n");
}

TEST_F(JourneysTest, WhatIsBeingTypedHoldsTheInterviewOpenAndItsTranscriptKeepsItsDuration) {
    std::filesystem::remove(hote.dossier.chemin("c/a.Rtr"));
    hote.media.durees["a.wav"] = 60;
    faire("repondre Ok introuvable; repondre Ok Un problème est survenu");
    ouvrirEntretien();
    session.transcription.SaisieFin = 2;
    session.transcription.NouvelExtrait = true;
    app.montrer(Fenetre::FrmSaisie, NouvelExtraitVoulu{});
    faire("clic ImgCorpus; attend; clic Imgbtn0");
    EXPECT_EQ(session.corpus.Entretiens[1].Duree, 60);
    faire("clic ImgCorpus");
    EXPECT_TRUE(rendre());
    EXPECT_EQ(extraits(1), 1);
}

TEST_F(JourneysTest, TheStartWindowListsFiveRecentCorporaAtMost) {
    hote.dossier.ecrire("programme/Projets.ini", "/a.Crp\r\n/b,c.Crp\r\n/d.Crp\r\n/e.Crp\r\n/f.Crp\r\n");
    app.demarrer();
    EXPECT_THROW(controle("lblcorpus8"), std::runtime_error);
    EXPECT_EQ(controle<QAbstractButton>("lblcorpus4").text(), QStringLiteral("/b")) << "a comma ends an item";
    EXPECT_EQ(controle<QAbstractButton>("lblcorpus7").text(), QStringLiteral("/e.Crp"));
    EXPECT_EQ(fenetre().alpha(), 249);
}

TEST_F(JourneysTest, ACorpusThatAnotherProgramHasOpenIsToldOnceAndOpens) {
    hote.plateforme.emplacements.execution = hote.dossier.chemin("programme/");
    session.corpus.RepCorpus = hote.dossier.chemin("c/");
    const VerrouFichier autre(nomVerrou(hote.plateforme.emplacements, session.corpus));
    faire("repondre Ok déjà ouvert dans un autre Vermo");
    ouvrirCorpus();
    faire("clic lblmenu0; clic lblcorpus1");
    EXPECT_TRUE(enUsage());
}

TEST_F(JourneysTest, AListThatCantBeReadIsSaidAndTheStartWindowOpens) {
    faire("muer programme/Projets.ini; repondre Ok Projets.ini");
    app.demarrer();
    EXPECT_THROW(controle("lblcorpus3"), std::runtime_error);
}

} // namespace
} // namespace vermo::essai
