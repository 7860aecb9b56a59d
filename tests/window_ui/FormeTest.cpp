#include "window/ui/Forme.h"

#include "corpus/Session.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "window/ui/Toile.h"

#include <QTest>

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
    hote.dialogues.repondre(Reponse::Ok, "encore").repondre(Reponse::Ok, "autre");
    for (const char* dite : {"encore", "encore", "autre"})
        forme.garder([&] { throw FauteExecution(dite); });
    EXPECT_EQ(hote.dialogues.journal().size(), 2u);
}

} // namespace
} // namespace vermo
