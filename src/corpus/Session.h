#pragma once
#include "formats/EnTeteWav.h"
#include "formats/FichierRtr.h"
#include "platform/Annonces.h"
#include "platform/DejaDit.h"
#include "textfile/empreinte.h"
#include "textfile/fichier.h"
#include "textfile/reglages.h"
#include "textfile/tables.h"
#include "textfile/texte.h"
#include "window/DatesFichier.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The system's shared state: plain values under their own names, one sub-struct a subsystem. No behaviour,
/// no signals; created in `main` and passed by reference.
namespace vermo {

constexpr int ENTRETIENS_MAX = 999;
constexpr int THEMATIQUES_MAX = 999;
constexpr int EXTRAITS_CORPUS_MAX = 999; ///< extracts of one interview in the corpus-wide tables

/// One interview. Filled at each opening of a corpus.
struct Entretien {
    Texte Fichier;   ///< name of the recording with its extension; empty: dropped at the next rewrite
    float Duree = 0; ///< seconds, from the first line of the transcript
    float NbExtraits = 0;
    DateHeure DateAjout;        ///< creation of the recording
    DateHeure DateModif;        ///< last write of the recording
    Texte Observations;         ///< each line followed by a CR
    bool Visible = true;        ///< active: counted and coloured
    float PrcLect = 0;          ///< share listened to, 0 to 1
    std::int32_t Reprise = 0;   ///< whole seconds at which playing stopped; 0: from the start
    float PrcRtr = 0;           ///< sum of the extracts' lengths over Duree
    rtr::Attributs Attributs{}; ///< modality of variable v at index v - 1; 0: no value
    bool operator==(const Entretien&) const = default;
};

/// The state of a file that something in memory was made from.
struct EtatLu {
    Utf8 chemin; ///< full path; empty: none yet
    IdentiteFichier identite;
    std::optional<Empreinte> empreinte{}; ///< of its raw bytes; none: there was no file
    bool operator==(const EtatLu&) const = default;
};

/// One extract in the corpus-wide tables: places in the interview's buffer, in bytes.
struct LigneExtrait {
    std::uint32_t debut = 0, fin = 0, texte = 0, longueurTexte = 0;
    std::uint16_t longueurDebut = 0, longueurFin = 0;
    std::uint8_t longueurThm = 0;
    std::array<char, 3> thm{};                ///< the code itself, so that bars need not look into the buffer
    float secondesDebut = 0, secondesFin = 0; ///< the two times by the locale's conversion
    bool operator==(const LigneExtrait&) const = default;
};

/// The thematic code of a row, at most three characters.
inline std::string_view codeDe(const LigneExtrait& ligne) {
    return {ligne.thm.data(), ligne.longueurThm};
}

/// A recording as the scan found it last.
struct EnregistrementVu {
    Utf8 chemin; ///< full path; empty: none yet
    IdentiteFichier identite;
    DatesDeFichier dates;
    bool operator==(const EnregistrementVu&) const = default;
};

/// The corpus-wide extracts of one interview: its transcript's texts in one buffer, and where each stands.
/// Row n at index n - 1. What else the scan took from that file stands beside them, so that a file that has
/// not changed need not be read again.
struct ExtraitsEntretien {
    std::shared_ptr<const char[]> tampon; ///< shared by the copies of a session; none where there is no row
    std::vector<LigneExtrait> lignes;
    EtatLu lu;       ///< the transcript as the scan read it
    float duree = 0; ///< its first line, seconds
    float somme = 0; ///< lengths of its extracts, seconds
    Texte observations;
    std::optional<std::vector<rtr::Choix>> attributs; ///< none: the file is to be asked
    EnregistrementVu enregistrement;
    DejaDit fauteDite, manqueDit, dureeNulleDite; ///< about this file
    bool operator==(const ExtraitsEntretien&) const = default;
};

struct EtatCorpus {
    Utf8 CheminCorpus; ///< full path of the open corpus; empty until one was chosen
    Utf8 RepCorpus;    ///< its directory, slash included
    Utf8 NomCorpus;
    bool OuvertureDirecte = false;     ///< the opening takes CheminCorpus as it stands, without a dialog
    std::vector<Entretien> Entretiens; ///< slots 1 to NbEntretiens; slot 0 is never used
    std::int16_t NbEntretiens = 0;
    std::int16_t EntretienCourant = 0;              ///< slot shown in FrmVisu; 0: none
    std::vector<Texte> ThmCode, ThmCouleur, ThmNom; ///< rows 1 to NbThm
    float NbThm = 0;
    std::vector<std::int16_t> ThmVisible;    ///< rows 1 to NbThm; 1: shown
    float HauteurEntretien = 0;              ///< twips; 0: computed by the next opening or redraw
    bool TailleReelle = false;               ///< bars in proportion to their durations
    std::vector<ExtraitsEntretien> extraits; ///< by slot, as Entretiens
    std::vector<ExtraitsEntretien>
        anciensExtraits;                ///< of before the reopening, until the next scan takes them
    EtatLu luThematiques, luEntretiens; ///< the corpus file that the rows, and the list, were read from
    bool ouvertureInachevee = false; ///< the tables don't hold what the corpus file holds: it isn't rewritten
    bool TriAPlat = false;
    std::int16_t LigneSource = 0, LigneCible = 0;
    bool DefilementActif = false;
    bool operator==(const EtatCorpus&) const = default;
};

/// The interview window's time state, seconds.
struct EtatAudio {
    double DureeFichier = 0;
    float FacteurZoom = 1; ///< DureeFichier over the span shown
    double DebutZoom = 0, FinZoom = 0, DureeZoom = 0;
    double EchelleVue = 0; ///< twips of Picture1 a second
    EnTeteWav EnteteWav;
    float VolumeLecture = 0;   ///< 0 to 100; 0: not read yet
    double VitesseLecture = 0; ///< 0: not set
    double MarqueDebut = 0;    ///< start marked by the Enter key; 0: none
    bool operator==(const EtatAudio&) const = default;
};

/// A time of the working arrays: what a read found, as it stands and as a number, or, after an edit, the
/// number alone.
struct Temps {
    Texte texte{};                    ///< the field as read; empty after an edit
    std::optional<double> secondes{}; ///< by the locale's conversion; none: the text is no number
    double valeur = 0;                ///< the text by the conversion that knows only the decimal point

    Temps() = default;
    Temps(double secondesEditees) : secondes(secondesEditees) {}
    Temps(Texte lu, const Reglages& reglages);
    bool edite() const { return texte.empty() && secondes; }
    bool operator==(const Temps&) const = default;
};

/// A transcript that a routine reads or writes: whose it is, and its full path.
struct Retranscription {
    int slot = 0; ///< 0: none
    Utf8 chemin{};
    bool operator==(const Retranscription&) const = default;
};

struct EtatTranscription {
    Retranscription source;                      ///< what the arrays were read from, and are saved to
    EtatLu lu;                                   ///< the state of that file
    std::vector<Temps> ExtraitDebut, ExtraitFin; ///< index 0 is no extract
    std::vector<Texte> ExtraitCode, ExtraitTexte;
    float NbExtraits = 0;
    bool lectureEntiere = false;     ///< the arrays hold all that the file held
    bool separateurEtranger = false; ///< the file's times are written with the other decimal separator
    DejaDit signalement;             ///< about the file; forgotten by an opening
    float ExtraitCourant = 0;
    double SaisieDebut = 0, SaisieFin = 0, SaisieDuree = 0;
    bool NouvelExtrait = false;
    bool RetourCorpus = false;
    bool DicteeActive = false, DicteeAuto = false, BoucleDictee = false;
    double PortionDebut = 0;
    std::int16_t PortionFin = 0; ///< whole seconds
    float PortionSecondes = 5;   ///< as the last switching on of the dictation read LblSec
    int LblSec = 5;              ///< its caption
    float Compteur = 0;          ///< seconds since the last key
    bool operator==(const EtatTranscription&) const = default;
};

/// Variables and modalities, slots 0 to 99.
struct EtatDonnees {
    std::array<Texte, 100> VariableNumero, VariableNom;
    std::vector<std::array<Texte, 100>> ModaliteNom; ///< [v][m], empty or 100 rows
    float NbVariables = 0;
    bool operator==(const EtatDonnees&) const = default;
};

/// What becomes of the file that bears a changed file's name and ".$$$".
enum class Temporaire {
    Aucun,   ///< it is left alone
    Reste,   ///< it is written too, with the same bytes, and stays
    Disparu, ///< it is removed in the end
};

/// A change of the corpus's files: what it takes to tell of it, to take it back, and to make it again.
struct Changement {
    struct Fichier {
        Utf8 chemin;
        std::optional<std::string> autre;   ///< the bytes on the other side of the change; none: no file
        std::optional<Empreinte> empreinte; ///< of those that stand on this side; none: no file
        Temporaire temporaire = Temporaire::Aucun;
        bool operator==(const Fichier&) const = default;
    };
    Utf8 nom; ///< "Supprimer l'extrait 12 de Claire"
    std::vector<Fichier> fichiers;
    bool operator==(const Changement&) const = default;
};

/// The changes of the open corpus, the last one at the end of each list.
struct Histoire {
    Utf8 corpus; ///< full path
    std::vector<Changement> faits, defaits;
    bool operator==(const Histoire&) const = default;
};

struct Session {
    Reglages reglages;
    EtatCorpus corpus;
    EtatAudio audio;
    EtatTranscription transcription;
    EtatDonnees donnees;
    Histoire histoire;
    float EtatFondu = 0; ///< the fades' shared counter
    bool operator==(const Session&) const = default;
};

// Counts and numbers that the system keeps as floats, as the whole numbers that they are.
inline int nombreThematiques(const EtatCorpus& corpus) {
    return static_cast<int>(corpus.NbThm);
}
inline int nombreVariables(const EtatDonnees& donnees) {
    return static_cast<int>(donnees.NbVariables);
}
inline int extraitCourant(const EtatTranscription& transcription) {
    return static_cast<int>(transcription.ExtraitCourant);
}
/// The interview in `slot`, 1 to NbEntretiens.
inline Entretien& entretienDe(EtatCorpus& corpus, int slot) {
    return ligneDe(corpus.Entretiens, slot);
}
inline const Entretien& entretienDe(const EtatCorpus& corpus, int slot) {
    return ligneDe(corpus.Entretiens, slot);
}

// The corpus-wide tables by interview slot and extract number from 1; empty behind the last extract.
std::string_view CorpusDebut(const Session& session, int slot, int n);
std::string_view CorpusFin(const Session& session, int slot, int n);
std::string_view CorpusThm(const Session& session, int slot, int n);
std::string_view CorpusTexte(const Session& session, int slot, int n);

/// First row of the thematic table with this code, 0 for none.
int rangThematique(const EtatCorpus& corpus, std::string_view code);

/// The interview as people call it: its recording's name without the extension.
Utf8 nomEntretien(const EtatCorpus& corpus, int slot);

/// Full path of the interview's recording, and of its transcript or other companion ("Rtr", "Bmp"), by the
/// name that really is on the disk when another case is used there.
Utf8 cheminEnregistrement(const Session& session, int slot);
Utf8 cheminCompagnon(const Session& session, int slot, std::string_view extension);

} // namespace vermo
