#pragma once
#include "platform/DejaDit.h"
#include "platform/Plateforme.h"
#include "textfile/faute.h"
#include "window/Element.h"
#include "window/Fenetres.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <exception>
#include <functional>
#include <utility>
#include <vector>

namespace vermo {

struct Session;

/// What every window is: without a system frame, moved by its title, faded through its opacity, never outside
/// the screen, and guarded: a fault in a slot, a timer tick or an event becomes one message, and the program
/// goes on.
class Forme : public QWidget {
    Q_OBJECT
  public:
    /// Over `parent`, wherever the window manager would put it: as a dialog, as only those stay in front.
    Forme(const char* nom, Session& session, Plateforme& plateforme, Fenetres& fenetres,
          QWidget* parent = nullptr);

    /// Shows what is asked of this window; without `contenu` what it showed, in front.
    virtual void montrer(const Contenu& contenu);
    /// Something has changed, and stands: the window shows it anew if it shows it at all.
    virtual void surAvis(const Avis&) {}
    /// Holds what was typed and stands in no file.
    virtual bool entamee() const { return false; }

    /// The program may end at once: what was typed and stands in no file is on the disk when this returns.
    virtual void mettreALAbri() {}

    /// What every window's keys and rows do with the history of changes.
    void annulerChangement() { fenetres_.annulerChangement(); }
    void refaireChangement() { fenetres_.refaireChangement(); }
    bool aAnnuler() const { return fenetres_.aAnnuler(); }
    bool aRefaire() const { return fenetres_.aRefaire(); }

    /// Opacity 0 to 255. Kept even where nothing composites windows.
    void Transparence(int alpha);
    int alpha() const { return alpha_; }

    /// Place and size in twips of the screen, brought within it.
    void placer(Rectangle voulu);
    /// Makes the hidden window's part in the system and the memory of its picture, which its first showing
    /// would have to wait for.
    void preparer();
    /// A press on `poignee` moves the window. Several handles may be given.
    void deplacerPar(QWidget* poignee);

    /// Runs `action`; a fault becomes one message. While that message stands, and for 0.3 s after the last
    /// time that the same fault was met, the same fault is not told again: a timer that fails at each tick
    /// must leave the person able to act.
    template <class Action>
    void garder(Action&& action) noexcept {
        try {
            std::forward<Action>(action)();
        } catch (const std::exception& faute) {
            signaler(faute);
        }
    }

  protected:
    /// Names a timer of this window, which guards its ticks.
    void regler(QTimer& timer, const char* nom, int ms, std::function<void()> tic);
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    /// The window manager closes a window without which there is no program.
    void finirPar(QCloseEvent& evenement);

    Session& session_;
    Plateforme& plateforme_;
    Fenetres& fenetres_;

  private:
    void signaler(const std::exception& faute) noexcept;
    void deplacer(QEvent* evenement);

    int alpha_ = 255;
    std::vector<QObject*> poignees_;
    QPoint prise_;         ///< of the press, from the window's corner
    bool glisse_ = false;  ///< moved by hand, where the system can't
    bool signale_ = false; ///< a message stands
    DejaDit derniereFaute_;
    std::chrono::steady_clock::time_point derniereFois_;
};

/// Runs `action` under the guard of the window that `controle` stands in; without one, unguarded.
template <class Action>
void garderPour(QWidget* controle, Action&& action) {
    for (QWidget* parent = controle; parent; parent = parent->parentWidget())
        if (auto* forme = qobject_cast<Forme*>(parent)) return forme->garder(std::forward<Action>(action));
    std::forward<Action>(action)();
}

/// A picture that is pressed: an SVG of the resources, another while it is held, a tooltip that is also its
/// accessible name. Reached by Tab, pressed by Space and Enter; a click leaves the focus where it was. A
/// toggle that is on stands on a lit ground.
class BoutonImage : public QAbstractButton {
    Q_OBJECT
  public:
    BoutonImage(const QString& nom, const QString& icone, const QString& bulle, QWidget* parent);
    void icone(const QString& icone); ///< name under ":/icones/", without its extension
    void iconePressee(const QString& icone);
    void bulle(const QString& bulle); ///< tooltip and accessible name
    /// The icon keeps to the first `largeur` pixels, however wide the button is made; 0: to all of it.
    void caseIcone(int largeur);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    std::string icone_, iconePressee_;
    QSize naturelle_; ///< pixels
    int caseIcone_ = 0;
};

/// Places a widget by its geometry in twips of its parent.
void poser(QWidget* controle, Rectangle cadre);

} // namespace vermo
