#include "corpus/Import.h"

#include "corpus/OuvertureCorpus.h"
#include "corpus/Porte.h"
#include "formats/FichierCorpus.h"
#include "formats/FichierRtr.h"
#include "platform/Sablier.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "window/Fenetres.h"

#include <algorithm>
#include <chrono>

namespace vermo {
namespace {

constexpr const char* CONVERTISSEUR = "Convertisseur.exe";
constexpr std::chrono::milliseconds ENTRE_DEUX_ATTENTES{100}; ///< a wait sleeps: not at each block

/// False when the copy that is there is to be used.
bool aCopier(Plateforme& plateforme, const Utf8& cible, const Utf8& nom) {
    if (!trouver(cible)) return true;
    return plateforme.dialogues.demander(
               {"Le fichier que vous souhaitez importer (" + nom + " ) existe déjà.\nVoulez-vous l'écraser?",
                {},
                Boutons::OuiNon,
                Icone::Question}) == Reponse::Oui;
}

/// False when the person gave up.
bool copierAvecProgression(Plateforme& plateforme, const Utf8& source, const Utf8& cible) {
    plateforme.progression.debut(0, 100);
    std::chrono::steady_clock::time_point derniere;
    const bool copie = copierFichier(source, cible, [&](std::int64_t fait, std::int64_t total) {
        plateforme.progression.avance(total > 0 ? static_cast<long>(fait * 100 / total) : 100);
        if (std::chrono::steady_clock::now() - derniere < ENTRE_DEUX_ATTENTES) return true;
        const bool continuer = plateforme.progression.patienter("La copie du fichier se poursuit...");
        derniere = std::chrono::steady_clock::now();
        return continuer;
    });
    plateforme.progression.fin();
    return copie;
}

void libererMedia(LecteurMedia& media, const Utf8& chemin) {
    media.stop();
    if (media.URL() == chemin) media.URL(Utf8());
}

bool copierDansCorpus(const Session& session, Plateforme& plateforme, const Utf8& source, const Utf8& cible) {
    try {
        libererMedia(plateforme.media, cible);
        if (!copierAvecProgression(plateforme, source, cible)) return false;
    } catch (const FauteExecution& faute) {
        plateforme.progression.fin();
        plateforme.dialogues.demander(
            {"La copie du fichier est impossible.\nLe fichier est peut-être en cours d'écoute.",
             {},
             Boutons::Ok,
             Icone::Critique});
        direFaute(plateforme.dialogues, faute); // a full disk is no recording that plays
        return false;
    }
    plateforme.dialogues.demander({"Le fichier a été copié dans le répertoire.\n" + session.corpus.RepCorpus +
                                       "\nIl va maintenant être ajouté au projet.",
                                   "Vermo", Boutons::Ok, Icone::Information});
    return true;
}

double dureeAuLecteur(Plateforme& plateforme, const Utf8& chemin) {
    const Sablier sablier(plateforme.ecran);
    LecteurMedia& media = plateforme.media;
    media.URL(chemin, Fenetre::FrmCorpus);
    media.play();
    media.stop();
    while (media.duration() == 0 && media.erreur().empty() &&
           plateforme.progression.patienter(ATTENTE_DUREE)) {
    }
    return media.duration();
}

bool estEntretien(const EtatCorpus& corpus, const Texte& nom) {
    return std::any_of(corpus.Entretiens.begin(), corpus.Entretiens.end(),
                       [&](const Entretien& e) { return e.Fichier == nom; });
}

/// The interview whose companions would be those of a recording of this name; none for an interview's own
/// name. Case doesn't tell companions apart, as they are found in any.
const Entretien* memesCompagnons(const EtatCorpus& corpus, const Texte& nom) {
    if (estEntretien(corpus, nom)) return nullptr;
    const Texte souche = majuscules(compagnon(nom, {}));
    const auto trouve = std::find_if(corpus.Entretiens.begin(), corpus.Entretiens.end(), [&](const auto& e) {
        return !e.Fichier.empty() && majuscules(compagnon(e.Fichier, {})) == souche;
    });
    return trouve == corpus.Entretiens.end() ? nullptr : &*trouve;
}

/// The name with the first number behind it under which neither a recording nor companions of one are there.
Texte nomLibre(const Session& session, const Texte& nom) {
    const std::size_t point = std::min(nom.rfind('.'), nom.size());
    const auto pris = [&](const Utf8& fichier) {
        return trouver(session.corpus.RepCorpus + fichier).has_value();
    };
    for (int n = 2;; ++n) {
        const Texte essai = nom.substr(0, point) + " " + std::to_string(n) + nom.substr(point);
        const Utf8 fichier = versUtf8(essai);
        if (!pris(fichier) && !pris(compagnon(fichier, "Rtr")) && !pris(compagnon(fichier, "Bmp")) &&
            !pris(compagnon(fichier, "Lct")) && !memesCompagnons(session.corpus, essai))
            return essai;
    }
}

/// The name of a recording that lies in RepCorpus already; nothing, and said, when it can't become an
/// interview.
std::optional<Texte> surPlace(const Session& session, Plateforme& plateforme, const Utf8& chemin,
                              const Texte& nom) {
    const Entretien* autre = memesCompagnons(session.corpus, nom);
    if (!autre) return nom;
    if (memeFichier(chemin, cheminReel(session.corpus.RepCorpus + versUtf8(autre->Fichier))))
        return autre->Fichier;
    plateforme.dialogues.demander({"Le fichier " + versUtf8(nom) +
                                       " ne peut pas être ajouté au projet : sa retranscription serait celle "
                                       "de l'entretien " +
                                       versUtf8(autre->Fichier) + ".\nDonnez-lui d'abord un autre nom.",
                                   "Import du fichier", Boutons::Ok, Icone::Exclamation});
    return std::nullopt;
}

/// The name that a recording from elsewhere is to bear in RepCorpus; nothing when the person gave up.
std::optional<Texte> choisirCible(const Session& session, Plateforme& plateforme, const Texte& nom) {
    if (const Entretien* autre = memesCompagnons(session.corpus, nom)) {
        const Texte libre = nomLibre(session, nom);
        const Utf8 question = "La retranscription du fichier " + versUtf8(nom) +
                              " serait celle de l'entretien " + versUtf8(autre->Fichier) +
                              ".\nVoulez-vous le copier sous le nom " + versUtf8(libre) + "?";
        return plateforme.dialogues.demander(
                   {question, "Import du fichier", Boutons::OuiNon, Icone::Question}) == Reponse::Oui
                   ? std::optional(libre)
                   : std::nullopt;
    }
    if (estEntretien(session.corpus, nom)) return nom;
    return nomImporte(cheminReel(session.corpus.RepCorpus + versUtf8(nom)));
}

/// Its full path; empty where it wasn't installed.
Utf8 convertisseur(const Plateforme& plateforme) {
    return plateforme.emplacements.fichierLu(CONVERTISSEUR);
}

Utf8 nomCanaux(int canaux) {
    return canaux == 1 ? "Mono" : canaux == 2 ? "Stereo" : "";
}

} // namespace

bool proposerOuverture(Plateforme& plateforme) {
    return plateforme.dialogues.demander({"Il n'y a pas de projet ouvert.\nVoulez-vous en ouvrir un?",
                                          {},
                                          Boutons::OuiNon,
                                          Icone::Question}) == Reponse::Oui;
}

Utf8 choisirEnregistrement(const Session& session, Plateforme& plateforme) {
    return plateforme.dialogues.choisirFichier(
        {"Choisissez un fichier Son", "Fichiers WAV|*.Wav|Tous les enregistrements|" + Utf8(FORMATS_LUS),
         "Wav", false, session.corpus.RepCorpus});
}

ChoixFormat demanderFormat(const EnTeteWav& enTete, Plateforme& plateforme) {
    if (enTete.BitsParEchantillon != 16 && enTete.NbCanaux != 2) return ChoixFormat::Garder;
    const Reponse reponse = plateforme.dialogues.demander(
        {"Le fichier que vous souhaitez importer est au format : \n" + nomCanaux(enTete.NbCanaux) + " - " +
             std::to_string(enTete.BitsParEchantillon) +
             " bits \n\nPour travailler dans Vermo, le Format 8 bits mono est préférable...\n"
             "Souhaitez-vous utiliser le convertisseur?",
         "Vermo - Conversion de fichier?", Boutons::OuiNonAnnuler, Icone::Question,
         convertisseur(plateforme).empty() ? Reponse::Non : Reponse::Oui});
    return reponse == Reponse::Oui   ? ChoixFormat::Convertir
           : reponse == Reponse::Non ? ChoixFormat::Garder
                                     : ChoixFormat::Annuler;
}

void lancerConvertisseur(Plateforme& plateforme) {
    const Utf8 programme = convertisseur(plateforme);
    if (programme.empty()) {
        plateforme.dialogues.demander({"Impossible de lancer le convertisseur!\nLe fichier " +
                                           plateforme.emplacements.programme + CONVERTISSEUR +
                                           " est introuvable",
                                       "Vermo", Boutons::Ok, Icone::Exclamation});
        return;
    }
    if (!plateforme.lanceur.lancer(programme))
        throw FauteExecution("Impossible de lancer le convertisseur!", programme);
}

Texte nomImporte(const Utf8& chemin) {
    const Utf8 nom = nomDe(chemin);
    if (nom.find_first_of("\r\n") != Utf8::npos)
        throw FauteExecution("Le nom du fichier tient sur plusieurs lignes.", chemin);
    if (crp::nomEtranger(nom)) throw FauteExecution("Le nom du fichier contient « \\ ».", chemin);
    try {
        return depuisUtf8(composer(nom));
    } catch (const FauteExecution& faute) {
        throw FauteExecution("Le nom du fichier ne convient pas : " + faute.quoi(), chemin);
    }
}

std::optional<Texte> apporterDansCorpus(const Session& session, Plateforme& plateforme, const Utf8& chemin) {
    const Utf8& RepCorpus = session.corpus.RepCorpus;
    const Texte nom = nomImporte(chemin);
    if (memeFichier(repertoireDe(chemin), RepCorpus)) return surPlace(session, plateforme, chemin, nom);
    if (plateforme.dialogues.demander(
            {"Le fichier sélectionné est hors du répertoire du projet.\nVoulez-vous l'importer?",
             "Import du fichier", Boutons::OkAnnuler, Icone::Question}) != Reponse::Ok)
        return std::nullopt;
    Sablier sablier(plateforme.ecran, Pointeur::FlecheSablier);
    const auto cible = choisirCible(session, plateforme, nom);
    if (!cible) return std::nullopt;
    if (!aCopier(plateforme, RepCorpus + versUtf8(*cible), versUtf8(*cible))) {
        sablier.laisser(); // the import goes on at once
        return cible;
    }
    plateforme.ecran.pointeur(Pointeur::Sablier);
    if (!copierDansCorpus(session, plateforme, chemin, cheminReel(RepCorpus + versUtf8(*cible))))
        return std::nullopt;
    return cible;
}

bool dejaDansCorpus(const Session& session, Plateforme& plateforme, const Texte& nom) {
    if (!estEntretien(session.corpus, nom)) return false;
    plateforme.dialogues.demander({"Le fichier " + versUtf8(nom) + " est déjà présent dans le projet.",
                                   {},
                                   Boutons::Ok,
                                   Icone::Exclamation});
    return true;
}

double mesurerDuree(Plateforme& plateforme, const Utf8& chemin) {
    const double duree = dureeAuLecteur(plateforme, chemin);
    if (duree != 0) return duree;
    const Utf8 cause = plateforme.media.erreur();
    plateforme.dialogues.demander({"ça ne fonctionne pas !" + (cause.empty() ? "" : "\n" + cause)});
    return 0;
}

void ajouterEntretien(Session& session, const Texte& nom, double duree) {
    EtatCorpus& corpus = session.corpus;
    if (corpus.NbEntretiens >= ENTRETIENS_MAX)
        throw FauteExecution("Un corpus tient au plus " + std::to_string(ENTRETIENS_MAX) + " entretiens.",
                             corpus.CheminCorpus);
    if (corpus.NbEntretiens == 0) corpus.HauteurEntretien = 0; // what it was without a row says nothing
    corpus.Entretiens.resize(static_cast<std::size_t>(corpus.NbEntretiens) + 2);
    corpus.extraits.resize(corpus.Entretiens.size());
    ++corpus.NbEntretiens;
    Entretien& entretien = corpus.Entretiens.back();
    entretien.Fichier = nom;
    entretien.Visible = true;
    entretien.Duree = static_cast<float>(duree);
}

std::optional<FichierAChanger> retranscriptionACreer(const Session& session, int slot) {
    const Utf8 chemin = cheminCompagnon(session, slot, "Rtr");
    if (fichierExiste(chemin)) return std::nullopt;
    return FichierAChanger{chemin, [&session, slot](const Octets& avant) -> Octets {
                               if (avant) return avant;
                               return rtr::nouveau(entretienDe(session.corpus, slot).Duree, session.reglages);
                           }};
}

} // namespace vermo
