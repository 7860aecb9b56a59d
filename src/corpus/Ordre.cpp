#include "corpus/Ordre.h"

#include <algorithm>

namespace vermo {
namespace {

/// Takes what stands at `source` to `cible`, what lies between closes up.
template <class T>
void deplacer(std::vector<T>& table, int source, int cible) {
    const auto debut = table.begin() + std::min(source, cible);
    const auto fin = table.begin() + std::max(source, cible) + 1;
    std::rotate(debut, source < cible ? debut + 1 : fin - 1, fin);
}

} // namespace

void DeplacerEntretien(Session& session, int source, int cible) {
    EtatCorpus& corpus = session.corpus;
    if (std::min(source, cible) < 1 || std::max(source, cible) > corpus.NbEntretiens) return;
    corpus.extraits.resize(corpus.Entretiens.size());
    deplacer(corpus.Entretiens, source, cible);
    deplacer(corpus.extraits, source, cible);
}

} // namespace vermo
