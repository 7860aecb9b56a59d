#pragma once
#include "platform/Plateforme.h"
#include "support/DialoguesScriptees.h"
#include "support/DossierTemporaire.h"
#include "support/LecteurSimule.h"

#include <ctime>
#include <functional>

namespace vermo::essai {

/// A clock that stands still: 3 April 2009, 14:05:06.
class HorlogeFixe : public Horloge {
  public:
    std::tm maintenant() const override {
        std::tm heure{};
        strptime("2009-04-03 14:05:06", "%Y-%m-%d %H:%M:%S", &heure);
        return heure;
    }
};

/// Notes the programs it is asked to start.
class LanceurSimule : public Lanceur {
  public:
    std::vector<Utf8> lances;
    bool lancer(const Utf8& chemin) override {
        lances.push_back(chemin);
        return true;
    }
};

/// A screen of 1920 x 1080 pixels without a task bar.
class EcranFixe : public Ecran {
  public:
    ZoneTravail zone;
    Pointeur pointeurCourant = Pointeur::Normal;
    ZoneTravail zoneTravail() const override { return zone; }
    void pointeur(Pointeur voulu) override { pointeurCourant = voulu; }
};

/// Shows nothing. The person waits patiently `patience` times, then gives up; what happens meanwhile is up to
/// the test.
class ProgressionMuette : public Progression {
  public:
    int patience = 1000;
    std::function<void()> pendant;
    void debut(long, long) override {}
    void avance(long) override {}
    void fin() override {}
    bool patienter(const char*) override {
        if (pendant) pendant();
        return patience-- > 0;
    }
};

/// The whole host, simulated; each of its parts stands open to the test. `dossier` is the place "beside the
/// program": its "programme/", "donnees/" (read-only data) and "personne/" are made empty.
struct PlateformeDeTest {
    DossierTemporaire dossier;
    DialoguesScriptees dialogues;
    LecteurSimule media;
    HorlogeFixe horloge;
    LanceurSimule lanceur;
    EcranFixe ecran;
    ProgressionMuette progression;
    Annonces annonces;
    Plateforme plateforme{dialogues, media,       horloge,  lanceur,
                          ecran,     progression, annonces, emplacements(dossier)};

    operator Plateforme&() { return plateforme; }

  private:
    static Emplacements emplacements(const DossierTemporaire& dossier) {
        for (const char* nom : {"programme", "donnees", "personne"})
            std::filesystem::create_directory(dossier.chemin(nom));
        return {dossier.chemin("programme/"), dossier.chemin("donnees/"), dossier.chemin("personne/")};
    }
};

} // namespace vermo::essai
