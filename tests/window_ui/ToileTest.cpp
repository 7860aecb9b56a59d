#include "window/ui/Toile.h"

#include "support/DossierTemporaire.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace vermo {
namespace {

const Couleur ROUGE = rvb(255, 0, 0), BLEU = rvb(0, 0, 255);

Element barre(Rectangle cadre, Couleur fond, Encre encre = Encre::Copie) {
    Element e{.controle = Controle::LblXtr, .cadre = cadre};
    e.fond = fond, e.encre = encre, e.rempli = true, e.sensible = true;
    return e;
}

QImage peinte(Toile& toile, QRectF zone = {}, double ratio = 1) {
    QImage image(toile.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::green);
    QPainter peintre(&image);
    toile.peindre(peintre, zone.isEmpty() ? QRectF(toile.rect()) : zone);
    return image;
}

Toile& taille(Toile& toile, int largeur, int hauteur) {
    toile.resize(largeur, hauteur);
    return toile;
}

TEST(ToilePeinture, UneFusionLaisseVoirLeFond) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 20, 10).fond(BLANC);
    toile.elements({barre({0, 0, 150, 75}, BLEU), barre({0, 0, 300, 150}, ROUGE, Encre::Fusion)});
    const QImage image = peinte(toile);
    const QColor surBleu = image.pixelColor(5, 2), surBlanc = image.pixelColor(15, 8);
    EXPECT_GT(surBleu.red(), 100);
    EXPECT_GT(surBleu.blue(), 100) << "the bar under the blend is seen";
    EXPECT_EQ(surBlanc.red(), 255);
    EXPECT_NEAR(surBlanc.green(), 115, 3);
}

TEST(ToilePeinture, BordsAuPixelEtDecalage) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 20, 10).fond(BLANC);
    toile.decalage(150, 30);
    toile.elements(
        {barre({180, 60, 45, 30}, ROUGE), barre({225, 60, 1, 30}, BLEU), barre({300, 60, 0, 30}, BLEU)});
    const QImage image = peinte(toile);
    EXPECT_EQ(image.pixelColor(1, 3), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(4, 3), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(4, 4), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(5, 2), QColor(Qt::blue)) << "the shortest extract keeps one pixel";
    EXPECT_EQ(image.pixelColor(10, 2), QColor(Qt::white)) << "no width, no bar";
    EXPECT_EQ(peinte(toile, {}, 2).pixelColor(9, 5), QColor(Qt::red)) << "two device pixels to the pixel";
}

TEST(ToilePeinture, SeuleLaZoneExposeeEstPeinte) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 20, 10).fond(BLANC);
    toile.elements({barre({0, 0, 75, 150}, ROUGE), barre({225, 0, 75, 150}, ROUGE)});
    const QImage image = peinte(toile, QRectF(10, 0, 10, 10));
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::green)) << "outside the zone";
    EXPECT_EQ(image.pixelColor(12, 2), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(17, 2), QColor(Qt::red));
}

TEST(ToilePeinture, UneImageEstEtireeEtReluePuisOubliee) {
    const essai::DossierTemporaire dossier;
    const std::string chemin = dossier.chemin("onde é.bmp");
    auto ecrire = [&](Qt::GlobalColor gauche) {
        QImage image(2, 1, QImage::Format_RGB32);
        image.setPixelColor(0, 0, gauche);
        image.setPixelColor(1, 0, Qt::black);
        ASSERT_TRUE(image.save(utf8VersQt(chemin)));
    };
    ecrire(Qt::red);
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 40, 10).fond(BLANC);
    Element vignette{.cadre = {0, 0, 600, 150}};
    vignette.image = chemin;
    toile.elements({vignette});
    EXPECT_EQ(peinte(toile).pixelColor(1, 5), QColor(Qt::red));
    EXPECT_EQ(peinte(toile).pixelColor(38, 5), QColor(Qt::black));
    ecrire(Qt::blue);
    EXPECT_EQ(peinte(toile).pixelColor(1, 5), QColor(Qt::red)) << "kept until it is forgotten";
    toile.oublierImage(chemin);
    EXPECT_EQ(peinte(toile).pixelColor(1, 5), QColor(Qt::blue));
    toile.elements({});
    toile.image(QImage(utf8VersQt(chemin)));
    EXPECT_EQ(peinte(toile).pixelColor(1, 5), QColor(Qt::blue)) << "the ground is stretched too";
}

TEST(ToilePeinture, LeTexteTientEntreLesBordsEtALaLargeurMesuree) {
    const MetriquesQt metriques;
    for (const Texte texte : {"officiel fin AVATAR To", "\xE9t\xE9 c\x9Cur \x80 fl ffi"})
        for (bool gras : {false, true}) {
            const QFontMetricsF mesure(theme::police(8, gras));
            EXPECT_NEAR(enPixels(metriques.largeur(texte, 8, gras)), mesure.horizontalAdvance(versQt(texte)),
                        0.5);
        }
    const Texte texte = "un texte trop long";
    const Twips tout = metriques.largeur(texte, 8);
    EXPECT_EQ(elider(texte, tout, 8), texte);
    const Texte court = elider(texte, tout - 15, 8);
    EXPECT_EQ(court.back(), '\x85');
    EXPECT_LE(metriques.largeur(court, 8), tout - 15);
    EXPECT_EQ(court.substr(0, 8), "un texte");
    EXPECT_EQ(elider("abc", 10, 8), "\x85");

    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 60, 20).fond(rvb(0, 0, 0));
    Element mot{.cadre = {150, 0, 450, 300}, .texte = "MMMMMMMMMM"};
    toile.elements({mot});
    const QImage image = peinte(toile);
    int dedans = 0, dehors = 0;
    for (int x = 0; x < 60; ++x)
        for (int y = 0; y < 20; ++y)
            (x >= 10 && x < 40 ? dedans : dehors) += image.pixelColor(x, y).lightness() > 60;
    EXPECT_GT(dedans, 20);
    EXPECT_EQ(dehors, 0);
}

TEST(ToilePeinture, UneRegle) {
    Toile toile(QStringLiteral("PictTps"));
    taille(toile, 20, 20).fond(BLANC);
    toile.dessin({.traits = {{75, 0, 75, 150, ROUGE}, {0, 225, 300, 225, BLEU}}, .inscriptions = {}});
    const QImage image = peinte(toile);
    EXPECT_EQ(image.pixelColor(5, 3), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(6, 3), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(12, 15), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(5, 12), QColor(Qt::white));
}

TEST(ToileSouris, UnClicVeutLeMemeElement) {
    Toile toile(QStringLiteral("Picture1"));
    taille(toile, 40, 10).decalage(150, 0);
    Element a = barre({150, 0, 150, 150}, ROUGE), b = barre({300, 0, 150, 150}, BLEU);
    a.index = 1, b.index = 2;
    toile.elements({a, b});
    std::string journal;
    auto noter = [&](const char* quoi) {
        return [&journal, quoi](const Souris& s) {
            journal += quoi + std::to_string(s.element ? s.element->index : 0) + "@" +
                       std::to_string(static_cast<int>(s.x)) + " ";
        };
    };
    toile.surPression = noter("p"), toile.surRelachement = noter("r"), toile.surClic = noter("c");
    QTest::mouseClick(&toile, Qt::LeftButton, {}, {12, 5});
    QTest::mouseClick(&toile, Qt::RightButton, {}, {12, 5});
    QTest::mousePress(&toile, Qt::LeftButton, {}, {2, 5});
    QTest::mouseRelease(&toile, Qt::LeftButton, {}, {12, 5});
    QTest::mouseClick(&toile, Qt::LeftButton, {}, {30, 5});
    EXPECT_EQ(journal, "p2@330 r2@330 c2@330 p2@330 r2@330 p1@180 r2@330 p0@600 r0@600 c0@600 ");
    journal.clear();
    auto deuxClics = [&] {
        QTest::mouseClick(&toile, Qt::LeftButton, {}, {2, 5});
        QTest::mouseDClick(&toile, Qt::LeftButton, {}, {2, 5});
        QTest::mouseRelease(&toile, Qt::LeftButton, {}, {2, 5});
    };
    deuxClics();
    EXPECT_EQ(journal, "p1@180 r1@180 c1@180 p1@180 r1@180 c1@180 ") << "a quick second click is a click";
    journal.clear();
    toile.surDoubleClic = noter("d");
    deuxClics();
    EXPECT_EQ(journal, "p1@180 r1@180 c1@180 d1@180 r1@180 ");
}

TEST(Glace, UnTexteTapeRevientEnOctets) {
    EXPECT_EQ(depuisQt(QStringLiteral("e\u0301t\u00E9\nc\u0153ur\u2029\u20AC\r\nfin")),
              "\xE9t\xE9\rc\x9Cur\r\x80\rfin");
    Texte tous;
    for (int octet = 0; octet < 256; ++octet)
        if (octet != '\n') tous += static_cast<char>(octet);
    EXPECT_EQ(depuisQt(versQt(tous)), tous);
    EXPECT_ANY_THROW(depuisQt(QStringLiteral("\u4E2D")));
}

} // namespace
} // namespace vermo
