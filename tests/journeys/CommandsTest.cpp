// What each key, button and gesture of the start window, the corpus window and its menus does, with the whole
// program behind it, and that questions refused change nothing.
#include "Programme.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/FrmIntro.h"
#include "corpus/ui/FrmMenu.h"
#include "support/CommandesCouvertes.h"
#include "support/Gestes.h"

namespace vermo::essai {
namespace {

/// The files that rows speak of, beside the corpus.
void poserFichiers(Programme& p) {
    const DossierTemporaire& dossier = p.hote.dossier;
    for (const char* nom :
         {"c/z.wav", "c/nul.wav", "c/A.wav", "c/É.wav", "c/garde.wav", "ailleurs/y.wav", "ailleurs/a.wav",
          "ailleurs/nul.wav", "ailleurs/e\u0301.wav", "ailleurs/łódź.wav"})
        dossier.ecrire(nom, wav(1, 8, std::string(9000, '\x7F')));
    for (const char* nom : {"c/s.wav", "ailleurs/été.wav", "ailleurs/Z.wav"})
        dossier.ecrire(nom, STEREO);
    for (const char* nom : {"ailleurs/e.mp3", "ailleurs/A.mp3", "ailleurs/B.mp3", "c/a.mp3", "c/A 2.Rtr"})
        dossier.ecrire(nom, "son");
    dossier.ecrire("d/F.Crp", std::string(TETE) + "x.wav\r\n>|ENTR|\r\n");
    dossier.ecrire("d/x.wav", MONO);
    dossier.ecrire("d/x.Rtr", " 60 \r\n<|ATTR|\r\n3,7\r\n>|ATTR|\r\n");
    dossier.ecrire("c/garde.Rtr", RTR);
    dossier.ecrire("donnees/Vermo de Vermo.mp3", "son");
    p.hote.media.durees = {{"nul.wav", 0}, {"été.wav", 75.5}};
}

/// Programs with the interviews `lettres`, whose corpus window was reached by the line `par` of the start
/// window; none: it stands at its start.
auto avec(const std::string& lettres, const std::string& par = "lblcorpus3", bool sessionEntiere = false) {
    return [=] {
        auto programme = std::make_unique<Programme>(lettres);
        poserFichiers(*programme);
        programme->sessionEntiere = sessionEntiere;
        programme->session.corpus.HauteurEntretien = 2000;
        par.empty() ? programme->app.demarrer() : programme->ouvrirCorpus(par);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&programme->fenetre()));
        return programme;
    };
}

TEST(CommandsTest, OfTheCorpusWindow) {
    couvrir("FrmCorpus", FrmCorpus::commandes(), jouerTable("journeys/corpus.gestes", avec("abcdefghijkl")));
}

TEST(CommandsTest, OfTheMenus) {
    couvrir("FrmMenu", FrmMenu::commandes(), jouerTable("journeys/menus.gestes", avec("abc")));
}

TEST(CommandsTest, OfTheStartWindow) {
    couvrir("FrmIntro", FrmIntro::commandes(), jouerTable("journeys/accueil.gestes", avec("ab", "")));
}

TEST(LooksTest, OfEachWindow) {
    jouerTable("journeys/vues.gestes", avec("abc", ""));
}

TEST(RefusalsTest, LeaveEverythingAsItWas) {
    jouerTable("journeys/refus.gestes", avec("ab", "lblcorpus3", true));
    jouerTable("journeys/sans-corpus.gestes", avec("ab", "ImgBtn1", true));
}

/// Programs in which the extract of the interview a is being typed.
std::unique_ptr<Programme> avecSaisie() {
    auto programme = avec("ab")();
    programme->app.montrer(Fenetre::FrmVisu, EntretienVoulu{1, Ouverture::SansFondu});
    programme->app.montrer(Fenetre::FrmSaisie, ExtraitVoulu{1});
    return programme;
}

TEST(ConflictsTest, NothingOfEitherHandIsLost) {
    jouerTable("journeys/conflits.gestes", avecSaisie);
}

TEST(ImportsTest, EndWithTheirCorpusAndAreNotBegunTwice) {
    jouerTable("journeys/ajouts.gestes", avec("ab"));
}

} // namespace
} // namespace vermo::essai
