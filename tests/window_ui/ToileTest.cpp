#include "window/ui/Toile.h"

#include "support/DossierTemporaire.h"
#include "window/ui/Glace.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace vermo {
namespace {

const Couleur ROUGE = rvb(255, 0, 0), BLEU = rvb(0, 0, 255);

Element barre(Rectangle cadre, Couleur fond, Encre encre = Encre::Copie) {
    Element e{.controle = Controle::LblXtr, .cadre = cadre};
    e.fond = fond, e.encre = encre, e.rempli = true, e.sensible = true;
    return e;
}

QImage peinte(Toile& toile, double ratio = 1) {
    QImage image(toile.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::green);
    QPainter peintre(&image);
    toile.peindre(peintre, toile.rect());
    return image;
}

Toile& taille(Toile& toile, int largeur, int hauteur) {
    toile.resize(largeur, hauteur);
    return toile;
}

TEST(ToileTest, EdgesFallOnPixelsAndTheSurfaceScrolls) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 20, 10).fond(BLANC);
    toile.decalage(150, 30);
    toile.elements(
        {barre({180, 60, 45, 30}, ROUGE), barre({225, 60, 1, 30}, BLEU), barre({300, 60, 0, 30}, BLEU)});
    const QImage image = peinte(toile);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(4, 3), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 2), QColor(Qt::blue)) << "the shortest extract keeps one pixel";
    EXPECT_EQ(image.pixelColor(10, 2), QColor(Qt::white)) << "no width, no bar";
    EXPECT_EQ(peinte(toile, 2).pixelColor(9, 5), QColor(Qt::red)) << "two device pixels to the pixel";
}

TEST(ToileTest, ATextOfARulerEndsAtTheEdge) {
    Toile toile(QStringLiteral("Pict_tpsZ"));
    taille(toile, 200, 20).fond(BLANC);
    const auto image = [&](Twips x, Twips bord) {
        toile.dessin({.traits = {}, .inscriptions = {{x, 0, "1:00:00", 0, 7}}, .bord = bord});
        return peinte(toile);
    };
    EXPECT_EQ(image(2880, 3000), image(2995, 3000));
    EXPECT_NE(image(2880, 3000), image(2880, 0));
    EXPECT_EQ(image(1500, 3000), image(1500, 0)) << "where there is room it stays";
}

TEST(ToileTest, NarrowBarsAreFilledAsThePainterFillsThem) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 200, 40).fond(rvb(64, 70, 90));
    toile.decalage(45, 15);
    Elements barres;
    for (int i = 0; i < 200; ++i)
        for (const Encre encre : {Encre::Copie, Encre::Fusion, Encre::Voile})
            barres.push_back(barre({i * 14.0, 40.0 * (i % 7) - 60, 15.0 * (i % 10), 400},
                                   rvb(i, 255 - i, i * 7 % 256), encre));
    toile.elements(barres);
    QImage temoin(toile.size(), QImage::Format_ARGB32_Premultiplied);
    for (const QRect& bornes : {toile.rect(), QRect(20, 5, 90, 20)}) {
        QImage image(toile.size(), QImage::Format_RGB32);
        for (QImage* cible : {&image, &temoin}) {
            cible->fill(Qt::green);
            QPainter peintre(cible);
            peintre.setClipRect(bornes);
            toile.peindre(peintre, toile.rect());
        }
        EXPECT_EQ(image, temoin.convertToFormat(QImage::Format_RGB32));
    }
}

TEST(GlaceTest, TypedTextBecomesBytes) {
    EXPECT_EQ(depuisQt(QStringLiteral("e\u0301t\u00E9\nc\u0153ur\u2029\u20AC\r\nfin")),
              "\xE9t\xE9\rc\x9Cur\r\x80\rfin");
    Texte tous;
    for (int octet = 0; octet < 256; ++octet)
        if (octet != '\n') tous += static_cast<char>(octet);
    EXPECT_EQ(depuisQt(versQt(tous)), tous);
    EXPECT_ANY_THROW(depuisQt(QStringLiteral("\u4E2D")));
}

TEST(GlaceTest, PicturesOfTheDiskAreReadAgainOnceTheyChanged) {
    const essai::DossierTemporaire dossier;
    const std::string chemin = dossier.chemin("a.Bmp");
    for (const QColor couleur : {Qt::red, Qt::blue}) {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(couleur);
        ASSERT_TRUE(image.save(QString::fromStdString(chemin), "BMP"));
        oublierImagesChangees();
        EXPECT_EQ(imageEtiree(chemin, {2, 2}).pixelColor(0, 0), couleur);
    }
}

} // namespace
} // namespace vermo
