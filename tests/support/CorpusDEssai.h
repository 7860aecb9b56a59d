#pragma once
#include "corpus/AnalyserEntretiens.h"
#include "corpus/Frise.h"
#include "corpus/OuvertureCorpus.h"
#include "support/PlateformeDeTest.h"

#include <algorithm>

namespace vermo::essai {

/// A corpus in a directory of its own, and the steps by which the program opens it.
struct CorpusDEssai {
    PlateformeDeTest hote;
    Session session;

    const DossierTemporaire& dossier() const { return hote.dossier; }
    EtatCorpus& corpus() { return session.corpus; }
    DialoguesScriptees& dialogues() { return hote.dialogues; }

    /// `thematiques` and `entretiens` are the lines of their sections, each with its line end.
    void ecrireCorpus(const std::string& thematiques, const std::string& entretiens) const {
        dossier().ecrire("c/Essai.Crp", "Projet\r\n<|THEM|\r\n" + thematiques +
                                            ">|THEM|\r\n<|POS|\r\n>|POS|\r\n<|DIC|\r\n>|DIC|\r\n<|ENTR|\r\n" +
                                            entretiens + ">|ENTR|\r\n");
    }
    void ajouterEntretien(const std::string& nom, const std::string& rtr) const {
        dossier().ecrire("c/" + nom + ".wav", "");
        dossier().ecrire("c/" + nom + ".Rtr", rtr);
    }
    /// Without the scan. False when a step ended the opening.
    bool ouvrir(Twips hauteurCadre = 3000) {
        corpus().CheminCorpus = dossier().chemin("c/Essai.Crp");
        corpus().OuvertureDirecte = true;
        if (!demanderCorpus(session, hote)) return false;
        nommerCorpus(session);
        viderCorpus(session);
        if (!corpusAccessible(session, hote) || !lireThematiques(session, hote)) return false;
        if (!lireEntretiens(session, hote)) return false;
        toutActiver(session);
        calculerHauteur(session, hauteurCadre);
        return true;
    }
    void analyser() { AnalyserEntretiens(session, hote, 1, corpus().NbEntretiens); }
};

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

/// Texts of extracts joined by "|" with their fields, CR shown as "/".
inline std::string decrireExtraits(const Session& session, int slot) {
    std::string texte;
    for (int n = 1; !CorpusDebut(session, slot, n).empty(); ++n) {
        texte += n > 1 ? "|" : "";
        for (const auto champ : {CorpusDebut, CorpusFin, CorpusThm, CorpusTexte})
            texte += std::string(champ(session, slot, n)) + ";";
    }
    std::ranges::replace(texte, CR, '/');
    return texte;
}

/// "a.wav b.wav …" in slot order.
inline std::string ordre(const EtatCorpus& corpus) {
    std::string noms;
    for (std::size_t i = 1; i < corpus.Entretiens.size(); ++i)
        noms += corpus.Entretiens[i].Fichier + " ";
    return noms;
}

constexpr const char* ENTETE = " 100 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n>|ATTR|\r\n";

} // namespace vermo::essai
