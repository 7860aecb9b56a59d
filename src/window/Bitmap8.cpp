#include "window/Bitmap8.h"

#include "textfile/faute.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vermo {

namespace {

constexpr int COTE_MAX = 32767;
constexpr std::uint32_t TAILLE_ENTETES = 14 + 40;

void ecrire16(std::string& sortie, std::uint32_t valeur) {
    sortie += static_cast<char>(valeur & 255);
    sortie += static_cast<char>(valeur >> 8 & 255);
}

void ecrire32(std::string& sortie, std::uint32_t valeur) {
    ecrire16(sortie, valeur & 0xFFFF);
    ecrire16(sortie, valeur >> 16);
}

void ecrireEntetes(std::string& sortie, const Bitmap8& image, std::uint32_t octetsPixels) {
    const auto couleurs = static_cast<std::uint32_t>(image.palette().size());
    const std::uint32_t debutPixels = TAILLE_ENTETES + 4 * couleurs;
    sortie += "BM";
    ecrire32(sortie, debutPixels + octetsPixels);
    ecrire32(sortie, 0);
    ecrire32(sortie, debutPixels);

    ecrire32(sortie, 40);
    ecrire32(sortie, static_cast<std::uint32_t>(image.largeur()));
    ecrire32(sortie, static_cast<std::uint32_t>(image.hauteur()));
    ecrire16(sortie, 1);
    ecrire16(sortie, 8);
    ecrire32(sortie, 0);
    ecrire32(sortie, octetsPixels);
    ecrire32(sortie, 0);
    ecrire32(sortie, 0);
    ecrire32(sortie, couleurs);
    ecrire32(sortie, 0);
}

} // namespace

Bitmap8::Bitmap8(int largeur, int hauteur, std::vector<Couleur> palette, std::uint8_t fond)
    : largeur_(largeur), hauteur_(hauteur), palette_(std::move(palette)) {
    if (largeur < 1 || hauteur < 1 || largeur > COTE_MAX || hauteur > COTE_MAX)
        throw FauteExecution("image de taille impossible : " + std::to_string(largeur) + " x " +
                             std::to_string(hauteur));
    if (palette_.empty() || palette_.size() > 256) throw FauteExecution("palette de taille impossible");
    pixels_.assign(static_cast<std::size_t>(largeur) * static_cast<std::size_t>(hauteur), fond);
}

std::string_view Bitmap8::octetsRangee(int y) const {
    return {reinterpret_cast<const char*>(pixels_.data() + place(0, y)), static_cast<std::size_t>(largeur_)};
}

void Bitmap8::rangee(int y, std::uint8_t indice) {
    std::fill_n(pixels_.begin() + static_cast<std::ptrdiff_t>(place(0, y)), largeur_, indice);
}

void Bitmap8::colonne(int x, int y1, int y2, std::uint8_t indice) {
    if (x < 0 || x >= largeur_) return;
    const int haut = std::max(std::min(y1, y2), 0);
    const int bas = std::min(std::max(y1, y2), hauteur_ - 1);
    for (int y = haut; y <= bas; ++y)
        pixels_[place(x, y)] = indice;
}

void Traceur::ligne(double x1, double y1, double x2, double y2) {
    int colonne = static_cast<int>(std::floor(x1));
    const int derniere = static_cast<int>(std::floor(x2));
    toucher(colonne, y1);
    while (colonne < derniere) {
        const double yBord = y1 + (y2 - y1) * (colonne + 1 - x1) / (x2 - x1);
        toucher(colonne, yBord);
        toucher(++colonne, yBord);
    }
    toucher(derniere, y2);
}

void Traceur::toucher(int x, double y) {
    const int rangee = static_cast<int>(std::floor(std::clamp(y, -1.0, double(COTE_MAX))));
    if (x != colonne_) {
        vider();
        colonne_ = x;
        haut_ = bas_ = rangee;
    }
    haut_ = std::min(haut_, rangee);
    bas_ = std::max(bas_, rangee);
}

void Traceur::vider() {
    if (colonne_ >= 0) image_.colonne(colonne_, haut_, bas_, indice_);
}

std::string ecrireBmp(const Bitmap8& image) {
    const auto pas = static_cast<std::uint32_t>((image.largeur() + 3) / 4 * 4);
    const std::uint32_t octetsPixels = pas * static_cast<std::uint32_t>(image.hauteur());
    std::string sortie;
    sortie.reserve(TAILLE_ENTETES + 4 * image.palette().size() + octetsPixels);
    ecrireEntetes(sortie, image, octetsPixels);
    for (const Couleur couleur : image.palette()) {
        ecrire16(sortie, (couleur >> 16 & 255) | (couleur & 0xFF00));
        ecrire16(sortie, couleur & 255);
    }
    for (int y = image.hauteur(); y-- > 0;) {
        sortie += image.octetsRangee(y);
        sortie.append(pas - static_cast<std::uint32_t>(image.largeur()), '\0');
    }
    return sortie;
}

} // namespace vermo
