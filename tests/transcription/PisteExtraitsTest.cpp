#include "transcription/PisteExtraits.h"

#include "support/MetriquesFixes.h"
#include "transcription/Entretien.h"
#include "transcription/Marquage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vermo::essai {
namespace {

void zoom(Session& session, double debut, double fin) {
    session.audio.DureeFichier = 100;
    session.audio.DebutZoom = debut;
    session.audio.FinZoom = fin;
    session.audio.DureeZoom = fin - debut;
}

std::vector<const Element*> tous(const Elements& elements, Controle controle) {
    std::vector<const Element*> trouves;
    for (const Element& element : elements)
        if (element.controle == controle) trouves.push_back(&element);
    return trouves;
}

std::string cadres(const Elements& elements, std::initializer_list<Controle> controles) {
    Elements choisis;
    for (const Element& element : elements) {
        if (std::find(controles.begin(), controles.end(), element.controle) == controles.end()) continue;
        Element& nu = choisis.emplace_back();
        nu.controle = element.controle;
        nu.index = element.index;
        nu.cadre = element.cadre;
        nu.tag = element.tag;
    }
    return decrire(choisis);
}

TEST(DisposerPiste, PlacesCouleursEtBulles) {
    EntretienOuvert e("100\r\n::10.00::002\r\n::30.00::\r\n::60.00::777\r\n::50.00::\r\n");
    e.thematiques({"001", "002", "003"});
    EXPECT_TRUE(disposerPiste(e.session, 15000).empty());
    zoom(e.session, 0, 100);
    redresserBornes(e.session);
    const Elements piste = disposerPiste(e.session, 15000);
    EXPECT_EQ(cadres(piste, {Controle::ShpXtr, Controle::ShpXtrInt}),
              "ShpXtr[1] 1500,60 3000x210 tag=1\nShpXtrInt[1] 1515,60 3000x210 tag=1\n"
              "ShpXtr[2] 7500,60 1500x210 tag=2\nShpXtrInt[2] 7515,60 1500x210 tag=2\n");
    EXPECT_EQ(e.session.transcription.ExtraitDebut[2], Temps(Texte("50.00")));
    EXPECT_EQ(secondesFin(e.session, 2), 60);

    const auto barres = tous(piste, Controle::LblXtr), formes = tous(piste, Controle::ShpXtr);
    EXPECT_EQ(barres[0]->fond, 2U);
    EXPECT_EQ(barres[1]->fond, TaillePiste{}.modele);
    EXPECT_EQ(formes[1]->fond, 3U);
    EXPECT_EQ(sous(piste, 1600, 100)->index, 1);
}

TEST(DisposerBulles, MontreCeQueLaPlageToucheVraiment) {
    const std::tuple<double, double, bool> cas[] = {
        {10, 20, false}, {5, 10, false}, {20, 25, false}, {5, 10.01, true}, {19.99, 25, true},
        {9, 21, true},   {10, 19, true}, {9, 20, false},  {12, 13, true},   {30, 40, false}};
    for (const auto& [debut, fin, vu] : cas) {
        EntretienOuvert e("100\r\n::1.00::000\r\n::2.00::\r\n");
        zoom(e.session, 10, 20);
        e.session.transcription.ExtraitDebut[1] = debut;
        e.session.transcription.ExtraitFin[1] = fin;
        EXPECT_EQ(!disposerBulles(e.session, 9000, 6000, metriquesFixes).empty(), vu) << debut << " " << fin;
    }
}

TEST(DisposerBulles, PiecesDUneBulle) {
    EntretienOuvert e("100\r\n::5.00::001\r\n::6.00::\r\n::20.00::002\r\nun deux\r\n::30.00::\r\n");
    e.thematiques({"001", "002"});
    zoom(e.session, 10, 60);
    const Elements bulles = disposerBulles(e.session, 15000, 6000, metriquesFixes);
    EXPECT_EQ(cadres(bulles, {Controle::ImgBulleBlanche, Controle::ImgBulleInt, Controle::ImgBulleBas}),
              "ImgBulleBlanche[1] 3000,120 180x180 tag=2\nImgBulleInt[1] 3000,120 105x5880 tag=2\n"
              "ImgBulleBas[1] 3000,4825 180x180 tag=2\nImgBulleBlanche[2] 3170,120 2640x180 tag=2\n"
              "ImgBulleBlanche[3] 3170,299 2640x4525 tag=2\nImgBulleBas[2] 3170,4825 2640x180 tag=2\n"
              "ImgBulleBlanche[4] 5800,120 180x180 tag=2\nImgBulleInt[2] 5860,120 105x5880 tag=2\n"
              "ImgBulleBas[3] 5800,4825 180x180 tag=2\n");
    EXPECT_EQ(
        cadres(bulles, {Controle::ShpXtrIntZ, Controle::LblXtrZ, Controle::LbltitreXtrZ, Controle::LblMot}),
        "ShpXtrIntZ[1] 3120,0 2760x6000 tag=2\nLblXtrZ[1] 3120,120 2760x4885 tag=2\n"
        "LbltitreXtrZ[1] 3240,210 2600x255 tag=2\n"
        "LblMot[1] 3240,495 300x200 tag=1\nLblMot[2] 3570,495 400x200 tag=1\n");
    const Element& titre = *tous(bulles, Controle::LbltitreXtrZ)[0];
    EXPECT_EQ(titre.texte, "Nom 002");
    EXPECT_EQ(titre.encreTexte, 2U);
    EXPECT_EQ(sous(bulles, 3050, 5500)->controle, Controle::ImgBulleInt);
    EXPECT_EQ(sous(bulles, 3500, 600)->controle, Controle::LbltxtXtrZ);
}

TEST(DisposerBulles, BulleEtroiteBulleDebordanteEtCodeInconnu) {
    EntretienOuvert e("100\r\n::12.00::777\r\nmot\r\n::12.10::\r\n::15.00::001\r\nmot encore "
                      "\r\n::95.00::\r\n::fin::000\r\n::97.00::\r\n",
                      [](PlateformeDeTest& hote) { hote.dialogues.repondre(Reponse::Ok, "« fin »"); });
    e.thematiques({"001", "002"});
    zoom(e.session, 10, 20);
    const Elements bulles = disposerBulles(e.session, 9000, 6000, metriquesFixes);
    const auto blanches = tous(bulles, Controle::ImgBulleBlanche);
    ASSERT_EQ(blanches.size(), 8U);
    EXPECT_EQ(blanches[1]->cadre.largeur, 15);
    EXPECT_EQ(blanches[3]->cadre.gauche, blanches[1]->cadre.droite() - 10);
    EXPECT_EQ(tous(bulles, Controle::LbltitreXtrZ)[0]->texte, "Nom 002");
    EXPECT_EQ(tous(bulles, Controle::LblXtrZ)[1]->cadre.droite(), 4500 + 72000 - 120);
    const auto mots = tous(bulles, Controle::LblMot);
    ASSERT_EQ(mots.size(), 2U);
    EXPECT_EQ(mots[0]->cadre.gauche, 4740);
    EXPECT_EQ(mots[1]->texte, "encore ");
}

} // namespace
} // namespace vermo::essai
