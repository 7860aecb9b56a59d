#pragma once
#include "platform/Annonces.h"
#include "platform/Dialogues.h"
#include "platform/Ecran.h"
#include "platform/Emplacements.h"
#include "platform/Horloge.h"
#include "platform/Lanceur.h"
#include "platform/LecteurMedia.h"
#include "platform/Progression.h"

namespace vermo {

/// The host, as one value that routines are given. Owns nothing.
struct Plateforme {
    Dialogues& dialogues;
    LecteurMedia& media; ///< the control `Media` of `FrmVisu`
    Horloge& horloge;
    Lanceur& lanceur;
    Ecran& ecran;
    Progression& progression;
    Annonces& annonces;
    Emplacements emplacements;
};

} // namespace vermo
