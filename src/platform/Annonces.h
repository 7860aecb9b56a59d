#pragma once
#include <deque>
#include <functional>

namespace vermo {

/// What a change may be about.
enum class Sujet {
    Thematiques, ///< rows of the thematic table
    Bascules,    ///< what is switched on: interviews, thematics
    Entretiens,  ///< the list of interviews, or what its rows show
    Extraits,    ///< the extracts of one interview
    Attributs,   ///< the attributes of one interview
    Volume,
    TexteAbandonne, ///< whether there is one to be taken up
};

/// One notice: something has changed, and stands.
struct Avis {
    Sujet sujet;
    int slot = 0; ///< the interview that it concerns; 0: none, or all
    bool operator==(const Avis&) const = default;
};

/// How routines tell what they changed, once it stands: each window answers for itself. A notice given while
/// another is being answered waits until that one has been heard by all.
class Annonces {
  public:
    std::function<void(const Avis&)> surAvis; ///< the program, which hands it to the windows

    void annoncer(const Avis& avis) {
        attente_.push_back(avis);
        if (attente_.size() > 1) return;
        const Fin fin{attente_};
        for (; !attente_.empty(); attente_.pop_front())
            if (surAvis) surAvis(Avis(attente_.front()));
    }

  private:
    /// A fault in an answer ends the round: what waited is forgotten with it.
    struct Fin {
        std::deque<Avis>& attente;
        ~Fin() { attente.clear(); }
    };
    std::deque<Avis> attente_;
};

} // namespace vermo
