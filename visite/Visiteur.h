#pragma once
#include "window/ui/Toile.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

namespace vermo::visite {

/// A step that didn't do what it should.
struct Manque : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Someone at the screen: looks for windows, clicks, drags, types, answers the dialogs that open meanwhile,
/// and photographs the screen after each step. Waits for what is to be seen, and gives up after 20 seconds.
class Visiteur {
  public:
    explicit Visiteur(QString dossierDesPhotos);

    /// Says the step's name; its photograph is taken at the end of `agir`.
    void etape(const char* nom, const std::function<void()>& agir);
    void photographier(const QString& nom);
    void attendre(const char* quoi, const std::function<bool()>& vrai);

    /// The visible window of this object name.
    QWidget& fenetre(const char* nom);
    template <class T = QWidget>
    T& controle(const char* fenetreNommee, const char* nom) {
        T* trouve = fenetre(fenetreNommee).template findChild<T*>(QLatin1String(nom));
        if (trouve == nullptr) throw Manque(std::string("no control ") + nom + " in " + fenetreNommee);
        return *trouve;
    }

    void cliquer(QWidget& controle);
    /// Presses the visible item of this control and index.
    void cliquer(Toile& toile, Controle controle, int index, bool deuxFois = false);
    /// From one place to another of a canvas, in pixels.
    void glisser(QWidget& toile, QPoint de, QPoint vers);
    static void taper(QWidget& controle, const QString& texte);
    void touche(QWidget& controle, Qt::Key touche, Qt::KeyboardModifiers avec = {});

    /// What to do with the next dialog that opens; answered in order.
    void prevoir(std::function<void(QWidget&)> reponse);
    /// A button of a message box by its standard role, after a photograph of it.
    void prevoirBouton(const char* photo, int boutonStandard);
    void prevoirFichier(const QString& chemin);
    /// Fails while an answer is left over.
    void toutEstRepondu() const;

    /// The painted item in the canvas, in pixels.
    static QRect place(const Toile& toile, Controle controle, int index);

  private:
    void repondre();

    QString dossier_;
    int numero_ = 0;
    std::deque<std::function<void(QWidget&)>> reponses_;
    QTimer veille_;
    QWidget* repondu_ = nullptr;
    std::string manque_; ///< a failure inside a dialog, told once the dialog has closed
};

} // namespace vermo::visite
