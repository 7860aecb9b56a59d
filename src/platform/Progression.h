#pragma once

namespace vermo {

constexpr const char* ATTENTE_DUREE = "La durée du fichier se fait attendre...";

/// How far long work has come, and the window kept alive meanwhile.
class Progression {
  public:
    virtual ~Progression() = default;
    /// Shows at once that there is something to wait for, before it is known how much.
    virtual void montrer() {}
    virtual void debut(long minimum, long maximum) = 0;
    /// Shows the value and lets the windows repaint. Cheap enough to be called at every step of a scan.
    virtual void avance(long valeur) = 0;
    virtual void fin() = 0;
    /// Lets the interface run while something is waited for; `attente` says what, to the person. False when
    /// they asked to give up.
    virtual bool patienter(const char* attente) = 0;
};

} // namespace vermo
