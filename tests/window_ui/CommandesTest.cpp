#include "window/ui/Commandes.h"
#include "corpus/Session.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "window/ui/Lien.h"

#include <QLineEdit>
#include <QTest>

namespace vermo {
namespace {

/// A window of four commands, a button that is none of them, and a field.
struct FenetreDEssai : Forme {
    FenetreDEssai(Session& session, Plateforme& plateforme, Fenetres& fenetres)
        : Forme("FenetreDEssai", session, plateforme, fenetres), autre(QStringLiteral("Autre"), {}, {}, this),
          champ(this) {
        champ.setObjectName(QStringLiteral("Champ"));
        commandes.avantBouton = [this] { fait += "bouton "; };
        ouvrir = commandes.bouton("ouvrir", this);
        ligne = commandes.ligne("ouvrir", this);
        commandes.ecouter();
        show();
    }
    static std::string& faitDe(Forme& f) { return static_cast<FenetreDEssai&>(f).fait; }
    static bool permis(const Forme& f) { return static_cast<const FenetreDEssai&>(f).peut; }

    static constexpr Commande TABLE[] = {
        {.id = "ouvrir",
         .bouton = "Ouvrir",
         .bulle = "Ouvrir ({})",
         .ligne = "ligneOuvrir",
         .texte = "Ouvrir...",
         .touches = {{"Espace"}, {"Ctrl + O"}},
         .faire = [](Forme& f) { faitDe(f) += "ouvrir "; },
         .permise = permis},
        {.id = "avancer",
         .touches = {{"→"}},
         .faire = [](Forme& f) { faitDe(f) += "avancer "; },
         .relacher = [](Forme& f) { faitDe(f) += "arrivé "; }},
        {.id = "marquer",
         .touches = {{"Entrée"}},
         .seule = true,
         .faire = [](Forme& f) { faitDe(f) += "marquer "; }},
        {.id = "effacer", .touches = {{"A", "Champ", 0}}, .faire = [](Forme& f) { faitDe(f) += "A "; }},
    };

    std::string fait;
    bool peut = true;
    Commandes commandes{*this, TABLE};
    BoutonImage autre, *ouvrir;
    Lien* ligne;
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
    EXPECT_EQ(apres(fenetre, Qt::Key_Space), "ouvrir ");
    EXPECT_EQ(apres(fenetre.autre, Qt::Key_Space), "") << "the button's own";
    EXPECT_EQ(apres(fenetre.autre, Qt::Key_O, Qt::ControlModifier), "ouvrir ");
    EXPECT_EQ(apres(fenetre.champ, Qt::Key_Space), "") << "typed";
    EXPECT_EQ(apres(fenetre.champ, Qt::Key_A), "A ");
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
    EXPECT_EQ(fenetre.fait, "avancer avancer arrivé marquer ");
}

TEST_F(CommandesTest, ADisabledCommandIsDisabledEverywhere) {
    EXPECT_EQ(fenetre.ouvrir->toolTip(), QStringLiteral("Ouvrir (Espace)"));
    QTest::mouseClick(fenetre.ouvrir, Qt::LeftButton);
    QTest::mouseClick(fenetre.ligne, Qt::LeftButton);
    EXPECT_EQ(fenetre.fait, "bouton ouvrir bouton ouvrir ");
    for (const bool enService : {true, false}) {
        fenetre.peut = !enService;
        fenetre.commandes.enService = [enService] { return enService; };
        fenetre.commandes.actualiser();
        EXPECT_FALSE(fenetre.ouvrir->isEnabled());
        EXPECT_FALSE(fenetre.ligne->isEnabled());
        EXPECT_EQ(apres(fenetre, Qt::Key_Space), "");
    }
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
