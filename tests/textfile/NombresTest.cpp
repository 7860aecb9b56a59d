#include "textfile/nombres.h"
#include "textfile/faute.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <sstream>

using namespace vermo;

namespace {

const Reglages virgule;
const Reglages point{'.', "%m/%d/%Y", "%H:%M:%S"};

/// What `ecrire` makes of each value, joined by "|".
template <class Ecrire>
std::string tous(std::initializer_list<double> valeurs, Ecrire ecrire) {
    std::string texte;
    for (const double v : valeurs)
        texte += ecrire(v) + "|";
    return texte;
}

/// A text as it reads under `reglages`: expectations are written with a point.
std::string sous(std::string texte, const Reglages& reglages) {
    std::replace(texte.begin(), texte.end(), '.', reglages.separateurDecimal);
    return texte;
}

TEST(Numbers, AreReadWithTheSeparatorOfTheSettings) {
    for (const Reglages& reglages : {virgule, point}) {
        std::ostringstream lus;
        lus.precision(16);
        for (const char* texte :
             {" 12.50 ", ".5", "5.", "-3", "+4.25x", "1E-2", "1.5e+3", "7e+", "12.5.6", "3::001",
              "100000000000000000000", "0.1234567", "0.12345678", "123456789012345", "1234567890123456"})
            lus << nombre(sous(texte, reglages), reglages) << " ";
        EXPECT_EQ(lus.str(), "12.5 0.5 5 -3 4.25 0.01 1500 7 12.5 3 1e+20 0.1234567 0.12345678 "
                             "123456789012345 1234567890123456 ");
        for (const char* texte : {"", "  ", "abc", "-", ".", ",", "+-1", "inf", "nan", "e5", "1e999"})
            EXPECT_THROW(nombre(texte, reglages), FauteExecution) << texte;
    }
    EXPECT_EQ(nombre("12.50", virgule) + nombre("12,50", point), 24);
}

TEST(Numbers, KnowAForeignSeparator) {
    for (const char* texte : {"12.50", " .5 ", "-3.", "1.5E3"})
        EXPECT_TRUE(separateurEtranger(texte, virgule)) << texte;
    for (const char* texte : {"12,50", "12", "", ".", "a.b", "12.5::", "1.234,5"})
        EXPECT_FALSE(separateurEtranger(texte, virgule)) << texte;
    EXPECT_TRUE(separateurEtranger("12,50", point));
    EXPECT_FALSE(separateurEtranger("12.50", point));
}

TEST(Numbers, ValuesNeverFailAndColoursDo) {
    const std::pair<const char*, double> cas[] = {
        {"12.5abc", 12.5}, {"12,5", 12}, {"  -7", -7}, {"", 0},      {"abc", 0}, {"&H1F", 31},
        {"&hFFzz", 255},   {"&H", 0},    {"&HZ", 0},   {"1e999", 0}, {"nan", 0}, {"1e2", 100}};
    for (const auto& [entree, attendu] : cas)
        EXPECT_EQ(valeur(entree), attendu) << entree;
    for (const char* texte : {"255", "&HFF", " 255 ", "&h000000ff"})
        EXPECT_EQ(couleur(texte), 255U) << texte;
    EXPECT_EQ(couleur("&hffffffff"), 0xFFFFFFFF);
    for (const char* texte : {"", "rouge", "&H", "&HG", "12a", "4294967296", "&H100000000", "-1", "1,5"})
        EXPECT_THROW(couleur(texte), FauteExecution) << texte;
}

TEST(Numbers, AreWritten) {
    for (const Reglages& reglages : {virgule, point}) {
        const auto imprime = [&](double v) { return imprimer(static_cast<float>(v), reglages); };
        EXPECT_EQ(tous({-0., 125.5, .5, -.5, 1e10, .001, 1e-5, 9999999, 1e7, 12345678}, imprime),
                  sous(" 0 | 125.5 | 0.5 |-0.5 | 1E+10 | 0.001 | 1E-05 | 9999999 | 1E+07 | 1.234568E+07 |",
                       reglages));
        EXPECT_EQ(tous({.01234567, .1234567, 100.05, 3.4e38, 119.99999}, imprime),
                  sous(" 1.234567E-02 | 0.1234567 | 100.05 | 3.4E+38 | 120 |", reglages));
        const auto image = [&](double v) { return formatDeuxDecimales(v, reglages); };
        EXPECT_EQ(
            tous({0, .125, -.125, -.001, 1.005, 9.995, .004, .005, 1234567.891, .0995, 1e15}, image),
            sous("0.00|0.13|-0.13|0.00|1.01|10.00|0.00|0.01|1234567.89|0.10|1000000000000000.00|", reglages));
    }
    EXPECT_EQ(imprimerSansBlancs(-12.25f, virgule), "-12,25");
    EXPECT_THROW(imprimer(std::numeric_limits<float>::infinity(), virgule), FauteExecution);
    EXPECT_THROW(formatDeuxDecimales(std::nan(""), virgule), FauteExecution);
    EXPECT_EQ(tous({2.5, -2.5, .4}, formatEntier) + formatCode(0) + formatCode(42) + formatCode(1000),
              "3|-3|0|0000421000");
    const auto arrondie = [](double v) { return std::to_string(arrondi(v)); };
    EXPECT_EQ(tous({.5, 1.5, 2.5, -.5, -1.5, 2.500001, -2.4, std::nan(""), 1e300, -1e19}, arrondie),
              "0|2|2|0|-2|3|-2|0|1000000000000000000|-1000000000000000000|");
    EXPECT_EQ(tous({0, 59, 59.5, 60.5, 425, 3599.4, 3600, 3725, 36000, 360000}, HeureTexte),
              "00:00|00:59|01:00|01:00|07:05|59:59|1:00:00|1:02:05|10:00:00|100:00:00|");
}

/// Whether a locale is installed or not, it must come to the same.
TEST(SystemSettings, AreTheLanguages) {
    const std::string francaise = "%d/%m/%Y", iso = "%Y-%m-%d", duC = "%m/%d/%y";
    const std::tuple<std::map<std::string, std::string>, char, std::string> cas[] = {
        {{}, '.', duC},
        {{{"LANG", "fr_FR.UTF-8"}}, ',', francaise},
        {{{"LANG", "fr_FR.UTF-8"}, {"LC_NUMERIC", "en_GB.UTF-8"}}, '.', francaise},
        {{{"LC_ALL", "wa_BE@euro"}, {"LC_NUMERIC", "C"}, {"LC_TIME", "C"}}, ',', francaise},
        {{{"LC_ALL", ""}, {"LC_TIME", "fr_FR.UTF-8"}}, '.', francaise},
        {{{"LANG", "xx_XX"}}, '.', iso},
        {{{"LANG", "xx_XX"}, {"LC_TIME", "C"}}, '.', duC}};
    for (const auto& [variables, separateur, date] : cas) {
        for (const char* nom : {"LC_ALL", "LC_NUMERIC", "LC_TIME", "LANG"})
            variables.contains(nom) ? setenv(nom, variables.at(nom).c_str(), 1) : unsetenv(nom);
        const Reglages lus = reglagesDuSysteme();
        EXPECT_EQ(std::pair(lus.separateurDecimal, lus.formatDate), std::pair(separateur, date))
            << testing::PrintToString(variables);
        EXPECT_TRUE(lus.formatHeure == "%T" || lus.formatHeure == "%H:%M:%S") << lus.formatHeure;
    }
}

} // namespace
