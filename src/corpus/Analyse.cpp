#include "corpus/AnalyserEntretiens.h"
#include "formats/Marques.h"
#include "textfile/lignes.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

namespace vermo {
namespace {

/// One pass over a transcript. The buffer is compacted behind the reading: for each extract its start, its
/// code and its text, and behind the text its end. Mark lines are longer than the fields they leave, so what
/// is written never reaches what is still to be read.
class Analyseur {
  public:
    Analyseur(std::string octets, const Reglages& reglages, const Utf8& fichier)
        : tampon_(std::move(octets)), lignes_(tampon_), reglages_(reglages), fichier_(fichier) {}

    LectureRtr lire() {
        LectureRtr resultat;
        ExtraitsEntretien& extraits = resultat.extraits;
        try {
            refuserTropGrand();
            rangs_.reserve(std::min<std::size_t>(tampon_.size() / 256, EXTRAITS_CORPUS_MAX));
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
        if (tampon_.size() > std::numeric_limits<std::uint32_t>::max())
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
        Texte observations;
        std::string_view ligne;
        if (!lignes_.jusqua(rtr::OBS)) {
            lignes_ = Lignes(tampon_);
            return observations;
        }
        while (lignes_.suivante(ligne) && !contient(ligne, rtr::FIN_OBS)) {
            refuserNul(ligne, lieu());
            if (!ligne.empty()) observations.append(ligne) += CR;
        }
        return observations;
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
        std::memmove(tampon_.data() + place, octets.data(), octets.size());
        ecrit_ += octets.size();
        return static_cast<std::uint32_t>(place);
    }

    /// Room is given back only where most of the file was something else than extracts.
    std::shared_ptr<const Texte> tamponReduit() {
        tampon_.resize(ecrit_);
        if (ecrit_ < tampon_.capacity() / 2) tampon_.shrink_to_fit();
        return std::make_shared<const Texte>(std::move(tampon_));
    }

    std::string tampon_;
    std::size_t ecrit_ = 0;
    Lignes lignes_;
    const Reglages& reglages_;
    const Utf8& fichier_;
    std::vector<LigneExtrait> rangs_;
    Texte fin_;
    double somme_ = 0;
};

} // namespace

LectureRtr analyser(std::string octets, const Reglages& reglages, const Utf8& fichier) {
    return Analyseur(std::move(octets), reglages, fichier).lire();
}

} // namespace vermo
