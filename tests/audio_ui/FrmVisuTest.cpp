#include "audio_ui/EntretienDEssai.h"
#include "textfile/fichier.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

constexpr auto DEHORS = "Un extrait ne peut pas en englober un autre!";

/// Ten minutes, the first shown; extracts at 0, 20 and 40 seconds.
std::unique_ptr<EntretienDEssai> ouvert() {
    auto essai = std::make_unique<EntretienDEssai>(600);
    essai->transcrire({{0, 5}, {20, 30}, {40, 45}});
    EXPECT_TRUE(essai->ouvrir());
    essai->faire("position 10; tic Timer1");
    return essai;
}

const std::vector<Geste> GESTES = {
    // The row of buttons.
    {"avancer", "", "clic ImgMedia6", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=124+2472; zoom=3-63"},
    {"reculer", "2x touche Right", "clic ImgMedia5", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=124+2472; zoom=3-63"},
    {"lire", "pause", "clic ImgMedia1", "ImgMedia1=caché; ImgMedia4=vu; lecture=3"},
    {"pause", "", "clic ImgMedia4", "ImgMedia1=vu; ImgMedia4=caché; lecture=2"},
    {"zoom-avant", "", "clic ImgMedia2", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+1236; facteur=20; zoom=0-30"},
    {"zoom-arriere", "", "clic ImgMedia3", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+4944; facteur=5; zoom=0-120"},
    {"corpus", "", "clic ImgCorpus; attend", "demande=annoncer Entretiens, decharger FrmVisu"},
    {"fermer", "", "clic ImgCroix", "alpha=240; demande=annoncer Entretiens; fondu=10000"},
    {"volume", "", "clic PictVol", "demande=montrer FrmMenu 5"},
    {"volume-survol", "", "survole PictVol", "demande=montrer FrmMenu 5"},
    {"titre-double", "", "double Imagetitre@0.05", "Shp_visu0=0+2454"},
    // The keyboard.
    {"touche-droite", "pause", "touche Right",
     "ImgMedia1=caché; ImgMedia4=vu; Pict_tpsZ~; Pict_zoom~; Shp_visu0=124+2472; lecture=3; zoom=3-63"},
    {"touche-gauche", "pause; roule Pict_zoom -2", "touche Left",
     "ImgMedia1=caché; ImgMedia4=vu; Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+2472; lecture=3; zoom=0-60"},
    {"touche-espace", "", "touche Space", "ImgMedia1=vu; ImgMedia4=caché; lecture=2"},
    {"touche-espace-lire", "pause", "touche Space", "ImgMedia1=caché; ImgMedia4=vu; lecture=3"},
    {"touche-plus", "", "touche +", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+1236; facteur=20; zoom=0-30"},
    {"touche-moins", "", "touche -", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+4944; facteur=5; zoom=0-120"},
    {"touche-echap", "", "touche Esc", "alpha=240; demande=annoncer Entretiens; fondu=10000"},
    {"touche-page-suivante", "", "touche PgDown",
     "Curseur0=618+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=618+2472; position=15; zoom=15-75"},
    {"touche-page-precedente", "2x touche PgDown", "touche PgUp",
     "Curseur0=618+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=618+2472; position=15; zoom=15-75"},
    {"touche-page-fin", "glisse Picture1@590>590", "touche PgDown",
     "Curseur0=24720+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=24720+2472; position=600; zoom=600-660"},
    {"touche-f2", "survole Picture1@LblXtr2", "touche F2", "courant=2; demande=montrer FrmSaisie extrait 2"},
    {"touche-f2-rien-dit", "", "touche F2", ""},
    {"touche-f4", "", "touche F4", "demande=montrer FrmMenu 5"},
    {"touche-alt-origine", "", "touche Alt+Home; attend", "demande=annoncer Entretiens, decharger FrmVisu"},
    {"touche-origine-seule", "", "touche Home", ""},
    {"touche-extrait-suivant", "touche Ctrl+Right", "touche Ctrl+Right",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=618+824; facteur=30; position=20; zoom=15-35"},
    {"touche-extrait-precedent", "survole Picture1@LblXtr3", "touche Ctrl+Left",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=618+824; facteur=30; position=20; zoom=15-35"},
    {"touche-ctrl-espace", "", "touche Ctrl+Space", ""},
    {"touche-debut-avant", "survole Picture1@LblXtr2", "touche Alt+Left",
     "demande=annoncer Extraits; disque entretien1.Rtr= -::20.00::002/ +::19.90::002/; extrait2=19.9-30 002 "
     "Un texte.\r"},
    {"touche-fin-apres", "survole Picture1@LblXtr2", "touche Alt+Shift+Right",
     "courant=2; demande=annoncer Extraits, montrer FrmSaisie extrait 2; disque entretien1.Rtr= -::30.00::/ "
     "+::30.10::/; "
     "extrait2=20-30.1 "
     "002 Un texte.\r"},
    {"touche-debut-zero", "survole Picture1@LblXtr1", "touche Alt+Left", "demande=annoncer Extraits"},
    {"touche-entree-marque", "", "touche Return", "marque=10"},
    {"touche-entree-lance", "pause", "touche Return", "ImgMedia1=caché; ImgMedia4=vu; lecture=3; marque=10"},
    {"touche-entree-reponse-tardive", "pause; tardif", "touche Return; reponse",
     "ImgMedia1=caché; ImgMedia4=vu; lecture=3; marque=10"},
    {"touche-entree-fin", "touche Return; position 12.5; tic Timer1", "touche Return",
     "TotalSelect0=; ZoomSelect0=; demande=montrer FrmSaisie nouvel extrait; marque=0; nouveau=1; "
     "saisie=10-12.5"},
    {"touche-lettre", "", "tape a", ""},
    {"touche-d-un-bouton", "focus ImgMedia2", "touche +",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+1236; facteur=20; focus=TxtCtrl; zoom=0-30"},
    // The overview.
    {"vue-clic", "", "glisse Picture1@37>37",
     "Curseur0=1236+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=1236+2472; position=30; zoom=30-90"},
    {"vue-glisse", "", "glisse Picture1@100>140",
     "Curseur0=3708+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=3708+2067; facteur=12; position=90; zoom=90-140.2"},
    {"vue-glisse-gauche", "", "glisse Picture1@140>100",
     "Curseur0=3708+15; Pict_tpsZ~; Pict_zoom~; Shp_visu0=3708+2472; position=90; zoom=90-150"},
    {"vue-glisse-dehors", "", "glisse Picture1@500>610", "TotalSelect0=20595+4530"},
    {"vue-survol-extrait", "", "survole Picture1@LblXtr2", "LblXtrBulle=Un texte.\n"},
    {"vue-clic-extrait", "pause", "clic Picture1@LblXtr2",
     "ImgMedia1=caché; ImgMedia4=vu; Pict_tpsZ~; Pict_zoom~; Shp_visu0=618+824; facteur=30; lecture=3; "
     "position=20; zoom=15-35"},
    {"vue-double-extrait", "", "double Picture1@LblXtr2", "courant=2; demande=montrer FrmSaisie extrait 2"},
    {"texte-clic", "survole Picture1@LblXtr1", "clic PictLect@0.1",
     "courant=1; demande=montrer FrmSaisie extrait 1"},
    // The zoom band.
    {"zoom-clic", "", "glisse Pict_zoom@12>12.02", "position=12; shp_curseur_zoom0=0+4950"},
    {"zoom-creer", "", "glisse Pict_zoom@7>12",
     "demande=montrer FrmSaisie nouvel extrait; nouveau=1; saisie=7-12"},
    {"zoom-creer-borne", "", "glisse Pict_zoom@15>25",
     "demande=montrer FrmSaisie nouvel extrait; nouveau=1; saisie=15-20"},
    {"zoom-creer-dehors", "", "glisse Pict_zoom@50>61",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=124+2472; demande=montrer FrmSaisie nouvel extrait; nouveau=1; "
     "saisie=50-64; "
     "zoom=3-63"},
    {"zoom-creer-englobe", "repondre Ok", "glisse Pict_zoom@15>35",
     "dit=Un extrait ne peut pas en englober un autre!"},
    {"zoom-panoramique", "", "glisse Pict_zoom@57>17",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=1648+2472; position=57; shp_curseur_zoom0=0+7005; zoom=40-100"},
    {"zoom-marque-en-cours", "touche Return", "glisse Pict_zoom@7>12",
     "position=12; shp_curseur_zoom0=0+4950"},
    {"zoom-roule-avant", "", "roule Pict_zoom -1", "Pict_tpsZ~; Pict_zoom~; Shp_visu0=124+2472; zoom=3-63"},
    {"zoom-roule-arriere", "roule Pict_zoom -2", "roule Pict_zoom 1",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+2472; zoom=0-60"},
    {"zoom-roule-debut", "", "roule Pict_zoom 1", ""},
    {"zoom-roule-fin", "glisse Picture1@597>597", "6x roule Pict_zoom -1",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=22248+2472; zoom=540-600"},
    {"zoom-roule-ctrl-avant", "", "roule Pict_zoom 1 Ctrl",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+1236; facteur=20; zoom=0-30"},
    {"zoom-roule-ctrl-arriere", "", "roule Pict_zoom -1 Ctrl",
     "Pict_tpsZ~; Pict_zoom~; Shp_visu0=0+4944; facteur=5; zoom=0-120"},
    {"zoom-titre-clic", "", "clic Pict_zoom@LbltitreXtrZ2", "courant=2; demande=montrer FrmSaisie extrait 2"},
    {"zoom-texte-clic", "", "clic Pict_zoom@LbltxtXtrZ2", "position=25.1"},
    {"zoom-texte-double", "", "double Pict_zoom@LbltxtXtrZ2",
     "courant=2; demande=montrer FrmSaisie extrait 2"},
    {"zoom-poignee-debut", "", "glisse Pict_zoom@ImgBulleInt3>15",
     "demande=annoncer Extraits; disque entretien1.Rtr= -::20.00::002/ +::15.00::002/; extrait2=15-30 002 Un "
     "texte.\r"},
    {"zoom-poignee-plus-tard", "", "glisse Pict_zoom@ImgBulleInt2>10",
     "courant=1; demande=annoncer Extraits, montrer FrmSaisie extrait 1; disque entretien1.Rtr= -::5.00::/ "
     "+::10.01::/; "
     "extrait1=0-10 001 "
     "Un texte.\r"},
    {"zoom-poignee-borne", "", "glisse Pict_zoom@ImgBulleInt4>42",
     "courant=2; demande=annoncer Extraits, montrer FrmSaisie extrait 2; disque entretien1.Rtr= -::30.00::/ "
     "+::40.00::/; "
     "extrait2=20-40 002 "
     "Un texte.\r"},
    {"zoom-poignee-zero", "", "glisse Pict_zoom@ImgBulleInt1>-5", ""},
    {"zoom-poignee-englobe", "repondre Ok", "glisse Pict_zoom@ImgBulleInt4>50",
     "dit=Un extrait ne peut pas en englober un autre!; extrait2=20-50 002 Un texte.\r"},
    {"zoom-poignee-ouvert", "double Pict_zoom@LbltxtXtrZ2; saisie nue", "glisse Pict_zoom@ImgBulleInt3>15",
     "demande=annoncer Extraits, montrer FrmSaisie extrait 2; disque entretien1.Rtr= -::20.00::002/ "
     "+::15.00::002/; "
     "extrait2=15-30 002 Un "
     "texte.\r"},
    {"regle-clic", "", "clic Pict_tpsZ@33", "position=33; shp_curseur_zoom0=0+13590"},
    // The player's clock.
    {"tic", "position 33", "tic Timer1",
     "Curseur0=1390+15; LblCompteur=00:33; reprise=33; shp_curseur_zoom0=0+13662"},
    {"tic-marque", "touche Return; position 33", "tic Timer1",
     "Curseur0=1390+15; LblCompteur=00:33; TotalSelect0=412+948; ZoomSelect0=4120+9542; reprise=33; "
     "shp_curseur_zoom0=0+13662"},
    {"tic-page", "position 60.9", "tic Timer1",
     "Curseur0=2539+15; LblCompteur=01:01; Pict_tpsZ~; Pict_zoom~; Shp_visu0=2509+2472; reprise=61; "
     "shp_curseur_zoom0=0+25213; zoom=60.9-120.9"},
    {"tic-saisie", "saisie nue; position 33", "tic Timer1", ""},
    {"tic-pause", "pause; position 33", "tic Timer1", ""},
    {"etat-volume", "volume 40", "pause", "ImgMedia1=vu; ImgMedia4=caché; lecture=2; son=40"},
};

/// What may not be done while a text is typed or the window goes changes nothing.
const std::vector<Geste> REFUS = {
    {"fermer", "saisie nue", "touche Esc", "demande=montrer FrmSaisie"},
    {"corpus", "saisie nue", "touche Alt+Home; attend", "demande=montrer FrmSaisie"},
    {"ouvrir", "survole Picture1@LblXtr2; saisie entamée", "touche F2", "demande=montrer FrmSaisie"},
    {"creer", "saisie entamée", "glisse Pict_zoom@7>12", "demande=montrer FrmSaisie"},
    {"parti", "touche Esc",
     "touche Right; touche Return; touche Space; touche F2; touche Esc; clic ImgCorpus", ""},
};

} // namespace

TEST(FrmVisu, EveryGestureHasItsEffectAndNoOther) {
    jouerTable(GESTES, ouvert);
}

TEST(FrmVisu, WhatIsRefusedLeavesEverything) {
    jouerTable(REFUS, ouvert, false);
}

TEST(FrmVisu, OpensOnTheFirstMinuteAndKeepsItsPicture) {
    EntretienDEssai essai(610);
    essai.session.corpus.Entretiens[1].Reprise = 42;
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.FacteurZoom, 10);
    EXPECT_EQ(essai.hote.media.currentPosition(), 42);

    const Toile& vue = essai.controle<Toile>("Picture1");
    const QImage image(QString::fromStdString(essai.hote.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(image.size(), vue.size());
    EXPECT_EQ(image.depth(), 8);

    // The cache alone decides: a recording that changed keeps its picture.
    const std::string octets = essai.hote.dossier.lire("entretien1.Bmp");
    essai.hote.dossier.ecrire("entretien1.wav", wav(1, 8, std::string(5000, '\x80')));
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.hote.dossier.lire("entretien1.Bmp"), octets);
    EXPECT_EQ(essai.controle<Toile>("Picture1").image().convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32));
}

TEST(FrmVisu, ARecordingWithoutSamplesShowsARulerAndIsNeverProbed) {
    EntretienDEssai essai(125, "entretien1.Mp3"); // no question is expected
    ASSERT_TRUE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.EnteteWav, EnTeteWav());
    const QImage cache(QString::fromStdString(essai.hote.dossier.chemin("entretien1.Bmp")));
    EXPECT_EQ(cache.depth(), 8);
    const int minute = qRound(60.0 / 125 * cache.width());
    EXPECT_NE(cache.pixel(minute, 40), cache.pixel(minute + 10, 40));
}

TEST(FrmVisu, AnOpeningThatIsGivenUpLeavesTheSession) {
    EntretienDEssai essai(60);
    essai.session.corpus.Entretiens[1].Duree = 0;
    essai.hote.media.lent = true;
    essai.hote.media.URL(essai.chemin);
    essai.hote.progression.patience = 5; // then the person gives up, twice
    essai.hote.dialogues.repondre(Reponse::Oui, "Voulez-vous réessayer?").repondre(Reponse::Non);
    EXPECT_FALSE(essai.ouvrir());
    essai.hote.media.URL("");
    essai.hote.dialogues.repondre(Reponse::Ok, "Le fichier spécifié est introuvable.\n\nVous l'avez");
    EXPECT_FALSE(essai.ouvrir());
    EXPECT_EQ(essai.session.audio.DureeFichier, 0);
    EXPECT_FALSE(essai.visu->isVisible());
}

TEST(FrmVisu, EscapeFadesTheWindowAndTheSoundAndThenItGoes) {
    const auto essai = ouvert();
    essai->faire("volume 80; touche Esc; 9x tic Timer3; 9x tic Timer3; 6x tic Timer3");
    EXPECT_EQ(essai->hote.media.volume(), 4);
    EXPECT_EQ(essai->fenetres.journal(),
              std::vector<std::string>{"annoncer Entretiens"}); // not from within the tick
    QApplication::processEvents();
    EXPECT_EQ(essai->fenetres.journal(),
              (std::vector<std::string>{"annoncer Entretiens", "decharger FrmVisu"}));
}

TEST(FrmVisu, AHeldButtonGoesOnInItsDirectionUntilItIsLeft) {
    const auto essai = ouvert();
    essai->faire("6x touche Right");
    for (const auto& [nom, sens] : {std::pair("ImgMedia6", 1), std::pair("ImgMedia5", -1)}) {
        QWidget& bouton = essai->controle(nom);
        const double avant = essai->session.audio.DebutZoom;
        const auto pas = [&] { return sens * (essai->session.audio.DebutZoom - avant); };
        QTest::mousePress(&bouton, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pas() > 5; })) << nom;
        QTest::mouseRelease(&bouton, Qt::LeftButton);
        for (const char* timer : {"TimerPlus", "TimerMoins"})
            EXPECT_FALSE(essai->visu->findChild<QTimer*>(QLatin1String(timer))->isActive()) << nom;
    }
}

TEST(FrmVisu, ASilentPlayerIsSaid) {
    const auto essai = ouvert();
    essai->hote.media.sansSon = true;
    EXPECT_EQ(essai->effetDe("tic Timer1"), "lblEtat=Pas de sortie son : la lecture est silencieuse");
}
