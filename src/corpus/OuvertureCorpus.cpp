#include "corpus/OuvertureCorpus.h"

#include "corpus/Frise.h"
#include "corpus/Porte.h"
#include "formats/FichierCorpus.h"
#include "formats/Projets.h"
#include "textfile/chemins.h"
#include "textfile/fichier.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <unordered_map>

namespace vermo {
namespace {

constexpr const char* PROJETS = "Projets.ini";

/// The list as it was written last; one that lies beside a program that can't be written is read until then.
std::vector<Utf8> lireProjets(const Emplacements& emplacements) {
    Utf8 chemin = emplacements.fichierEcrit(PROJETS);
    if (!fichierExiste(chemin)) chemin = emplacements.fichierLu(PROJETS);
    if (chemin.empty()) return {};
    return projets::lire(lireFichier(chemin));
}

std::string horodater(const std::string& format, const std::tm& heure) {
    std::array<char, 128> tampon{};
    return {tampon.data(), std::strftime(tampon.data(), tampon.size(), format.c_str(), &heure)};
}

void direSansBalise(Dialogues& dialogues, const Utf8& quoi) {
    dialogues.demander({"Impossible de trouver la balise d'ouverture des " + quoi + ".",
                        "Erreur lors de la recherche des " + quoi, Boutons::Ok, Icone::Information});
}

/// Up to 20 of them, one a line, and how many more there are.
Utf8 enumerer(const std::vector<Utf8>& noms) {
    constexpr std::size_t montres = 20;
    Utf8 liste;
    for (std::size_t i = 0; i < std::min(noms.size(), montres); ++i)
        liste += "\n" + noms[i];
    if (noms.size() > montres) liste += "\net " + std::to_string(noms.size() - montres) + " de plus";
    return liste;
}

void direIntrouvables(Dialogues& dialogues, const std::vector<Utf8>& noms) {
    if (noms.empty()) return;
    dialogues.demander(
        {noms.size() == 1
             ? "Le fichier " + noms.front() + " est introuvable.\nIl ne sera pas ajouté au projet."
             : std::to_string(noms.size()) +
                   " fichiers sont introuvables.\nIls ne seront pas ajoutés au projet.\n" + enumerer(noms),
         noms.size() == 1 ? "Fichier introuvable" : "Fichiers introuvables", Boutons::Ok,
         Icone::Exclamation});
}

/// Each with its line.
void direEtrangers(Dialogues& dialogues, const EtatCorpus& corpus, const std::vector<Utf8>& noms) {
    if (noms.empty()) return;
    dialogues.demander({"Un entretien se nomme par un fichier du répertoire du corpus, sans chemin.\n"
                        "Ce qui suit n'est pas lu, et reste à sa place dans " +
                            corpus.NomCorpus + " :\n" + enumerer(noms),
                        "Nom de fichier fautif", Boutons::Ok, Icone::Exclamation});
}

/// Puts a corpus at the head of the list as it stands at this moment, whoever wrote it.
void inscrire(const Utf8& corpus, const Emplacements& emplacements) {
    const Utf8 chemin = emplacements.fichierEcrit(PROJETS);
    const VerrouRepertoire verrou(repertoireDe(chemin));
    constexpr int essais = 10;
    for (int i = 0; i < essais; ++i) {
        const IdentiteFichier avant = identiteFichier(chemin);
        const std::string neufs = projets::ecrire(corpus, lireProjets(emplacements));
        if (remplacerSi(chemin, neufs, [&] { return identiteFichier(chemin) == avant; })) return;
    }
    throw FauteExecution("Un autre programme change ce fichier sans cesse.", chemin);
}

} // namespace

void direFaute(Dialogues& dialogues, const FauteExecution& faute) {
    dialogues.demander({faute.what(), "Vermo", Boutons::Ok, Icone::Exclamation});
}

std::vector<Utf8> listeProjets(const Emplacements& emplacements) {
    std::vector<Utf8> projets = lireProjets(emplacements);
    projets.resize(std::min(projets.size(), PROJETS_MONTRES));
    return projets;
}

bool demanderCorpus(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    if (corpus.OuvertureDirecte) return true;
    const Utf8 chemin =
        plateforme.dialogues.choisirFichier({"Choisissez un Corpus", "Fichiers Corpus (*Crp)|*.Crp", "Crp"});
    if (chemin.empty()) return false;
    if (chemin == corpus.CheminCorpus) {
        plateforme.dialogues.demander({"Ce corpus est déjà ouvert!", {}, Boutons::Ok, Icone::Exclamation});
        return false;
    }
    corpus.CheminCorpus = chemin;
    corpus.HauteurEntretien = 0;
    return true;
}

void nommerCorpus(Session& session) {
    EtatCorpus& corpus = session.corpus;
    corpus.CheminCorpus = cheminReel(corpus.CheminCorpus);
    corpus.RepCorpus = repertoireDe(corpus.CheminCorpus);
    corpus.NomCorpus = nomDe(corpus.CheminCorpus);
}

void MettreAJourProjets(const Session& session, Plateforme& plateforme) {
    try {
        inscrire(session.corpus.CheminCorpus, plateforme.emplacements);
    } catch (const FauteExecution& faute) {
        direFaute(plateforme.dialogues, faute);
    }
}

void prendreThematiques(EtatCorpus& corpus, const std::vector<crp::Thematique>& rangs) {
    std::unordered_map<Texte, std::int16_t> visibles;
    for (int i = nombreThematiques(corpus); i >= 1; --i)
        visibles[ligneDe(corpus.ThmCode, i)] = ligneDe(corpus.ThmVisible, i);
    corpus.ThmCode.assign(1, {});
    corpus.ThmCouleur.assign(1, {});
    corpus.ThmNom.assign(1, {});
    corpus.ThmVisible.assign(1, 1);
    for (const crp::Thematique& rang : rangs) {
        corpus.ThmCode.push_back(rang.code);
        corpus.ThmCouleur.push_back(rang.couleur);
        corpus.ThmNom.push_back(rang.nom);
        const auto connue = visibles.find(rang.code);
        corpus.ThmVisible.push_back(connue == visibles.end() ? std::int16_t{1} : connue->second);
    }
    corpus.NbThm = static_cast<float>(rangs.size());
}

void viderCorpus(Session& session) {
    EtatCorpus& corpus = session.corpus;
    for (ExtraitsEntretien& table : corpus.extraits)
        if (!table.lu.chemin.empty()) corpus.anciensExtraits.push_back(std::move(table));
    const auto taille = static_cast<std::size_t>(corpus.NbEntretiens) + 1;
    corpus.Entretiens.assign(taille, {});
    corpus.extraits.assign(taille, {});
    prendreThematiques(corpus, {});
    corpus.ouvertureInachevee = true;
    session.donnees = {};
    session.transcription.source = {};
}

bool corpusAccessible(const Session& session, Plateforme& plateforme) {
    const Utf8& chemin = session.corpus.CheminCorpus;
    if (fichierExiste(chemin)) return true;
    plateforme.dialogues.demander({"Le corpus suivant est inaccessible :\n" + chemin,
                                   "Impossible d'ouvrir le corpus", Boutons::Ok, Icone::Exclamation});
    return false;
}

bool lireThematiques(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    const auto rangs = crp::lireThematiques(lireFichierCorpus(corpus, corpus.luThematiques),
                                            corpus.CheminCorpus, THEMATIQUES_MAX);
    if (!rangs) {
        direSansBalise(plateforme.dialogues, "thématiques");
        return false;
    }
    prendreThematiques(corpus, *rangs);
    return true;
}

bool lireEntretiens(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    const IndexRepertoire index(corpus.RepCorpus);
    std::vector<Utf8> introuvables, etrangers;
    const auto garder = [&](const Texte& fichier, std::size_t ligne) {
        const Utf8 nom = versUtf8(fichier);
        if (crp::nomEtranger(fichier))
            etrangers.push_back("ligne " + std::to_string(ligne) + " : " + nom);
        else if (index.trouver(nom))
            return true;
        else
            introuvables.push_back(nom);
        return false;
    };
    const auto fichiers = crp::lireEntretiens(lireFichierCorpus(corpus, corpus.luEntretiens),
                                              corpus.CheminCorpus, ENTRETIENS_MAX, garder);
    if (!fichiers) {
        direSansBalise(plateforme.dialogues, "entretiens");
        return false;
    }
    corpus.Entretiens.assign(1, {});
    for (const Texte& fichier : *fichiers)
        corpus.Entretiens.emplace_back().Fichier = fichier;
    direEtrangers(plateforme.dialogues, corpus, etrangers);
    direIntrouvables(plateforme.dialogues, introuvables);
    corpus.NbEntretiens = static_cast<std::int16_t>(corpus.Entretiens.size() - 1);
    corpus.extraits.assign(corpus.Entretiens.size(), {});
    corpus.ouvertureInachevee = false;
    return true;
}

void toutActiver(Session& session) {
    EtatCorpus& corpus = session.corpus;
    for (Entretien& entretien : corpus.Entretiens)
        entretien.Visible = true;
    corpus.ThmVisible.assign(corpus.ThmCode.size(), 1);
}

void calculerHauteur(Session& session, Twips hauteurCadre) {
    EtatCorpus& corpus = session.corpus;
    if (corpus.HauteurEntretien == 0 && corpus.NbEntretiens >= 1) {
        const long parLigne = arrondi(hauteurCadre - 360) / (corpus.NbEntretiens + 1);
        corpus.HauteurEntretien = static_cast<float>(parLigne);
    }
    corpus.HauteurEntretien = std::max(corpus.HauteurEntretien, HAUTEUR_MIN);
}

bool creerCorpus(Session& session, Plateforme& plateforme) {
    EtatCorpus& corpus = session.corpus;
    const Utf8 chemin = plateforme.dialogues.choisirFichier(
        {"Choisissez le nom du nouveau Corpus", "Fichier projet|*.Crp", "Crp", true});
    if (chemin.empty()) return false;
    const std::tm maintenant = plateforme.horloge.maintenant();
    const auto creer = [&](const Octets&) -> Octets {
        return crp::nouveau(horodater(session.reglages.formatDate, maintenant),
                            horodater(session.reglages.formatHeure, maintenant));
    };
    changerFichiers(session, plateforme, "Créer le corpus " + nomDe(chemin), {{chemin, creer}});
    corpus.CheminCorpus = chemin;
    corpus.RepCorpus = repertoireDe(chemin);
    return true;
}

} // namespace vermo
