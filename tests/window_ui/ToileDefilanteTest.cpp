#include "window/ui/ToileDefilante.h"

#include "window/ui/Glace.h"

#include <QAccessible>
#include <QPainter>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace vermo {
namespace {

/// A table of cells 40 x 20 pixels whose colours tell where they are, row 1 being the head and 30 pixels
/// high.
class Tableau : public ToileDefilante {
  public:
    static constexpr int COLONNES = 50;
    static constexpr Twips LARGEUR = 600, HAUTEUR = 300, HAUTEUR_TITRES = 450;

    explicit Tableau(int rangs, bool titres = true) : ToileDefilante(QStringLiteral("Tableau")) {
        std::vector<Twips> hauteurs(static_cast<std::size_t>(rangs), HAUTEUR);
        hauteurs[0] = HAUTEUR_TITRES;
        lignes(Rangs(hauteurs));
        resize(200, 150);
        if (titres) fixer(LARGEUR, HAUTEUR_TITRES);
    }
    int courant() const override { return courant_; }
    QString nomDeLigne(int rang) const override {
        ++nommees;
        return QStringLiteral("rang %1").arg(rang);
    }
    mutable int nommees = 0;
    int decalageTeinte = 0;

  protected:
    void noterCourant(int rang) override { courant_ = rang; }
    Twips largeurSurface() const override { return COLONNES * LARGEUR; }
    void disposerPartie(Elements& liste, const Rectangle& partie) const override {
        const auto rangs = lignes().entre(partie.haut, partie.bas());
        const auto colonnes = Rangs::egaux(COLONNES, LARGEUR).entre(partie.gauche, partie.droite());
        for (int rang = rangs.premier; rang <= rangs.dernier; ++rang)
            for (int colonne = colonnes.premier; colonne <= colonnes.dernier; ++colonne)
                liste.push_back(cellule(rang, colonne));
    }

  private:
    Element cellule(int rang, int colonne) const {
        Element element{.controle = Controle::LblMot,
                        .index = 1000 * rang + colonne,
                        .cadre = {(colonne - 1) * LARGEUR, lignes().debut(rang), LARGEUR,
                                  lignes().fin(rang) - lignes().debut(rang)}};
        element.fond = rvb(rang * 4 % 256 + decalageTeinte, colonne * 5, rang == courant_ ? 200 : 0);
        element.rempli = element.sensible = true;
        return element;
    }
    int courant_ = 0;
};

QImage entiere(Tableau& table) {
    QImage image(table.size(), QImage::Format_RGB32);
    QPainter peintre(&image);
    table.peindre(peintre, table.rect());
    return image;
}

int celluleSous(Tableau& table, QPoint ici) {
    int trouvee = 0;
    table.surPression = [&](const Souris& s) { trouvee = s.element ? s.element->index : 0; };
    QTest::mousePress(&table, Qt::LeftButton, {}, ici);
    return trouvee;
}

TEST(ToileDefilante, HeadAndFirstColumnStayWhereTheRestScrolls) {
    Tableau table(60);
    table.defiler(10 * Tableau::LARGEUR, 20 * Tableau::HAUTEUR);
    const std::pair<QPoint, int> lieux[] = {
        {{5, 5}, 1001}, {{45, 5}, 1012}, {{5, 35}, 22001}, {{45, 35}, 22012}, {{195, 145}, 27015}};
    const QImage image = entiere(table);
    for (const auto& [ici, cellule] : lieux) {
        EXPECT_EQ(celluleSous(table, ici), cellule);
        EXPECT_EQ(image.pixelColor(ici), QColor(cellule / 1000 * 4, cellule % 1000 * 5, 0)) << cellule;
    }
    EXPECT_EQ(table.dansLaToile({10 * Tableau::LARGEUR, 0, 600, 450}).gauche, 0);
    table.defiler(1e9, 1e9);
    EXPECT_EQ(celluleSous(table, {199, 149}), 60050) << "held at the end";
}

TEST(ToileDefilante, WhatIsKeptOfThePictureIsWhatAWholePaintWouldShow) {
    for (const bool titres : {true, false}) {
        Tableau table(60, titres);
        table.show();
        const auto verifier = [&](const char* apres) {
            const QImage gardee = table.grab().toImage().convertToFormat(QImage::Format_RGB32);
            EXPECT_TRUE(gardee == entiere(table)) << apres << " " << titres;
        };
        verifier("a first paint");
        const QPoint pas[] = {{0, 7}, {11, 0}, {-3, 9}, {5, -12}, {300, 0}, {0, 500}, {-1, -1}, {-900, -900}};
        for (const QPoint& p : pas) {
            table.defiler(table.defilementLateral() + p.x() * 15, table.defilement() + p.y() * 15);
            verifier("a scroll");
        }
        table.choisir(3);
        table.defiler(150, 45);
        verifier("a choice and a scroll in one");
        table.decalageTeinte = 3;
        table.disposer();
        table.defiler(300, 90);
        verifier("all anew and a scroll in one");
    }
}

TEST(ToileDefilante, KeysChooseARowAndBringItIntoViewBelowTheHead) {
    Tableau table(60);
    const struct {
        Qt::Key touche;
        int rang;
        Twips haut;
    } pas[] = {{Qt::Key_Down, 1, 0},         {Qt::Key_Down, 2, 0},      {Qt::Key_PageDown, 7, 0},
               {Qt::Key_PageDown, 12, 1500}, {Qt::Key_PageUp, 7, 1500}, {Qt::Key_PageUp, 2, 0},
               {Qt::Key_End, 60, 15900},     {Qt::Key_Up, 59, 15900},   {Qt::Key_Home, 1, 0}};
    for (const auto& [touche, rang, haut] : pas) {
        QTest::keyClick(&table, touche);
        EXPECT_EQ(table.courant(), rang);
        EXPECT_EQ(table.defilement(), haut) << rang;
    }
    QTest::keyClick(&table, Qt::Key_Right);
    EXPECT_EQ(table.defilementLateral(), 375);
    table.choisir(61);
    EXPECT_EQ(table.courant(), 1) << "no such row";
}

TEST(ToileDefilante, TheWheelScrollsByRowsAndWithShiftSideways) {
    Tableau table(60);
    const auto tourner = [&](Qt::KeyboardModifiers avec) {
        QWheelEvent molette({50, 50}, {50, 50}, {}, {0, -120}, {}, avec, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&table, &molette);
        return std::pair(table.defilementLateral(), table.defilement());
    };
    EXPECT_EQ(tourner({}), std::pair(0.0, Tableau::HAUTEUR));
    EXPECT_EQ(tourner(Qt::ShiftModifier), std::pair(375.0, Tableau::HAUTEUR));
}

TEST(ToileDefilante, ScreenReadersGetTheRowsTheyAskFor) {
    Tableau table(1000000, false);
    table.show();
    QAccessibleInterface* liste = QAccessible::queryAccessibleInterface(&table);
    ASSERT_NE(liste, nullptr);
    EXPECT_EQ(liste->role(), QAccessible::List);
    EXPECT_EQ(liste->childCount(), 1000000);
    table.choisir(500000);
    QAccessibleInterface* ligne = liste->child(499999);
    ASSERT_NE(ligne, nullptr);
    EXPECT_EQ(ligne, liste->child(499999));
    EXPECT_EQ(ligne->text(QAccessible::Name), QStringLiteral("rang 500000"));
    EXPECT_EQ(table.nommees, 1);
    EXPECT_TRUE(ligne->state().selected);
    EXPECT_TRUE(liste->child(0)->state().offscreen);
    EXPECT_EQ(liste->childAt(ligne->rect().center().x(), ligne->rect().center().y()), ligne);
    EXPECT_EQ(liste->indexOfChild(ligne), 499999);
    EXPECT_EQ(liste->child(1000000), nullptr);
}

} // namespace
} // namespace vermo
