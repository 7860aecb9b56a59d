#include "window/Commande.h"

#include "textfile/faute.h"

#include <algorithm>

namespace vermo {
namespace {

constexpr std::string_view BLANCS_INDICE = "    ";

Utf8 toucheNommee(TableCommandes table, std::string_view nom, const Commande* commande) {
    const bool elle = nom.empty() || nom == "+";
    const Commande& nommee = elle && commande ? *commande : commandeDe(table, nom);
    return nomTouche(nommee.touches[0].touche, nom == "+" ? "+" : " + ");
}

} // namespace

Utf8 nomTouche(const Touche& touche, std::string_view lien) {
    Utf8 nom;
    for (const auto& [bit, modificateur] : {std::pair(CTRL, "Ctrl"), {ALT, "Alt"}, {MAJ, "Maj"}})
        if (touche.avec & bit) nom.append(modificateur).append(lien);
    return nom.append(touche.cle);
}

bool Raccourci::tientDans(std::string_view controle) const {
    if (controle.empty() || ou.empty()) return controle.empty() && ou.empty();
    const Utf8 liste = " " + Utf8(ou) + " ";
    return liste.find(" " + Utf8(controle) + " ") != Utf8::npos;
}

const Commande& commandeDe(TableCommandes table, std::string_view id) {
    const auto trouvee = std::ranges::find(table, id, &Commande::id);
    if (trouvee == table.end()) throw FauteExecution("commande inconnue : " + Utf8(id));
    return *trouvee;
}

Utf8 avecTouches(TableCommandes table, std::string_view texte, const Commande* commande) {
    Utf8 rempli;
    while (true) {
        const auto debut = texte.find('{'), fin = texte.find('}', debut);
        rempli += texte.substr(0, debut);
        if (fin == std::string_view::npos) return rempli;
        rempli += toucheNommee(table, texte.substr(debut + 1, fin - debut - 1), commande);
        texte.remove_prefix(fin + 1);
    }
}

Utf8 ligneIndices(TableCommandes table) {
    Utf8 ligne;
    for (auto ici = table.begin(); ici != table.end();) {
        const auto voisine =
            std::find_if(ici, table.end(), [&](const Commande& c) { return c.indice != ici->indice; });
        Utf8 cles;
        for (auto une = ici; une != voisine; ++une)
            cles += nomTouche(une->touches[0].touche) + " ";
        if (!ici->indice.empty())
            ligne.append(ligne.empty() ? "" : BLANCS_INDICE).append(cles).append(": ").append(ici->indice);
        ici = voisine;
    }
    return ligne;
}

Utf8 aideDe(TableCommandes table, const Commande& commande) {
    std::string_view texte = !commande.aide.empty()    ? commande.aide
                             : !commande.bulle.empty() ? commande.bulle
                                                       : commande.texte;
    if (const auto cle = texte.find(" ({"); cle != std::string_view::npos) texte = texte.substr(0, cle);
    texte.remove_prefix(std::min(texte.find_first_not_of(' '), texte.size()));
    return avecTouches(table, texte, &commande);
}

} // namespace vermo
