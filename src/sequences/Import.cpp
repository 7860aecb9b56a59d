#include "sequences/Import.h"

#include "audio/Onde.h"
#include "corpus/EcritureCorpus.h"
#include "corpus/Import.h"
#include "textfile/chemins.h"

namespace vermo {
namespace {

/// False ends the import: the person gave up or turned to the converter, which takes WAV files only.
bool formatAccepte(Plateforme& plateforme, const Utf8& chemin) {
    if (!estWav(chemin)) return true;
    switch (demanderFormat(LireEnteteWav(chemin, plateforme.dialogues), plateforme)) {
    case ChoixFormat::Annuler:
        return false;
    case ChoixFormat::Convertir:
        lancerConvertisseur(plateforme);
        return false;
    case ChoixFormat::Garder:
        return true;
    }
    return false;
}

SuiteImport sansCorpus(Session& session, Plateforme& plateforme) {
    if (!proposerOuverture(plateforme)) return {};
    session.corpus.OuvertureDirecte = false;
    return {IssueImport::OuvrirDAbord};
}

/// The recording's name once it lies in the corpus' directory; nothing when the import ends.
std::optional<Texte> apporter(Session& session, Plateforme& plateforme) {
    const EtatCorpus& corpus = session.corpus;
    const Utf8 vise = corpus.CheminCorpus;
    const Utf8 chemin = choisirEnregistrement(session, plateforme);
    if (chemin.empty() || !formatAccepte(plateforme, chemin)) return std::nullopt;
    const auto nom = apporterDansCorpus(session, plateforme, chemin);
    if (!nom || corpus.CheminCorpus != vise || dejaDansCorpus(session, plateforme, *nom)) return std::nullopt;
    return nom;
}

/// Seconds; nothing when the recording can't be played, or another corpus was opened while it was measured.
std::optional<double> mesurer(Session& session, Plateforme& plateforme, const Texte& nom) {
    const Utf8 vise = session.corpus.CheminCorpus;
    const double duree = mesurerDuree(plateforme, cheminReel(session.corpus.RepCorpus + versUtf8(nom)));
    session.audio.DureeFichier = duree;
    if (duree == 0 || session.corpus.CheminCorpus != vise) return std::nullopt;
    return duree;
}

} // namespace

SuiteImport importerEntretien(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    if (corpus.CheminCorpus.empty()) return sansCorpus(session, plateforme);
    if (corpus.ouvertureInachevee)
        throw FauteExecution("Ajout impossible : le corpus n'a pas pu être lu en entier.",
                             corpus.CheminCorpus);
    const auto nom = apporter(session, plateforme);
    if (!nom) return {};
    const auto duree = mesurer(session, plateforme, *nom);
    if (!duree) return {};
    ajouterEntretien(session, *nom, *duree);
    try {
        const Utf8 change = "Ajouter l'entretien " + nomEntretien(corpus, corpus.NbEntretiens);
        if (!InsererEntretien(session, plateforme, corpus.NbEntretiens, change))
            return {IssueImport::ARouvrir};
    } catch (const FauteExecution& faute) {
        return {IssueImport::ARouvrir, faute};
    }
    corpus.EntretienCourant = corpus.NbEntretiens;
    return {IssueImport::Ajoute};
}

} // namespace vermo
