#pragma once
#include "window/ui/ToileDefilante.h"

namespace vermo {

class Fenetres;
struct Session;

/// `Frm_thm`: the list of thematics. The left button switches one, the right button leaves it alone on.
/// What keys do with the current one is the window's commands'.
class ToileThematiques : public ToileDefilante {
    Q_OBJECT
  public:
    ToileThematiques(Session& session, Fenetres& fenetres, QWidget* parent);

    void redessiner();                ///< shows the thematics anew, from the Session
    void basculerChoisie(bool seule); ///< for the window's commands; there must be a current one

    int courant() const override { return rang_; }
    QString nomDeLigne(int rang) const override;

    std::function<void()> surBascule; ///< before the bars are shown anew

  protected:
    void noterCourant(int rang) override;
    Twips hauteurSurface() const override { return hauteurTwips(); } ///< the rows share it
    void disposerPartie(Elements& liste, const Rectangle& partie) const override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void basculer(int rang, bool seule);

    Session& session_;
    Fenetres& fenetres_;
    int rang_ = 1;
};

} // namespace vermo
