#include "formats/FichierRtr.h"

#include "formats/Champs.h"
#include "formats/Marques.h"
#include "textfile/lignes.h"
#include "textfile/memoire.h"
#include "textfile/nombres.h"

#include <utility>

namespace vermo::rtr {
namespace {

constexpr std::string_view ATTR = "<|ATTR|", FIN_ATTR = ">|ATTR|";

/// Adds a line to a text; an empty one is absorbed by the line end before it.
void ajouterLigne(Texte& texte, std::string_view ligne) {
    texte.append(ligne).push_back(CR);
    if (texte.size() > 1 && texte[texte.size() - 2] == CR) texte.pop_back();
}

/// Takes the extracts into the working arrays' form.
class LecteurExtraits {
  public:
    explicit LecteurExtraits(Lecture& lecture) : lecture_(lecture) {}

    void texte(std::string_view ligne) { ajouterLigne(lecture_.extraits.back().texte, ligne); }

    void ouvrir(const Marque& marque, std::string_view, const Lieu& lieu) {
        if (lecture_.extraits.size() > EXTRAITS_MAX)
            lieu.refuser("Une retranscription tient au plus " + std::to_string(EXTRAITS_MAX) + " extraits.");
        lecture_.extraits.push_back({Texte(marque.temps), {}, Texte(marque.suite.substr(0, 3)), {}});
        lecture_.lignes.push_back({static_cast<std::uint32_t>(lieu.ligne), 0});
    }

    void fermer(const Marque& marque, std::string_view, const Lieu& lieu) {
        lecture_.extraits.back().fin = marque.temps;
        lecture_.lignes.back().fermeture = static_cast<std::uint32_t>(lieu.ligne);
    }

  private:
    Lecture& lecture_;
};

/// Everything up to the first mark line.
std::string_view enTeteDe(std::string_view octets) {
    const std::size_t marque = octets.find(MARQUE);
    if (marque == std::string_view::npos) return octets;
    const char finLigne = finDeLigne(octets);
    std::size_t fin = octets.substr(0, marque).rfind(finLigne) + 1; // 0 where the first line is a mark line
    if (fin != 0 && finLigne == CR && octets[fin] == '\n') ++fin;
    return octets.substr(0, fin);
}

void verifierDuree(std::string_view octets, const Utf8& fichier, const Reglages& reglages) {
    std::string_view ligne;
    if (!Lignes(octets).suivante(ligne)) throw FauteExecution("Fichier vide : la durée manque.", fichier, 1);
    dureeOuFaute(ligne, reglages, {fichier, 1});
}

/// Sections open one at a time and close before the first mark line; line 1 holds the duration.
void verifierSections(std::string_view enTete, const Utf8& fichier) {
    Lignes lignes(enTete);
    std::string_view ligne, attendue;
    lignes.suivante(ligne);
    std::size_t ouverture = 0;
    while (lignes.suivante(ligne)) {
        if (!attendue.empty()) {
            if (contient(ligne, attendue)) attendue = {};
            continue;
        }
        for (const auto& [debut, fin] : {std::pair(OBS, FIN_OBS), std::pair(ATTR, FIN_ATTR)}) {
            if (contient(ligne, fin))
                Lieu{fichier, lignes.numero()}.refuser("La balise " + std::string(fin) +
                                                       " n'a pas d'ouverture.");
            if (contient(ligne, debut)) attendue = fin;
        }
        ouverture = lignes.numero();
    }
    if (!attendue.empty())
        Lieu{fichier, ouverture}.refuser("La balise " + std::string(attendue) +
                                         " manque avant le premier extrait.");
}

void verifierExtrait(const Extrait& extrait, const LignesMarques& lignes, const Utf8& fichier,
                     const Reglages& reglages) {
    tempsOuFaute(extrait.debut, reglages, "Le début", {fichier, lignes.ouverture});
    if (lignes.fermeture == 0) Lieu{fichier, lignes.ouverture}.refuser("L'extrait n'a pas de ligne de fin.");
    tempsOuFaute(extrait.fin, reglages, "La fin", {fichier, lignes.fermeture});
}

void ecrireObservations(std::string& sortie, std::string_view observations) {
    for (const std::string_view ligne : {OBS, observations, FIN_OBS})
        ecrireLigne(sortie, ligne);
}

void ecrireAttributs(std::string& sortie, const Attributs& attributs, const Reglages& reglages) {
    ecrireLigne(sortie, ATTR);
    for (std::size_t v = 0; v < attributs.size(); ++v)
        if (attributs[v] != 0)
            ecrireLigne(sortie, std::to_string(v + 1) + "," + imprimerSansBlancs(attributs[v], reglages));
    ecrireLigne(sortie, FIN_ATTR);
}

/// A code may be followed by a name, which ends with its line and may hold any mark.
void exigerExtrait(const Extrait& extrait) {
    exigerTexte(extrait.texte, "Le texte de l'extrait");
    if (extrait.code.find_first_of(std::string_view("\r\n\0", 3)) != Texte::npos)
        throw FauteExecution("Le code de l'extrait tient sur plusieurs lignes.");
}

void ecrireExtrait(std::string& sortie, const Extrait& extrait, const Reglages& reglages) {
    exigerExtrait(extrait);
    const auto temps = [&](const Texte& champ) {
        return formatDeuxDecimales(nombre(champ, reglages), reglages);
    };
    sortie.append(MARQUE).append(temps(extrait.debut)).append(MARQUE);
    ecrireLigne(sortie, extrait.code);
    ecrireLigne(sortie, extrait.texte);
    sortie.append(MARQUE).append(temps(extrait.fin));
    ecrireLigne(sortie, MARQUE);
}

/// Room for all extracts at once: growing step by step would touch fresh memory again and again.
void reserver(std::string& sortie, const std::vector<Extrait>& extraits) {
    constexpr std::size_t reperes = 64; // two mark lines, as a rule
    std::size_t taille = sortie.size();
    for (const Extrait& extrait : extraits)
        taille += extrait.texte.size() + reperes;
    sortie.reserve(taille);
    peuplerMemoire(sortie.data(), taille);
}

/// An extract as an insertion writes it, its lines separated by lone CRs.
std::string composer(const Extrait& extrait) {
    exigerExtrait(extrait);
    std::string sortie;
    sortie.append(MARQUE).append(extrait.debut).append(MARQUE).append(extrait.code) += CR;
    sortie.append(extrait.texte) += CR;
    return sortie.append(MARQUE).append(extrait.fin).append(MARQUE);
}

/// Copies a transcript's lines, the new extract before the first one that starts later.
struct Insertion {
    std::string& sortie;
    const std::string& nouvel;
    double debut;
    const Reglages& reglages;
    bool faite = false;

    void texte(std::string_view ligne) { ecrireLigne(sortie, ligne); }

    void ouvrir(const Marque& marque, std::string_view ligne, const Lieu& lieu) {
        if (!faite && tempsOuFaute(marque.temps, reglages, "Le début", lieu) > debut) {
            copierLignes(sortie, nouvel);
            faite = true;
        }
        texte(ligne);
    }

    void fermer(const Marque&, std::string_view ligne, const Lieu&) { texte(ligne); }
};

} // namespace

void exigerTexte(std::string_view texte, const std::string& quoi) {
    if (contient(texte, MARQUE))
        throw FauteExecution(quoi + " contient « :: », qui sépare les extraits dans leur fichier.");
    if (contient(texte, std::string_view("\0", 1))) throw FauteExecution(quoi + " contient un octet nul.");
}

void lire(std::string_view octets, const Utf8& fichier, Lecture& lecture) {
    lecture = {};
    std::string copie;
    lecture.enTete = avecCr(enTeteDe(octets), copie);
    Lignes lignes(octets);
    LecteurExtraits preneur(lecture);
    parcourir(lignes, fichier, preneur);
}

Lecture lire(std::string_view octets, const Utf8& fichier) {
    Lecture lecture;
    lire(octets, fichier, lecture);
    return lecture;
}

void verifier(std::string_view octets, const Lecture& lecture, const Utf8& fichier,
              const Reglages& reglages) {
    verifierDuree(octets, fichier, reglages);
    verifierSections(lecture.enTete, fichier);
    lireAttributs(octets, fichier);
    for (std::size_t n = 1; n < lecture.extraits.size(); ++n)
        verifierExtrait(lecture.extraits[n], lecture.lignes[n], fichier, reglages);
}

Texte tempsEtranger(std::string_view octets, const Lecture& lecture, const Reglages& reglages) {
    const auto etranger = [&](std::string_view temps) {
        return temps.size() <= TEMPS_LONGUEUR_MAX && separateurEtranger(temps, reglages);
    };
    std::string_view duree;
    if (Lignes(octets).suivante(duree) && etranger(duree)) return Texte(duree);
    for (std::size_t n = 1; n < lecture.extraits.size(); ++n)
        for (const Texte& temps : {lecture.extraits[n].debut, lecture.extraits[n].fin})
            if (etranger(temps)) return temps;
    return {};
}

std::string reecrireEnTete(std::string_view octets, const Utf8& fichier, const Reglages& reglages) {
    const std::string_view enTete = enTeteDe(octets);
    Attributs attributs{};
    poser(lireAttributs(enTete, fichier), attributs);
    std::string sortie;
    Lignes lignes(enTete);
    std::string_view ligne;
    if (lignes.suivante(ligne))
        ecrireLigne(sortie,
                    imprimer(static_cast<float>(dureeOuFaute(ligne, reglages, {fichier, 1})), reglages));
    bool obs = false, attr = false; // a second section of a kind means nothing: its lines stay
    while (lignes.suivante(ligne)) {
        if (!obs && contient(ligne, OBS)) {
            obs = true;
            ecrireObservations(sortie, lireObservations(lignes, [](std::string_view) {}));
        } else if (!attr && contient(ligne, ATTR)) {
            attr = true;
            lignes.jusqua(FIN_ATTR);
            ecrireAttributs(sortie, attributs, reglages);
        } else {
            ecrireLigne(sortie, ligne);
        }
    }
    if (!obs) ecrireObservations(sortie, {});
    if (!attr) ecrireAttributs(sortie, attributs, reglages);
    return sortie;
}

std::string ecrireApres(std::string enTete, const std::vector<Extrait>& extraits, Selection selection,
                        const Reglages& reglages) {
    std::string sortie = std::move(enTete);
    reserver(sortie, extraits);
    for (std::size_t n = 1; n < extraits.size(); ++n) {
        const bool saute = selection.sauterNegatifs && nombre(extraits[n].debut, reglages) < 0;
        if (n != selection.exclu && !saute) ecrireExtrait(sortie, extraits[n], reglages);
    }
    return sortie;
}

std::string nouveau(float duree, const Reglages& reglages) {
    std::string sortie;
    ecrireLigne(sortie, imprimer(duree, reglages));
    for (const std::string_view balise : {OBS, FIN_OBS, ATTR, FIN_ATTR})
        ecrireLigne(sortie, balise);
    return sortie;
}

std::string inserer(std::string_view octets, const Extrait& extrait, double debut, const Reglages& reglages,
                    const Utf8& fichier) {
    std::string sortie;
    const std::string nouvel = composer(extrait);
    Insertion insertion{sortie, nouvel, debut, reglages};
    Lignes lignes(octets);
    parcourir(lignes, fichier, insertion);
    if (!insertion.faite) copierLignes(sortie, nouvel);
    return sortie;
}

std::string creerAvec(float duree, const Extrait& extrait, const Reglages& reglages) {
    std::string sortie;
    ecrireLigne(sortie, imprimer(duree, reglages));
    ecrireLigne(sortie, composer(extrait));
    return sortie;
}

std::vector<Choix> lireAttributs(std::string_view octets, const Utf8& fichier) {
    Lignes lignes(octets);
    std::vector<Choix> lus;
    if (!contient(octets, ATTR) || !lignes.jusqua(ATTR)) return lus;
    std::string_view ligne;
    while (lignes.suivante(ligne) && !contient(ligne, FIN_ATTR)) {
        if (ligne.empty()) continue;
        const Lieu lieu{fichier, lignes.numero()};
        const auto variable = avantVirgule(ligne);
        if (!variable) lieu.refuser("Il manque une virgule dans la ligne d'attribut.");
        const int v = entierBorne(*variable, 1, VARIABLES_MAX, "variable", lieu);
        const int m = entierBorne(ligne, 0, VARIABLES_MAX, "modalité", lieu);
        lus.push_back({static_cast<std::uint8_t>(v), static_cast<std::uint8_t>(m)});
    }
    return lus;
}

void poser(const std::vector<Choix>& choix, Attributs& attributs) {
    for (const auto& [variable, modalite] : choix)
        attributs[variable - 1U] = modalite;
}

} // namespace vermo::rtr
