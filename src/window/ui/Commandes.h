#pragma once
#include "window/Commande.h"
#include "window/ui/Forme.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

class QKeyEvent;

namespace vermo {

class CapteurTouches;
class Lien;

/// A method of a window as a table of commands takes it: `agir<&FrmVisu::jouer>`.
template <auto Methode>
struct SurFenetre;
template <class F, void (F::*methode)()>
struct SurFenetre<methode> {
    static void faire(Forme& fenetre) { (static_cast<F&>(fenetre).*methode)(); }
};
template <class F, bool (F::*methode)() const>
struct SurFenetre<methode> {
    static bool faire(const Forme& fenetre) { return (static_cast<const F&>(fenetre).*methode)(); }
};
template <auto Methode>
constexpr auto agir = &SurFenetre<Methode>::faire;

/// The commands of one window: makes their buttons and rows, and hands its keys to them.
///
/// A key that holds in a control goes to its command before the control sees it. The window's own keys come
/// after the focused control has left them: Space and Enter stay a focused button's. Press, release and
/// repeat are told apart; a release acts only for the command that its press reached.
class Commandes : public QObject {
  public:
    Commandes(Forme& fenetre, TableCommandes table);
    /// Those that every window has beside its own: the history of changes.
    static TableCommandes communes();

    std::function<void()> avantBouton; ///< runs before what a button or a row does
    std::function<bool()> enService;   ///< false: no command may be used now

    /// The button or the row of a command, made. Throws FauteExecution when there is no such command.
    BoutonImage* bouton(std::string_view id, QWidget* parent);
    Lien* ligne(std::string_view id, QWidget* parent);
    /// Lets a control that was made elsewhere stand for the command.
    void relier(std::string_view id, QAbstractButton* controle);

    QString bulle(std::string_view id) const;
    QString avecTouches(std::string_view texte) const; ///< see Commande
    QString indices() const;

    /// To be called once the controls stand: from now on the window's keys are heard. Throws FauteExecution
    /// for a key or a control that isn't there.
    void ecouter();
    /// Lets the window's commands have every key of its key catcher; none leaves a trace in it.
    void capter(CapteurTouches& capteur);
    /// Asks of each command whether it may be used, and shows it.
    void actualiser();

    /// Hands a key to the command that it means in `controle`; none: to one of the whole window. True when a
    /// command took it.
    bool presser(const QKeyEvent& evenement, std::string_view controle = {});
    bool relacher(const QKeyEvent& evenement, std::string_view controle = {});

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void ecouter(const QString& nom);
    const Commande& commande(std::string_view id) const;
    const Commande* visee(const QKeyEvent& evenement, std::string_view controle) const;
    bool permise(const Commande& commande) const;
    void faire(const Commande& commande);

    Forme& fenetre_;
    TableCommandes table_;
    std::set<const Commande*> tenues_; ///< their keys are down
    std::vector<std::pair<const Commande*, QPointer<QAbstractButton>>> controles_;
};

} // namespace vermo
