#include "audio/Onde.h"

#include "textfile/chemins.h"
#include "textfile/faute.h"
#include "textfile/nombres.h"
#include "textfile/tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace vermo {

namespace {

constexpr std::size_t TAILLE_ENTETE = 44;
constexpr std::size_t TAILLE_DEBUT = 255;
constexpr long PAS_AVANCE = 360;
constexpr long POINTS_ANNONCES = 256;

std::int16_t echantillon16(const unsigned char* octets) {
    return static_cast<std::int16_t>(octets[0] | octets[1] << 8);
}

std::int32_t entier32(const std::array<unsigned char, 4>& octets) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 4; i-- > 0;)
        valeur = valeur << 8 | octets[i];
    return static_cast<std::int32_t>(valeur);
}

} // namespace

bool estWav(const Utf8& nom) {
    return extension3(nom) == "WAV";
}

EnTeteWav LireEnteteWav(const Utf8& nom, Dialogues& dialogues) {
    if (!fichierExiste(nom) || !estWav(nom)) {
        dialogues.demander(
            {.texte = "Le fichier spécifié ne peut être ouvert (Format non traité ou fichier inexistant).",
             .icone = Icone::Critique});
        return {};
    }
    return sonderEnteteWav(nom);
}

EnTeteWav sonderEnteteWav(const Utf8& nom) {
    std::array<char, TAILLE_ENTETE> octets{};
    std::size_t lus = 0;
    try {
        lus = FichierOnde(nom).lire(1, octets.data(), octets.size());
    } catch (const FauteExecution&) {
        return {};
    }
    return lireEnTeteWav({octets.data(), lus});
}

EnTeteWav avecDefauts(EnTeteWav entete) {
    if (entete.NbCanaux == 0) entete.NbCanaux = 1;
    if (entete.BitsParEchantillon == 0) entete.BitsParEchantillon = 16;
    return entete;
}

std::size_t FichierOnde::lire(std::int64_t position, void* octets, std::size_t taille) const noexcept {
    return position < 1 ? 0 : source_.lireA(position - 1, static_cast<char*>(octets), taille);
}

void FichierOnde::annoncer(std::int64_t position, std::size_t taille) const noexcept {
    if (position >= 1) source_.annoncer(position - 1, taille);
}

LieuDonnees localiserDonnees(const FichierOnde& fichier) {
    std::array<char, TAILLE_DEBUT> DebutFichier{};
    const std::size_t lus = fichier.lire(1, DebutFichier.data(), DebutFichier.size());
    const std::size_t trouve = std::string_view(DebutFichier.data(), lus).find("data");
    const std::int64_t p = trouve == std::string_view::npos ? 0 : static_cast<std::int64_t>(trouve) + 1;

    LieuDonnees lieu{.PosDonnees = p + 4};
    std::array<unsigned char, 4> taille{};
    fichier.lire(lieu.PosDonnees, taille.data(), taille.size());
    lieu.TailleData = entier32(taille);
    return lieu;
}

namespace {

constexpr std::int16_t PCM = 1;

/// Plain PCM, or the extensible form of it, which names the samples' form in a field of its own.
bool estPcm(const EnTeteWav& entete, std::string_view debut) {
    constexpr std::int16_t extensible = -2;
    constexpr std::size_t sousFormat = 44;
    if (entete.Format != extensible) return entete.Format == PCM;
    return debut.size() > sousFormat && debut[sousFormat] == PCM;
}

/// The samples that the file says to hold, and holds.
bool tailleTenue(const LieuDonnees& lieu, std::int64_t taille) {
    return lieu.TailleData > 0 &&
           lieu.PosDonnees + 3 + lieu.TailleData <= taille + static_cast<std::int64_t>(TAILLE_ENTETE);
}

Utf8 causeRefus(const EnTeteWav& entete, std::string_view debut, const LieuDonnees& lieu,
                std::int64_t taille) {
    if (entete.Riff != "RIFF" || entete.Wave != "WAVE") return "ce n'est pas un fichier WAV, malgré son nom";
    if (entete.Fmt != "fmt ") return "un autre bloc précède « fmt » dans le fichier";
    if (!estPcm(entete, debut))
        return "le son n'est pas en PCM (format " +
               std::to_string(static_cast<std::uint16_t>(entete.Format)) + ")";
    if (entete.BitsParEchantillon != 8 && entete.BitsParEchantillon != 16)
        return "le son est en " + std::to_string(entete.BitsParEchantillon) + " bits, ni 8 ni 16";
    if (debut.find("data") == std::string_view::npos)
        return "« data » n'est pas dans les " + std::to_string(TAILLE_DEBUT) + " premiers octets du fichier";
    if (entete.NbCanaux < 1) return "le fichier dit n'avoir aucun canal";
    if (!tailleTenue(lieu, taille)) return "le fichier n'a pas la taille qu'il annonce";
    return {};
}

} // namespace

Utf8 refusOnde(const FichierOnde& fichier) {
    std::array<char, TAILLE_DEBUT> octets{};
    const std::string_view debut(octets.data(), fichier.lire(1, octets.data(), octets.size()));
    const Utf8 cause = causeRefus(lireEnTeteWav(debut), debut, localiserDonnees(fichier), fichier.taille());
    return cause.empty() ? cause : "La forme d'onde ne peut pas être dessinée : " + cause + ".";
}

PasLecture pasDeLecture(const LieuDonnees& lieu, const EnTeteWav& entete, const Empan& empan, long largeur) {
    constexpr double PAS_MAX = 1e10; // longer than any file: the second point lies behind its end
    const double pas =
        borner(lieu.TailleData * empan.part / entete.NbCanaux / static_cast<double>(largeur), PAS_MAX);
    PasLecture resultat;
    resultat.PasOctets = static_cast<std::int64_t>(std::trunc(pas)) * entete.NbCanaux;
    resultat.PosDonnees = arrondi(static_cast<double>(lieu.PosDonnees) + 4 + lieu.TailleData * empan.debut);
    if (entete.BitsParEchantillon == 16) {
        if (resultat.PasOctets % 2 != 0) ++resultat.PasOctets;
        if (resultat.PosDonnees % 2 == 0) ++resultat.PosDonnees;
    }
    return resultat;
}

namespace {

/// Reads a few bytes at rising positions: points that lie close together share one positioned read.
class LectureSerree {
  public:
    LectureSerree(const FichierOnde& fichier, std::int64_t pas) : fichier_(fichier), serree_(pas <= 512) {}

    /// What is to be read later: the disk fetches many points at once, or one after the other if it is asked
    /// for them one by one. Points that lie close together come in blocks, which the system reads ahead.
    void annoncer(std::int64_t position, std::size_t taille) const {
        if (!serree_) fichier_.annoncer(position, taille);
    }

    std::size_t lire(std::int64_t position, unsigned char* octets, std::size_t taille) {
        if (!serree_) return fichier_.lire(position, octets, taille);
        const auto fin = static_cast<std::int64_t>(taille) + position;
        if (position < debut_ || fin > debut_ + static_cast<std::int64_t>(lus_)) {
            debut_ = position;
            lus_ = fichier_.lire(position, bloc_.data(), bloc_.size());
        }
        const std::size_t place = static_cast<std::size_t>(position - debut_);
        const std::size_t pris = std::min(taille, lus_ - std::min(lus_, place));
        std::copy_n(bloc_.data() + place, pris, octets);
        return pris;
    }

  private:
    const FichierOnde& fichier_;
    bool serree_;
    std::array<unsigned char, 4096> bloc_;
    std::int64_t debut_ = 0;
    std::size_t lus_ = 0;
};

} // namespace

void PointsOnde::allouer(std::size_t nombre) {
    points.assign(nombre, 0);
    octets.assign(nombre, 0);
}

void lirePoints(const FichierOnde& fichier, const EnTeteWav& entete, const Empan& empan, long largeur,
                PointsOnde& points, const AvanceLecture& avance) {
    const auto rangees = 2 * static_cast<std::size_t>(std::max(largeur, 0L));
    points.points.resize(std::max(points.points.size(), rangees));
    points.octets.resize(std::max(points.octets.size(), rangees));

    const PasLecture pas = pasDeLecture(localiserDonnees(fichier), entete, empan, largeur);
    const bool seize = entete.BitsParEchantillon == 16;
    const std::size_t taille = seize ? 2 : 1;
    const auto ranger = [&](long i, const unsigned char* octets) {
        if (seize)
            ligneDe(points.points, i) = echantillon16(octets);
        else
            ligneDe(points.octets, i) = *octets;
    };
    LectureSerree lecture(fichier, pas.PasOctets);
    const auto place = [&](long i) { return pas.PosDonnees + i * pas.PasOctets; };
    long annonces = 0;
    for (long i = 0; i <= largeur - 2; ++i) {
        for (; annonces <= std::min(i + POINTS_ANNONCES, largeur - 2); ++annonces)
            lecture.annoncer(place(annonces), 2 * taille);
        std::array<unsigned char, 4> octets{};
        const std::size_t lus = lecture.lire(place(i), octets.data(), 2 * taille);
        if (lus >= taille) ranger(i, octets.data());
        if (lus == 2 * taille) ranger(largeur + i, octets.data() + taille);
        if (avance && i % PAS_AVANCE == 0) avance(i);
    }
}

} // namespace vermo
