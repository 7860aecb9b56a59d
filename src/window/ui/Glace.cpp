#include "window/ui/Glace.h"

#include "window/ui/Theme.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vermo {

QString versQt(std::string_view texte) {
    QString qt(static_cast<qsizetype>(texte.size()), Qt::Uninitialized);
    QChar* sortie = qt.data();
    for (char octet : texte)
        *sortie++ = QChar(static_cast<char16_t>(pointDeCode(static_cast<unsigned char>(octet))));
    return qt;
}

QString utf8VersQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

Texte depuisQt(const QString& texte) {
    QString compose = texte.normalized(QString::NormalizationForm_C);
    compose.replace(QLatin1String("\r\n"), QLatin1String("\r"));
    for (QChar fin : {QChar(u'\n'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        compose.replace(fin, QChar(u'\r'));
    return depuisUtf8(utf8DepuisQt(compose));
}

Utf8 utf8DepuisQt(const QString& texte) {
    return texte.toStdString();
}

QRectF enPixels(const Rectangle& r) {
    return {enPixels(r.gauche), enPixels(r.haut), enPixels(r.largeur), enPixels(r.hauteur)};
}

Rectangle enTwips(const QRectF& r) {
    return {enTwips(r.x()), enTwips(r.y()), enTwips(r.width()), enTwips(r.height())};
}

QRect enPixelsEntiers(const Rectangle& r) {
    const QPoint coin(qRound(pixelsTenus(enPixels(r.gauche))), qRound(pixelsTenus(enPixels(r.haut))));
    const QPoint fin(qRound(pixelsTenus(enPixels(r.droite()))), qRound(pixelsTenus(enPixels(r.bas()))));
    return {coin, QSize(fin.x() - coin.x(), fin.y() - coin.y())};
}

QRect pixelsTouches(const QRectF& r) {
    return QRectF(QPointF(pixelsTenus(r.left()), pixelsTenus(r.top())),
                  QPointF(pixelsTenus(r.right()), pixelsTenus(r.bottom())))
        .toAlignedRect();
}

namespace {

void peindreTrait(QPainter& peintre, const Trait& trait, const QRectF& zone) {
    const QPointF a(enPixels(trait.x1), enPixels(trait.y1)), b(enPixels(trait.x2), enPixels(trait.y2));
    const QRectF etendue = QRectF(a, b).normalized().adjusted(0, 0, 1, 1);
    if (!zone.isEmpty() && !etendue.intersects(zone)) return;
    const QColor couleur = couleurQt(trait.couleur);
    if (trait.x1 == trait.x2 || trait.y1 == trait.y2) {
        const QPoint coin(qRound(etendue.x()), qRound(etendue.y()));
        const QPoint fin(qRound(etendue.right()), qRound(etendue.bottom()));
        peintre.fillRect(QRect(coin, QSize(fin.x() - coin.x(), fin.y() - coin.y())), couleur);
        return;
    }
    peintre.setPen(couleur);
    peintre.drawLine(a, b);
}

} // namespace

void peindreDessin(QPainter& peintre, const Dessin& dessin, const QRectF& zone) {
    for (const Trait& trait : dessin.traits)
        peindreTrait(peintre, trait, zone);
    const MetriquesQt metriques;
    int corps = -1;
    for (const Inscription& inscription : dessin.inscriptions) {
        QPointF coin(enPixels(inscription.x), enPixels(inscription.y));
        const QSizeF taille(enPixels(metriques.largeur(inscription.texte, inscription.corps)),
                            enPixels(metriques.hauteur(inscription.corps)));
        if (dessin.bord > 0)
            coin.setX(std::min(coin.x(), std::floor(enPixels(dessin.bord) - taille.width())));
        if (!zone.isEmpty() && !QRectF(coin, taille).intersects(zone)) continue;
        if (std::exchange(corps, inscription.corps) != inscription.corps)
            peintre.setFont(theme::police(inscription.corps));
        peintre.setPen(couleurQt(inscription.couleur));
        peintre.drawText(coin + QPointF(0, enPixels(metriques.ascendante(inscription.corps))),
                         versQt(inscription.texte));
    }
}

QImage versQImage(const Bitmap8& image) {
    std::array<QRgb, 256> palette{};
    std::transform(image.palette().begin(), image.palette().end(), palette.begin(),
                   [](Couleur couleur) { return couleurQt(couleur).rgb(); });
    QImage resultat(image.largeur(), image.hauteur(), QImage::Format_RGB32);
    for (int y = 0; y < image.hauteur(); ++y) {
        auto* ligne = reinterpret_cast<QRgb*>(resultat.scanLine(y));
        for (const char indice : image.octetsRangee(y))
            *ligne++ = palette[static_cast<unsigned char>(indice)];
    }
    return resultat;
}

} // namespace vermo
