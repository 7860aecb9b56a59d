#include "CorpusDEssai.h"
#include "corpus/DispositionCorpus.h"
#include "corpus/Panneaux.h"
#include "corpus/Pistes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

namespace vermo {
namespace {

/// `durees` seconds; extracts of 10 s each at 0, 20, 40... in the first, coded "000", "001", "002", "999".
Session sessionDe(std::vector<float> durees, float hauteur = 400) {
    Session session;
    EtatCorpus& corpus = session.corpus;
    corpus.NbEntretiens = static_cast<std::int16_t>(durees.size());
    corpus.Entretiens.resize(durees.size() + 1);
    corpus.extraits.resize(durees.size() + 1);
    for (std::size_t i = 1; i <= durees.size(); ++i) {
        corpus.Entretiens[i].Fichier = "e" + std::to_string(i) + ".wav";
        corpus.Entretiens[i].Duree = durees[i - 1];
    }
    corpus.HauteurEntretien = hauteur;
    corpus.ThmCode = {"", "000", "001", "002"};
    corpus.ThmCouleur = {"", "&H0", "255", "65280"};
    corpus.ThmNom = {"", " Pas", " Un", " Deux"};
    corpus.NbThm = 3;
    toutActiver(session);
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
    DisposerFrise(session, vue, vues, liste);
    return decrire(liste);
}

std::string pistes(const Session& session, const VueFrise& vue = VUE) {
    Elements liste;
    DisposerPistes(session, vue, liste);
    std::erase_if(liste, [](const Element& e) { return e.controle != Controle::Lblthm; });
    return decrire(liste);
}

TEST(Frise, UneLigne) {
    const std::string bulle = " bulle=Activer/désactiver l'entretien";
    EXPECT_EQ(frise(sessionDe({100, 50}), {3900, 600, 100}, {"", "", "/c/e2.Bmp"}),
              "lblpiste[1] 60,365 345x275 \"1\\r\" encre=A4A6AC\n"
              "lblfich[1] 705,240 1835x280 \"e1\" bulle=e1.wav\n"
              "ImgEnt[1] 2600,240 1000x280 fond=404040\n"
              "ShpFich[1] 2600,240 1000x280 bord=54545A\n"
              "ImgOnOff[1] 435,240 210x210" +
                  bulle +
                  " image=:/icones/ImgOn.svg\n"
                  "lblpiste[2] 60,765 345x275 \"2\\r\" encre=A4A6AC\n"
                  "lblfich[2] 705,640 1835x280 \"e2\" bulle=e2.wav\n"
                  "ImgEnt[2] 2600,640 1000x280 tag=e2.wav image=/c/e2.Bmp\n"
                  "ShpFich[2] 2600,640 1000x280 bord=54545A\n"
                  "ImgOnOff[2] 435,640 210x210" +
                  bulle + " image=:/icones/ImgOn.svg\n");
}

TEST(Frise, LignesEnVue) {
    const Session session = sessionDe(std::vector<float>(999, 10.F));
    const std::tuple<Twips, int, int> cas[] = {{0, 1, 5}, {639, 1, 6}, {640, 2, 7}, {399000, 997, 999}};
    for (const auto& [defilement, premiere, derniere] : cas) {
        const LignesEnVue lignes = lignesEnVue(session, {3900, defilement, 2000});
        EXPECT_EQ(lignes.premiere, premiere) << defilement;
        EXPECT_EQ(lignes.derniere, derniere) << defilement;
    }
    const std::pair<Twips, int> sous[] = {{239, 0}, {240, 1}, {639, 1}, {640, 2}, {399839, 999}, {399840, 0}};
    for (const auto& [y, slot] : sous)
        EXPECT_EQ(slotSous(session, y), slot) << y;
    EXPECT_EQ(frise(Session{}, VUE), "");
}

TEST(Frise, TailleReelle) {
    Session session = sessionDe({25, 100, 0});
    session.corpus.TailleReelle = true;
    std::vector<Twips> largeurs;
    for (int slot : {1, 2, 3})
        largeurs.push_back(cadreImgEnt(session, slot, VUE, dureeMax(session.corpus)).largeur);
    EXPECT_EQ(largeurs, (std::vector<Twips>{250, 1000, 0}));
}

/// "30' 60 01:00" for a lines at half a step and one at a step with its label.
std::string regle(float duree) {
    Session session = sessionDe({duree});
    session.corpus.TailleReelle = true;
    const Dessin dessin = DisposerRegle(session, duree);
    std::string texte;
    std::size_t i = 0;
    for (const Trait& trait : dessin.traits) {
        const Twips x = trait.x1 - TAILLES_FRISE.gaucheImgEnt;
        texte += std::to_string(std::lround(x)) + (trait.couleur == 0x242424 ? "' " : " ");
        if (i < dessin.inscriptions.size() && std::abs(dessin.inscriptions[i].x - x) < 0.01)
            texte += dessin.inscriptions[i++].texte + " ";
    }
    EXPECT_EQ(i, dessin.inscriptions.size());
    return texte;
}

TEST(Frise, Regle) {
    EXPECT_EQ(regle(130), "30' 60 01:00 90' 120 02:00 130 ");
    EXPECT_EQ(regle(130.5F), "30' 60 01:00 90' 120 02:00 ");
    EXPECT_EQ(regle(359),
              "30' 60 01:00 90' 120 02:00 150' 180 03:00 210' 240 04:00 270' 300 05:00 330' 359 ");
    EXPECT_EQ(regle(360), "150' 300 05:00 360 ");
    EXPECT_EQ(regle(0.5F), "");
    EXPECT_LT(regle(1e12F).size(), 1000000U);
    EXPECT_EQ(DisposerRegle(sessionDe({360}), 1000), Dessin{});
}

TEST(Frise, Defilement) {
    const Session session = sessionDe({1, 1, 1, 1, 1}); // bottom of the last bar: 240 + 4 x 400 + 280
    EXPECT_FALSE(AjusterDefilement(session, 2120).visible);
    EXPECT_EQ(AjusterDefilement(session, 3000).hauteurSurface, 3000);
    const Defilement d = AjusterDefilement(session, 1060);
    EXPECT_TRUE(d.visible);
    EXPECT_EQ(d.hauteurSurface, 2120);
    EXPECT_EQ(d.excedent, 1060);
    EXPECT_EQ(d.hauteurPouce, 470);
    const std::pair<Twips, Twips> places[] = {{0, 60}, {530, 295}, {1060, 530}};
    for (const auto& [defile, haut] : places) {
        EXPECT_DOUBLE_EQ(hautPouce(d, defile), haut);
        EXPECT_DOUBLE_EQ(defilementDe(d, haut), defile);
    }
    EXPECT_EQ(defilementDe(d, -500), 0);
    EXPECT_EQ(defilementDe(d, 5000), 1060);
    EXPECT_EQ(bornerDefilement(AjusterDefilement(session, 2120), 700), 0);
}

TEST(Frise, Zoom) {
    const std::pair<float, float> avant[] = {{335, 502.5F}, {3599, 5398.5F}, {3600, 3600}, {5000, 5000}};
    const std::pair<float, float> arriere[] = {{900, 600}, {451, 300.66666F}, {450, 450}, {335, 335}};
    for (const auto& [h, attendue] : avant)
        EXPECT_FLOAT_EQ(zoomAvant(h), attendue);
    for (const auto& [h, attendue] : arriere)
        EXPECT_FLOAT_EQ(zoomArriere(h), attendue);
}

TEST(Frise, DureesNulles) {
    essai::CorpusDEssai essai;
    essai.ajouterEntretien("a", " 0 \r\n");
    essai.ecrireCorpus("", "a.wav\r\n");
    ASSERT_TRUE(essai.ouvrir());
    essai.corpus().TailleReelle = true;
    essai.dialogues().repondre(Reponse::Ok, "La durée de l'entretien est nulle.").repondre(Reponse::Ok);
    EXPECT_EQ(preparerFrise(essai.session, essai.hote), 0);
    EXPECT_EQ(essai.dialogues().dernier(), "|Durmax à Zéro|Ok|Aucune -> Ok");
    EXPECT_FALSE(essai.corpus().TailleReelle);
    essai.dialogues().repondre(Reponse::Annuler);
    signalerDureesNulles(essai.session, essai.hote, 1, 1);
    EXPECT_EQ(essai.dialogues().dernier(), "Vermo|Un problème est survenu lors de l'ouverture de l'entretien "
                                           "a.wav|OkAnnuler|Exclamation -> Annuler");
    EXPECT_EQ(essai.hote.progression.debuts, essai.hote.progression.fins);
    EXPECT_EQ(pistes(essai.session), "");
}

TEST(Pistes, Remplissages) {
    Session session = sessionDe({100});
    EXPECT_EQ(pistes(session), "Lblthm[1] 2600,250 100x260 tag=1 fond=000000\n"
                               "Lblthm[2] 2800,250 100x260 tag=2 fond=FF0000 fusion\n"
                               "Lblthm[3] 3000,250 100x260 tag=3 fond=00FF00 fusion\n"
                               "Lblthm[4] 3200,250 45x260 tag=4 fond=FFFFFF\n"
                               "Lblthm[5] 2600,250 45x260 tag=5 fond=FFFFFF\n");
    session.corpus.ThmVisible[2] = 0;
    session.corpus.Entretiens[1].Visible = false;
    EXPECT_EQ(pistes(session), "Lblthm[1] 2600,250 100x260 tag=1 fond=808080\n"
                               "Lblthm[2] 2800,250 100x260 tag=2\n"
                               "Lblthm[3] 3000,250 100x260 tag=3 fond=808080 fusion\n"
                               "Lblthm[4] 3200,250 45x260 tag=4 fond=FFFFFF\n"
                               "Lblthm[5] 2600,250 45x260 tag=5 fond=FFFFFF\n");
}

TEST(Pistes, MarqueDerriereLeDernier) {
    Session session = sessionDe({100, 100, 0});
    session.corpus.extraits[1].lignes.resize(999, session.corpus.extraits[1].lignes[0]);
    Elements liste;
    DisposerPistes(session, VUE, liste);
    ASSERT_EQ(liste.size(), 999U + 1 + 1 + 3); // the interview of duration 0 has its play button only
    EXPECT_EQ(liste[999].tag, "1000");
    EXPECT_EQ(liste[1000].tag, "1");
    EXPECT_EQ(slotSous(session, liste[1000].cadre.haut), 2);
    EXPECT_EQ(decrire({liste.back()}),
              "ImgPlay[3] 3660,1058 240x244 bulle=Ouvrir la fenêtre de saisie image=:/icones/ImgPlay.svg\n");
}

TEST(Pistes, Comptes) {
    Session session = sessionDe({1, 1});
    EXPECT_EQ(compteThematiques(session.corpus), depuisUtf8("Thématiques  (3/3)"));
    session.corpus.ThmVisible[1] = 0;
    session.corpus.Entretiens[2].Visible = false;
    EXPECT_EQ(compteThematiques(session.corpus), depuisUtf8("Thématiques  (2/3)"));
    EXPECT_EQ(compteEntretiens(session.corpus), "Entretiens  (1/2)");
    EXPECT_EQ(compteEntretiens(EtatCorpus{}), "Entretiens  (0/0)");
}

TEST(Panneaux, Thematiques) {
    Session session = sessionDe({1});
    session.corpus.ThmVisible[2] = 0;
    const std::string bulle = depuisUtf8("Clic gauche pour éteindre, Clic droit pour renommer...");
    Elements liste = DisposerThematiques(session, 900, 6000, Legende::Corpus);
    EXPECT_EQ(liste[5].bulle, bulle);
    for (Element& element : liste)
        element.bulle.clear();
    EXPECT_EQ(decrire(liste), "ImgCoul[1] 0,127.5 900x240\n"
                              "ShpCoul[1] 0,0 900x495 fond=000000\n"
                              "LblCoul[1] 0,30 900x495 \" Pas\" tag=000 encre=636363\n"
                              "ImgCoul[2] 0,622.5 900x240\n"
                              "ShpCoul[2] 0,495 900x495 fond=808080\n"
                              "LblCoul[2] 0,525 900x495 \" Un\" tag=001 encre=000000\n"
                              "ImgCoul[3] 0,1117.5 900x240\n"
                              "ShpCoul[3] 0,990 900x495 fond=00FF00\n"
                              "LblCoul[3] 0,1020 900x495 \" Deux\" tag=002 encre=000000\n");
    const Elements saisie = DisposerThematiques(session, 900, 750, Legende::Saisie);
    EXPECT_EQ(decrire({saisie[3], saisie[4]}), "ImgCoul[2] 0,375 900x0 cache\n"
                                               "ShpCoul[2] 0,250 900x250 fond=FF0000\n");
}

TEST(Panneaux, Interrupteurs) {
    EtatCorpus corpus = sessionDe({1, 1, 1}).corpus;
    const auto entretiens = [&] {
        return std::accumulate(corpus.Entretiens.begin() + 1, corpus.Entretiens.end(), std::string(),
                               [](std::string s, const Entretien& e) { return s + (e.Visible ? "1" : "0"); });
    };
    const auto thematiques = [&] {
        return std::accumulate(corpus.ThmVisible.begin() + 1, corpus.ThmVisible.end(), std::string(),
                               [](std::string s, int v) { return s + std::to_string(v); });
    };
    BasculerEntretien(corpus, 2);
    EXPECT_EQ(entretiens(), "101");
    EXPECT_FALSE(BasculerTousEntretiens(corpus));
    EXPECT_EQ(entretiens(), "000");
    IsolerEntretien(corpus, 3);
    EXPECT_EQ(entretiens(), "001");
    EXPECT_TRUE(BasculerTousEntretiens(corpus)); // one active counts as none
    EXPECT_EQ(entretiens(), "111");

    BasculerThematique(corpus, 1);
    EXPECT_EQ(thematiques(), "011");
    EXPECT_TRUE(BasculerToutesThematiques(corpus)); // not all on: all on
    EXPECT_FALSE(BasculerToutesThematiques(corpus));
    EXPECT_EQ(thematiques(), "000");
    IsolerThematique(corpus, 2);
    EXPECT_EQ(thematiques(), "010");
    BasculerThematique(corpus, 2);
    BasculerThematique(corpus, 2);
    EXPECT_EQ(thematiques(), "010");
}

TEST(DispositionCorpus, LeTriAPlatPrendSaPlace) {
    const DispositionCorpus d = DisposerFenetreCorpus(28800, 16200, false);
    const DispositionCorpus plat = DisposerFenetreCorpus(28800, 16200, true);
    EXPECT_EQ(d.Frm_fond_entretiens.bas(), 16200 - 180);
    EXPECT_EQ(d.Frm_fond_entretiens.hauteur - plat.Frm_fond_entretiens.hauteur, plat.PictTAP.hauteur + 720);
    EXPECT_LE(d.PictTps.bas(), d.Frm_fond_entretiens.haut);
    EXPECT_GE(DisposerFenetreCorpus(600, 600, true).Frm_fond_entretiens.hauteur, 0);
}

} // namespace
} // namespace vermo
