#pragma once
#include "corpus/AnalyserEntretiens.h"
#include "corpus/Session.h"
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "window/ui/Toile.h"

#include <QTest>
#include <QWidget>

namespace vermo::essai {

/// A corpus in memory, without files: `nombre` interviews of 100, 200, 300… seconds, each with an extract of
/// "001" from 10 to 20 s; three thematics; rows 1000 high.
inline Session corpusDEssai(int nombre) {
    Session session;
    session.reglages.separateurDecimal = '.';
    EtatCorpus& corpus = session.corpus;
    corpus.CheminCorpus = "/corpus/Essai.Crp", corpus.RepCorpus = "/corpus/";
    corpus.HauteurEntretien = 1000;
    corpus.ThmCode = {"", "000", "001", "002"};
    corpus.ThmCouleur = {"", "&H0", "255", "65280"};
    corpus.ThmNom = {"", " Sans", " Travail", " Famille"};
    corpus.ThmVisible = {0, 1, 1, 1};
    corpus.NbThm = 3;
    corpus.NbEntretiens = static_cast<std::int16_t>(nombre);
    corpus.Entretiens.resize(1), corpus.extraits.resize(1);
    for (int i = 1; i <= nombre; ++i) {
        Entretien& entretien = corpus.Entretiens.emplace_back();
        entretien.Fichier = "entretien" + std::to_string(i) + ".wav";
        entretien.Duree = 100.0F * static_cast<float>(i);
        corpus.extraits.push_back(analyser("100\r\n<|OBS|\r\n>|OBS|\r\n::10.00::001\r\nmot\r\n::20.00::\r\n",
                                           session.reglages, "x.Rtr")
                                      .extraits);
    }
    return session;
}

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
