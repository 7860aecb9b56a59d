#pragma once
#include "audio/Gestes.h"
#include "audio/ui/ToileOnde.h"
#include "window/ui/Theme.h"

namespace vermo {

/// `Pict_zoom`: the span shown in the zoom under the bubbles of its extracts, with the part that was played.
class ToileZoom : public ToileOnde {
    Q_OBJECT
  public:
    ToileZoom(const Session& session, QWidget* parent);

    void disposer();                                            ///< the bubbles, from the working arrays
    void curseur(Twips largeur);                                ///< shp_curseur_zoom
    bool glisse() const { return prise_.GlisseZoomDebut != 0; } ///< a press on the band is under way

    // What the mouse asks for.
    std::function<void(const GesteZoom&)> surGeste;
    /// The span from `debut`, which follows when the band is scrolled under it, to `x` is being selected.
    std::function<void(Twips& debut, Twips x)> surSelection;
    std::function<void(int k)> surOuverture; ///< an extract is to be opened

  private:
    void presserZoom(const Souris& souris);
    void survoler(const Souris& souris);
    void relacherZoom(const Souris& souris);
    void suivreGeste(const GesteZoom& geste);
    void tirerPoignee(Twips x);

    MetriquesQt metriques_;
    PriseZoom prise_;
};

} // namespace vermo
