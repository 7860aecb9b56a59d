#pragma once
#include "platform/Progression.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>

class QDialog;

namespace vermo {

/// Long work shown on a bar of the window that does it, short work not at all; long waits in a small box with
/// "Annuler".
class ProgressionQt final : public Progression {
  public:
    ProgressionQt();
    ~ProgressionQt() override;

    /// The bar to show and hide; it may go away before this object. Null: none.
    void brancher(QProgressBar* barre) { barre_ = barre; }

    void montrer() override;
    void debut(long minimum, long maximum) override;
    void avance(long valeur) override;
    void fin() override;
    /// Handles events for about 15 ms. Calls less than 0.3 s apart are one wait; after 1.5 s of it the box
    /// opens, and closes by itself when the calls end.
    bool patienter(const char* attente) override;

  private:
    void finirAttente();
    void montrerBoite(const char* attente);

    QPointer<QProgressBar> barre_;
    QElapsedTimer depuisDessin_;

    QElapsedTimer depuisAttente_; ///< invalid while nothing is waited for
    QTimer abandonne_;            ///< runs out when `patienter` is called no more
    QPointer<QDialog> boite_;     ///< its parent may take it away
};

} // namespace vermo
