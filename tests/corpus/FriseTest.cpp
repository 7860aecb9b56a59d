#include "corpus/DispositionCorpus.h"
#include "corpus/Panneaux.h"
#include "corpus/Pistes.h"
#include "support/CorpusDEssai.h"
#include "support/Fiches.h"

#include <cmath>

using namespace vermo;
using namespace vermo::essai;

namespace {

/// `durees` seconds; extracts of 10 s each at 0, 20, 40... in the first, coded "000", "001", "002", "999".
Session sessionDe(const std::vector<float>& durees) {
    Session session = corpusDEssai(static_cast<int>(durees.size()));
    EtatCorpus& corpus = session.corpus;
    corpus.HauteurEntretien = 400;
    for (std::size_t i = 1; i <= durees.size(); ++i)
        corpus.Entretiens[i].Duree = durees[i - 1], corpus.extraits[i] = {};
    corpus.extraits[1] =
        analyser("100\r\n::0::000\r\n::10::\r\n::20::001\r\n::30::\r\n::40::002\r\n::50::\r\n"
                 "::60::999\r\n::60::\r\n",
                 session.reglages, "e1.Rtr")
            .extraits;
    return session;
}

/// A bar of 1,000 twips.
const VueFrise VUE{.largeur = 3900, .defilement = 0, .hauteur = 2000};

std::string frise(const Session& session, const VueFrise& vue, const std::vector<Utf8>& vues = {}) {
    Elements liste;
    disposerFrise(session, vue, vues, liste);
    return decrire(liste);
}

std::string pistes(const Session& session) {
    Elements liste;
    disposerPistes(session, VUE, liste);
    return decrire(liste);
}

TEST(Timeline, ARowWithAndWithoutItsPicture) {
    comparerFiche("frise", frise(sessionDe({100, 50}), {3900, 600, 100}, {"", "", "/c/e2.Bmp"}));
}

TEST(Timeline, RowsInViewAndRealSize) {
    const Session session = sessionDe(std::vector<float>(999, 10.F));
    const std::tuple<Twips, int, int> cas[] = {{0, 1, 5}, {639, 1, 6}, {640, 2, 7}, {399000, 997, 999}};
    for (const auto& [defilement, premiere, derniere] : cas) {
        const LignesEnVue lignes = lignesEnVue(session, {3900, defilement, 2000});
        EXPECT_EQ(std::pair(lignes.premiere, lignes.derniere), std::pair(premiere, derniere)) << defilement;
    }
    const std::pair<Twips, int> sous[] = {{239, 0}, {240, 1}, {639, 1}, {640, 2}, {399839, 999}, {399840, 0}};
    for (const auto& [y, slot] : sous)
        EXPECT_EQ(slotSous(session, y), slot) << y;
    EXPECT_EQ(frise(Session{}, VUE), "");
    Session reelle = sessionDe({25, 100, 0});
    reelle.corpus.TailleReelle = true;
    VueFrise vue = VUE;
    EXPECT_EQ(cadreImgEnt(reelle, 1, vue, dureeMax(reelle.corpus)).largeur, 1000) << "before the redraw";
    vue.tailleReelle = true;
    for (const auto& [slot, largeur] : {std::pair(1, 250.0), {2, 1000.0}, {3, 0.0}})
        EXPECT_EQ(cadreImgEnt(reelle, slot, vue, dureeMax(reelle.corpus)).largeur, largeur) << slot;
}

/// Where the lines stand, "'" behind one at half a step; then the labels.
std::string regle(float duree) {
    Session session = sessionDe({duree});
    session.corpus.TailleReelle = true;
    const Dessin dessin = disposerRegle(session, duree);
    std::string texte;
    for (const Trait& trait : dessin.traits)
        texte += std::to_string(std::lround(trait.x1 - 2600)) + (trait.couleur == 0x242424 ? "' " : " ");
    for (const auto& inscription : dessin.inscriptions)
        texte += std::to_string(std::lround(inscription.x)) + "=" + inscription.texte + " ";
    return texte;
}

TEST(Timeline, Ruler) {
    EXPECT_EQ(regle(130), "30' 60 90' 120 130 60=01:00 120=02:00 ");
    EXPECT_EQ(regle(130.5F), "30' 60 90' 120 60=01:00 120=02:00 ");
    EXPECT_EQ(regle(359), "30' 60 90' 120 150' 180 210' 240 270' 300 330' 359 "
                          "60=01:00 120=02:00 180=03:00 240=04:00 300=05:00 ");
    EXPECT_EQ(regle(360), "150' 300 360 300=05:00 ");
    EXPECT_LT(regle(1e30F).size(), 1000000U);
    EXPECT_EQ(disposerRegle(sessionDe({360}), 1000), Dessin{});
}

TEST(Timeline, ScrollAndZoom) {
    const Session session = sessionDe({1, 1, 1, 1, 1}); // bottom of the last bar: 240 + 4 x 400 + 280
    EXPECT_FALSE(AjusterDefilement(session, 2120).visible);
    EXPECT_EQ(AjusterDefilement(session, 3000).hauteurSurface, 3000);
    const Defilement d = AjusterDefilement(session, 1060);
    EXPECT_EQ((std::vector{d.hauteurSurface, d.excedent, d.hauteurPouce}), (std::vector{2120., 1060., 470.}));
    const std::pair<Twips, Twips> places[] = {{0, 60}, {530, 295}, {1060, 530}};
    for (const auto& [defile, haut] : places) {
        EXPECT_DOUBLE_EQ(hautPouce(d, defile), haut);
        EXPECT_DOUBLE_EQ(defilementDe(d, haut), defile);
    }
    EXPECT_EQ(std::pair(defilementDe(d, -500), defilementDe(d, 5000)), std::pair(0., 1060.));
}

TEST(Timeline, DurationsOfZeroAreTold) {
    CorpusDEssai essai;
    essai.ajouterEntretien("a", " 0 \r\n");
    essai.ecrireCorpus("", "a.wav\r\n");
    ASSERT_TRUE(essai.ouvrir());
    essai.corpus().TailleReelle = true;
    essai.dialogues().repondre(Reponse::Ok);
    EXPECT_EQ(preparerFrise(essai.session, essai.hote), 0);
    EXPECT_EQ(essai.dialogues().dernier(), "|Durmax à Zéro|Ok|Aucune -> Ok");
    EXPECT_FALSE(essai.corpus().TailleReelle);
    essai.dialogues().repondre(Reponse::Annuler, "l'ouverture de l'entretien a.wav");
    for (int fois = 0; fois < 2; ++fois)
        signalerDureesNulles(essai.session, essai.hote, 1, 1);
    EXPECT_EQ(pistes(essai.session).find("Lblthm"), std::string::npos);
}

TEST(Bars, Fills) {
    Session session = sessionDe({100});
    comparerFiche("barres", pistes(session));
    session.corpus.ThmVisible[2] = 0;
    session.corpus.Entretiens[1].Visible = false;
    comparerFiche("barres-eteintes", pistes(session));
}

TEST(Bars, AMarkStandsBehindTheLast) {
    Session session = sessionDe({100, 100, 0});
    session.corpus.extraits[1].lignes.resize(999, session.corpus.extraits[1].lignes[0]);
    Elements liste;
    disposerPistes(session, VUE, liste);
    ASSERT_EQ(liste.size(), 999U + 1 + 1 + 3); // the interview of duration 0 has its play button only
    EXPECT_EQ(liste[999].tag + " " + liste[1000].tag, "1000 1");
}

TEST(Panels, Thematics) {
    Session session = sessionDe({1});
    session.corpus.ThmVisible[2] = 0;
    session.corpus.NbThm = 2;
    comparerFiche("legende", decrire(disposerThematiques(session, 900, 6000, Legende::Corpus)));
    comparerFiche("legende-saisie", decrire(disposerThematiques(session, 900, 500, Legende::Saisie)));
}

TEST(Panels, FramesStandAroundThem) {
    const DispositionCorpus seule = disposerFenetreCorpus(28800, 16200, false),
                            deux = disposerFenetreCorpus(28800, 16200, true);
    EXPECT_EQ(seule.cadreThm, (Rectangle{120, 1560, 3460, 14280}));
    EXPECT_EQ(seule.cadreEntretiens, (Rectangle{3640, 1560, 25100, 14580}));
    EXPECT_EQ(deux.cadreEntretiens, (Rectangle{3640, 1560, 25100, 11460}));
    EXPECT_EQ(std::pair(seule.PictTAP, deux.PictTAP),
              std::pair(Rectangle(), Rectangle{3760, 13620, 24860, 2400}));
}

} // namespace
