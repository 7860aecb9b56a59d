#include "transcription/ui/FrmSaisie.h"
#include "support/CommandesCouvertes.h"
#include "support/Gestes.h"

#include <QPlainTextEdit>
#include <gtest/gtest.h>

using namespace vermo;
using namespace vermo::essai;

namespace {

constexpr auto CRP =
    "Corpus\r\n<|THEM|\r\n000,&H0, Rien\r\n001,255, Travail\r\n>|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n"
    ">|DIC|\r\n<|ENTR|\r\na.mp3\r\n>|ENTR|\r\n";
constexpr auto RTR =
    " 60 \r\n<|OBS|\r\n\r\n>|OBS|\r\n<|ATTR|\r\n2,3\r\n>|ATTR|\r\n::0.00::000\r\nZ\xE9ro.\r\r\n"
    "::5.00::\r\n::10.00::001\r\nUn.\rDeux.\r\r\n::20.00::\r\n";

/// A corpus of one MP3 interview of a minute on the disk and in the player; FrmSaisie on its second extract.
/// Places on Pict_saisie are seconds, on LblSec parts of its height.
class SaisieDEssai : public Scene {
  public:
    DossierTemporaire etat; ///< the user's, which drafts go to after "abri"
    std::unique_ptr<FrmSaisie> saisie;

    SaisieDEssai() {
        hote.dossier.ecrire("c.Crp", CRP);
        hote.dossier.ecrire("a.Rtr", RTR);
        auto& c = session.corpus;
        session.reglages.separateurDecimal = '.';
        c.CheminCorpus = hote.dossier.chemin("c.Crp"), c.RepCorpus = hote.dossier.chemin();
        c.Entretiens.resize(2);
        c.Entretiens[1].Fichier = "a.mp3", c.Entretiens[1].Duree = 60, c.Entretiens[1].Attributs[1] = 3;
        c.NbEntretiens = c.EntretienCourant = 1;
        c.ThmCode = {"", "000", "001"}, c.ThmCouleur = {"", "&H0", "255"};
        c.ThmNom = {"", " Rien", " Travail"}, c.ThmVisible = {0, 1, 1}, c.NbThm = 2;
        session.audio.DureeFichier = 60;
        hote.media.URL(hote.dossier.ecrire("a.mp3", "x"));
        montres = {"ShpDict0", "SaisieSelect0", "Curseur0"};
        nommerVerbes();
        LireRetranscription(session, hote);
        faire("refaire 2; position 10");
    }

    std::vector<Forme*> formes() override {
        return saisie ? std::vector<Forme*>{saisie.get()} : std::vector<Forme*>{};
    }
    /// With "brouillons": the texts of those on the disk, once what is typed stands there.
    Releve relever() override {
        Releve releve = Scene::relever();
        if (!hote.plateforme.emplacements.etat.empty()) saisie->mettreALAbri();
        std::error_code absent;
        for (const auto& entree : std::filesystem::directory_iterator(etat.chemin("brouillons"), absent))
            if (const Utf8 chemin = entree.path(); chemin.ends_with(".brouillon"))
                releve["brouillons"] += "«" + lireBrouillon(lireFichier(chemin), chemin).texte + "»";
        return releve;
    }
    QPoint lieu(const QWidget& toile, const std::string& ou) override {
        const auto& t = session.transcription;
        const double part = std::stod(ou);
        if (toile.objectName() == QLatin1String("LblSec")) return {5, qRound(part * toile.height())};
        if (toile.objectName() != QLatin1String("Pict_saisie")) return Scene::lieu(toile, ou);
        return {qRound((part - t.SaisieDebut) / t.SaisieDuree * toile.width()), 10};
    }

  private:
    void nommerVerbes() {
        verbes["refaire"] = [this](const std::string& n) {
            saisie = std::make_unique<FrmSaisie>(session, hote, fenetres);
            faire("ouvre " + n);
        };
        verbes["ouvre"] = [this](const std::string& n) { saisie->OuvrirExtrait(std::stoi(n)); };
        verbes["nouveau"] = [this](const std::string& span) {
            auto& t = session.transcription;
            t.SaisieDebut = std::stod(span), t.SaisieFin = std::stod(span.substr(span.find('-') + 1));
            t.SaisieDuree = t.SaisieFin - t.SaisieDebut, t.NouvelExtrait = true;
            saisie->PreparerSaisie();
        };
        verbes["abri"] = [this](const std::string&) { hote.plateforme.emplacements.etat = etat.chemin(); };
        verbes["prive"] = [this](const std::string&) { etat.ecrire("brouillons", "no directory"); };
        verbes["ecrit"] = [this](const std::string&) { saisie->mettreALAbri(); };
        verbes["ferme"] = [this](const std::string&) { saisie->close(); };
        verbes["reprend"] = [this](const std::string&) { saisie->montrer(TexteAbandonneVoulu{}); };
        verbes["retour"] = [this](const std::string&) { session.transcription.RetourCorpus = true; };
        verbes["revient"] = [this](const std::string&) {
            QApplication::sendEvent(saisie.get(), std::make_unique<QEvent>(QEvent::WindowActivate).get());
        };
        verbes["vitesse"] = [this](const std::string& facteur) { hote.media.rate(std::stod(facteur)); };
        verbes["vider"] = [this](const std::string&) {
            auto& t = session.transcription;
            t.ExtraitDebut.resize(1), t.ExtraitTexte.resize(1), t.NbExtraits = 0;
        };
        verbes["remplir"] = [this](const std::string&) {
            auto& c = session.corpus;
            for (; c.NbThm < 40; c.NbThm += 1) {
                c.ThmCode.push_back(std::to_string(100 + static_cast<int>(c.NbThm)));
                c.ThmCouleur.push_back("255"), c.ThmNom.push_back(" x"), c.ThmVisible.push_back(1);
            }
            saisie->ConstruireThematiques();
        };
    }
};

std::unique_ptr<SaisieDEssai> ouverte() {
    return std::make_unique<SaisieDEssai>();
}

} // namespace

TEST(FrmSaisie, EveryGestureHasItsEffectAndNoOther) {
    couvrir("FrmSaisie", FrmSaisie::commandes(), jouerTable("transcription_ui/saisie.gestes", ouverte));
}

TEST(FrmSaisie, WhatIsRefusedOrFailsLeavesEverything) {
    jouerTable("transcription_ui/saisie-refus.gestes", ouverte);
}

TEST(FrmSaisie, WhatTheFileCantHoldIsMarkedAsItIsTyped) {
    SaisieDEssai essai;
    auto& texte = essai.controle<QPlainTextEdit>("TextRtr");
    texte.setPlainText(QString::fromUtf8("a\nb→c::d\u2028") + QChar(u'\0'));
    EXPECT_EQ(texte.extraSelections().size(), 3);
    essai.hote.dialogues.repondre(Reponse::Ok, "« → » (ligne 2, caractère 2)\n« ␀ » (ligne 2, caractère 8)\n"
                                               "« :: » (ligne 2, caractère 4)");
    essai.faire("clic Imgbtn0");
    EXPECT_EQ(essai.hote.dossier.lire("a.Rtr"), RTR);
}
