#pragma once
#include "Visiteur.h"

#include "app/Demarrage.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace vermo::visite {

/// The child: `visite --taper CORPUS_FILE`. Types into a new extract, a key every 20 ms, and says after each
/// on the standard output when that was, until it is ended.
int taper(int argc, char** argv);

/// The program ended from outside while a text is typed: by signals, by the screen's going, by the session's
/// end. Each in a child on a screen of its own, with a copy of the corpus that has moved by the next opening.
class Fins {
  public:
    Fins(Programme& programme, Visiteur& visiteur, std::filesystem::path demo, std::filesystem::path dossier);
    ~Fins();

    std::size_t nombre() const { return enfants_.size(); }
    /// Starts them together, and ends each in its way once it has typed for a while.
    void finirTous();
    /// What the child typed is offered, is taken up, is discarded, and can be taken up again.
    void reprendre(std::size_t i);

  private:
    class Enfant;
    Programme& programme_;
    Visiteur& visiteur_;
    std::vector<std::unique_ptr<Enfant>> enfants_;
};

} // namespace vermo::visite
