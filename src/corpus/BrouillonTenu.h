#pragma once
#include "corpus/Brouillon.h"
#include "platform/Emplacements.h"
#include "textfile/faute.h"
#include "textfile/fichier.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace vermo {

/// The file of one draft, and the thread that writes it: what it is given stands on the disk within a second,
/// and whoever gives it waits for nothing. While it lives no other program offers or removes the draft. The
/// file outlives it, unless `retirer` was called.
class BrouillonTenu {
  public:
    /// A new one; nothing is on the disk before it is written.
    explicit BrouillonTenu(const Emplacements& emplacements);
    /// One that is on the disk, and locked.
    BrouillonTenu(Utf8 chemin, VerrouFichier verrou);
    /// What waits is written first.
    ~BrouillonTenu();
    BrouillonTenu(const BrouillonTenu&) = delete;
    BrouillonTenu& operator=(const BrouillonTenu&) = delete;

    /// To be written; takes the place of what still waits. `surFaute` is told on the thread, in the words for
    /// people, why it could not be.
    void garder(Brouillon brouillon, std::function<void(const Utf8&)> surFaute);
    /// Waits until what waits is written, or has failed.
    void ecrire();
    /// What it holds stands elsewhere, or is wanted no more.
    void retirer();
    /// Of one that nothing was given to.
    const Utf8& chemin() const { return chemin_; }

  private:
    struct Attente {
        Brouillon brouillon;
        std::function<void(const Utf8&)> surFaute;
    };
    void veiller(const std::stop_token& arret);
    void mettreSurLeDisque(const Attente& attente) noexcept;

    Utf8 repertoire_; ///< of a new one
    Utf8 chemin_;     ///< empty before the first writing
    VerrouFichier verrou_;
    std::mutex acces_;
    std::condition_variable_any signal_;
    std::optional<Attente> attente_;
    bool enCours_ = false, presse_ = false;
    std::jthread fil_; ///< from the first draft on
};

/// A draft about an interview of the open corpus that no living program holds.
struct BrouillonLibre {
    Brouillon brouillon;
    int slot;
    std::unique_ptr<BrouillonTenu> tenu;
};

/// Sets the file of a draft aside that can't be read, because of `faute`. Gives the words for people.
Utf8 ecarterBrouillon(const Utf8& chemin, const FauteExecution& faute);

/// All of them, held from now on, the latest first. A file that is no draft is set aside; `surFaute` is told.
/// What a killed program left behind of its writing goes.
std::vector<BrouillonLibre> brouillonsLibres(const Session& session, const Emplacements& emplacements,
                                             const std::function<void(const Utf8&)>& surFaute);

} // namespace vermo
