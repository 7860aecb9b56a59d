#include "window/ui/Forme.h"

#include "corpus/Session.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "window/ui/Toile.h"

#include <QTest>
#include <gtest/gtest.h>

namespace vermo {
namespace {

class FormeTest : public testing::Test {
  protected:
    essai::PlateformeDeTest hote;
    essai::FenetresMuettes fenetres;
    Session session;
    Forme forme{"FrmEssai", session, hote.plateforme, fenetres};
};

TEST_F(FormeTest, AFaultInACallbackBecomesAMessage) {
    QWidget cadre(&forme);
    Toile toile(QStringLiteral("Picture1"), &cadre);
    toile.resize(20, 20);
    toile.surPression = [](const Souris&) { throw FauteExecution("illisible", "a.Rtr", 12); };
    bool relachee = false;
    toile.surRelachement = [&](const Souris&) { relachee = true; };
    hote.dialogues.repondre(Reponse::Ok, "a.Rtr");
    QTest::mouseClick(&toile, Qt::LeftButton);
    EXPECT_TRUE(relachee) << "the program goes on";
}

TEST_F(FormeTest, AFaultThatRepeatsIsToldOnce) {
    auto tic = [&] { forme.garder([] { throw FauteExecution("encore"); }); };
    hote.dialogues.repondre(Reponse::Ok, "encore").repondre(Reponse::Ok, "autre");
    tic();
    tic();
    forme.garder([] { throw FauteExecution("autre"); });
    EXPECT_EQ(hote.dialogues.journal().size(), 2u);
}

TEST_F(FormeTest, PlacedWithinTheScreen) {
    hote.ecran.zone.barreDesTaches = 40;
    forme.placer({27000, -300, 6000, 3000});
    EXPECT_EQ(forme.geometry(), QRect(1520, 0, 400, 200));
    forme.placer({0, 1305, 28800, 30000});
    EXPECT_EQ(forme.geometry(), QRect(0, 0, 1920, 1040));
}

TEST_F(FormeTest, MovedByItsTitle) {
    QWidget titre(&forme);
    titre.resize(100, 20);
    forme.deplacerPar(&titre);
    forme.placer({1500, 1500, 6000, 3000});
    forme.show();
    QTest::mousePress(&titre, Qt::LeftButton, {}, {10, 10});
    QMouseEvent mouvement(QEvent::MouseMove, {40, 30}, titre.mapToGlobal(QPointF(40, 30)), Qt::NoButton,
                          Qt::LeftButton, {});
    QCoreApplication::sendEvent(&titre, &mouvement);
    EXPECT_EQ(forme.pos(), QPoint(130, 120));
    QTest::mouseRelease(&titre, Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(&titre, {60, 10});
    EXPECT_EQ(forme.pos(), QPoint(130, 120));
}

} // namespace
} // namespace vermo
