#pragma once
#include "audio/Gestes.h"
#include "audio/ui/ToileOnde.h"

namespace vermo {

/// `Picture1`: the overview of the recording under the track of its extracts, with the zoom's span and the
/// playing position.
class ToileVue : public ToileOnde {
    Q_OBJECT
  public:
    ToileVue(const Session& session, QWidget* parent);

    void disposer();            ///< the track, from the working arrays
    void suivreEmpan();         ///< Shp_visu
    void curseur(Twips gauche); ///< Curseur
    void entourer(int k);       ///< the extract told; 0: none
    Twips gaucheExtrait(int k); ///< of its bar; 0 when it has none

    // What the mouse asks for.
    std::function<void(const GesteVue&)> surChoix;
    std::function<void(int k, bool surBarre)> surSurvol; ///< extract `k` lies under the mouse
    std::function<void(int k)> surExtrait, surOuverture; ///< click and double click on a bar

  private:
    void presserVue(const Souris& souris);
    void survoler(const Souris& souris);
    void relacherVue(const Souris& souris);
    int extraitSous(Twips x) const;

    PriseVue prise_;
    int entoure_ = 0;
};

} // namespace vermo
