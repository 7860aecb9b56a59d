#include "audio/ui/ToileLecture.h"

#include "audio/ui/ControlesVisu.h"
#include "audio/ui/GeometrieVisu.h"
#include "transcription/PisteExtraits.h"
#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <algorithm>

namespace vermo {

using namespace visu;

ToileLecture::ToileLecture(const Session& session, QWidget* parent)
    : Toile(QStringLiteral("PictLect"), parent), session_(session),
      LblXtrBulle_(creerEtiquette("LblXtrBulle", 11, false, theme::TEXTE, this)) {
    LblXtrBulle_->setWordWrap(true);
    LblXtrBulle_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    LblXtrBulle_->hide();
    Timtrait_.setObjectName(QStringLiteral("Timtrait"));
    Timtrait_.setParent(this);
    Timtrait_.setInterval(3);
    connect(&Timtrait_, &QTimer::timeout, this, [this] { garderPour(this, [this] { Timtrait_Tick(); }); });
    surClic = [this](const Souris& souris) {
        const Element* barre = modifiable(Controle::LblXtrBulle);
        if (extraitDit_ != 0 && barre && souris.x >= barre->cadre.gauche && souris.x < barre->cadre.droite())
            surOuverture(extraitDit_);
    };
}

void ToileLecture::AfficherBulleExtrait(int k, Twips gauche) {
    extraitDit_ = k;
    poserLblXtrBulle(gauche);
    poserBarre();
    RevelationBulle_ = 0;
    Timtrait_.start();
}

void ToileLecture::effacer() {
    extraitDit_ = 0;
    LblXtrBulle_->hide();
    elements({});
}

void ToileLecture::poserBarre() {
    Element barre;
    barre.controle = Controle::LblXtrBulle;
    barre.cadre = enTwips(QRectF(LblXtrBulle_->geometry()));
    barre.cadre.haut = 0;
    barre.cadre.hauteur = BARRE_LECT;
    barre.rempli = true;
    barre.fond = couleurExtrait(session_.corpus, ligneDe(session_.transcription.ExtraitCode, extraitDit_));
    elements({barre});
}

/// As wide as the text needs to be seen whole.
void ToileLecture::poserLblXtrBulle(Twips gauche) {
    QString texte = versQt(ligneDe(session_.transcription.ExtraitTexte, extraitDit_));
    LblXtrBulle_->setText(texte.replace(QChar(u'\r'), QChar(u'\n')));
    LblXtrBulle_->setProperty("Tag", extraitDit_);
    const Twips bord = largeurTwips();
    const int place = qRound(enPixels(LECT_HAUTEUR - TEXTE_LECT_HAUT));
    Twips largeur = std::min(TEXTE_LECT_LARGEUR, bord);
    while (largeur < bord && LblXtrBulle_->heightForWidth(qRound(enPixels(largeur))) > place)
        largeur = std::min(largeur * 1.25, bord);
    poser(LblXtrBulle_, {std::max(0.0, std::min(gauche, bord - largeur)), TEXTE_LECT_HAUT, largeur, 0});
    LblXtrBulle_->show();
}

void ToileLecture::Timtrait_Tick() {
    constexpr Twips PAS = 110;
    if (RevelationBulle_ > TEXTE_LECT_HAUT + LECT_HAUTEUR) return Timtrait_.stop();
    LblXtrBulle_->resize(LblXtrBulle_->width(), qRound(enPixels(RevelationBulle_)));
    RevelationBulle_ += PAS;
}

} // namespace vermo
