#include "window/Element.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace vermo {

namespace {

std::string nombreCourt(Twips valeur) {
    std::array<char, 32> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%.2f", valeur);
    std::string texte = tampon.data();
    texte.erase(texte.find_last_not_of('0') + 1);
    if (texte.back() == '.') texte.pop_back();
    return texte == "-0" ? "0" : texte;
}

std::string hexa(Couleur couleur) {
    std::array<char, 8> tampon{};
    std::snprintf(tampon.data(), tampon.size(), "%02X%02X%02X", couleur & 255, couleur >> 8 & 255,
                  couleur >> 16 & 255);
    return tampon.data();
}

Utf8 surUneLigne(const Texte& texte) {
    Texte seule;
    for (char c : texte)
        seule += c == CR ? Texte("\\r") : Texte(1, c);
    return versUtf8(seule);
}

std::string cadreEnTexte(const Rectangle& r) {
    return nombreCourt(r.gauche) + "," + nombreCourt(r.haut) + " " + nombreCourt(r.largeur) + "x" +
           nombreCourt(r.hauteur);
}

std::string aspect(const Element& e) {
    std::string texte;
    if (!e.image.empty()) texte += " image=" + e.image;
    if (e.rempli) texte += " fond=" + hexa(e.fond);
    if (e.rempli && e.encre == Encre::Fusion) texte += " fusion";
    if (e.borde) texte += " bord=" + hexa(e.bord);
    if (!e.texte.empty() && e.encreTexte != BLANC) texte += " encre=" + hexa(e.encreTexte);
    if (e.gras) texte += " gras";
    if (e.souligne) texte += " souligne";
    return texte;
}

} // namespace

std::string_view nomControle(Controle controle) {
    static constexpr std::string_view NOMS[] = {
#define X(nom) #nom,
        VERMO_CONTROLES(X)
#undef X
    };
    return NOMS[static_cast<std::size_t>(controle)];
}

std::string decrire(const Elements& elements) {
    std::string texte;
    for (const Element& e : elements) {
        texte += std::string(nomControle(e.controle)) + "[" + std::to_string(e.index) + "] ";
        texte += cadreEnTexte(e.cadre);
        if (!e.texte.empty()) texte += " \"" + surUneLigne(e.texte) + "\"";
        if (!e.tag.empty()) texte += " tag=" + surUneLigne(e.tag);
        if (!e.bulle.empty()) texte += " bulle=" + surUneLigne(e.bulle);
        texte += aspect(e) + (e.visible ? "\n" : " cache\n");
    }
    return texte;
}

const Element* sous(const Elements& elements, Twips x, Twips y) {
    auto touche = [=](const Element& e) { return e.sensible && e.visible && e.cadre.contient(x, y); };
    auto trouve = std::find_if(elements.rbegin(), elements.rend(), touche);
    return trouve == elements.rend() ? nullptr : &*trouve;
}

} // namespace vermo
