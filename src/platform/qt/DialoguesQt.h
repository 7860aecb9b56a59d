#pragma once
#include "platform/Dialogues.h"

#include <QString>

namespace vermo {

/// Questions in real boxes, in front of the active window. The hourglass gives way to the arrow meanwhile.
class DialoguesQt final : public Dialogues {
  public:
    /// Enter chooses the first button. Closing or Escape means Annuler, else Non, else Ok.
    Reponse demander(const Message& message) override;
    /// File patterns match in any case. Saving over a file asks first.
    Utf8 choisirFichier(const DemandeFichier& demande) override;

  private:
    QString dernierRepertoire_;
};

/// "label|pattern;pattern" as Qt takes it: "label (pattern pattern)"; more pairs may follow, one filter each.
QString filtreQt(const Utf8& filtre);

} // namespace vermo
