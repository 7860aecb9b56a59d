#include "corpus/Brouillon.h"

#include "textfile/chemins.h"
#include "textfile/empreinte.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

#include <array>
#include <ctime>
#include <utility>

namespace vermo {
namespace {

constexpr std::string_view TETE = "Vermo, brouillon 1", FIN = "fin du brouillon";

Utf8 proteger(std::string_view valeur) {
    Utf8 ligne;
    for (const char c : valeur)
        if (c == '\n' || c == '\\')
            ligne += c == '\n' ? "\\n" : "\\\\";
        else
            ligne += c;
    return ligne;
}

/// Its lines, read one after the other.
class Lecteur {
  public:
    Lecteur(std::string_view octets, const Utf8& chemin) : reste_(octets), chemin_(chemin) {}

    std::string_view ligne() {
        ++numero_;
        const std::size_t fin = reste_.find('\n');
        if (fin == std::string_view::npos) refuser("le brouillon est coupé");
        const std::string_view ligne = reste_.substr(0, fin);
        reste_.remove_prefix(fin + 1);
        return ligne;
    }
    bool fini() const { return reste_.empty(); }

    Utf8 valeur(std::string_view protegee) const {
        Utf8 valeur;
        for (std::size_t i = 0; i < protegee.size(); ++i) {
            if (protegee[i] != '\\') {
                valeur += protegee[i];
                continue;
            }
            const char suite = ++i < protegee.size() ? protegee[i] : '\0';
            if (suite != 'n' && suite != '\\') refuser("une barre oblique inverse ne protège rien");
            valeur += suite == 'n' ? '\n' : '\\';
        }
        return valeur;
    }

    [[noreturn]] void refuser(const std::string& quoi) const { throw FauteExecution(quoi, chemin_, numero_); }

  private:
    std::string_view reste_;
    const Utf8& chemin_;
    std::size_t numero_ = 0;
};

/// The fields that each has.
template <class B>
auto champsCommuns(B& b) {
    return std::array<std::pair<const char*, decltype(&b.genre)>, 6>{{{"genre", &b.genre},
                                                                      {"corpus", &b.corpus},
                                                                      {"enregistrement", &b.enregistrement},
                                                                      {"empreinte", &b.empreinte},
                                                                      {"instant", &b.instant},
                                                                      {"texte", &b.texte}}};
}

Utf8 empreinteDuDebut(const Utf8& enregistrement) {
    constexpr std::size_t debut = 1 << 16;
    try {
        const Empreinte empreinte = empreinteDe(lireDebut(enregistrement, debut));
        return std::to_string(empreinte.haut) + "-" + std::to_string(empreinte.bas);
    } catch (const FauteExecution&) {
        return {};
    }
}

/// Its own corpus lies where it did, with the recording.
bool tientEncore(const Brouillon& brouillon) {
    return fichierExiste(brouillon.corpus) &&
           fichierExiste(repertoireDe(brouillon.corpus) + brouillon.enregistrement);
}

} // namespace

std::string ecrireBrouillon(const Brouillon& brouillon) {
    std::string octets(TETE);
    octets += '\n';
    const auto ajouter = [&](const Utf8& nom, const Utf8& valeur) {
        octets += nom + "=" + proteger(valeur) + "\n";
    };
    for (const auto& [nom, valeur] : champsCommuns(brouillon))
        ajouter(nom, *valeur);
    for (const auto& [nom, valeur] : brouillon.champs)
        ajouter(nom, valeur);
    octets += FIN;
    return octets += '\n';
}

Brouillon lireBrouillon(std::string_view octets, const Utf8& chemin) {
    Lecteur lecteur(octets, chemin);
    Brouillon brouillon;
    if (lecteur.ligne() != TETE) lecteur.refuser("ce n'est pas un brouillon de Vermo");
    for (std::string_view ligne = lecteur.ligne(); ligne != FIN; ligne = lecteur.ligne()) {
        const std::size_t egal = ligne.find('=');
        if (egal == std::string_view::npos) lecteur.refuser("un champ sans « = »");
        const Utf8 nom(ligne.substr(0, egal));
        if (!brouillon.champs.emplace(nom, lecteur.valeur(ligne.substr(egal + 1))).second)
            lecteur.refuser("le champ « " + nom + " » vient deux fois");
    }
    for (const auto& [nom, valeur] : champsCommuns(brouillon)) {
        auto champ = brouillon.champs.extract(nom);
        if (champ.empty()) lecteur.refuser("le champ « " + Utf8(nom) + " » manque");
        *valeur = std::move(champ.mapped());
    }
    if (!lecteur.fini()) lecteur.refuser("le brouillon continue après sa fin");
    return brouillon;
}

Utf8 instantDe(const Horloge& horloge) {
    const std::tm heure = horloge.maintenant();
    char instant[32];
    return {instant, std::strftime(instant, sizeof instant, "%Y-%m-%d %H:%M:%S", &heure)};
}

Brouillon nouveauBrouillon(const Session& session, int slot, const Utf8& genre) {
    return {.genre = genre,
            .corpus = session.corpus.CheminCorpus,
            .enregistrement = versUtf8(entretienDe(session.corpus, slot).Fichier),
            .empreinte = empreinteDuDebut(cheminEnregistrement(session, slot)),
            .instant = {}};
}

int slotDuBrouillon(const Session& session, const Brouillon& brouillon) {
    const EtatCorpus& corpus = session.corpus;
    const bool ici = memeFichier(corpus.CheminCorpus, brouillon.corpus);
    if (!ici && tientEncore(brouillon)) return 0;
    for (int slot = 1; slot <= corpus.NbEntretiens; ++slot) {
        if (versUtf8(entretienDe(corpus, slot).Fichier) != brouillon.enregistrement) continue;
        const Utf8 empreinte = empreinteDuDebut(cheminEnregistrement(session, slot));
        if (!empreinte.empty() && (ici || empreinte == brouillon.empreinte)) return slot;
    }
    return 0;
}

} // namespace vermo
