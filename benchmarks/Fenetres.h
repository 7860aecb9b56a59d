#pragma once
#include "app/Demarrage.h"
#include "window/ui/Toile.h"

#include <QAbstractButton>
#include <QString>
#include <functional>
#include <string>

/// The program's own windows, driven as a person drives them: by the names of their controls.
namespace bancs {

/// The window of that name; throws std::runtime_error when it isn't there.
QWidget& fenetre(const char* nom);

/// A control of a window; throws std::runtime_error when it isn't there.
template <class T = QAbstractButton>
T& controle(QWidget& fenetre, const char* nom) {
    if (auto* trouve = fenetre.findChild<T*>(QLatin1String(nom))) return *trouve;
    throw std::runtime_error(std::string("no control ") + nom);
}

/// Lets the event loop run, asleep as in the program: waiting wakes nobody but at its end.
void laisser(int ms);

/// Seconds from the call of `action` to the first paint of a widget of that name that begins within it or
/// after it. Throws std::runtime_error when nothing is painted for 30 s.
double jusquAuDessin(const char* nom, const std::function<void()>& action);

/// A bare Qt window opened second in the running process, to its first paint.
double fenetreNue(QSize taille);

/// Nothing open, `crp` at the head of the recent list and a 1920 x 1080 corpus window to come.
void fermerCorpus(vermo::Programme& programme, const std::string& crp);

/// A corpus open in the program's own windows, at 1920 x 1080, until the end of this object.
class CorpusOuvert {
  public:
    CorpusOuvert(vermo::Programme& programme, const std::string& crp);
    ~CorpusOuvert();
    CorpusOuvert(const CorpusOuvert&) = delete;
    CorpusOuvert& operator=(const CorpusOuvert&) = delete;

    QWidget& corpus() { return fenetre("FrmCorpus"); }
    vermo::Toile& rangees() { return controle<vermo::Toile>(corpus(), "Frm_entretiens"); }

    double premiere = 0; ///< seconds of the first opening, whole, to the painted window
    /// Seconds of one reload, whole, to the painted window.
    double ouvrir();

  private:
    vermo::Programme& programme_;
};

/// One measure many times, the first fifth left out: the median.
double medianeDe(int fois, const std::function<double(int)>& mesure);

} // namespace bancs
