#pragma once
#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <fstream>
#include <string>

/// Waits for the first paint of a window, prints the process's proportional memory (kB) and ends.
class PremierDessin : public QObject {
  public:
    explicit PremierDessin(QWidget* fenetre) : QObject(fenetre) { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        const auto* peint = qobject_cast<QWidget*>(objet);
        if (evenement->type() == QEvent::Paint && !vu_ && peint != nullptr && peint->window() == parent()) {
            vu_ = true;
            QTimer::singleShot(0, qApp, [] {
                std::ifstream memoire("/proc/self/smaps_rollup");
                for (std::string ligne; std::getline(memoire, ligne);)
                    if (ligne.starts_with("Pss:")) std::puts(ligne.c_str());
                std::fflush(stdout);
                QApplication::quit();
            });
        }
        return QObject::eventFilter(objet, evenement);
    }

  private:
    bool vu_ = false;
};
