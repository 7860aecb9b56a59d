// Bringing one recording into the open corpus.
#include "app/Application.h"
#include "audio/Onde.h"
#include "corpus/EcritureCorpus.h"
#include "corpus/Import.h"

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

void Application::ImporterEntretien() {
    try {
        importer();
    } catch (...) {
        plateforme_.ecran.pointeur(Pointeur::Normal);
        throw;
    }
    plateforme_.ecran.pointeur(Pointeur::Normal);
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
    const Utf8 chemin = choisirEnregistrement(session_, plateforme_);
    if (chemin.empty() || !formatAccepte(plateforme_, chemin)) return;
    const Texte nom = nomImporte(chemin);
    if (!apporterDansCorpus(session_, plateforme_, chemin)) return;
    if (dejaDansCorpus(session_, plateforme_, nom)) return;

    plateforme_.ecran.pointeur(Pointeur::Sablier);
    const double duree = mesurerDuree(plateforme_, etat.RepCorpus + versUtf8(nom));
    session_.audio.DureeFichier = duree;
    if (duree == 0) return;
    ajouterEntretien(session_, nom, duree);
    const int slot = etat.NbEntretiens;
    EcrireEntretiens(session_, plateforme_);
    creerRetranscription(session_, slot);
    etat.EntretienCourant = std::int16_t(slot);
    RedessinerFrise();
    RedessinerPistes();
    lireAttributs(slot);
    OuvrirEntretien(slot, Ouverture::SansFondu);
}

} // namespace vermo
