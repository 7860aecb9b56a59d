// Bringing one recording into the open corpus.
#include "app/Application.h"
#include "audio/Onde.h"
#include "corpus/Import.h"
#include "platform/Sablier.h"
#include "textfile/chemins.h"
#include "textfile/faute.h"

#include <QScopedValueRollback>

namespace vermo {

namespace {

/// False ends the import: the person gave up or turned to the converter.
bool formatAccepte(Plateforme& plateforme, const Utf8& chemin) {
    switch (demanderFormat(LireEnteteWav(chemin, plateforme.dialogues), plateforme)) {
    case ChoixFormat::Annuler:
        return false;
    case ChoixFormat::Convertir:
        lancerConvertisseur(plateforme);
        return false;
    case ChoixFormat::Garder:
        return true;
    }
    return false;
}

} // namespace

/// Windows stay alive while a recording is copied or measured: a second import waits for the first to end.
void Application::ImporterEntretien() {
    if (importEnCours_) return;
    const QScopedValueRollback enCours(importEnCours_, true);
    const Sablier sablier(plateforme_.ecran, std::nullopt);
    importer();
}

void Application::importer() {
    auto& etat = session_.corpus;
    if (etat.CheminCorpus.empty()) {
        if (proposerOuverture(plateforme_)) {
            etat.OuvertureDirecte = false;
            OuvrirCorpus();
        }
        return;
    }
    if (etat.ouvertureInachevee)
        throw FauteExecution("Ajout impossible : le corpus n'a pas pu être lu en entier.", etat.CheminCorpus);
    const Utf8 vise = etat.CheminCorpus;
    const Utf8 chemin = choisirEnregistrement(session_, plateforme_);
    if (chemin.empty() || !formatAccepte(plateforme_, chemin)) return;
    const Texte nom = nomImporte(chemin);
    if (!apporterDansCorpus(session_, plateforme_, chemin) || etat.CheminCorpus != vise) return;
    if (dejaDansCorpus(session_, plateforme_, nom)) return;

    const double duree = mesurerDuree(plateforme_, cheminReel(etat.RepCorpus + versUtf8(nom)));
    session_.audio.DureeFichier = duree;
    if (duree == 0 || etat.CheminCorpus != vise) return;
    ajouterEntretien(session_, nom, duree);
    const int slot = etat.NbEntretiens;
    enregistrerEntretiens();
    creerRetranscription(session_, slot);
    etat.EntretienCourant = std::int16_t(slot);
    RedessinerFrise();
    RedessinerPistes();
    lireAttributs(slot);
    ouvrirEntretien(slot, Ouverture::SansFondu);
}

} // namespace vermo
