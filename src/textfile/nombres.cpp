#include "textfile/nombres.h"

#include "textfile/faute.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>

namespace vermo {
namespace {

constexpr bool estChiffre(char c) {
    return c >= '0' && c <= '9';
}

std::string_view sansBlancsDevant(std::string_view texte) {
    return texte.substr(std::min(texte.find_first_not_of(" \t"), texte.size()));
}

std::size_t apresChiffres(std::string_view texte, std::size_t i) {
    while (i < texte.size() && estChiffre(texte[i]))
        ++i;
    return i;
}

/// The number at the start of a text: its extent, 0 when none starts there, and where its separator stands
/// (the extent when it has none).
struct Etendue {
    std::size_t longueur;
    std::size_t separateur;
};

Etendue etendueNombre(std::string_view texte, char separateur) {
    const std::size_t debut = !texte.empty() && (texte[0] == '+' || texte[0] == '-') ? 1 : 0;
    const std::size_t entiers = apresChiffres(texte, debut);
    const bool avecSeparateur = entiers < texte.size() && texte[entiers] == separateur;
    std::size_t fin = avecSeparateur ? apresChiffres(texte, entiers + 1) : entiers;
    if (fin - debut == (avecSeparateur ? 1u : 0u)) return {0, 0};
    if (fin < texte.size() && (texte[fin] == 'e' || texte[fin] == 'E')) {
        std::size_t exposant = fin + 1;
        if (exposant < texte.size() && (texte[exposant] == '+' || texte[exposant] == '-')) ++exposant;
        const std::size_t finExposant = apresChiffres(texte, exposant);
        if (finExposant > exposant) fin = finExposant;
    }
    return {fin, avecSeparateur ? entiers : fin};
}

/// The value of a text that `etendueNombre` measured. False when a double can't hold it.
bool convertir(std::string_view texte, std::size_t separateur, double& valeur) {
    std::string copie;
    if (separateur < texte.size() && texte[separateur] != '.') {
        copie = texte;
        copie[separateur] = '.';
        texte = copie;
    }
    if (texte.front() == '+') texte.remove_prefix(1);
    return std::from_chars(texte.data(), texte.data() + texte.size(), valeur).ec == std::errc{};
}

bool estHexadecimal(std::string_view texte) {
    return texte.size() > 2 && texte[0] == '&' && (texte[1] == 'H' || texte[1] == 'h');
}

[[noreturn]] void refuser(std::string_view texte) {
    throw FauteExecution("incompatibilité de type : " + citer(texte));
}

template <class Reel>
void exigerFini(Reel valeur) {
    if (!std::isfinite(valeur)) throw FauteExecution("dépassement de capacité : valeur non finie");
}

/// Significant digits of a number without trailing zeros ("0" for zero), and the exponent of the first one.
struct Decimal {
    std::string chiffres;
    int exposant;
};

template <class Reel>
Decimal decimal(Reel valeur, int significatifs) {
    std::array<char, 64> tampon{};
    const char* fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), std::abs(valeur),
                                    std::chars_format::scientific, significatifs - 1)
                          .ptr;
    const std::string_view texte(tampon.data(), static_cast<std::size_t>(fin - tampon.data()));
    const std::size_t e = texte.find('e');
    Decimal d{std::string(1, texte[0]) + std::string(texte.substr(2, e - 2)),
              std::atoi(texte.data() + e + 1)};
    d.chiffres.erase(std::max<std::size_t>(d.chiffres.find_last_not_of('0') + 1, 1));
    return d;
}

std::string formeExposant(const Decimal& d, char separateur) {
    std::string texte = d.chiffres.substr(0, 1);
    if (d.chiffres.size() > 1) texte += separateur + d.chiffres.substr(1);
    const std::string exposant = std::to_string(std::abs(d.exposant));
    return texte + (d.exposant < 0 ? "E-" : "E+") + (exposant.size() < 2 ? "0" : "") + exposant;
}

std::string formeFixe(const Decimal& d, char separateur) {
    const auto nombre = static_cast<int>(d.chiffres.size());
    if (d.exposant < 0)
        return std::string("0") + separateur + std::string(static_cast<std::size_t>(-1 - d.exposant), '0') +
               d.chiffres;
    const auto entiers = static_cast<std::size_t>(d.exposant + 1);
    if (nombre <= d.exposant + 1) return d.chiffres + std::string(entiers - d.chiffres.size(), '0');
    return d.chiffres.substr(0, entiers) + separateur + d.chiffres.substr(entiers);
}

/// `valeur` x 10^`decimales` as whole digits, halves away from zero. What counts is the decimal that 15
/// digits show: 1.005 is a half, whatever its binary neighbour.
std::string arrondiDecimal(double valeur, int decimales) {
    const Decimal d = decimal(valeur, 15);
    const int gardes = d.exposant + 1 + decimales;
    if (gardes < 0) return "0";
    std::string chiffres = d.chiffres;
    chiffres.resize(std::max<std::size_t>(chiffres.size(), static_cast<std::size_t>(gardes) + 1), '0');
    const bool retenue = chiffres[static_cast<std::size_t>(gardes)] >= '5';
    chiffres.resize(static_cast<std::size_t>(gardes));
    chiffres.insert(chiffres.begin(), '0');
    if (retenue) {
        std::size_t i = chiffres.size() - 1;
        for (; chiffres[i] == '9'; --i)
            chiffres[i] = '0';
        ++chiffres[i];
    }
    return chiffres.substr(std::min(chiffres.find_first_not_of('0'), chiffres.size() - 1));
}

/// A finite number on `decimales` decimals, never "-0".
std::string surDecimales(double valeur, int decimales, char separateur) {
    exigerFini(valeur);
    std::string texte = arrondiDecimal(valeur, decimales);
    const bool nul = texte == "0";
    const auto minimum = static_cast<std::size_t>(decimales) + 1;
    if (texte.size() < minimum) texte.insert(0, minimum - texte.size(), '0');
    if (decimales > 0) texte.insert(texte.size() - static_cast<std::size_t>(decimales), 1, separateur);
    return valeur < 0 && !nul ? "-" + texte : texte;
}

std::string surDeuxChiffres(long n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

} // namespace

double valeur(std::string_view texte) noexcept {
    texte = sansBlancsDevant(texte);
    if (estHexadecimal(texte)) {
        std::uint64_t n = 0;
        std::from_chars(texte.data() + 2, texte.data() + texte.size(), n, 16);
        return static_cast<double>(n);
    }
    const Etendue e = etendueNombre(texte, '.');
    double v = 0;
    if (e.longueur == 0 || !convertir(texte.substr(0, e.longueur), e.separateur, v)) return 0;
    return v;
}

namespace {

/// The plain form of a transcript's times, "123,45": digits that a double holds exactly, over a power of ten
/// that it holds too, are one division away from the nearest double. A corpus has two million of them.
std::optional<double> nombreSimple(std::string_view texte, char separateur) {
    constexpr double puissances[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};
    if (texte.empty() || texte.size() > 15 || !estChiffre(texte[0])) return std::nullopt;
    std::int64_t chiffres = 0;
    std::size_t decimales = 0;
    bool apres = false;
    for (const char c : texte) {
        if (c == separateur && !apres) {
            apres = true;
        } else if (estChiffre(c)) {
            chiffres = chiffres * 10 + (c - '0');
            decimales += apres ? 1 : 0;
        } else {
            return std::nullopt;
        }
    }
    if (decimales >= std::size(puissances)) return std::nullopt;
    return static_cast<double>(chiffres) / puissances[decimales];
}

} // namespace

double nombre(std::string_view texte, const Reglages& reglages) {
    if (const auto simple = nombreSimple(texte, reglages.separateurDecimal)) return *simple;
    const std::string_view utile = sansBlancsDevant(texte);
    const Etendue e = etendueNombre(utile, reglages.separateurDecimal);
    double v = 0;
    if (e.longueur == 0 || !convertir(utile.substr(0, e.longueur), e.separateur, v)) refuser(texte);
    return v;
}

bool separateurEtranger(std::string_view texte, const Reglages& reglages) noexcept {
    texte = sansBlancsDevant(texte);
    const Etendue e = etendueNombre(texte, reglages.separateurDecimal == '.' ? ',' : '.');
    return e.separateur < e.longueur && sansBlancsDevant(texte.substr(e.longueur)).empty();
}

std::uint32_t couleur(std::string_view texte) {
    std::string_view utile = sansBlancsDevant(texte);
    const bool hexadecimal = estHexadecimal(utile);
    if (hexadecimal) utile.remove_prefix(2);
    std::uint32_t n = 0;
    const char* fin = utile.data() + utile.size();
    const auto lu = std::from_chars(utile.data(), fin, n, hexadecimal ? 16 : 10);
    const std::string_view suite(lu.ptr, static_cast<std::size_t>(fin - lu.ptr));
    if (lu.ec != std::errc{} || !sansBlancsDevant(suite).empty()) refuser(texte);
    return n;
}

long arrondi(double valeur) noexcept {
    return std::isfinite(valeur) ? std::lrint(borner(valeur, ENTIER_MAX)) : 0;
}

std::string imprimer(float valeur, const Reglages& reglages) {
    const std::string texte = imprimerSansBlancs(valeur, reglages);
    return (texte.front() == '-' ? "" : " ") + texte + " ";
}

std::string imprimerSansBlancs(float valeur, const Reglages& reglages) {
    exigerFini(valeur);
    if (valeur == 0) return "0";
    constexpr int significatifs = 7;
    const Decimal d = decimal(valeur, significatifs);
    const int decimales = static_cast<int>(d.chiffres.size()) - 1 - d.exposant;
    const bool exposant = d.exposant >= significatifs || d.exposant < -4 || decimales > significatifs;
    const char separateur = reglages.separateurDecimal;
    return (valeur < 0 ? "-" : "") + (exposant ? formeExposant(d, separateur) : formeFixe(d, separateur));
}

std::string formatDeuxDecimales(double valeur, const Reglages& reglages) {
    return surDecimales(valeur, 2, reglages.separateurDecimal);
}

std::string formatEntier(double valeur) {
    return surDecimales(valeur, 0, '.');
}

std::string formatCode(long valeur) {
    std::string texte = std::to_string(std::abs(valeur));
    if (texte.size() < 3) texte.insert(0, 3 - texte.size(), '0');
    return valeur < 0 ? "-" + texte : texte;
}

std::string HeureTexte(double secondes) {
    const long total = std::max(arrondi(secondes), 0L);
    const long heures = total / 3600;
    const std::string suite = surDeuxChiffres(total % 3600 / 60) + ":" + surDeuxChiffres(total % 60);
    return heures >= 1 ? std::to_string(heures) + ":" + suite : suite;
}

} // namespace vermo
