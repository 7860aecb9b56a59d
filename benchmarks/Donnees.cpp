#include "Donnees.h"

#include "textfile/fichier.h"
#include "textfile/reglages.h"
#include "window/Bitmap8.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

namespace bancs {

namespace fs = std::filesystem;

namespace {

/// A small generator of fixed results, whatever the library.
class Hasard {
  public:
    explicit Hasard(std::uint32_t graine) : etat_(graine) {}
    std::uint32_t operator()() {
        etat_ ^= etat_ << 13;
        etat_ ^= etat_ >> 17;
        etat_ ^= etat_ << 5;
        return etat_;
    }
    unsigned sous(unsigned borne) { return (*this)() % borne; }

  private:
    std::uint32_t etat_;
};

void ajouter32(std::string& octets, std::uint32_t valeur) {
    for (int i = 0; i < 4; ++i)
        octets += char(valeur >> 8 * i & 255);
}
void ajouter16(std::string& octets, std::uint16_t valeur) {
    octets += char(valeur & 255);
    octets += char(valeur >> 8);
}

std::string enTete(std::uint32_t taille, std::uint16_t canaux, std::uint32_t frequence, std::uint16_t bits) {
    std::string octets = "RIFF";
    ajouter32(octets, taille + 36);
    octets += "WAVEfmt ";
    ajouter32(octets, 16);
    ajouter16(octets, 1);
    ajouter16(octets, canaux);
    ajouter32(octets, frequence);
    ajouter32(octets, frequence * canaux * bits / 8);
    ajouter16(octets, std::uint16_t(canaux * bits / 8));
    ajouter16(octets, bits);
    octets += "data";
    ajouter32(octets, taille);
    return octets;
}

std::string deuxDecimales(double valeur) {
    char texte[32];
    std::snprintf(texte, sizeof texte, "%.2f", valeur);
    for (char& c : texte)
        if (c == '.') c = vermo::reglagesDuSysteme().separateurDecimal;
    return texte;
}

const char* const MOTS[] = {"alors",    "maison",  "travail", "parce", "que",    "famille",
                            "toujours", "village", "mère",    "avait", "quand",  "on",
                            "était",    "dans",    "comme",   "voilà", "années", "usine",
                            "chez",     "nous",    "puis",    "petit", "école",  "beaucoup"};

std::string enCp1252(const char* utf8) {
    return vermo::depuisUtf8(utf8);
}

std::string texteDe(Hasard& hasard, const std::vector<std::string>& mots) {
    std::string texte;
    for (int i = 0; i < 60; ++i) {
        texte += mots[hasard.sous(unsigned(mots.size()))];
        texte += i % 15 == 14 ? "\r\n" : " ";
    }
    return texte;
}

std::string retranscription(Hasard& hasard, int extraits, const std::vector<std::string>& mots) {
    std::string octets = " 3600 \r\n<|OBS|\r\n>|OBS|\r\n<|ATTR|\r\n1,1\r\n>|ATTR|\r\n";
    const double pas = 3590.0 / extraits;
    for (int i = 0; i < extraits; ++i) {
        octets += "::" + deuxDecimales(i * pas) + "::00" + char('0' + hasard.sous(8)) + "\r\n";
        octets += texteDe(hasard, mots);
        octets += "::" + deuxDecimales(i * pas + pas * 0.9) + "::\r\n";
    }
    return octets;
}

/// As large as the interview window keeps it on a screen of 1920 x 1080.
std::string vueDe(Hasard& hasard) {
    vermo::Bitmap8 image(1651, 60, {0, 0x928C8A}, 1);
    for (int x = 0; x < 1651; ++x)
        image.colonne(x, 30 - int(hasard.sous(28)), 30 + int(hasard.sous(28)), 0);
    return vermo::ecrireBmp(image);
}

void ecrire(const fs::path& chemin, const std::string& octets) {
    std::ofstream(chemin, std::ios::binary).write(octets.data(), std::streamsize(octets.size()));
}

} // namespace

std::string ondeDe(const std::string& donnees, int heures) {
    const fs::path chemin = fs::path(donnees) / ("onde" + std::to_string(heures) + "h.wav");
    const std::uint32_t trames = std::uint32_t(heures) * 3600u * 44100u;
    const std::uint32_t taille = trames * 4;
    if (fs::exists(chemin) && fs::file_size(chemin) == taille + 44ull) return chemin;
    std::ofstream sortie(chemin, std::ios::binary);
    sortie << enTete(taille, 2, 44100, 16);
    Hasard hasard(20091104);
    std::vector<std::int16_t> bloc(2 * 44100);
    for (int seconde = 0; seconde < heures * 3600; ++seconde) {
        const double houle = 0.2 + 0.8 * std::abs(std::sin(seconde / 7.0));
        for (auto& echantillon : bloc)
            echantillon = std::int16_t((int(hasard.sous(65535)) - 32767) * houle);
        sortie.write(reinterpret_cast<const char*>(bloc.data()), std::streamsize(bloc.size() * 2));
    }
    return chemin;
}

namespace {

std::vector<std::string> motsEnCp1252() {
    std::vector<std::string> mots;
    for (const char* mot : MOTS)
        mots.push_back(enCp1252(mot));
    return mots;
}

/// A corpus file up to its interviews: eight thematics, one variable.
std::string debutDeCorpus(Hasard& hasard) {
    std::string liste = "Banc\r\n<|THEM|\r\n" + enCp1252("000,&H0, Pas de thématique\r\n");
    for (int i = 1; i < 8; ++i)
        liste += "00" + std::to_string(i) + "," + std::to_string(hasard.sous(0xFFFFFF)) + ", Theme " +
                 std::to_string(i) + "\r\n";
    return liste + ">|THEM|\r\n<|POS|\r\n1,Sexe\r\n>|POS|\r\n<|DIC|\r\n1,1,Femme\r\n>|DIC|\r\n<|ENTR|\r\n";
}

} // namespace

std::string corpusDe(const std::string& donnees, int entretiens, int extraits) {
    const fs::path rep =
        fs::path(donnees) / ("corpus" + std::to_string(entretiens) + "x" + std::to_string(extraits));
    const fs::path crp = rep / "Banc.Crp";
    if (fs::exists(crp)) return crp;
    fs::create_directories(rep);
    Hasard hasard(19701301);
    const std::vector<std::string> mots = motsEnCp1252();
    std::string liste = debutDeCorpus(hasard);
    const std::string onde = enTete(8000, 1, 8000, 8) + std::string(8000, char(128));
    for (int i = 1; i <= entretiens; ++i) {
        const std::string nom = "Entretien" + std::to_string(i);
        liste += nom + ".wav\r\n";
        ecrire(rep / (nom + ".wav"), onde);
        ecrire(rep / (nom + ".Rtr"), retranscription(hasard, extraits, mots));
        if (i <= 40) ecrire(rep / (nom + ".Bmp"), vueDe(hasard));
    }
    ecrire(crp, liste + ">|ENTR|\r\n");
    return crp;
}

std::string corpusDUneHeure(const std::string& donnees) {
    const fs::path rep = fs::path(donnees) / "corpus1h";
    fs::create_directories(rep);
    const fs::path onde = ondeDe(donnees, 1);
    if (!fs::exists(rep / "Entretien.wav")) fs::create_hard_link(onde, rep / "Entretien.wav");
    fs::remove(rep / "Entretien.Bmp");
    Hasard hasard(18500212);
    ecrire(rep / "Entretien.Rtr", retranscription(hasard, 120, motsEnCp1252()));
    ecrire(rep / "Banc.Crp", debutDeCorpus(hasard) + "Entretien.wav\r\n>|ENTR|\r\n");
    return rep / "Banc.Crp";
}

} // namespace bancs
