#pragma once
#include "audio/Suivi.h"
#include "window/ui/Toile.h"

namespace vermo {

/// A picture of the recording with a few shapes that are moved over it: in place, so that a tick of the
/// player paints what a shape uncovers and covers, and nothing else.
class ToileOnde : public Toile {
    Q_OBJECT
  public:
    /// `selection` is the shape of the span being chosen.
    ToileOnde(const QString& nom, Controle selection, const Session& session, QWidget* parent);

    void montrerSelection(Etendue place) { deplacer(selection_, place); }
    void cacherSelection();

    /// A button of the mouse went down or up here, before what it means.
    std::function<void()> surAppui;

  protected:
    /// A shape as high as the picture.
    Element forme(Controle controle, Etendue place, Couleur couleur, bool visible) const;
    Element formeSelection() const;
    /// The shape as it stands in the list, or as given before there is one.
    Element gardee(const Element& initiale);
    void deplacer(Controle controle, Etendue place, bool visible = true);
    void appuyer() const;

    const Session& session_;

  private:
    Controle selection_;
};

} // namespace vermo
