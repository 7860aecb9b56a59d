#pragma once
#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace vermo::essai {

/// References are written anew instead of compared.
inline bool aRefaire() {
    return qEnvironmentVariableIsSet("VERMO_REFAIRE_TEMOINS");
}

/// Where two pictures differ most, and by how much of 255 in one of the colours.
struct Ecart {
    Ecart(const QImage& a, const QImage& b) {
        if (a.size() != b.size()) valeur = 255;
        for (int y = 0; y < a.height() && a.size() == b.size(); ++y)
            for (int x = 0; x < a.width(); ++x)
                noter(a.pixel(x, y), b.pixel(x, y), {x, y});
    }
    std::string dit() const {
        return std::to_string(valeur) + " of 255 at " + std::to_string(ou.x()) + "," + std::to_string(ou.y());
    }
    int valeur = 0;
    QPoint ou;

  private:
    void noter(QRgb a, QRgb b, QPoint ici) {
        const int pire = std::max(
            {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        if (pire > valeur) valeur = pire, ou = ici;
    }
};

} // namespace vermo::essai
