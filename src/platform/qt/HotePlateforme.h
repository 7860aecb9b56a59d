#pragma once
#include "platform/Plateforme.h"
#include "platform/qt/DialoguesQt.h"
#include "platform/qt/EcranQt.h"
#include "platform/qt/EmplacementsQt.h"
#include "platform/qt/HorlogeQt.h"
#include "platform/qt/LanceurQt.h"
#include "platform/qt/LecteurDiffere.h"
#include "platform/qt/ProgressionQt.h"

namespace vermo {

/// The real host: owns what the `Plateforme` refers to. Needs the application object.
class HotePlateforme {
  public:
    /// `sortieAudio` as for LecteurDiffere.
    explicit HotePlateforme(std::string sortieAudio = {})
        : lecteur_(std::move(sortieAudio)), plateforme_{dialogues_, lecteur_,        horloge_,
                                                        lanceur_,   ecran_,          progression_,
                                                        annonces_,  emplacementsQt()} {}
    HotePlateforme(const HotePlateforme&) = delete;
    HotePlateforme& operator=(const HotePlateforme&) = delete;

    Plateforme& plateforme() { return plateforme_; }
    LecteurDiffere& lecteur() { return lecteur_; }
    ProgressionQt& progression() { return progression_; }

  private:
    DialoguesQt dialogues_;
    LecteurDiffere lecteur_;
    HorlogeQt horloge_;
    LanceurQt lanceur_;
    EcranQt ecran_;
    ProgressionQt progression_;
    Annonces annonces_;
    Plateforme plateforme_;
};

} // namespace vermo
