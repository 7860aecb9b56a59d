#include "corpus/AnalyserEntretiens.h"
#include "formats/Marques.h"
#include "textfile/lignes.h"
#include "textfile/memoire.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

namespace vermo {
namespace {

/// One pass over a transcript. What stays of it goes into one buffer: for each extract its start, its code
/// and its text, and behind the text its end. Mark lines are longer than the fields they leave, so that it
/// never takes more room than the file.
class Analyseur {
  public:
    Analyseur(std::string_view octets, const Reglages& reglages, const Utf8& fichier)
        : octets_(octets), lignes_(octets), reglages_(reglages), fichier_(fichier) {}

    LectureRtr lire() {
        LectureRtr resultat;
        ExtraitsEntretien& extraits = resultat.extraits;
        try {
            refuserTropGrand();
            preparerTampon();
            rangs_.reserve(std::min<std::size_t>(octets_.size() / 256, EXTRAITS_CORPUS_MAX));
            peuplerMemoire(rangs_.data(), rangs_.capacity() * sizeof(LigneExtrait));
            extraits.duree = lireDuree();
            extraits.observations = lireObservations();
            refuserOuvert(rtr::parcourir(lignes_, fichier_, *this));
        } catch (const FauteExecution& faute) {
            resultat.faute = faute;
        }
        rangerFin();
        extraits.somme = static_cast<float>(somme_);
        if (rangs_.size() < rangs_.capacity() / 2) rangs_.shrink_to_fit();
        extraits.lignes = std::move(rangs_);
        extraits.tampon = tamponReduit();
        return resultat;
    }

    // What the walk along the marks calls.

    /// What stands before the first extract belongs to none.
    void texte(std::string_view ligne) {
        if (rangs_.empty()) return;
        ecrire(ligne);
        tampon_[ecrit_++] = CR;
    }

    void ouvrir(const rtr::Marque& marque, std::string_view, const Lieu& lieu) {
        if (rangs_.size() == EXTRAITS_CORPUS_MAX)
            lieu.refuser("Un entretien du corpus tient au plus " + std::to_string(EXTRAITS_CORPUS_MAX) +
                         " extraits.");
        LigneExtrait rang;
        rang.secondesDebut = temps(marque.temps, "Le début", lieu);
        rangerFin();
        const std::string_view code = marque.suite.substr(0, 3);
        rang.debut = ecrire(marque.temps);
        rang.longueurDebut = static_cast<std::uint16_t>(marque.temps.size());
        code.copy(rang.thm.data(), rang.thm.size());
        rang.longueurThm = static_cast<std::uint8_t>(code.size());
        rang.texte = static_cast<std::uint32_t>(ecrit_);
        rangs_.push_back(rang);
    }

    void fermer(const rtr::Marque& marque, std::string_view, const Lieu& lieu) {
        LigneExtrait& rang = rangs_.back();
        rang.secondesFin = temps(marque.temps, "La fin", lieu);
        rang.longueurFin = static_cast<std::uint16_t>(marque.temps.size());
        fin_ = marque.temps;
        somme_ += rang.secondesFin - rang.secondesDebut;
    }

  private:
    Lieu lieu() const { return {fichier_, lignes_.numero()}; }

    void refuserTropGrand() const {
        if (octets_.size() > std::numeric_limits<std::uint32_t>::max())
            throw FauteExecution("La retranscription dépasse 4 Go.", fichier_);
    }

    float temps(std::string_view champ, const char* quoi, const Lieu& lieu) const {
        const auto lu = static_cast<float>(rtr::tempsOuFaute(champ, reglages_, quoi, lieu));
        if (!std::isfinite(lu) || champ.size() > std::numeric_limits<std::uint16_t>::max())
            lieu.refuser(std::string(quoi) + " est hors de toute mesure.");
        return lu;
    }

    float lireDuree() {
        std::string_view ligne;
        if (!lignes_.suivante(ligne)) throw FauteExecution("Fichier vide : la durée manque.", fichier_, 1);
        return static_cast<float>(rtr::dureeOuFaute(ligne, reglages_, lieu()));
    }

    /// Without the section the reading starts again from the first line.
    Texte lireObservations() {
        if (!lignes_.jusqua(rtr::OBS)) {
            lignes_ = Lignes(octets_);
            return {};
        }
        return rtr::lireObservations(lignes_, [this](std::string_view ligne) { refuserNul(ligne, lieu()); });
    }

    /// An extract's end waits until its text is complete: lines may follow the closing one.
    void rangerFin() {
        if (rangs_.empty()) return;
        LigneExtrait& rang = rangs_.back();
        rang.longueurTexte = static_cast<std::uint32_t>(ecrit_) - rang.texte;
        rang.fin = ecrire(fin_);
        fin_.clear();
    }

    void refuserOuvert(std::size_t ouverture) const {
        if (ouverture != 0)
            Lieu{fichier_, ouverture}.refuser("L'extrait " + std::to_string(rangs_.size()) +
                                              " n'a pas de ligne de fin : la retranscription est coupée.");
    }

    std::uint32_t ecrire(std::string_view octets) {
        const std::size_t place = ecrit_;
        std::memcpy(tampon_.get() + place, octets.data(), octets.size());
        ecrit_ += octets.size();
        return static_cast<std::uint32_t>(place);
    }

    void preparerTampon() {
        tampon_ = std::make_shared_for_overwrite<char[]>(octets_.size());
        peuplerMemoire(tampon_.get(), octets_.size());
    }

    /// Room is given back only where most of the file was something else than extracts.
    std::shared_ptr<const char[]> tamponReduit() {
        if (!tampon_ || ecrit_ >= octets_.size() / 2) return std::move(tampon_);
        const auto reduit = std::make_shared_for_overwrite<char[]>(ecrit_);
        std::memcpy(reduit.get(), tampon_.get(), ecrit_);
        return reduit;
    }

    std::string_view octets_;
    Lignes lignes_;
    const Reglages& reglages_;
    const Utf8& fichier_;
    std::shared_ptr<char[]> tampon_;
    std::size_t ecrit_ = 0;
    std::vector<LigneExtrait> rangs_;
    Texte fin_;
    double somme_ = 0;
};

} // namespace

LectureRtr analyser(std::string_view octets, const Reglages& reglages, const Utf8& fichier) {
    return Analyseur(octets, reglages, fichier).lire();
}

} // namespace vermo
