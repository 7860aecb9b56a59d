// The slide-out panel: the list of thematics, and the row that adds one.
#include "corpus/EcritureCorpus.h"
#include "corpus/Panneaux.h"
#include "transcription/Saisie.h"
#include "transcription/ui/EditeurRtr.h"
#include "transcription/ui/FrmSaisie.h"
#include "transcription/ui/FrmSaisieTailles.h"
#include "transcription/ui/Pastille.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"

#include <QLabel>
#include <QLineEdit>

namespace vermo {

namespace t = tailles_saisie;

void FrmSaisie::creerPanneau() {
    const auto titre = [this](int index, const Rectangle& cadre) {
        const QString textes[] = {QStringLiteral("Choisissez une thématique"),
                                  QStringLiteral("Ajoutez une thématique"),
                                  QStringLiteral("Nom de  la thématique :"), QStringLiteral(" Code :")};
        auto* label = new QLabel(textes[index], this);
        label->setObjectName(QStringLiteral("Label3%1").arg(index));
        label->setFont(theme::police(index < 2 ? 10 : 8, index < 2));
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        poser(label, cadre);
    };
    titre(0, t::LABEL3_0);
    titre(1, t::LABEL3_1);
    titre(2, t::LABEL3_2);
    titre(3, t::LABEL3_3);
    FrmThms_ = new Toile(QStringLiteral("FrmThms"), this);
    FrmThms_->setAccessibleName(
        commandes_.avecTouches("Thématiques : flèches pour choisir, {coder} pour coder l'extrait"));
    FrmThms_->setFocusPolicy(Qt::StrongFocus);
    FrmThms_->fond(theme::FENETRE);
    poser(FrmThms_, t::FRMTHMS);
    FrmThms_->surClic = [this](const Souris& souris) {
        if (souris.element != nullptr && souris.element->index > 0) choisirThematique(souris.element->index);
    };
    FrmThms_->surMolette = [this](int crans, Qt::KeyboardModifiers) { deroulerPanneau(-crans * 495); };
    ConstruireThematiques();
}

void FrmSaisie::creerAjout() {
    TXTcodethem_ = new QLineEdit(this);
    TXTcodethem_->setObjectName(QStringLiteral("TXTcodethem"));
    TXTcodethem_->setAccessibleName(QStringLiteral("Code de la nouvelle thématique"));
    TXTcodethem_->setMaxLength(3);
    poser(TXTcodethem_, t::TXTCODETHEM);
    TxtThema_ = new QLineEdit(this);
    TxtThema_->setObjectName(QStringLiteral("TxtThema"));
    TxtThema_->setAccessibleName(QStringLiteral("Nom de la nouvelle thématique"));
    poser(TxtThema_, t::TXTTHEMA);
    for (int i = 0; i < int(saisie::COULEURS.size()); ++i) {
        auto* pastille = new Pastille(i, saisie::COULEURS[std::size_t(i)], this);
        Rectangle cadre = t::SWATCH;
        cadre.gauche += i * t::PAS_SWATCH;
        poser(pastille, cadre);
        connect(pastille, &Pastille::clicked, this, [this, i] { choisirCouleur(i); });
    }
    creerBouton("ajouter-thematique", t::IMGBTN_2);
}

void FrmSaisie::ConstruireThematiques() {
    rangSurvole_ = std::clamp(rangSurvole_, 1, std::max(1, int(session_.corpus.NbThm)));
    Elements liste = disposerThematiques(session_, t::FRMTHMS.largeur,
                                         plateforme_.ecran.zoneTravail().hauteur, Legende::Saisie);
    for (Element& element : liste)
        if (element.controle == Controle::LblCoul && element.index == rangSurvole_) {
            element.borde = true;
            element.bord = BLANC;
        }
    hauteurPanneau_ = liste.empty() ? 0 : liste.back().cadre.bas();
    FrmThms_->elements(std::move(liste));
    deroulerPanneau(0);
}

void FrmSaisie::deroulerPanneau(Twips pas) {
    const Twips maximum = std::max(0.0, hauteurPanneau_ - t::FRMTHMS.hauteur);
    defilementPanneau_ = std::clamp(defilementPanneau_ + pas, 0.0, maximum);
    FrmThms_->decalage(0, defilementPanneau_);
}

void FrmSaisie::surlignerThematique(int rang) {
    rangSurvole_ = rang;
    ConstruireThematiques();
    for (const Element& element : FrmThms_->elements())
        if (element.controle == Controle::LblCoul && element.index == rangSurvole_) {
            const Twips bas = element.cadre.bas() - t::FRMTHMS.hauteur;
            deroulerPanneau(std::clamp(defilementPanneau_, bas, element.cadre.haut) - defilementPanneau_);
        }
}

void FrmSaisie::choisirThematique(int rang) {
    if (rang < 1 || rang > int(session_.corpus.NbThm)) return;
    rangSurvole_ = rang;
    fiche_.thematique = saisie::thematiqueDuRang(session_.corpus, rang);
    montrerThematique();
    lbl_thm_->encre(0);
    placerLargeur(false);
    ConstruireThematiques();
    garderBrouillon();
}

void FrmSaisie::choisirCouleur(int index) {
    const Couleur choix = saisie::COULEURS[std::size_t(index)];
    CouleurChoisie_ = std::to_string(choix);
    colorerAjout(choix);
}

void FrmSaisie::colorerAjout(Couleur couleur) {
    couleurAjout_ = couleur;
    colorer();
}

void FrmSaisie::reinitialiserAjout() {
    TXTcodethem_->setText(versQt(saisie::codePropose(session_.corpus)));
    TxtThema_->setText(utf8VersQt(saisie::INVITE));
    TxtThema_->selectAll();
    colorerAjout(0);
}

void FrmSaisie::ajouterThematique() {
    const saisie::NouvelleThematique nouvelle{depuisQt(TXTcodethem_->text()), depuisQt(TxtThema_->text()),
                                              CouleurChoisie_};
    if (const auto refus = saisie::ajouterThematique(session_, plateforme_, nouvelle)) {
        if (!refus->message.texte.empty()) plateforme_.dialogues.demander(refus->message);
        if (refus->codeFautif) {
            TXTcodethem_->setFocus();
            TXTcodethem_->setSelection(0, 3);
        }
        return;
    }
    CouleurChoisie_.clear();
    choisirThematique(nombreThematiques(session_.corpus));
    reinitialiserAjout();
}

} // namespace vermo
