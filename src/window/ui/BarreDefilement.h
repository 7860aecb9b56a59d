#pragma once
#include "window/Defilement.h"
#include "window/ui/Toile.h"

namespace vermo {

/// A scroll bar: LigneScroll and on it the thumb LblScroll. A press on the thumb drags it, one above or below
/// it scrolls by a page. Coordinates are those of its parent.
class BarreDefilement : public Toile {
    Q_OBJECT
  public:
    /// `actif`: where it is kept that the thumb is being dragged.
    BarreDefilement(const QString& nom, bool& actif, QWidget* parent);

    /// `ligne`: where LigneScroll stands, as wide as the thumb.
    void placer(Rectangle ligne);
    void montrer(const Defilement& defilement, Twips defile, Twips hauteurPage);

    std::function<void(Twips)> surDefilement; ///< the scroll that is asked for

  private:
    void presser(const Souris& souris);

    bool& actif_;
    Rectangle ligne_;
    Defilement defilement_;
    Twips defile_ = 0, page_ = 0, prise_ = 0;
};

} // namespace vermo
