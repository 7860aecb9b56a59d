#pragma once

namespace vermo {

/// The screen in twips (15 to the pixel), and what the task bar takes off its height, in pixels.
struct ZoneTravail {
    double largeur = 28800;
    double hauteur = 16200;
    int barreDesTaches = 0;
};

/// Mouse pointers that tell of work under way.
enum class Pointeur { Normal, Sablier, FlecheSablier };

class Ecran {
  public:
    virtual ~Ecran() = default;
    virtual ZoneTravail zoneTravail() const = 0;
    /// The pointer of the whole program, until it is set to Normal again.
    virtual void pointeur(Pointeur pointeur) = 0;
};

} // namespace vermo
