#include "transcription/Retranscription.h"

#include "formats/FichierRtr.h"
#include "platform/Sablier.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <cmath>

namespace vermo {
namespace {

constexpr const char* LECTURE_IMPOSSIBLE = "Lecture impossible!";
constexpr const char* ENREGISTREMENT_IMPOSSIBLE = "Enregistrement impossible!!";

bool dire(Plateforme& plateforme, const Utf8& texte) {
    plateforme.dialogues.demander({.texte = texte});
    return false;
}

bool entretienValide(const EtatCorpus& corpus) {
    return corpus.EntretienCourant >= 1 && corpus.EntretienCourant <= corpus.NbEntretiens;
}

/// Transcript of the file that the player holds.
Utf8 cheminDuLecteur(const Plateforme& plateforme) {
    const Utf8 URL = plateforme.media.URL();
    if (URL.empty()) throw FauteExecution("Aucun enregistrement n'est ouvert.");
    return cheminReel(compagnon(URL, "Rtr"));
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
    etat.ExtraitDebut.assign(1, Texte{});
    etat.ExtraitFin.assign(1, Texte{});
    etat.ExtraitCode.assign(1, Texte{});
    etat.ExtraitTexte.assign(1, Texte{});
    etat.NbExtraits = 0;
    etat.lectureEntiere = false;
    etat.separateurEtranger = false;
}

void remplirTableaux(EtatTranscription& etat, std::vector<rtr::Extrait>&& extraits) {
    etat.ExtraitTexte[0] = std::move(extraits[0].texte);
    for (std::size_t n = 1; n < extraits.size(); ++n) {
        etat.ExtraitDebut.emplace_back(std::move(extraits[n].debut));
        etat.ExtraitFin.emplace_back(std::move(extraits[n].fin));
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

void lireFichierCourant(Session& session, Plateforme& plateforme, const Utf8& chemin) {
    EtatTranscription& etat = session.transcription;
    Examen examen;
    try {
        examen = examiner(lireFichier(chemin), chemin, session.reglages);
    } catch (const FauteExecution& faute) {
        examen.faute = faute.what();
    }
    remplirTableaux(etat, std::move(examen.lecture.extraits));
    etat.lectureEntiere = examen.faute.empty();
    etat.separateurEtranger = !examen.etranger.empty();
    signaler(etat, plateforme, examen, chemin);
}

Texte champTemps(const Temps& temps, const Reglages& reglages) {
    if (const auto* texte = std::get_if<Texte>(&temps)) return *texte;
    return formatDeuxDecimales(std::get<double>(temps), reglages);
}

std::string composer(const Session& session, rtr::Selection selection) {
    const EtatTranscription& etat = session.transcription;
    const auto slot = static_cast<std::size_t>(session.corpus.EntretienCourant);
    const Entretien& entretien = session.corpus.Entretiens.at(slot);
    std::vector<rtr::Extrait> extraits(1);
    const auto nombre = static_cast<std::size_t>(nombreExtraits(session));
    for (std::size_t n = 1; n <= nombre; ++n)
        extraits.push_back({champTemps(etat.ExtraitDebut[n], session.reglages),
                            champTemps(etat.ExtraitFin[n], session.reglages), etat.ExtraitCode[n],
                            etat.ExtraitTexte[n]});
    return rtr::ecrire({entretien.Duree, entretien.Observations, entretien.Attributs}, extraits, selection,
                       session.reglages);
}

/// The whole rewrite; every refusal and failure has the same words.
bool reecrire(const Session& session, Plateforme& plateforme, const Utf8& chemin, rtr::Selection selection) {
    const EtatTranscription& etat = session.transcription;
    const bool permis = fichierExiste(chemin) && etat.lectureEntiere && !etat.separateurEtranger;
    if (!permis) return dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
    try {
        remplacerFichier(chemin, composer(session, selection));
        return true;
    } catch (const FauteExecution&) {
        return dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
    }
}

bool insererDans(const Utf8& chemin, const rtr::Extrait& extrait, const Session& session,
                 Plateforme& plateforme) {
    const std::string octets = lireFichier(chemin);
    const Examen examen = examiner(octets, chemin, session.reglages);
    if (!examen.sain()) return dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
    if (examen.lecture.extraits.size() > rtr::EXTRAITS_MAX)
        throw FauteExecution(
            "Une retranscription tient au plus " + std::to_string(rtr::EXTRAITS_MAX) + " extraits.", chemin);
    remplacerFichier(
        chemin, rtr::inserer(octets, extrait, session.transcription.SaisieDebut, session.reglages, chemin));
    return true;
}

} // namespace

void LireRetranscription(Session& session, Plateforme& plateforme) {
    Sablier sablier(plateforme.ecran);
    viderTableaux(session.transcription);
    if (entretienValide(session.corpus)) {
        const Utf8 chemin = cheminCompagnon(session, session.corpus.EntretienCourant, "Rtr");
        if (!fichierExiste(chemin)) {
            session.transcription.lectureEntiere = true;
            return sablier.laisser();
        }
        lireFichierCourant(session, plateforme, chemin);
    } else {
        dire(plateforme, LECTURE_IMPOSSIBLE);
    }
}

bool EnregistrerExtraits(Session& session, Plateforme& plateforme) {
    if (!entretienValide(session.corpus)) return dire(plateforme, LECTURE_IMPOSSIBLE);
    const Utf8 chemin = cheminCompagnon(session, session.corpus.EntretienCourant, "Rtr");
    return reecrire(session, plateforme, chemin, {.sauterNegatifs = true});
}

Suppression SupprimerExtrait(Session& session, Plateforme& plateforme) {
    const Message question{.texte = "Etes-vous sûr(e) de vouloir supprimer cet extrait?",
                           .titre = "Confirmation",
                           .boutons = Boutons::OuiNon,
                           .icone = Icone::Question};
    if (plateforme.dialogues.demander(question) != Reponse::Oui) return Suppression::Annule;
    const Utf8 chemin = cheminDuLecteur(plateforme);
    if (!fichierExiste(chemin)) return Suppression::Supprime;
    if (nombreExtraits(session) == 0 || !entretienValide(session.corpus)) {
        dire(plateforme, ENREGISTREMENT_IMPOSSIBLE);
        return Suppression::Echec;
    }
    const auto exclu = static_cast<std::size_t>(std::max(0.0F, session.transcription.ExtraitCourant));
    return reecrire(session, plateforme, chemin, {.exclu = exclu}) ? Suppression::Supprime
                                                                   : Suppression::Echec;
}

bool AjouterExtrait(Session& session, Plateforme& plateforme, Texte& texteSaisi,
                    const Texte& codeThematique) {
    rognerFins(texteSaisi);
    const EtatTranscription& etat = session.transcription;
    const rtr::Extrait extrait{formatDeuxDecimales(etat.SaisieDebut, session.reglages),
                               formatDeuxDecimales(etat.SaisieFin, session.reglages),
                               codeThematique.substr(0, 3), texteSaisi};
    try {
        const Utf8 chemin = cheminDuLecteur(plateforme);
        if (fichierExiste(chemin)) return insererDans(chemin, extrait, session, plateforme);
        const auto duree = static_cast<float>(plateforme.media.duration());
        remplacerFichier(chemin, rtr::creerAvec(duree, extrait, session.reglages));
        if (entretienValide(session.corpus))
            session.corpus.Entretiens[static_cast<std::size_t>(session.corpus.EntretienCourant)].Duree =
                duree;
        return true;
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
    if (const auto* nombreLu = std::get_if<double>(&temps)) return *nombreLu;
    return nombre(std::get<Texte>(temps), reglages);
}

int numeroValide(const Session& session, int k) {
    if (k < 1 || k > nombreExtraits(session))
        throw FauteExecution("L'extrait " + std::to_string(k) + " n'existe pas.");
    return k;
}

double secondesDebut(const Session& session, int k) {
    return secondes(session.transcription.ExtraitDebut[static_cast<std::size_t>(numeroValide(session, k))],
                    session.reglages);
}

double secondesFin(const Session& session, int k) {
    return secondes(session.transcription.ExtraitFin[static_cast<std::size_t>(numeroValide(session, k))],
                    session.reglages);
}

double valeurTexte(const Temps& temps, const Reglages& reglages) {
    if (const auto* texte = std::get_if<Texte>(&temps)) return valeur(*texte);
    const double nombreLu = std::get<double>(temps);
    return reglages.separateurDecimal == '.' ? nombreLu : std::trunc(nombreLu);
}

} // namespace vermo
