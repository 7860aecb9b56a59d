#pragma once
#include "window/ui/Toile.h"

namespace vermo {

class Fenetres;
struct Session;

/// `Frm_thm`: the list of thematics. The left button switches one, the right button leaves it alone on.
/// Keys: up, down, Home and End choose one; Space switches it, Shift+Space leaves it alone on.
class ToileThematiques : public Toile {
    Q_OBJECT
  public:
    ToileThematiques(Session& session, Fenetres& fenetres, QWidget* parent);

    void disposer(); ///< lays the list out, from the Session

    std::function<void()> surBascule; ///< before the bars are shown anew

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    bool touche(int touche, bool seule);
    void basculer(int rang, bool seule);

    Session& session_;
    Fenetres& fenetres_;
    int rang_ = 1; ///< chosen by the keys
};

} // namespace vermo
