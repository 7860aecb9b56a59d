#pragma once
#include "corpus/Session.h"
#include "window/ui/Toile.h"

#include <QTimer>

class QLabel;

namespace vermo {

/// `PictLect`: the strip in which one extract is told, its text unrolled under a bar in its colour.
class ToileLecture : public Toile {
    Q_OBJECT
  public:
    ToileLecture(const Session& session, QWidget* parent);

    /// Tells extract `k`, at its place `gauche` on the overview as far as the strip allows.
    void AfficherBulleExtrait(int k, Twips gauche);
    void effacer();
    int extraitDit() const { return extraitDit_; } ///< 0: none

    void Timtrait_Tick(); ///< unrolls the text

    std::function<void(int k)> surOuverture; ///< the extract told is to be opened

  private:
    void poserLblXtrBulle(Twips gauche);
    void poserBarre();

    const Session& session_;
    QLabel* LblXtrBulle_;
    QTimer Timtrait_;
    int extraitDit_ = 0;
    Twips RevelationBulle_ = 0;
};

} // namespace vermo
