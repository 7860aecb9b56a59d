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
    EtatTranscription& etat = session.transcription;

    explicit EntretienOuvert(const std::string& octets,
                             const std::function<void(PlateformeDeTest&)>& avantLecture = {},
                             char separateur = '.', const Utf8& nom = "a.Rtr") {
        session.reglages.separateurDecimal = separateur;
        EtatCorpus& corpus = session.corpus;
        corpus.RepCorpus = hote.dossier.chemin();
        corpus.NbEntretiens = corpus.EntretienCourant = 1;
        corpus.Entretiens.resize(1);
        Entretien& entretien = corpus.Entretiens.emplace_back();
        entretien.Fichier = "a.wav", entretien.Duree = 125.5F, entretien.Observations = "Note\r";
        entretien.Attributs[0] = 2, entretien.Attributs[98] = 41;
        hote.dossier.ecrire(nom, octets);
        hote.media.URL(hote.dossier.chemin("a.wav"));
        if (avantLecture) avantLecture(hote);
        LireRetranscription(session, hote);
    }

    /// What the window would write to.
    Retranscription cible() { return retranscriptionDuLecteur(session, hote); }
    bool ajouter(Texte& saisi, const Texte& code) {
        return AjouterExtrait(session, hote, cible(), saisi, code);
    }
    std::string disque() const { return hote.dossier.lire("a.Rtr"); }
    /// The next messages, answered Ok.
    void attendre(std::initializer_list<const char*> messages) {
        for (const char* message : messages)
            hote.dialogues.repondre(Reponse::Ok, message);
    }

    /// Row 1 "000" black, then one row a code, colours 1, 2 and so on, names "Nom" and the code.
    void thematiques(std::vector<Texte> codes) {
        EtatCorpus& corpus = session.corpus;
        codes.insert(codes.begin(), {"", "000"});
        corpus.ThmCode = codes;
        corpus.ThmCouleur = {"", "&H0"};
        corpus.ThmNom = {"", " Pas de th\xE9matique"};
        for (std::size_t rang = 2; rang < codes.size(); ++rang) {
            corpus.ThmCouleur.push_back(std::to_string(rang - 1));
            corpus.ThmNom.push_back("Nom " + codes[rang]);
        }
        corpus.NbThm = static_cast<float>(codes.size() - 1);
        corpus.ThmVisible.assign(codes.size(), 1);
    }
};

} // namespace vermo::essai
