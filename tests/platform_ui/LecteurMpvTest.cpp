// The real player without a sound card, in real time.
#include "Enregistrements.h"
#include "platform/qt/LecteurDiffere.h"
#include "support/DossierTemporaire.h"

#include <QElapsedTimer>
#include <QTest>
#include <clocale>
#include <cstring>
#include <filesystem>
#include <functional>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace vermo::essai {
namespace {

constexpr double CINQ_MS = 0.005;

class LecteurReel : public testing::Test {
  protected:
    static bool attendre(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 10000); }
    bool attendre(EtatLecture etat) {
        return attendre([&] { return lecteur.playState() == etat; });
    }
    bool attendrePosition(double secondes) {
        return attendre([&] { return lecteur.currentPosition() >= secondes; });
    }
    bool charger(const Utf8& chemin) {
        lecteur.URL(chemin);
        return attendre([&] { return lecteur.duration() > 0 || !lecteur.erreur().empty(); }) &&
               lecteur.duration() > 0;
    }
    void jouer() {
        dansUnAppel = true;
        lecteur.play();
        dansUnAppel = false;
    }
    Utf8 enregistrement(double secondes, const Utf8& nom = "a.wav") {
        return dossier.ecrire(nom, son(secondes));
    }

    DossierTemporaire dossier;
    LecteurDiffere lecteur{"null"};
    std::vector<EtatLecture> etats;
    bool dansUnAppel = false;
    Ecoute ecoute = lecteur.ecouter([this](EtatLecture etat) {
        EXPECT_FALSE(dansUnAppel) << "told from inside a call";
        etats.push_back(etat);
    });
};

TEST_F(LecteurReel, DurationsAreThoseOfTheSoundInTheFile) {
    constexpr double TRAME = 1152.0 / 44100;
    const struct {
        Utf8 nom;
        std::string octets;
        double duree;
    } cas[] = {
        {"8 bits.wav", son(2), 2},
        {"été, l'\"entretien\".WAV", son(1.5, 2, 16, 44100), 1.5},
        {"coupé.wav", annoncant(80000, son(2)), 2},
        {"sans taille.wav", annoncant(0, son(2)), 2},
        {"variable.mp3", mp3(300), 300 * TRAME},
    };
    for (const auto& c : cas) {
        ASSERT_TRUE(charger(dossier.ecrire(c.nom, c.octets))) << c.nom << ": " << lecteur.erreur();
        EXPECT_NEAR(lecteur.duration(), c.duree, CINQ_MS) << c.nom;
    }
}

TEST_F(LecteurReel, WhatCantBePlayedSaysWhyAndTheNextFilePlays) {
    fs::create_directory(dossier.chemin("dossier.wav"));
    ASSERT_EQ(mkfifo(dossier.chemin("tube.wav").c_str(), 0600), 0);
    enregistrement(1, "bon.wav");
    const struct {
        Utf8 nom, octets, raison;
    } cas[] = {
        {"vide.wav", {}, "est vide"},
        {"texte.wav", "Ceci n'est pas un son.\r\n", "n'est pas un enregistrement"},
        {"dossier.wav", {}, "est un dossier"},
        {"tube.wav", {}, "n'est pas un fichier ordinaire"},
        {"absent.wav", {}, "est introuvable"},
    };
    for (const auto& c : cas) {
        if (!dossier.existe(c.nom) && c.nom != "absent.wav") dossier.ecrire(c.nom, c.octets);
        EXPECT_FALSE(charger(dossier.chemin(c.nom))) << c.nom;
        EXPECT_NE(lecteur.erreur().find(c.raison), Utf8::npos) << c.nom << ": " << lecteur.erreur();
        jouer();
        EXPECT_FALSE(lecteur.enLecture()) << c.nom;
        EXPECT_TRUE(charger(dossier.chemin("bon.wav"))) << "after " << c.nom;
        EXPECT_EQ(lecteur.erreur(), "");
    }
}

TEST_F(LecteurReel, PlaysPausesAndHoldsItsPlace) {
    ASSERT_TRUE(charger(enregistrement(5)));
    jouer();
    EXPECT_TRUE(lecteur.enLecture()) << "before it is told";
    ASSERT_TRUE(attendrePosition(0.3));
    lecteur.pause();
    const double pose = lecteur.currentPosition();
    EXPECT_TRUE(attendre([&] { return etats.back() == EtatLecture::EnPause; }));
    EXPECT_EQ(lecteur.currentPosition(), pose);
    jouer();
    EXPECT_NEAR(lecteur.currentPosition(), pose, 0.05);
    lecteur.currentPosition(4);
    EXPECT_NEAR(lecteur.currentPosition(), 4, CINQ_MS) << "shown at once";
    EXPECT_TRUE(attendrePosition(4.1));
    lecteur.stop();
    EXPECT_EQ(lecteur.currentPosition(), 0);
    EXPECT_TRUE(attendre([&] { return etats.back() == EtatLecture::Arrete; }));
}

TEST_F(LecteurReel, StopsAtTheTrueEndAndStartsAgainFromThere) {
    ASSERT_TRUE(charger(enregistrement(3)));
    lecteur.currentPosition(2.2);
    jouer();
    // The last half second is decoded by now: a pause there must not count as the end.
    ASSERT_TRUE(attendrePosition(2.8));
    lecteur.pause();
    jouer();
    EXPECT_GE(lecteur.currentPosition(), 2.75);
    ASSERT_TRUE(attendre(EtatLecture::Arrete));
    EXPECT_EQ(lecteur.currentPosition(), lecteur.duration());
    jouer();
    EXPECT_LT(lecteur.currentPosition(), 1);
    ASSERT_TRUE(attendrePosition(0.1));
}

TEST_F(LecteurReel, AChangeOfRateKeepsThePosition) {
    ASSERT_TRUE(charger(enregistrement(8)));
    jouer();
    ASSERT_TRUE(attendrePosition(0.4));
    const double avant = lecteur.currentPosition();
    QElapsedTimer montre;
    montre.start();
    lecteur.rate(1.25);
    EXPECT_GE(lecteur.currentPosition(), avant);
    ASSERT_TRUE(attendrePosition(avant + 0.1));
    EXPECT_LT(lecteur.currentPosition() - avant, 0.1 + 1.25e-3 * static_cast<double>(montre.elapsed()));
}

TEST_F(LecteurReel, WhatIsAskedBeforeAndWhileItLoadsIsDoneOnceReadyUnderADecimalCommaToo) {
    std::setlocale(LC_NUMERIC, "fr_FR.UTF-8"); // where it is installed
    lecteur.volume(40);                        // before the library is there
    lecteur.URL(enregistrement(4));
    lecteur.currentPosition(3);
    lecteur.play();
    EXPECT_EQ(lecteur.currentPosition(), 3);
    ASSERT_TRUE(attendre(EtatLecture::Lecture));
    EXPECT_TRUE(attendrePosition(3.1));
    EXPECT_EQ(lecteur.volume(), 40);
}

TEST_F(LecteurReel, AFileCutAndGoneWhileItPlaysComesToAnEnd) {
    const Utf8 chemin = enregistrement(600);
    ASSERT_TRUE(charger(chemin));
    jouer();
    ASSERT_TRUE(attendrePosition(0.1));
    fs::resize_file(chemin, 100);
    fs::remove(chemin);
    lecteur.currentPosition(500);
    EXPECT_TRUE(attendre([&] { return !lecteur.enLecture(); }));
    EXPECT_FALSE(charger(chemin));
}

/// Plays into the file "audiodump.wav" of the current directory.
class LecteurVersFichier : public testing::Test {
  protected:
    LecteurVersFichier() { fs::current_path(dossier.chemin()); }
    ~LecteurVersFichier() override { fs::current_path(avant); }

    /// The 32-bit samples that `lecteur` sent out.
    std::vector<float> echantillons() {
        const std::string octets = dossier.lire("audiodump.wav");
        const std::size_t debut = octets.find("data") + 8;
        std::vector<float> resultat((octets.size() - std::min(debut, octets.size())) / sizeof(float));
        std::memcpy(resultat.data(), octets.data() + debut, resultat.size() * sizeof(float));
        return resultat;
    }
    const fs::path avant = fs::current_path();
    DossierTemporaire dossier;
};

TEST_F(LecteurVersFichier, WhatIsHeardBeginsExactlyWhereAskedAtALinearVolume) {
    std::string rampe; // each sample tells its own place
    for (std::uint32_t i = 0; i < 32000; ++i)
        rampe += entier(i, 2);
    const Utf8 chemin = dossier.ecrire("rampe.wav", wav(1, 16, rampe));
    for (int volume : {100, 50}) {
        {
            LecteurDiffere lecteur("pcm");
            lecteur.volume(volume);
            lecteur.URL(chemin);
            lecteur.currentPosition(2.5);
            lecteur.play();
            ASSERT_TRUE(QTest::qWaitFor(
                [&] { return lecteur.currentPosition() > 2.5 && !lecteur.enLecture(); }, 10000));
        }
        const std::vector<float> recus = echantillons();
        ASSERT_GT(recus.size(), 11000U);
        EXPECT_NEAR(recus.front() * 32768 * 100 / static_cast<float>(volume), 20000, 8000 * CINQ_MS)
            << volume;
    }
}

TEST_F(LecteurVersFichier, WithoutAnOutputItPlaysSilentlyAndSaysSo) {
    const DossierTemporaire ailleurs;
    const Utf8 son1 = ailleurs.ecrire("a.wav", son(2));
    fs::remove_all(dossier.chemin()); // no output can be made here
    LecteurDiffere lecteur("pcm");
    lecteur.URL(son1);
    lecteur.play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return lecteur.currentPosition() > 0.1; }, 10000));
    EXPECT_TRUE(lecteur.muet());
}

} // namespace
} // namespace vermo::essai
