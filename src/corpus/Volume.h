#pragma once
#include "corpus/Session.h"
#include "platform/Plateforme.h"

namespace vermo {

/// The volume that was chosen, 0 to 100: VolumeLecture and the player's.
inline void reglerVolume(Session& session, Plateforme& plateforme, int part) {
    session.audio.VolumeLecture = static_cast<float>(part);
    plateforme.media.volume(part);
    plateforme.annonces.annoncer({Sujet::Volume});
}

} // namespace vermo
