#pragma once
#include "support/Fiches.h"

#include <QDir>
#include <QImage>

namespace vermo::essai {

/// The most by which two pictures of one size differ in one colour, of 255, and where.
inline std::pair<int, QPoint> ecart(const QImage& a, const QImage& b) {
    std::pair<int, QPoint> pire{a.size() == b.size() ? 0 : 255, {}};
    for (int y = 0; y < a.height() && a.size() == b.size(); ++y)
        for (int x = 0; x < 4 * a.width(); ++x)
            if (const int ici = std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]); ici > pire.first)
                pire = {ici, {x / 4, y}};
    return pire;
}

/// With tests/vues/`nom`.png, half as large. What another make of the fonts changes is less than the
/// tolerance.
inline void comparerPhoto(const std::string& nom, const QImage& vue) {
    constexpr int TOLERANCE = 8; // of 255
    const QImage petite = vue.scaled(vue.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_RGB32);
    const QString fichier = QString::fromStdString(VERMO_RACINE "/tests/vues/" + nom + ".png");
    if (aRefaire()) return void(petite.save(fichier, "PNG", 0));
    const auto [valeur, ou] = ecart(petite, QImage(fichier).convertToFormat(petite.format()));
    if (valeur <= TOLERANCE) return;
    const QString vu = QDir::current().filePath(QString::fromStdString(nom + ".vue.png"));
    petite.save(vu);
    ADD_FAILURE() << nom << " looks otherwise, most at " << ou.x() << "," << ou.y() << " by " << valeur
                  << " of 255: " << vu.toStdString();
}

} // namespace vermo::essai
