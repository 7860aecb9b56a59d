#pragma once
#include "textfile/reglages.h"
#include "textfile/texte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The transcript file (.Rtr): duration, observations, attributes, then the extracts. Bytes to value and
/// back; nothing touches the disk.
namespace vermo::rtr {

constexpr int VARIABLES_MAX = 99;
constexpr std::size_t EXTRAITS_MAX = 9999; ///< in one transcript
using Attributs = std::array<float, VARIABLES_MAX>;

/// A line of the ATTR section.
struct Choix {
    std::uint8_t variable = 1; ///< 1 to 99
    std::uint8_t modalite = 0; ///< 0 to 99
    bool operator==(const Choix&) const = default;
};

/// One extract as its three kinds of lines hold it. `texte` separates lines by one CR, as a rule with a CR at
/// its end.
struct Extrait {
    Texte debut; ///< the field between the marks, a number in the machine's notation
    Texte fin;
    Texte code; ///< three characters after a read; everything up to the line's end when written
    Texte texte;
    bool operator==(const Extrait&) const = default;
};

/// What every text that enters a transcript must pass: no "::", which would be read as an extract's bound,
/// and no NUL. CP1252 is what a Texte is made of. Throws FauteExecution, naming `quoi`, for what a file can't
/// hold. The routines that write here all ask it.
void exigerTexte(std::string_view texte, const std::string& quoi);

/// The lines of a file on which an extract opens and closes, from 1; 0 where there is none.
struct LignesMarques {
    std::uint32_t ouverture = 0;
    std::uint32_t fermeture = 0;
};

/// A transcript as a value. Of a file that was rewritten from such a value, writing `enTete` and the extracts
/// gives the bytes back.
struct Lecture {
    std::string enTete;               ///< the bytes before the first extract's line, line ends included
    std::vector<Extrait> extraits{1}; ///< extract n at index n; index 0 gathers what stands before the first
    std::vector<LignesMarques> lignes{1}; ///< by the same index
};

/// The extracts of a transcript. Empty lines of texts are absorbed. Throws FauteExecution with `fichier` and
/// the line for a mark line without its second "::", extract 10,000 and a NUL byte; `lecture` then holds what
/// was read until there.
void lire(std::string_view octets, const Utf8& fichier, Lecture& lecture);
Lecture lire(std::string_view octets, const Utf8& fichier);

/// What else must hold before a transcript may be rewritten from memory: a duration on the first line,
/// sections that open and close before the first extract, attributes that are numbers, times that are
/// numbers, an end for each extract. Throws FauteExecution with `fichier` and the line for the first of these
/// that doesn't.
void verifier(std::string_view octets, const Lecture& lecture, const Utf8& fichier, const Reglages& reglages);

/// The first time of the file, its duration included, that is written with the separator that `reglages`
/// doesn't use; empty when none is.
Texte tempsEtranger(std::string_view octets, const Lecture& lecture, const Reglages& reglages);

/// What stands before the first extract of a transcript, as a rewrite gives it: the duration, the
/// observations and the attributes that are not 0 in their own form, empty sections at the end where one is
/// missing, all other lines where they stand. Throws FauteExecution for a duration or attributes that are no
/// numbers.
std::string reecrireEnTete(std::string_view octets, const Utf8& fichier, const Reglages& reglages);

/// Which extracts are written: one with a negative start is left out when `sauterNegatifs`, extract number
/// `exclu` in any case (0: none).
struct Selection {
    bool sauterNegatifs = false;
    std::size_t exclu = 0;
};

/// A whole transcript, behind the bytes `enTete`. `extraits[0]` is no extract. Times are written by "0.00";
/// throws FauteExecution for one that is no number.
std::string ecrireApres(std::string enTete, const std::vector<Extrait>& extraits, Selection selection,
                        const Reglages& reglages);

/// What an import writes: the duration and the four markers.
std::string nouveau(float duree, const Reglages& reglages);

/// The transcript with one more extract, whose bounds stand as they are to be written, before the first one
/// with a start strictly greater than `debut`. Every line end becomes CR LF. Throws FauteExecution as `lire`
/// does.
std::string inserer(std::string_view octets, const Extrait& extrait, double debut, const Reglages& reglages,
                    const Utf8& fichier);

/// The file that a first extract creates where there is no transcript: a duration and the extract, no
/// sections. Line ends inside the extract are lone CRs.
std::string creerAvec(float duree, const Extrait& extrait, const Reglages& reglages);

/// The lines of the ATTR section in their order; none without such a section. Throws FauteExecution for a
/// line that is no pair of numbers, a variable outside 1 to 99 or a modality outside 0 to 99.
std::vector<Choix> lireAttributs(std::string_view octets, const Utf8& fichier);

/// Fills in the attributes that are chosen, leaving the others as they are.
void poser(const std::vector<Choix>& choix, Attributs& attributs);

} // namespace vermo::rtr
