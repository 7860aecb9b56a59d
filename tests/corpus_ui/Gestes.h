#pragma once
#include "support/CorpusDEssai.h"
#include "support/FenetresMuettes.h"
#include "window/ui/Toile.h"

#include <QTest>
#include <QWidget>

namespace vermo::essai {

/// Middle of a painted item as pixels of its canvas. Fails the test when no such item is shown.
inline QPoint lieu(const Toile& toile, Controle controle, int index, Twips decalageY = 0) {
    for (const Element& e : toile.elements())
        if (e.controle == controle && e.index == index && e.visible)
            return QPointF((e.cadre.gauche + e.cadre.largeur / 2) / TWIPS_PAR_PIXEL,
                           (e.cadre.haut + e.cadre.hauteur / 2 - decalageY) / TWIPS_PAR_PIXEL)
                .toPoint();
    ADD_FAILURE() << "no item " << nomControle(controle) << "[" << index << "]";
    return {};
}

template <class Genre>
Genre* membre(const QWidget& fenetre, const char* nom) {
    auto* trouve = fenetre.findChild<Genre*>(QString::fromLatin1(nom));
    if (!trouve) throw std::runtime_error(std::string("no member ") + nom);
    return trouve;
}

inline void cliquer(const QWidget& fenetre, const char* nom) {
    QTest::mouseClick(membre<QWidget>(fenetre, nom), Qt::LeftButton);
}

using Lignes = std::vector<std::string>;

} // namespace vermo::essai
