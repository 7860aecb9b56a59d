#include "corpus/Session.h"

#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/nombres.h"

#include <algorithm>
#include <utility>

namespace vermo {
namespace {

/// The row of extract `n` and the buffer it points into, if there is one.
struct Rang {
    const char* tampon = nullptr;
    const LigneExtrait* ligne = nullptr;

    Rang(const Session& session, int slot, int n) {
        const auto& tables = session.corpus.extraits;
        if (slot < 1 || static_cast<std::size_t>(slot) >= tables.size() || n < 1) return;
        const ExtraitsEntretien& table = ligneDe(tables, slot);
        if (static_cast<std::size_t>(n) > table.lignes.size()) return;
        tampon = table.tampon.get();
        ligne = &ligneDe(table.lignes, n - 1);
    }
    std::string_view champ(std::uint32_t LigneExtrait::*place, std::size_t longueur) const {
        return {tampon + ligne->*place, longueur};
    }
};

/// Nothing for a text that starts with no number.
std::optional<double> nombreLu(const Texte& texte, const Reglages& reglages) {
    try {
        return nombre(texte, reglages);
    } catch (const FauteExecution&) {
        return std::nullopt;
    }
}

} // namespace

Temps::Temps(Texte lu, const Reglages& reglages)
    : texte(std::move(lu)), secondes(nombreLu(texte, reglages)), valeur(vermo::valeur(texte)) {}

std::string_view CorpusDebut(const Session& session, int slot, int n) {
    const Rang rang(session, slot, n);
    return rang.ligne ? rang.champ(&LigneExtrait::debut, rang.ligne->longueurDebut) : std::string_view{};
}

std::string_view CorpusFin(const Session& session, int slot, int n) {
    const Rang rang(session, slot, n);
    return rang.ligne ? rang.champ(&LigneExtrait::fin, rang.ligne->longueurFin) : std::string_view{};
}

std::string_view CorpusThm(const Session& session, int slot, int n) {
    const Rang rang(session, slot, n);
    return rang.ligne ? codeDe(*rang.ligne) : std::string_view{};
}

std::string_view CorpusTexte(const Session& session, int slot, int n) {
    const Rang rang(session, slot, n);
    return rang.ligne ? rang.champ(&LigneExtrait::texte, rang.ligne->longueurTexte) : std::string_view{};
}

int rangThematique(const EtatCorpus& corpus, std::string_view code) {
    if (corpus.ThmCode.empty()) return 0;
    const auto debut = corpus.ThmCode.begin() + 1;
    const auto trouve = std::find(debut, corpus.ThmCode.end(), code);
    return trouve == corpus.ThmCode.end() ? 0 : static_cast<int>(trouve - debut) + 1;
}

Utf8 nomEntretien(const EtatCorpus& corpus, int slot) {
    const Texte& fichier = entretienDe(corpus, slot).Fichier;
    return versUtf8(fichier.substr(0, fichier.rfind('.')));
}

Utf8 cheminEnregistrement(const Session& session, int slot) {
    const Texte& fichier = session.corpus.Entretiens.at(static_cast<std::size_t>(slot)).Fichier;
    return cheminReel(session.corpus.RepCorpus + versUtf8(fichier));
}

Utf8 cheminCompagnon(const Session& session, int slot, std::string_view extension) {
    const Texte& fichier = session.corpus.Entretiens.at(static_cast<std::size_t>(slot)).Fichier;
    return cheminReel(session.corpus.RepCorpus + versUtf8(compagnon(fichier, extension)));
}

} // namespace vermo
