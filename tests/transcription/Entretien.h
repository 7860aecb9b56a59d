#pragma once
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"

#include <functional>

namespace vermo::essai {

/// A corpus of four thematics and one interview, "a.wav", loaded in the player and read: 125.5 seconds, one
/// note, variables 1 and 99.
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
        corpus.ThmCode = {"", "000", "001", "002", "003"};
        corpus.ThmCouleur = {"", "&H0", "1", "2", "3"};
        corpus.ThmNom = {"", " Pas de th\xE9matique", "Nom 001", "Nom 002", "Nom 003"};
        corpus.ThmVisible.assign(5, 1), corpus.NbThm = 4;
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
};

} // namespace vermo::essai
