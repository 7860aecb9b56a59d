#pragma once
#include "window/Element.h"

/// What the windows show of the volume, 0 to 100.
namespace vermo::jauge {

/// The gauge: a wedge that rises to the right, as wide as the volume, one stroke a volume step.
Dessin DessinerVolume(float VolumeLecture, Twips largeur, Twips hauteur);

/// Top of ImgCurseur in the volume panel: loudest on top.
Twips hautImgCurseur(float VolumeLecture);
/// Its inverse, held between 0 and 100.
int volumeImgCurseur(Twips haut);

} // namespace vermo::jauge
