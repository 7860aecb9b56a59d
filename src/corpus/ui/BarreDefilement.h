#pragma once
#include "corpus/Frise.h"
#include "window/ui/Toile.h"

namespace vermo {

/// The timeline's scroll bar: LigneScroll and on it the thumb LblScroll. A press on the thumb drags it, one
/// above or below it scrolls by a page. Coordinates are those of Frm_fond_entretiens.
class BarreDefilement : public Toile {
    Q_OBJECT
  public:
    BarreDefilement(EtatCorpus& corpus, QWidget* parent);

    /// `ligne`: where LigneScroll stands, as wide as the thumb.
    void placer(Rectangle ligne);
    void montrer(const Defilement& defilement, Twips defile, Twips hauteurPage);

    std::function<void(Twips)> surDefilement; ///< the scroll that is asked for

  private:
    void presser(const Souris& souris);

    EtatCorpus& corpus_;
    Rectangle ligne_;
    Defilement defilement_;
    Twips defile_ = 0, page_ = 0, prise_ = 0;
};

} // namespace vermo
