#include "transcription/Saisie.h"

#include "corpus/EcritureCorpus.h"
#include "textfile/faute.h"
#include "textfile/nombres.h"
#include "transcription/Retranscription.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vermo::saisie {
namespace {

constexpr double VITESSE_MIN = 0.75;
constexpr long PORTION_FIN_MAX = 32767;
constexpr float COMPTE_A_REBOURS = 3;

/// A position in the span as a length of its picture.
Twips enTwips(const Session& session, double duree, Twips largeur) {
    const double SaisieDuree = session.transcription.SaisieDuree;
    return SaisieDuree == 0 ? 0 : duree / SaisieDuree * largeur;
}

std::int16_t finDePortion(double fin) {
    const long arrondie = arrondi(fin);
    if (std::labs(arrondie) > PORTION_FIN_MAX)
        throw FauteExecution("La dictée s'arrête à la seconde " + std::to_string(PORTION_FIN_MAX) + ".");
    return static_cast<std::int16_t>(arrondie);
}

Texte libelle(const Texte& code, const Texte& nom) {
    return code + " " + nom;
}

/// First row whose code is the same number; 0 for none.
int rangDuNumero(const EtatCorpus& corpus, std::string_view code) {
    for (int rang = 1; rang <= nombreThematiques(corpus); ++rang)
        if (valeur(ligneDe(corpus.ThmCode, rang)) == valeur(code)) return rang;
    return 0;
}

} // namespace

void ouvrirSpan(Session& session, int n) {
    EtatTranscription& etat = session.transcription;
    const double debut = secondesDebut(session, n), fin = secondesFin(session, n);
    etat.ExtraitCourant = static_cast<float>(n);
    etat.NouvelExtrait = false;
    etat.SaisieDebut = debut;
    allonger(session, fin);
}

void allonger(Session& session, double fin) {
    EtatTranscription& etat = session.transcription;
    etat.SaisieFin = fin;
    etat.SaisieDuree = fin - etat.SaisieDebut;
}

double debutAllongement(const Session& session) {
    return session.transcription.SaisieFin - 1;
}

Twips positionCurseur(const Session& session, double position, Twips largeur) {
    return enTwips(session, position - session.transcription.SaisieDebut, largeur);
}

double tempsSousX(const Session& session, Twips x, Twips largeur) {
    return session.transcription.SaisieDebut + x / largeur * session.transcription.SaisieDuree;
}

Boucle suivreBoucle(Session& session, double position, Twips largeur, bool arrete) {
    EtatTranscription& etat = session.transcription;
    Boucle suite;
    if (etat.SaisieDuree == 0) return suite;
    suite.ouverte = true;
    if (position > etat.SaisieFin || (arrete && position > etat.SaisieDebut)) {
        const bool reste = !arrete || etat.PortionDebut < position;
        const bool reprise = etat.BoucleDictee && etat.DicteeActive && reste;
        position = reprise ? etat.PortionDebut : etat.SaisieDebut;
        suite.position = position;
        suite.pause = !reprise;
    }
    suite.curseur = positionCurseur(session, position, largeur);
    if (etat.DicteeActive && position > etat.PortionFin) {
        suite.position = etat.PortionDebut;
        suite.demarrerDecompte = true;
        etat.Compteur = 0;
        if (!etat.BoucleDictee) {
            suite.pause = true;
            suite.curseur = positionCurseur(session, etat.PortionDebut, largeur);
        }
    }
    return suite;
}

void demarrerPortion(Session& session, double debut, double secondes) {
    EtatTranscription& etat = session.transcription;
    etat.PortionFin = finDePortion(debut + secondes);
    etat.PortionDebut = debut;
    etat.Compteur = 0;
}

void activerDictee(Session& session, double position, int secondesLues) {
    session.transcription.PortionSecondes = static_cast<float>(secondesLues);
    demarrerPortion(session, position, secondesLues);
    session.transcription.DicteeActive = true;
}

double avancerPortion(Session& session, double secondes) {
    const double finPrecedente = session.transcription.PortionFin;
    demarrerPortion(session, finPrecedente, secondes);
    return finPrecedente - 1;
}

std::optional<double> portionSuivante(Session& session, double secondes) {
    session.transcription.Compteur = 0;
    if (session.transcription.PortionFin >= session.transcription.SaisieFin) return std::nullopt;
    return avancerPortion(session, secondes);
}

Rectangle MontrerPortion(const Session& session, double debut, double fin, Twips largeur) {
    return {.gauche = positionCurseur(session, debut, largeur),
            .largeur = enTwips(session, fin - debut, largeur)};
}

int selectionnerPortion(Session& session, Twips x1, Twips x2, Twips largeur) {
    EtatTranscription& etat = session.transcription;
    const double debut = tempsSousX(session, x1, largeur);
    demarrerPortion(session, debut, tempsSousX(session, x2, largeur) - debut);
    if (etat.PortionFin <= etat.PortionDebut) demarrerPortion(session, debut, 1);
    return static_cast<int>(std::max(1L, std::lround(etat.PortionFin - etat.PortionDebut)));
}

Decompte compter(Session& session, bool fenetreVisible, int secondesLues) {
    EtatTranscription& etat = session.transcription;
    Decompte suite;
    if (!etat.DicteeAuto) return suite;
    suite.arreter = !fenetreVisible;
    if (!fenetreVisible) return suite;
    etat.Compteur += 1;
    suite.montrer = true;
    suite.LblTimer = formatEntier(COMPTE_A_REBOURS - etat.Compteur);
    if (etat.Compteur > COMPTE_A_REBOURS - 1) {
        suite.position = avancerPortion(session, secondesLues);
        suite.arreter = true;
    }
    return suite;
}

int secondesGlissees(int tag, Twips y, Twips hauteurLblSec) {
    return std::max(1, tag - static_cast<int>(std::trunc(y / hauteurLblSec)));
}

bool reglerVitesse(Session& session, Twips x, Twips largeurLblVit) {
    if (x < 0 || x > largeurLblVit) return false;
    session.audio.VitesseLecture = x / largeurLblVit / 2 + VITESSE_MIN;
    return true;
}

Twips positionVitesse(const Session& session, Twips largeurLblVit) {
    const double vitesse = session.audio.VitesseLecture;
    return vitesse == 0 ? largeurLblVit / 2 : (vitesse - VITESSE_MIN) * 2 * largeurLblVit;
}

ThematiqueAffichee thematiqueParDefaut() {
    return {"000", depuisUtf8("000 - Pas de thématique"), 0};
}

ThematiqueAffichee thematiqueDuRang(const EtatCorpus& corpus, int rang) {
    if (rang < 1 || rang > nombreThematiques(corpus))
        throw FauteExecution("La thématique de rang " + std::to_string(rang) + " n'existe pas.");
    const Texte& code = ligneDe(corpus.ThmCode, rang);
    return {code, libelle(code, ligneDe(corpus.ThmNom, rang)), couleur(ligneDe(corpus.ThmCouleur, rang))};
}

ThematiqueAffichee thematiqueDeCode(const EtatCorpus& corpus, std::string_view code) {
    if (corpus.NbThm < 1) return thematiqueParDefaut();
    return thematiqueDuRang(corpus, std::max(1, rangThematique(corpus, code.substr(0, 3))));
}

Couleur encreThematique(std::string_view tag) {
    return valeur(tag) != 0 ? rvb(0, 0, 0) : rvb(99, 99, 99);
}

Texte codePropose(const EtatCorpus& corpus) {
    return formatCode(nombreThematiques(corpus));
}

std::optional<Refus> verifierThematique(const EtatCorpus& corpus, const NouvelleThematique& nouvelle) {
    if (const int rang = rangDuNumero(corpus, nouvelle.TXTcodethem); rang != 0)
        return Refus{{.texte = "Le code '" + versUtf8(nouvelle.TXTcodethem) + "' existe déjà (nom :'" +
                               versUtf8(ligneDe(corpus.ThmNom, rang)) +
                               "').\nChoisissez un code inutilisé. Merci.",
                      .icone = Icone::Exclamation},
                     true};
    if (nouvelle.CouleurChoisie.empty())
        return Refus{{.texte = "Vous n'avez pas choisi de couleur...", .icone = Icone::Information}};
    if (nouvelle.TxtThema.empty())
        return Refus{{.texte = "La thématique que vous souhaitez ajouter n'a pas de nom...",
                      .icone = Icone::Information}};
    return std::nullopt;
}

std::optional<Refus> ajouterThematique(Session& session, Plateforme& plateforme,
                                       const NouvelleThematique& nouvelle) {
    if (auto refus = verifierThematique(session.corpus, nouvelle)) return refus;
    const crp::Thematique rang{formatCode(arrondi(valeur(nouvelle.TXTcodethem))), nouvelle.CouleurChoisie,
                               nouvelle.TxtThema};
    const Utf8 nom = "Ajouter la thématique " + versUtf8(nouvelle.TxtThema);
    if (InsererThematique(session, plateforme, rang, nom)) return std::nullopt;
    // With the rows that the file has by now; what else was in the way has been said.
    return verifierThematique(session.corpus, nouvelle).value_or(Refus{});
}

bool validerModification(Session& session, Plateforme& plateforme, const Texte& caption, Texte texte) {
    EtatTranscription& etat = session.transcription;
    const int k = numeroValide(session, extraitCourant(etat));
    rognerFins(texte);
    Temps debut = etat.SaisieDebut, fin = etat.SaisieFin;
    Texte code = caption;
    const auto echanger = [&] {
        std::swap(ligneDe(etat.ExtraitDebut, k), debut);
        std::swap(ligneDe(etat.ExtraitFin, k), fin);
        std::swap(ligneDe(etat.ExtraitCode, k), code);
        std::swap(ligneDe(etat.ExtraitTexte, k), texte);
    };
    echanger();
    const EtatLu avant = etat.lu;
    const bool ecrit = EnregistrerExtraits(session, plateforme,
                                           nommerExtrait(session.corpus, "Modifier", k, etat.source.slot));
    if (!ecrit && etat.lu == avant) echanger(); // unless the arrays were read again
    return ecrit;
}

} // namespace vermo::saisie
