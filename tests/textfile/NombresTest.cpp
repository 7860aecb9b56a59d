#include "textfile/nombres.h"
#include "textfile/faute.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

namespace vermo {
namespace {

const Reglages virgule;
const Reglages point{'.', "%m/%d/%Y", "%H:%M:%S"};

/// A table's text as it reads under `reglages`: tables are written with a point.
std::string sous(std::string texte, const Reglages& reglages) {
    for (char& c : texte)
        if (c == '.') c = reglages.separateurDecimal;
    return texte;
}

TEST(Nombres, LuAvecLeSeparateurDesReglages) {
    const struct {
        std::string texte;
        double valeur;
    } cas[] = {{"12.5", 12.5},   {" 12.50 ", 12.5},
               {".5", .5},       {"5.", 5},
               {"-3", -3},       {"+4.25x", 4.25},
               {"1E-2", .01},    {"1.5e+3", 1500},
               {"7e", 7},        {"7e+", 7},
               {"12.5.6", 12.5}, {"0.00", 0},
               {"3::001", 3},    {"100000000000000000000", 1e20}};
    for (const Reglages& reglages : {virgule, point})
        for (const auto& c : cas)
            EXPECT_EQ(nombre(sous(c.texte, reglages), reglages), c.valeur) << sous(c.texte, reglages);
    EXPECT_EQ(nombre("12.50", virgule), 12);
    EXPECT_EQ(nombre("12,50", point), 12);
}

TEST(Nombres, RefuseCeQuiNEnEstPasUn) {
    for (const Reglages& reglages : {virgule, point})
        for (const char* texte : {"", "  ", "abc", "-", ".", ",", "+-1", "inf", "nan", "e5", "1e999"})
            EXPECT_THROW(nombre(texte, reglages), FauteExecution) << texte;
    try {
        nombre("d\xE9"
               "but",
               virgule);
        FAIL();
    } catch (const FauteExecution& f) {
        EXPECT_EQ(f.quoi(), "incompatibilité de type : « début »");
    }
}

TEST(Nombres, SeparateurEtranger) {
    for (const char* texte : {"12.50", " .5 ", "-3.", "1.5E3"})
        EXPECT_TRUE(separateurEtranger(texte, virgule)) << texte;
    for (const char* texte : {"12,50", "12", "", ".", "a.b", "12.5::", "1.234,5"})
        EXPECT_FALSE(separateurEtranger(texte, virgule)) << texte;
    EXPECT_TRUE(separateurEtranger("12,50", point));
    EXPECT_FALSE(separateurEtranger("12.50", point));
}

TEST(Nombres, ValeurNEchoueJamais) {
    const struct {
        const char* texte;
        double valeur;
    } cas[] = {{"12.5abc", 12.5}, {"12,5", 12}, {"  -7", -7}, {"", 0},      {"abc", 0}, {"&H1F", 31},
               {"&hFFzz", 255},   {"&H", 0},    {"&HZ", 0},   {"1e999", 0}, {"nan", 0}, {"1e2", 100}};
    for (const auto& c : cas)
        EXPECT_EQ(valeur(c.texte), c.valeur) << c.texte;
}

TEST(Nombres, Couleurs) {
    const struct {
        const char* texte;
        std::uint32_t valeur;
    } cas[] = {
        {"255", 255}, {"&H0", 0}, {"&HFF8040", 0xFF8040}, {" 3289803 ", 3289803}, {"&hffffffff", 0xFFFFFFFF}};
    for (const auto& c : cas)
        EXPECT_EQ(couleur(c.texte), c.valeur) << c.texte;
    for (const char* texte : {"", "rouge", "&H", "&HG", "12a", "4294967296", "&H100000000", "-1", "1,5"})
        EXPECT_THROW(couleur(texte), FauteExecution) << texte;
}

TEST(Nombres, Arrondi) {
    const struct {
        double valeur;
        long entier;
    } cas[] = {{.5, 0},    {1.5, 2},      {2.5, 2},   {-.5, 0},
               {-1.5, -2}, {2.500001, 3}, {-2.4, -2}, {std::nan(""), 0}};
    for (const auto& c : cas)
        EXPECT_EQ(arrondi(c.valeur), c.entier) << c.valeur;
}

TEST(Nombres, Imprimes) {
    const struct {
        float valeur;
        std::string texte;
    } cas[] = {
        {0, " 0 "},
        {-0.f, " 0 "},
        {125.5f, " 125.5 "},
        {.5f, " .5 "},
        {-.5f, "-.5 "},
        {-3, "-3 "},
        {3600, " 3600 "},
        {1e10f, " 1E+10 "},
        {.001f, " .001 "},
        {1e-5f, " 1E-05 "},
        {9999999, " 9999999 "},
        {1e7f, " 1E+07 "},
        {12345678, " 1.234568E+07 "},
        {.01234567f, " 1.234567E-02 "},
        {.1234567f, " .1234567 "},
        {1234.567f, " 1234.567 "},
        {100.05f, " 100.05 "},
        {3.4e38f, " 3.4E+38 "},
        {119.99999f, " 120 "},
    };
    for (const Reglages& reglages : {virgule, point})
        for (const auto& c : cas)
            EXPECT_EQ(imprimer(c.valeur, reglages), sous(c.texte, reglages));
    EXPECT_EQ(imprimerSansBlancs(-12.25f, virgule), "-12,25");
    EXPECT_THROW(imprimer(std::numeric_limits<float>::infinity(), virgule), FauteExecution);
}

TEST(Nombres, Images) {
    const struct {
        double valeur;
        std::string texte;
    } cas[] = {{0, "0.00"},
               {.125, "0.13"},
               {-.125, "-0.13"},
               {-.001, "0.00"},
               {1.005, "1.01"},
               {2.675, "2.68"},
               {9.995, "10.00"},
               {999.995, "1000.00"},
               {12.3, "12.30"},
               {7, "7.00"},
               {.004, "0.00"},
               {.005, "0.01"},
               {.0005, "0.00"},
               {1234567.891, "1234567.89"},
               {12.34f, "12.34"},
               {.0995, "0.10"},
               {1e15, "1000000000000000.00"}};
    for (const Reglages& reglages : {virgule, point})
        for (const auto& c : cas)
            EXPECT_EQ(formatDeuxDecimales(c.valeur, reglages), sous(c.texte, reglages));
    EXPECT_THROW(formatDeuxDecimales(std::nan(""), virgule), FauteExecution);
    EXPECT_EQ(formatEntier(2.5), "3");
    EXPECT_EQ(formatEntier(-2.5), "-3");
    EXPECT_EQ(formatEntier(.4), "0");
    EXPECT_EQ(formatEntier(99.5), "100");
    EXPECT_EQ(formatCode(0), "000");
    EXPECT_EQ(formatCode(42), "042");
    EXPECT_EQ(formatCode(1000), "1000");
    EXPECT_EQ(formatCode(-7), "-007");
}

TEST(Nombres, Heures) {
    const struct {
        double secondes;
        const char* texte;
    } cas[] = {{0, "00:00"},        {59, "00:59"},        {59.5, "01:00"},   {60.5, "01:00"},
               {425, "07:05"},      {3599.4, "59:59"},    {3600, "1:00:00"}, {3725, "1:02:05"},
               {36000, "10:00:00"}, {360000, "100:00:00"}};
    for (const auto& c : cas)
        EXPECT_EQ(HeureTexte(c.secondes), c.texte) << c.secondes;
}

/// Sets environment variables for one test and gives them back.
class Environnement {
  public:
    using Variables = std::vector<std::pair<std::string, std::string>>;
    explicit Environnement(const Variables& valeurs) {
        for (const char* nom : {"LC_ALL", "LC_NUMERIC", "LC_TIME", "LANG"}) {
            const char* avant = std::getenv(nom);
            avant_.emplace_back(nom, avant ? avant : "");
            unsetenv(nom);
        }
        poser(valeurs);
    }
    Environnement(const Environnement&) = delete;
    Environnement& operator=(const Environnement&) = delete;
    ~Environnement() { poser(avant_); }

  private:
    static void poser(const Variables& valeurs) {
        for (const auto& [nom, valeur] : valeurs)
            valeur.empty() ? unsetenv(nom.c_str()) : setenv(nom.c_str(), valeur.c_str(), 1);
    }
    Variables avant_;
};

/// Whether a locale is installed or not, it must come to the same separator.
TEST(ReglagesSysteme, SeparateurDeLaLangue) {
    const struct {
        Environnement::Variables variables;
        char separateur;
    } cas[] = {{{}, '.'},
               {{{"LANG", "C.UTF-8"}}, '.'},
               {{{"LANG", "fr_FR.UTF-8"}}, ','},
               {{{"LANG", "fr_BE@euro"}}, ','},
               {{{"LANG", "en_US.UTF-8"}}, '.'},
               {{{"LANG", "fr_FR.UTF-8"}, {"LC_NUMERIC", "en_GB.UTF-8"}}, '.'},
               {{{"LANG", "fr_FR.UTF-8"}, {"LC_ALL", "C"}}, '.'},
               {{{"LC_ALL", "de_DE.UTF-8"}, {"LC_NUMERIC", "C"}}, ','},
               {{{"LANG", "xx_XX"}}, '.'}};
    for (const auto& c : cas) {
        const Environnement environnement(c.variables);
        const Reglages r = reglagesDuSysteme();
        EXPECT_EQ(r.separateurDecimal, c.separateur)
            << (c.variables.empty() ? "" : c.variables.back().second);
        EXPECT_FALSE(r.formatDate.empty() || r.formatHeure.empty());
    }
    const Environnement francais(Environnement::Variables{{"LC_TIME", "fr_FR.UTF-8"}});
    EXPECT_EQ(reglagesDuSysteme().formatDate, "%d/%m/%Y");
}

} // namespace
} // namespace vermo
