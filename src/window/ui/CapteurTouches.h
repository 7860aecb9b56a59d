#pragma once
#include <QLineEdit>
#include <functional>

namespace vermo {

/// How a key moved: down, held until it repeats, or up.
enum class Frappe { Appui, Repetition, Relachement };

/// `TxtCtrl`, the hidden box that keeps the keyboard focus of a window without a text field: every key but
/// Tab passes here on its way to the window's commands, whatever was clicked last.
///
/// Keys that `surTouche` takes (true) leave nothing behind; the others go on as in any field. A repeat is
/// told as one, a release once, when the key is up. A fault goes to the guard of the window, and its key
/// counts as taken.
class CapteurTouches : public QLineEdit {
    Q_OBJECT
  public:
    CapteurTouches(const QString& nomLu, QWidget* fenetre); ///< accessible name

    std::function<bool(const QKeyEvent&, Frappe)> surTouche;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void keyReleaseEvent(QKeyEvent* evenement) override;

  private:
    bool prise(const QKeyEvent& evenement, Frappe frappe);
};

} // namespace vermo
