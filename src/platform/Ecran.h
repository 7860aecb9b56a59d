#pragma once

namespace vermo {

/// The part of a screen that windows may take, in twips (15 to the pixel): where it begins among all screens,
/// and its size. What the task bar takes off the height is told apart, in pixels.
struct ZoneTravail {
    double gauche = 0, haut = 0;
    double largeur = 28800;
    double hauteur = 16200;
    int barreDesTaches = 0;
};

/// Mouse pointers that tell of work under way.
enum class Pointeur { Normal, Sablier, FlecheSablier };

class Ecran {
  public:
    virtual ~Ecran() = default;
    /// Of the screen that is worked on.
    virtual ZoneTravail zoneTravail() const = 0;
    /// The pointer of the whole program, until it is set to Normal again.
    virtual void pointeur(Pointeur pointeur) = 0;
};

} // namespace vermo
