// What each key, button and gesture of the start window, the corpus window and its menus does, with the whole
// program behind it.
#include "Programme.h"

#include <QSlider>
#include <QWheelEvent>
#include <algorithm>

namespace vermo::essai {
namespace {

constexpr auto CORPUS = "FrmCorpus", MENU = "FrmMenu", INTRO = "FrmIntro", RANGEES = "Frm_entretiens",
               THEMES = "Frm_thm";
using enum Controle;

Geste rang(Controle controle, int index, bool deux = false) {
    return [=] {
        const QPoint la = place(rangees(), controle, index);
        QTest::mouseClick(&rangees(), Qt::LeftButton, {}, la);
        if (deux) QTest::mouseDClick(&rangees(), Qt::LeftButton, {}, la);
    };
}
Geste theme(int index, Qt::MouseButton bouton) {
    return [=] {
        auto* liste = membre<Toile>(forme(CORPUS), THEMES);
        QTest::mouseClick(liste, bouton, {}, place(*liste, LblCoul, index));
    };
}
Geste tirer(const char* toile, std::function<QPoint()> de, std::function<QPoint()> vers) {
    return [=] {
        auto* surface = membre<QWidget>(forme(CORPUS), toile);
        const QPoint la = vers();
        QTest::mousePress(surface, Qt::LeftButton, {}, de());
        QTest::mouseMove(surface, la);
        QTest::mouseRelease(surface, Qt::LeftButton, {}, la);
    };
}
Geste tirerRang(int source, int cible) {
    return tirer(
        RANGEES, [=] { return place(rangees(), lblfich, source); },
        [=] { return place(rangees(), lblfich, cible); });
}
Geste molette(int crans) {
    return [=] {
        const QPointF ici(50, 50);
        QWheelEvent tour(ici, rangees().mapToGlobal(ici), {}, {0, 120 * crans}, {}, {}, {}, false);
        QCoreApplication::sendEvent(&rangees(), &tour);
    };
}
Geste auClavier(Qt::Key cle, Qt::KeyboardModifiers avec = {}) {
    return touche(CORPUS, RANGEES, cle, avec);
}
Geste desThemes(Qt::Key cle, Qt::KeyboardModifiers avec = {}) {
    return touche(CORPUS, THEMES, cle, avec);
}
void ajouterZ(Programme& p) {
    p.hote.dossier.ecrire("c/z.wav", wav(1, 8, std::string(12000, '\x80')));
}
std::function<void(Programme&)> choisi(int slot) {
    return [=](Programme& p) { p.session.corpus.EntretienCourant = static_cast<std::int16_t>(slot); };
}

TEST(Commands, OfTheCorpusWindow) {
    const Geste defile = molette(-3);
    const std::vector<Ligne> table{
        {"lblmenu0 clic", clic(CORPUS, "lblmenu0"), "fenetres=FrmCorpus FrmMenu:FrmMnu0"},
        {"lblmenu1 clic", clic(CORPUS, "lblmenu1"), "fenetres=FrmCorpus FrmMenu:FrmMnu1"},
        {"lblmenu2 clic", clic(CORPUS, "lblmenu2"), "fenetres=FrmCorpus FrmMenu:FrmMnu2"},
        {"lblmenu3 clic", clic(CORPUS, "lblmenu3"), "fenetres=FrmCorpus FrmMenu:FrmMnu3"},
        {"Alt+C", auClavier(Qt::Key_C, Qt::AltModifier), "fenetres=FrmCorpus FrmMenu:FrmMnu0"},
        {"Alt+E", auClavier(Qt::Key_E, Qt::AltModifier), "fenetres=FrmCorpus FrmMenu:FrmMnu1"},
        {"Alt+T", auClavier(Qt::Key_T, Qt::AltModifier), "fenetres=FrmCorpus FrmMenu:FrmMnu2"},
        {"Alt+A", auClavier(Qt::Key_A, Qt::AltModifier), "fenetres=FrmCorpus FrmMenu:FrmMnu3"},
        {"Alt+V", auClavier(Qt::Key_V, Qt::AltModifier), "fenetres=FrmCorpus FrmMenu:FrmMnu5"},
        {"PictVol clic", clic(CORPUS, "PictVol"), "fenetres=FrmCorpus FrmMenu:FrmMnu5"},
        {"PictVol survol",
         [] {
             QTest::mouseMove(membre<QWidget>(forme(CORPUS), "PictVol"), {5, 5});
         },
         "fenetres=FrmCorpus FrmMenu:FrmMnu5"},
        {"PictVol Entrée",
         [] {
             membre<QWidget>(forme(CORPUS), "PictVol")->setFocus();
             touche(CORPUS, "PictVol", Qt::Key_Return)();
         },
         "fenetres=FrmCorpus FrmMenu:FrmMnu5"},
        {"ImgCroix0 à droite", clic(CORPUS, "ImgCroix0", {48, 10}), "fenetres= | fini=oui | rangs="},
        {"ImgCroix0 à gauche", clic(CORPUS, "ImgCroix0", {4, 10}), "fenetres=FrmCorpus_"},
        {"ImgCroix0 Gauche, Entrée",
         suite({touche(CORPUS, "ImgCroix0", Qt::Key_Left), touche(CORPUS, "ImgCroix0", Qt::Key_Return)}),
         "fenetres=FrmCorpus_"},
        {"Alt+F4", [] { forme(CORPUS).close(); }, "fenetres= | fini=oui | rangs="},
        {"Imgbtn7 clic",
         clic(CORPUS, "Imgbtn7"),
         "c/E.Crp ~ | c/E.Crp.$$$ + | c/z.Bmp + | c/z.Rtr + | choix=13 | etq1=(13/13) | fenetres=FrmCorpus- "
         "FrmVisu:250 | lecteur=z.wav joue | liste=abcdefghijklz",
         {fichier("c/z.wav")},
         ajouterZ},
        {"Imgbtn3 clic", clic(CORPUS, "Imgbtn3"), "Imgbtn3=Taille1 | PictTps=oui | taille=vraie"},
        {"ImgOnOffthm0 clic", clic(CORPUS, "ImgOnOffthm0"),
         "ImgOnOffthm0=ImgOff | etq0=(0/2) | thematiques=00"},
        {"ImgOnOffent clic", clic(CORPUS, "ImgOnOffent"),
         "ImgOnOffent=ImgOff | eteints=abcdefghijkl | etq1=(0/12)"},
        {"ImgOnOffent deux fois", suite({clic(CORPUS, "ImgOnOffent"), clic(CORPUS, "ImgOnOffent")}), ""},
        {"ImgZoom0 clic", suite({defile, clic(CORPUS, "ImgZoom0")}), "hauteur=3000 | rangs=cdefgh"},
        {"ImgZoom0 double clic", doubleClic(CORPUS, "ImgZoom0"), "hauteur=3600 | rangs=abcd"},
        {"ImgZoom1 clic", clic(CORPUS, "ImgZoom1"), "hauteur=1333 | rangs=abcdefghijk"},
        {"ImgZoom1 double clic", doubleClic(CORPUS, "ImgZoom1"),
         "LblScroll=non | hauteur=450 | rangs=abcdefghijkl"},
        {"+", auClavier(Qt::Key_Plus), "hauteur=3000 | rangs=abcde"},
        {"-", auClavier(Qt::Key_Minus), "hauteur=1333 | rangs=abcdefghijk"},
        {"Frm_entretiens interrupteur", rang(ImgOnOff, 2), "eteints=b | etq1=(11/12)"},
        {"Frm_entretiens interrupteur, double clic", rang(ImgOnOff, 3, true),
         "eteints=abdefghijkl | etq1=(1/12)"},
        {"Frm_entretiens ImgPlay", rang(ImgPlay, 2),
         "c/b.Bmp + | choix=2 | fenetres=FrmCorpus- FrmVisu:0 | lecteur=b.wav joue"},
        {"Frm_entretiens nom", rang(lblfich, 2), ""},
        {"Frm_entretiens nom, double clic", rang(lblfich, 3, true),
         "c/c.Bmp + | choix=3 | fenetres=FrmCorpus- FrmVisu:250 | lecteur=c.wav joue"},
        {"Frm_entretiens barre", rang(ImgEnt, 4), "choix=4"},
        {"Frm_entretiens extrait", rang(Lblthm, 3), "choix=2"},
        {"Frm_entretiens rang tiré plus haut", tirerRang(3, 1),
         "c/E.Crp ~ | c/E.Crp.$$$ + | liste=cabdefghijkl | rangs=cabdefg"},
        {"Frm_entretiens rang tiré plus bas", tirerRang(1, 3),
         "c/E.Crp ~ | c/E.Crp.$$$ + | liste=bcadefghijkl | rangs=bcadefg"},
        {"Frm_entretiens rang tiré sur lui-même", tirerRang(2, 2), ""},
        {"Frm_entretiens rang tiré hors des colonnes",
         tirer(
             RANGEES, [] { return place(rangees(), lblfich, 3); },
             [] { return place(rangees(), ImgEnt, 1); }),
         ""},
        {"Molette", defile, "rangs=cdefghij"},
        {"Molette au bord", molette(1), ""},
        {"LblScroll page",
         [] {
             auto* barre = membre<Toile>(forme(CORPUS), "LblScroll");
             QTest::mouseClick(barre, Qt::LeftButton, {}, {5, barre->height() - 5});
         },
         "rangs=fghijkl"},
        {"LblScroll tiré",
         tirer(
             "LblScroll", [] { return place(*membre<Toile>(forme(CORPUS), "LblScroll"), LblScroll, 0); },
             [] { return QPoint(5, 5000); }),
         "rangs=fghijkl"},
        {"Bas", suite({auClavier(Qt::Key_Down), auClavier(Qt::Key_Down)}), "choix=2"},
        {"Haut", auClavier(Qt::Key_Up), "choix=2", {}, choisi(3)},
        {"Page suivante", auClavier(Qt::Key_PageDown), "choix=7", {}, choisi(2)},
        {"Page précédente", auClavier(Qt::Key_PageUp), "choix=6", {}, choisi(11)},
        {"Début", auClavier(Qt::Key_Home), "choix=1", {}, choisi(5)},
        {"Fin", auClavier(Qt::Key_End), "choix=12 | rangs=fghijkl"},
        {"Espace", auClavier(Qt::Key_Space), "eteints=b | etq1=(11/12)", {}, choisi(2)},
        {"Maj+Espace",
         auClavier(Qt::Key_Space, Qt::ShiftModifier),
         "eteints=acdefghijkl | etq1=(1/12)",
         {},
         choisi(2)},
        {"Entrée",
         auClavier(Qt::Key_Enter),
         "c/b.Bmp + | fenetres=FrmCorpus- FrmVisu:0 | lecteur=b.wav joue",
         {},
         choisi(2)},
        {"Entrée sans choix", auClavier(Qt::Key_Return), ""},
        {"Alt+Haut",
         auClavier(Qt::Key_Up, Qt::AltModifier),
         "c/E.Crp ~ | c/E.Crp.$$$ + | choix=2 | liste=acbdefghijkl | rangs=acbdefg",
         {},
         choisi(3)},
        {"Alt+Bas au bout", auClavier(Qt::Key_Down, Qt::AltModifier), "", {}, choisi(12)},
        {"Frm_thm clic", theme(2, Qt::LeftButton), "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=10"},
        {"Frm_thm clic droit", theme(2, Qt::RightButton),
         "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01"},
        {"Frm_thm Fin, Espace", suite({desThemes(Qt::Key_End), desThemes(Qt::Key_Space)}),
         "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=10"},
        {"Frm_thm Bas, Début, Espace",
         suite({desThemes(Qt::Key_Down), desThemes(Qt::Key_Home), desThemes(Qt::Key_Space)}),
         "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01"},
        {"Frm_thm Bas, Maj+Espace",
         suite({desThemes(Qt::Key_Down), desThemes(Qt::Key_Space, Qt::ShiftModifier)}),
         "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01"},
        {"Frm_thm Bas, Haut, Espace",
         suite({desThemes(Qt::Key_Down), desThemes(Qt::Key_Up), desThemes(Qt::Key_Space)}),
         "ImgOnOffthm0=ImgOff | etq0=(1/2) | thematiques=01"},
    };
    verifier(table, "abcdefghijkl");
    Programme programme;
    programme.ouvrirCorpus();
    verifierTable(forme(CORPUS), table);
}

TEST(Commands, OfTheMenus) {
    const auto volume = [](Geste geste) { return suite({clic(CORPUS, "PictVol"), std::move(geste)}); };
    const std::vector<Ligne> table{
        {"lblmenu0 clic",
         menu("lblmenu0", "lblmenu0"),
         "LblVide=oui | c/N.Crp + | corpus=N.Crp | etq0=(1/1) | etq1=(0/0) | liste= | programme/Projets.ini "
         "~ | rangs= | thematiques=1",
         {fichier("c/N.Crp")}},
        {"lblmenu1 clic",
         menu("lblmenu0", "lblmenu1"),
         "corpus=F.Crp | etq1=(1/1) | hauteur=6645 | liste=b | programme/Projets.ini ~ | rangs=b",
         {fichier("c/F.Crp")},
         [](Programme& p) { p.hote.dossier.ecrire("c/F.Crp", std::string(TETE) + "b.wav\r\n>|ENTR|\r\n"); }},
        {"lblcorpus1 clic", menu("lblmenu0", "lblcorpus1"), "choix=0", {}, choisi(2)},
        {"lblmenu3 clic",
         menu("lblmenu1", "lblmenu3"),
         "c/E.Crp ~ | c/E.Crp.$$$ + | c/z.Bmp + | c/z.Rtr + | choix=4 | etq1=(4/4) | fenetres=FrmCorpus- "
         "FrmVisu:250 | lecteur=z.wav joue | liste=abcz | rangs=abcz",
         {fichier("c/z.wav")},
         ajouterZ},
        {"lblmenu9 clic", menu("lblmenu1", "lblmenu9"), "taille=vraie"},
        {"lblmenu10 clic",
         menu("lblmenu1", "lblmenu10"),
         "c/b.Bmp + | fenetres=FrmCorpus- FrmVisu:250 | lecteur=b.wav joue",
         {},
         choisi(2)},
        {"lblmenu12 clic",
         menu("lblmenu1", "lblmenu12"),
         "c/E.Crp ~ | c/E.Crp.$$$ + | choix=0 | etq1=(2/2) | liste=ac | rangs=ac",
         {{Reponse::Oui, "retirer"}},
         choisi(2)},
        {"ImgPlay clic",
         menu("lblmenu1", "ImgPlay"),
         "c/c.Bmp + | fenetres=FrmCorpus- FrmVisu:250 | lecteur=c.wav joue",
         {},
         choisi(3)},
        {"ImgOnOff clic", menu("lblmenu1", "ImgOnOff"), "eteints=c | etq1=(2/3)", {}, choisi(3)},
        {"Échap", suite({clic(CORPUS, "lblmenu2"), [] { QTest::keyClick(&forme(MENU), Qt::Key_Escape); }}),
         ""},
        {"Bas, Entrée",
         suite({clic(CORPUS, "lblmenu1"), [] { QTest::keyClick(&forme(MENU), Qt::Key_Down); },
                [] { QTest::keyClick(forme(MENU).focusWidget(), Qt::Key_Down); },
                [] { QTest::keyClick(forme(MENU).focusWidget(), Qt::Key_Return); }}),
         "taille=vraie"},
        {"LblVol clic", volume(clic(MENU, "LblVol", {32, 90})),
         "fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 41 % | volume=41/41"},
        {"LblVol tiré", volume([] {
             auto* glissiere = membre<QWidget>(forme(MENU), "LblVol");
             const QPoint prise = membre<QWidget>(forme(MENU), "ImgCurseur")->geometry().center();
             QTest::mousePress(glissiere, Qt::LeftButton, {}, prise);
             QTest::mouseMove(glissiere, prise + QPoint(0, 500));
             QTest::mouseRelease(glissiere, Qt::LeftButton, {}, prise);
         }),
         "fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 0 % | volume=0/0"},
        {"LblVol Bas", volume(touche(MENU, "LblVol", Qt::Key_Down)),
         "fenetres=FrmCorpus FrmMenu:FrmMnu5 | jauge=Volume : 95 % | volume=95/95"},
    };
    verifier(table, "abc");
    Programme programme;
    programme.ouvrirCorpus();
    clic(CORPUS, "lblmenu1")();
    for (const char* nom : {"lblmenu10", "lblmenu12", "ImgPlay", "ImgOnOff"})
        EXPECT_FALSE(membre<QWidget>(forme(MENU), nom)->isEnabled()) << nom << ": no interview is chosen";
    programme.session.corpus.EntretienCourant = 1;
    for (const char* titre : {"PictVol", "lblmenu0", "lblmenu1"}) {
        clic(CORPUS, titre)();
        verifierTable(forme(MENU), table);
    }
}

TEST(Commands, OfTheStartWindow) {
    const std::vector<Ligne> table{
        {"lblcorpus0 clic",
         clic(INTRO, "lblcorpus0"),
         "c/N.Crp + | corpus=N.Crp | fenetres=FrmCorpus | programme/Projets.ini ~ | volume=100/100",
         {fichier("c/N.Crp")}},
        {"lblcorpus1 Entrée",
         touche(INTRO, "lblcorpus1", Qt::Key_Return),
         "corpus=E.Crp | fenetres=FrmCorpus | hauteur=4430 | liste=ab | rangs=ab | volume=100/100",
         {fichier("c/E.Crp")}},
        {"lblcorpus3 clic", clic(INTRO, "lblcorpus3"),
         "corpus=E.Crp | fenetres=FrmCorpus | liste=ab | rangs=ab | volume=100/100"},
        {"Bas, Entrée",
         suite({touche(INTRO, "lblcorpus1", Qt::Key_Down),
                [] { QTest::keyClick(forme(INTRO).focusWidget(), Qt::Key_Return); }}),
         "corpus=E.Crp | fenetres=FrmCorpus | liste=ab | rangs=ab | volume=100/100"},
        {"Haut, Entrée",
         suite({touche(INTRO, "lblcorpus1", Qt::Key_Up),
                [] { QTest::keyClick(forme(INTRO).focusWidget(), Qt::Key_Return); }}),
         "c/N.Crp + | corpus=N.Crp | fenetres=FrmCorpus | programme/Projets.ini ~ | volume=100/100",
         {fichier("c/N.Crp")}},
        {"ImgBtn1 clic", clic(INTRO, "ImgBtn1"), "fenetres=FrmCorpus | volume=100/100"},
        {"Image1 clic", clic(INTRO, "Image1"), "fenetres= | fini=oui"},
        {"ImgTestSon clic",
         clic(INTRO, "ImgTestSon"),
         "lecteur=Vermo de Vermo.mp3 joue | volume=100/100",
         {},
         [](Programme& p) { p.hote.dossier.ecrire("donnees/Vermo de Vermo.mp3", "son"); }},
    };
    verifier(table, "ab", nullptr);
    Programme programme;
    programme.app.demarrer();
    verifierTable(forme(INTRO), table);
}

} // namespace
} // namespace vermo::essai
