#include "window/ui/Commandes.h"
#include "corpus/Session.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"

#include <QLineEdit>
#include <QTest>

namespace vermo {
namespace {

/// A window of three commands, and a field.
struct FenetreDEssai : Forme {
    FenetreDEssai(Session& session, Plateforme& plateforme, Fenetres& fenetres)
        : Forme("FenetreDEssai", session, plateforme, fenetres), champ(this) {
        champ.setObjectName(QStringLiteral("Champ"));
        commandes.ecouter();
        show();
    }
    template <char nom>
    static void noter(Forme& f) {
        static_cast<FenetreDEssai&>(f).fait += nom;
    }
    static constexpr Commande TABLE[] = {
        {.id = "avancer", .touches = {{"→"}}, .faire = noter<'a'>, .relacher = noter<'.'>},
        {.id = "marquer", .touches = {{"Entrée"}, {"Ctrl + O"}}, .seule = true, .faire = noter<'m'>},
        {.id = "effacer", .touches = {{"A", "Champ", 0}}, .faire = noter<'e'>},
    };

    std::string fait;
    Commandes commandes{*this, TABLE};
    QLineEdit champ;
};

struct CommandesTest : testing::Test {
    std::string apres(QWidget& cible, int touche, Qt::KeyboardModifiers avec = {}) {
        fenetre.fait.clear();
        QTest::keyClick(&cible, static_cast<Qt::Key>(touche), avec);
        return fenetre.fait;
    }
    void envoyer(QEvent::Type sorte, int touche, bool repete) {
        QKeyEvent evenement(sorte, touche, {}, {}, repete);
        QApplication::sendEvent(&fenetre, &evenement);
    }
    essai::PlateformeDeTest hote;
    essai::FenetresMuettes fenetres;
    Session session;
    FenetreDEssai fenetre{session, hote, fenetres};
};

TEST_F(CommandesTest, KeysComeAfterTheFocusedControlButForThoseThatHoldInIt) {
    EXPECT_EQ(apres(fenetre, Qt::Key_Right), "a.");
    EXPECT_EQ(apres(fenetre.champ, Qt::Key_Right), "") << "the field's own";
    EXPECT_EQ(apres(fenetre.champ, Qt::Key_O, Qt::ControlModifier), "m");
    EXPECT_EQ(apres(fenetre.champ, Qt::Key_A), "e");
    EXPECT_EQ(apres(fenetre, Qt::Key_A), "");
}

TEST_F(CommandesTest, PressReleaseAndRepeatAreToldApart) {
    for (const int touche : {Qt::Key_Right, Qt::Key_Return}) {
        envoyer(QEvent::KeyPress, touche, false);
        envoyer(QEvent::KeyRelease, touche, true);
        envoyer(QEvent::KeyPress, touche, true);
        envoyer(QEvent::KeyRelease, touche, false);
        envoyer(QEvent::KeyRelease, touche, false);
    }
    EXPECT_EQ(fenetre.fait, "aa.m");
}

TEST_F(CommandesTest, ATableThatNamesWhatIsntThereIsRefused) {
    static constexpr Commande TABLES[] = {{.id = "a", .touches = {{"Entree"}}},
                                          {.id = "b", .touches = {{"Entrée", "Absent"}}}};
    for (const Commande& commande : TABLES)
        EXPECT_THROW(Commandes(fenetre, {&commande, 1}).ecouter(), FauteExecution) << commande.id;
    EXPECT_THROW(fenetre.commandes.bouton("absente", &fenetre), FauteExecution);
}

} // namespace
} // namespace vermo
