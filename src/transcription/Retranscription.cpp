#include "transcription/Retranscription.h"

#include "corpus/Porte.h"
#include "formats/FichierRtr.h"
#include "platform/Sablier.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vermo {
namespace {

constexpr const char* LECTURE_IMPOSSIBLE = "Lecture impossible!";
constexpr const char* ENREGISTREMENT_IMPOSSIBLE = "Enregistrement impossible!!";

bool dire(Plateforme& plateforme, const Utf8& texte) {
    plateforme.dialogues.demander({.texte = texte});
    return false;
}

bool entretienValide(const EtatCorpus& corpus, int slot) {
    return slot >= 1 && slot <= corpus.NbEntretiens;
}

void exigerChemin(const Retranscription& cible) {
    if (cible.chemin.empty()) throw FauteExecution("Aucun enregistrement n'est ouvert.");
}

/// What a transcript's bytes say, and what forbids to write over them.
struct Examen {
    rtr::Lecture lecture;
    Utf8 faute;     ///< file, line and cause; empty when all was read
    Texte etranger; ///< a time with the other decimal separator; empty for none
    bool sain() const { return faute.empty() && etranger.empty(); }
};

Examen examiner(std::string_view octets, const Utf8& chemin, const Reglages& reglages) {
    Examen examen;
    try {
        rtr::lire(octets, chemin, examen.lecture);
        rtr::verifier(octets, examen.lecture, chemin, reglages);
    } catch (const FauteExecution& faute) {
        examen.faute = faute.what();
    }
    examen.etranger = rtr::tempsEtranger(octets, examen.lecture, reglages);
    return examen;
}

void viderTableaux(EtatTranscription& etat) {
    etat.source = {};
    etat.lu = {};
    etat.ExtraitDebut.assign(1, {});
    etat.ExtraitFin.assign(1, {});
    etat.ExtraitCode.assign(1, Texte{});
    etat.ExtraitTexte.assign(1, Texte{});
    etat.NbExtraits = 0;
    etat.lectureEntiere = false;
    etat.separateurEtranger = false;
}

void remplirTableaux(EtatTranscription& etat, std::vector<rtr::Extrait>&& extraits,
                     const Reglages& reglages) {
    etat.ExtraitTexte[0] = std::move(extraits[0].texte);
    for (std::size_t n = 1; n < extraits.size(); ++n) {
        etat.ExtraitDebut.emplace_back(std::move(extraits[n].debut), reglages);
        etat.ExtraitFin.emplace_back(std::move(extraits[n].fin), reglages);
        etat.ExtraitCode.push_back(std::move(extraits[n].code));
        etat.ExtraitTexte.push_back(std::move(extraits[n].texte));
    }
    etat.NbExtraits = static_cast<float>(extraits.size() - 1);
}

/// One message for all that is wrong with the file, unless it was said already.
void signaler(EtatTranscription& etat, Plateforme& plateforme, const Examen& examen, const Utf8& chemin) {
    Utf8 texte = examen.faute;
    if (!examen.etranger.empty()) {
        if (!texte.empty()) texte += "\n\n";
        texte += "Les temps sont écrits avec le séparateur décimal d'une autre machine (« " +
                 versUtf8(examen.etranger) + " »).\n" + chemin;
    }
    if (texte.empty()) return etat.signalement.oublier();
    texte += "\n\nCe qui a pu être lu est montré ; le fichier ne sera pas modifié.";
    if (etat.signalement.nouveau(texte))
        plateforme.dialogues.demander({.texte = texte, .icone = Icone::Exclamation});
}

void lireSource(Session& session, Plateforme& plateforme) {
    EtatTranscription& etat = session.transcription;
    const Utf8& chemin = etat.source.chemin;
    Examen examen;
    try {
        examen = examiner(lireRetranscription(etat.source, etat.lu), chemin, session.reglages);
    } catch (const FauteExecution& faute) {
        examen.faute = faute.what();
    }
    remplirTableaux(etat, std::move(examen.lecture.extraits), session.reglages);
    etat.lectureEntiere = examen.faute.empty();
    etat.separateurEtranger = !examen.etranger.empty();
    signaler(etat, plateforme, examen, chemin);
}

Texte champTemps(const Temps& temps, const Reglages& reglages) {
    return temps.edite() ? formatDeuxDecimales(*temps.secondes, reglages) : temps.texte;
}

/// The arrays, behind what the file holds before its extracts at this moment.
std::string composer(const Session& session, std::string_view avant, rtr::Selection selection) {
    const EtatTranscription& etat = session.transcription;
    std::vector<rtr::Extrait> extraits(1);
    for (int n = 1; n <= nombreExtraits(session); ++n)
        extraits.push_back({champTemps(ligneDe(etat.ExtraitDebut, n), session.reglages),
                            champTemps(ligneDe(etat.ExtraitFin, n), session.reglages),
                            ligneDe(etat.ExtraitCode, n), ligneDe(etat.ExtraitTexte, n)});
    return rtr::ecrireApres(rtr::reecrireEnTete(avant, etat.source.chemin, session.reglages), extraits,
                            selection, session.reglages);
}

/// The whole rewrite; every refusal and failure has the same words, but another program's change.
bool reecrire(Session& session, Plateforme& plateforme, const Retranscription& cible, const Utf8& nom,
              rtr::Selection selection) {
    EtatTranscription& etat = session.transcription;
    const auto transformer = [&](const Octets& avant) -> Octets {
        return composer(session, *avant, selection);
    };
    if (!etat.lectureEntiere || etat.separateurEtranger || !fichierExiste(cible.chemin))
        return dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
    try {
        const auto issue = changerFichiers(session, plateforme, nom, {{cible.chemin, transformer, &etat.lu}},
                                           Avis{Sujet::Extraits, cible.slot});
        return issue == IssueChangement::Fait;
    } catch (const FauteExecution&) {
        return dire(plateforme, ENREGISTREMENT_IMPOSSIBLE); // its cause is told in the words of a refusal
    }
}

/// The bytes with one more extract; none when they may not be rewritten.
Octets inserer(std::string_view octets, const rtr::Extrait& extrait, const Utf8& chemin,
               const Session& session) {
    const Examen examen = examiner(octets, chemin, session.reglages);
    if (!examen.sain()) return std::nullopt;
    if (examen.lecture.extraits.size() > rtr::EXTRAITS_MAX)
        throw FauteExecution(
            "Une retranscription tient au plus " + std::to_string(rtr::EXTRAITS_MAX) + " extraits.", chemin);
    return rtr::inserer(octets, extrait, session.transcription.SaisieDebut, session.reglages, chemin);
}

/// Inserts the extract, or makes the file with it: the interview then lasts what the player says.
bool ajouter(Session& session, Plateforme& plateforme, const Retranscription& cible,
             const rtr::Extrait& extrait) {
    const auto duree = static_cast<float>(plateforme.media.duration());
    bool cree = false;
    const auto transformer = [&](const Octets& avant) -> Octets {
        if (avant) return inserer(*avant, extrait, cible.chemin, session);
        cree = true;
        return rtr::creerAvec(duree, extrait, session.reglages);
    };
    const bool connu = entretienValide(session.corpus, cible.slot);
    const Utf8 nom = "Ajouter un extrait" + (connu ? " à " + nomEntretien(session.corpus, cible.slot) : "");
    if (changerFichiers(session, plateforme, nom, {{cible.chemin, transformer}},
                        Avis{Sujet::Extraits, cible.slot}) != IssueChangement::Fait)
        return false;
    if (connu && cree) entretienDe(session.corpus, cible.slot).Duree = duree;
    return true;
}

} // namespace

void LireRetranscription(Session& session, Plateforme& plateforme) {
    EtatTranscription& etat = session.transcription;
    const int slot = session.corpus.EntretienCourant;
    Sablier sablier(plateforme.ecran);
    viderTableaux(etat);
    if (entretienValide(session.corpus, slot)) {
        etat.source = {slot, cheminCompagnon(session, slot, "Rtr")};
        if (!fichierExiste(etat.source.chemin)) {
            etat.lectureEntiere = true;
            return sablier.laisser();
        }
        lireSource(session, plateforme);
    } else {
        dire(plateforme, LECTURE_IMPOSSIBLE);
    }
}

Retranscription retranscriptionDuLecteur(const Session& session, const Plateforme& plateforme) {
    const Utf8 URL = plateforme.media.URL();
    return {session.corpus.EntretienCourant, URL.empty() ? Utf8{} : cheminReel(compagnon(URL, "Rtr"))};
}

bool EnregistrerExtraits(Session& session, Plateforme& plateforme, const Utf8& nom) {
    const Retranscription cible = session.transcription.source;
    if (!entretienValide(session.corpus, cible.slot)) return dire(plateforme, LECTURE_IMPOSSIBLE);
    return reecrire(session, plateforme, cible, nom, {.sauterNegatifs = true});
}

Suppression SupprimerExtrait(Session& session, Plateforme& plateforme, const Retranscription& cible) {
    const Message question{.texte = "Etes-vous sûr(e) de vouloir supprimer cet extrait?",
                           .titre = "Confirmation",
                           .boutons = Boutons::OuiNon,
                           .icone = Icone::Question};
    if (plateforme.dialogues.demander(question) != Reponse::Oui) return Suppression::Annule;
    exigerChemin(cible);
    if (!fichierExiste(cible.chemin)) {
        plateforme.annonces.annoncer({Sujet::Extraits, cible.slot});
        return Suppression::Supprime;
    }
    if (nombreExtraits(session) == 0 || !entretienValide(session.corpus, cible.slot)) {
        dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
        return Suppression::Echec;
    }
    const int n = std::max(0, extraitCourant(session.transcription));
    const Utf8 nom = nommerExtrait(session.corpus, "Supprimer", n, cible.slot);
    const bool ecrit = reecrire(session, plateforme, cible, nom, {.exclu = static_cast<std::size_t>(n)});
    return ecrit ? Suppression::Supprime : Suppression::Echec;
}

bool AjouterExtrait(Session& session, Plateforme& plateforme, const Retranscription& cible, Texte& texteSaisi,
                    const Texte& codeThematique) {
    rognerFins(texteSaisi);
    const EtatTranscription& etat = session.transcription;
    const rtr::Extrait extrait{formatDeuxDecimales(etat.SaisieDebut, session.reglages),
                               formatDeuxDecimales(etat.SaisieFin, session.reglages),
                               codeThematique.substr(0, 3), texteSaisi};
    try {
        exigerChemin(cible);
        return ajouter(session, plateforme, cible, extrait) || dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
    } catch (const FauteExecution& faute) {
        return dire(plateforme, faute.what());
    }
}

void rognerFins(Texte& texte) {
    const auto finEnTrop = [&] {
        return texte[texte.size() - 2] == CR && (texte.back() == CR || texte.back() == '\n');
    };
    while (texte.size() >= 3 && finEnTrop())
        texte.pop_back();
}

int nombreExtraits(const Session& session) noexcept {
    const EtatTranscription& etat = session.transcription;
    const int places = static_cast<int>(etat.ExtraitDebut.size()) - 1;
    return std::max(0, std::min(places, static_cast<int>(etat.NbExtraits)));
}

double secondes(const Temps& temps, const Reglages& reglages) {
    return temps.secondes ? *temps.secondes : nombre(temps.texte, reglages); // which throws
}

int numeroValide(const Session& session, int k) {
    if (k < 1 || k > nombreExtraits(session))
        throw FauteExecution("L'extrait " + std::to_string(k) + " n'existe pas.");
    return k;
}

double secondesDebut(const Session& session, int k) {
    return secondes(ligneDe(session.transcription.ExtraitDebut, numeroValide(session, k)), session.reglages);
}

double secondesFin(const Session& session, int k) {
    return secondes(ligneDe(session.transcription.ExtraitFin, numeroValide(session, k)), session.reglages);
}

double valeurTexte(const Temps& temps, const Reglages& reglages) {
    if (!temps.edite()) return temps.valeur;
    return reglages.separateurDecimal == '.' ? *temps.secondes : std::trunc(*temps.secondes);
}

Utf8 nommerExtrait(const EtatCorpus& corpus, const Utf8& action, int n, int slot) {
    return action + " l'extrait " + std::to_string(n) + " de " + nomEntretien(corpus, slot);
}

} // namespace vermo
