// What is typed and no file holds: its draft, and the text that was abandoned.
#include "transcription/Saisie.h"
#include "transcription/ui/EditeurRtr.h"
#include "transcription/ui/FrmSaisie.h"

#include <utility>

namespace vermo {

FrmSaisie::~FrmSaisie() {
    if (!aLAbri_) oublier(std::move(brouillonAbandon_)); // the interview is left
}

void FrmSaisie::garderBrouillon() {
    aLAbri_ = false;
    if (plateforme_.emplacements.etat.empty()) return;
    if (!entamee()) return retirerBrouillon();
    if (!brouillon_) tenirBrouillon(std::make_unique<BrouillonTenu>(plateforme_.emplacements));
    enTete_.instant = instantDe(plateforme_.horloge);
    brouillon_->garder(saisie::brouillonDe(enTete_, {ouverte_, fiche_}), [this](const Utf8& faute) {
        QMetaObject::invokeMethod(
            this, [this, faute] { garder([&] { direFauteBrouillon(faute); }); }, Qt::QueuedConnection);
    });
}

void FrmSaisie::tenirBrouillon(std::unique_ptr<BrouillonTenu> brouillon) {
    enTete_ = nouveauBrouillon(session_, fiche_.source.slot, saisie::GENRE_EXTRAIT);
    brouillon_ = std::move(brouillon);
}

void FrmSaisie::direFauteBrouillon(const Utf8& faute) {
    if (!brouillonRefuse_.nouveau()) return;
    plateforme_.dialogues.demander(
        {.texte = "Ce que vous tapez n'a pas pu être mis à l'abri : si le programme s'arrêtait avant la "
                  "validation, ce serait perdu.\n\n" +
                  faute,
         .icone = Icone::Exclamation});
}

void FrmSaisie::retirerBrouillon() {
    oublier(std::move(brouillon_));
}

/// Whatever the disk says, the window goes on.
void FrmSaisie::oublier(std::unique_ptr<BrouillonTenu> brouillon) {
    if (brouillon) garder([&] { brouillon->retirer(); });
}

/// A thematic or a span alone doesn't take the place of a text that can still be taken up.
void FrmSaisie::abandonner() {
    if (!entamee() || (abandon_ && fiche_.texte == ouverte_.texte)) return retirerBrouillon();
    oublier(std::exchange(brouillonAbandon_, std::move(brouillon_)));
    abandon_ = saisie::Reprise{std::exchange(ouverte_, fiche_), fiche_};
    fenetres_.annoncer({Sujet::TexteAbandonne, fiche_.source.slot});
}

void FrmSaisie::reprendreAbandon() {
    if (!abandon_) return;
    reprendre(*abandon_, std::move(brouillonAbandon_));
    abandon_.reset();
    fenetres_.annoncer({Sujet::TexteAbandonne, fiche_.source.slot});
}

void FrmSaisie::reprendre(const saisie::Reprise& reprise, std::unique_ptr<BrouillonTenu> brouillon) {
    auto& etat = session_.transcription;
    if (const int numero = saisie::retrouver(session_, reprise)) {
        OuvrirExtrait(numero);
    } else {
        etat.SaisieDebut = reprise.fiche.debut;
        saisie::allonger(session_, reprise.fiche.fin);
        etat.NouvelExtrait = true;
        PreparerSaisie();
    }
    saisie::allonger(session_, reprise.fiche.fin);
    fiche_.fin = reprise.fiche.fin;
    fiche_.thematique = reprise.fiche.thematique;
    fiche_.texte = reprise.fiche.texte;
    montrerFiche();
    titrer();
    dessinerOnde();
    TextRtr_->moveCursor(QTextCursor::End);
    if (brouillon) tenirBrouillon(std::move(brouillon));
    garderBrouillon();
}

void FrmSaisie::mettreALAbri() {
    aLAbri_ = true;
    for (BrouillonTenu* brouillon : {brouillon_.get(), brouillonAbandon_.get()})
        if (brouillon) brouillon->ecrire();
}

} // namespace vermo
