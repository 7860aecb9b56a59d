#include "platform/DejaDit.h"
#include "platform/Sablier.h"
#include "support/PlateformeDeTest.h"
#include "window/Fenetres.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace vermo {
namespace {

TEST(LecteurMedia, TellsItsListenersInOrderAndOneMayLeaveWhileItIsTold) {
    essai::LecteurSimule lecteur;
    std::string dit;
    Ecoute seconde;
    const Ecoute premiere = lecteur.ecouter([&](EtatLecture etat) {
        dit += "1:" + std::to_string(static_cast<int>(etat)) + " ";
        if (etat == EtatLecture::EnPause) seconde.reset();
    });
    seconde = lecteur.ecouter([&](EtatLecture) { dit += "2 "; });
    {
        const Ecoute breve = lecteur.ecouter([&](EtatLecture) { dit += "3 "; });
    }
    lecteur.URL("a.wav", Fenetre::FrmVisu);
    EXPECT_EQ(lecteur.proprietaire(), Fenetre::FrmVisu);
    lecteur.play();
    lecteur.pause();
    lecteur.URL("");
    EXPECT_EQ(lecteur.proprietaire(), std::nullopt);
    EXPECT_EQ(dit, "1:9 2 1:1 2 1:3 2 1:2 1:0 ");
}

TEST(Sablier, GivesThePointerBackHoweverTheBlockIsLeft) {
    essai::EcranFixe ecran;
    const auto apres = [&](Pointeur avant, const std::function<void(Sablier&)>& travail,
                           std::optional<Pointeur> pointeur) {
        ecran.pointeurCourant = avant;
        try {
            Sablier sablier(ecran, pointeur);
            travail(sablier);
        } catch (const std::runtime_error&) {
        }
        return ecran.pointeurCourant;
    };
    const auto constater = [&](Pointeur attendu) {
        return [&ecran, attendu](Sablier&) { EXPECT_EQ(ecran.pointeurCourant, attendu); };
    };
    EXPECT_EQ(apres(Pointeur::Normal, constater(Pointeur::Sablier), Pointeur::Sablier), Pointeur::Normal);
    EXPECT_EQ(apres(Pointeur::FlecheSablier, constater(Pointeur::FlecheSablier), {}), Pointeur::Normal);
    EXPECT_EQ(apres(
                  Pointeur::Normal, [](Sablier&) { throw std::runtime_error("panne"); }, Pointeur::Sablier),
              Pointeur::Normal);
    EXPECT_EQ(apres(
                  Pointeur::Normal, [](Sablier& s) { s.laisser(); }, Pointeur::Sablier),
              Pointeur::Sablier);
}

TEST(DejaDit, TheSameIsNewOnce) {
    DejaDit dit;
    EXPECT_TRUE(dit.nouveau());
    EXPECT_FALSE(dit.nouveau());
    EXPECT_TRUE(dit.nouveau("autre faute"));
    EXPECT_FALSE(dit.nouveau("autre faute"));
    dit.oublier();
    EXPECT_TRUE(dit.nouveau("autre faute"));
}

} // namespace
} // namespace vermo
