#include "window/ui/Glace.h"

#include <QCache>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace vermo {

namespace {

struct Cle {
    std::string source;
    QSize taille;
    bool operator==(const Cle&) const = default;
};

size_t qHash(const Cle& cle, size_t graine) {
    return qHashMulti(graine, std::hash<std::string>()(cle.source), cle.taille.width(), cle.taille.height());
}

constexpr int KIO_GARDES = 64 * 1024;

QCache<Cle, QImage>& reserve() {
    static QCache<Cle, QImage> images(KIO_GARDES);
    return images;
}

bool vectorielle(const std::string& source) {
    return source.ends_with(".svg");
}

QImage tracer(const std::string& source, QSize taille) {
    QSvgRenderer trace(utf8VersQt(source));
    if (!trace.isValid()) return {};
    QImage image(taille, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    trace.render(&peintre, QRectF(QPointF(), QSizeF(taille)));
    return image;
}

QImage lire(const std::string& source, QSize taille) {
    const QImage image(utf8VersQt(source));
    if (image.isNull()) return {};
    const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return image.scaled(taille, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(format);
}

} // namespace

QImage imageEtiree(const std::string& source, QSize taille) {
    if (source.empty() || taille.isEmpty()) return {};
    const Cle cle{source, taille};
    if (const QImage* gardee = reserve().object(cle)) return *gardee;
    const QImage image = vectorielle(source) ? tracer(source, taille) : lire(source, taille);
    reserve().insert(cle, new QImage(image), 1 + static_cast<int>(image.sizeInBytes() / 1024));
    return image;
}

void oublierImage(const std::string& source) {
    for (const Cle& cle : reserve().keys())
        if (cle.source == source) reserve().remove(cle);
}

QSize tailleNaturelle(const std::string& source) {
    if (source.empty()) return {};
    if (vectorielle(source)) return QSvgRenderer(utf8VersQt(source)).defaultSize();
    return QImageReader(utf8VersQt(source)).size();
}

} // namespace vermo
