// The jobs with windows: timeline, scroll, an interview's opening, the start.
#include "Donnees.h"
#include "Fenetres.h"
#include "Mesure.h"

#include <QWheelEvent>

#include <filesystem>

namespace bancs {

namespace fs = std::filesystem;
using namespace vermo;

namespace {

/// The timeline laid out and painted, once.
double redessiner(Programme& programme, CorpusOuvert& ouvert) {
    return chronometrer([&] {
        programme.application().annoncer({Sujet::Bascules});
        ouvert.corpus().repaint();
    });
}

/// One notch of the wheel, up to the painted rows.
double defiler(CorpusOuvert& ouvert, int crans) {
    Toile& toile = ouvert.rangees();
    const QPointF milieu = toile.rect().center();
    QWheelEvent molette(milieu, toile.mapToGlobal(milieu), {}, {0, 120 * crans}, Qt::NoButton, {},
                        Qt::NoScrollPhase, false);
    return chronometrer([&] {
        QCoreApplication::sendEvent(&toile, &molette);
        toile.repaint();
    });
}

/// One click on a zoom button, up to the painted window.
double zoomer(CorpusOuvert& ouvert, const char* bouton) {
    return chronometrer([&] {
        controle(ouvert.corpus(), bouton).click();
        ouvert.corpus().repaint();
    });
}

double redessins(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    return medianeDe(25, [&](int) { return redessiner(programme, ouvert); });
}

/// Rows of 450 twips: the small corpus scrolls too, and both show the same number of them.
void rangeesBasses(Programme& programme) {
    programme.session().corpus.HauteurEntretien = 450;
    programme.application().annoncer({Sujet::Entretiens});
    programme.application().annoncer({Sujet::Bascules});
}

double defilements(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    rangeesBasses(programme);
    return medianeDe(40, [&](int i) { return defiler(ouvert, i % 10 < 5 ? -1 : 1); });
}

double zooms(Programme& programme, const std::string& crp) {
    CorpusOuvert ouvert(programme, crp);
    rangeesBasses(programme);
    return medianeDe(20, [&](int i) { return zoomer(ouvert, i % 2 == 0 ? "ImgZoom0" : "ImgZoom1"); });
}

Resultat frise(Programme& programme, const std::string& donnees) {
    const double grand = redessins(programme, corpusDe(donnees, 999, 999));
    const double petit = redessins(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 3};
}

Resultat defilement(Programme& programme, const std::string& donnees) {
    const double grand = defilements(programme, corpusDe(donnees, 999, 999));
    const double petit = defilements(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 1.5};
}

Resultat zoom(Programme& programme, const std::string& donnees) {
    const double grand = zooms(programme, corpusDe(donnees, 999, 999));
    const double petit = zooms(programme, corpusDe(donnees, 40, 120));
    return {.notre = grand, .autre = petit, .aCote = "our own 40 x 120", .atteinte = 2};
}

double ouvrirEntretien(Programme& programme) {
    const double duree = jusquAuDessin("FrmVisu", [&] {
        programme.application().montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    });
    laisser(200);
    programme.application().decharger(Fenetre::FrmVisu);
    laisser(800); // the corpus window idles
    return duree;
}

Resultat entretien(Programme& programme, const std::string& donnees) {
    CorpusOuvert ouvert(programme, corpusDe(donnees, 40, 120));
    laisser(800); // the corpus window idles
    const Paire paire = apparier(
        7, [&] { return ouvrirEntretien(programme); },
        [] {
            return fenetreNue({1668, 969});
        });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .aCote = "first paint of a bare Qt window opened second",
            .atteinte = 1};
}

std::string depart(const char* programme) {
    return (fs::read_symlink("/proc/self/exe").parent_path() / programme).string();
}

Resultat demarrage(Programme&, const std::string&) {
    const Paire paire = apparier(
        11, [] { return commande(depart("banc_intro")); },
        [] { return commande(depart("banc_fenetre_nue")); });
    return {.notre = paire.notre, .autre = paire.autre, .aCote = "a bare Qt window", .atteinte = 1.5};
}

double memoireDe(const std::string& programme) {
    return std::stod(sortieDe(programme).substr(4)) / 1000;
}

Resultat memoireRepos(Programme&, const std::string&) {
    const Paire paire = apparier(
        5, [] { return memoireDe(depart("banc_intro")); },
        [] { return memoireDe(depart("banc_fenetre_nue")); });
    return {.notre = paire.notre,
            .autre = paire.autre,
            .unite = "MB",
            .aCote = "a bare Qt window",
            .atteinte = 1.8};
}

} // namespace

std::vector<NomTravail> travauxFenetres(Programme& programme) {
    const auto avec = [&programme](auto* travail) { return lier(programme, travail); };
    return {{"frise-999x999", avec(frise)}, {"defilement-999x999", avec(defilement)},
            {"zoom-999x999", avec(zoom)},   {"entretien-cache", avec(entretien)},
            {"demarrage", avec(demarrage)}, {"memoire-repos", avec(memoireRepos)}};
}

} // namespace bancs
