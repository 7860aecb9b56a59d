#pragma once
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"

#include <functional>
#include <string>

namespace vermo::essai {

/// A corpus of one interview, "a.wav", loaded in the player and read: 125.5 seconds, one note, variables 1
/// and 99.
struct EntretienOuvert {
    PlateformeDeTest hote;
    Session session;

    explicit EntretienOuvert(const std::string& octets,
                             const std::function<void(PlateformeDeTest&)>& avantLecture = {},
                             char separateur = '.', const Utf8& nom = "a.Rtr") {
        session.reglages.separateurDecimal = separateur;
        session.corpus.RepCorpus = hote.dossier.chemin();
        session.corpus.Entretiens.resize(2);
        session.corpus.NbEntretiens = session.corpus.EntretienCourant = 1;
        Entretien& entretien = session.corpus.Entretiens[1];
        entretien.Fichier = "a.wav";
        entretien.Duree = 125.5F;
        entretien.Observations = "Note\r";
        entretien.Attributs[0] = 2;
        entretien.Attributs[98] = 41;
        hote.dossier.ecrire(nom, octets);
        hote.media.URL(hote.dossier.chemin("a.wav"));
        if (avantLecture) avantLecture(hote);
        LireRetranscription(session, hote);
    }

    /// What the window would write to.
    Retranscription cible() { return retranscriptionDuLecteur(session, hote); }

    /// Row 1 "000" black, then one row a code, colours 1, 2 and so on, names "Nom" and the code.
    void thematiques(const std::vector<Texte>& codes) {
        EtatCorpus& corpus = session.corpus;
        corpus.ThmCode = {"", "000"};
        corpus.ThmCouleur = {"", "&H0"};
        corpus.ThmNom = {"", " Pas de th\xE9matique"};
        for (const Texte& code : codes) {
            corpus.ThmCouleur.push_back(std::to_string(corpus.ThmCode.size() - 1));
            corpus.ThmCode.push_back(code);
            corpus.ThmNom.push_back("Nom " + code);
        }
        corpus.NbThm = static_cast<float>(codes.size() + 1);
        corpus.ThmVisible.assign(codes.size() + 2, 1);
    }
};

} // namespace vermo::essai
