#include "window/ui/Glace.h"

#include "textfile/fichier.h"

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

struct Gardee {
    QImage image;
    IdentiteFichier identite; ///< of the file before it was read
};

QCache<Cle, Gardee>& reserve() {
    static QCache<Cle, Gardee> images(KIO_GARDES);
    return images;
}

bool surLeDisque(const std::string& source) {
    return source.front() != ':';
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
    if (const Gardee* gardee = reserve().object(cle)) return gardee->image;
    const auto identite = surLeDisque(source) ? identiteFichier(source) : IdentiteFichier{};
    const QImage image = vectorielle(source) ? tracer(source, taille) : lire(source, taille);
    reserve().insert(cle, new Gardee{image, identite}, 1 + static_cast<int>(image.sizeInBytes() / 1024));
    return image;
}

void oublierImagesChangees() {
    for (const Cle& cle : reserve().keys())
        if (surLeDisque(cle.source) &&
            !certainementMeme(reserve().object(cle)->identite, identiteFichier(cle.source)))
            reserve().remove(cle);
}

QSize tailleNaturelle(const std::string& source) {
    if (source.empty()) return {};
    if (vectorielle(source)) return QSvgRenderer(utf8VersQt(source)).defaultSize();
    return QImageReader(utf8VersQt(source)).size();
}

} // namespace vermo
