#pragma once
#include "textfile/nombres.h"
#include "textfile/texte.h"
#include "window/Bitmap8.h"
#include "window/Element.h"

#include <QColor>
#include <QImage>
#include <QRect>
#include <QRectF>
#include <QString>
#include <string>
#include <string_view>

class QPainter;

namespace vermo {

/// The glass: where CP1252 texts and twips become Qt's.
QString versQt(std::string_view texte);
QString utf8VersQt(std::string_view utf8);
/// CP1252 of a typed text, composed first; line ends become a lone CR. Throws FauteExecution naming the first
/// character that can't be held and its place.
Texte depuisQt(const QString& texte);
Utf8 utf8DepuisQt(const QString& texte);

inline QColor couleurQt(Couleur c) {
    return QColor(static_cast<int>(c & 255), static_cast<int>(c >> 8 & 255), static_cast<int>(c >> 16 & 255));
}
inline double enPixels(Twips t) {
    return t / TWIPS_PAR_PIXEL;
}
inline Twips enTwips(double pixels) {
    return pixels * TWIPS_PAR_PIXEL;
}
/// A place that an integer holds: an extract may end a million years behind its recording's end.
inline double pixelsTenus(double pixels) {
    constexpr double PIXELS_MAX = 1e9;
    return borner(pixels, PIXELS_MAX);
}
QRectF enPixels(const Rectangle& r);
Rectangle enTwips(const QRectF& r);

/// Each edge at its nearest pixel, so that neighbours stay neighbours.
QRect enPixelsEntiers(const Rectangle& r);

/// Every pixel that a part touches.
QRect pixelsTouches(const QRectF& r);

/// A picture of the resources (SVG, drawn at that size) or of the disk, stretched to `taille` device pixels.
/// Kept until some 64 MB of others were asked for. Null when there is no such picture: that is kept as well,
/// until `oublierImagesChangees`.
QImage imageEtiree(const std::string& source, QSize taille);

/// Lets pictures whose files changed on the disk be read again.
void oublierImagesChangees();

/// Size at which a picture was drawn; empty when there is none.
QSize tailleNaturelle(const std::string& source);

/// Paints what a ruler shows; the painter's unit is the logical pixel, its origin that of the drawing. What
/// lies wholly outside `zone` (pixels; empty: everything is wanted) is left out.
void peindreDessin(QPainter& peintre, const Dessin& dessin, const QRectF& zone = {});

/// A picture in the format that is painted without conversion.
QImage versQImage(const Bitmap8& image);

} // namespace vermo
