#include "audio/Zoom.h"
#include "audio/ui/FrmVisu.h"
#include "textfile/nombres.h"
#include "transcription/Retranscription.h"

namespace vermo {

namespace {

Qt::CursorShape pointeurSur(const Element* element) {
    if (!element) return Qt::CrossCursor;
    switch (element->controle) {
    case Controle::ImgBulleInt:
        return Qt::SizeHorCursor;
    case Controle::LbltitreXtrZ:
    case Controle::LbltxtXtrZ:
        return Qt::PointingHandCursor;
    default:
        return Qt::CrossCursor;
    }
}

int numero(const Element& element) {
    return static_cast<int>(valeur(element.tag));
}

} // namespace

void FrmVisu::brancherZoom() {
    Pict_zoom_->setCursor(Qt::CrossCursor);
    Pict_zoom_->surPression = [this](const Souris& souris) { presserZoom(souris); };
    Pict_zoom_->surMouvement = [this](const Souris& souris) { survolerZoom(souris); };
    Pict_zoom_->surRelachement = [this](const Souris& souris) { relacherZoom(souris); };
    Pict_zoom_->surClic = [this](const Souris& souris) {
        if (souris.element && souris.element->controle == Controle::LbltitreXtrZ)
            ouvrirExtrait(numero(*souris.element));
    };
    Pict_zoom_->surDoubleClic = [this](const Souris& souris) {
        if (souris.element && souris.element->controle == Controle::LbltxtXtrZ)
            ouvrirExtrait(numero(*souris.element));
        else
            presserZoom(souris);
    };
    Pict_zoom_->surMolette = [this](int crans, Qt::KeyboardModifiers touches) {
        if (touches & Qt::ControlModifier)
            crans > 0 ? zoomAvant() : zoomArriere();
        else
            crans > 0 ? empanArriere() : empanAvant();
    };
    Pict_tpsZ_->surRelachement = [this](const Souris& souris) { chercher(souris.x); };
}

void FrmVisu::presserZoom(const Souris& souris) {
    TxtCtrl_->setFocus();
    if (souris.bouton != Qt::LeftButton || ferme_) return;
    priseZoom_ = {.tenue = true};
    if (souris.element) {
        presserElement(*souris.element, souris.x);
        return;
    }
    GlisseZoomDebut_ = souris.x;
    GlisseZoomFin_ = 0;
}

void FrmVisu::presserElement(const Element& element, Twips x) {
    priseZoom_ = {element.controle, element.index, element.cadre.gauche, true};
    if (element.controle == Controle::ImgBulleInt) {
        PoigneeTenue_ = element.cadre.gauche;
        IndexPoignee_ = (element.index + 1) / 2;
        ExtraitPoignee_ = numero(element);
    } else if (element.controle == Controle::LbltxtXtrZ) {
        plateforme_.media.currentPosition(tempsZoom(session_.audio, x, Pict_zoom_->largeurTwips()));
    }
}

void FrmVisu::survolerZoom(const Souris& souris) {
    if (PoigneeTenue_ != 0) {
        deplacerPoignee(souris.x - priseZoom_.gauche);
        return;
    }
    const bool glisse = GlisseZoomDebut_ != 0;
    if (!glisse) Pict_zoom_->setCursor(pointeurSur(souris.element));
    if (session_.audio.MarqueDebut == 0 && glisse && souris.x > GlisseZoomDebut_ + SEUIL_GLISSE)
        glisserSelection(souris.x);
}

void FrmVisu::glisserSelection(Twips x) {
    EtatAudio& audio = session_.audio;
    const Twips Z = Pict_zoom_->largeurTwips(), W = Picture1_->largeurTwips();
    if (x > Z && defilerSelection(audio, GlisseZoomDebut_, Z)) DessinerZoom();
    Pict_zoom_->setCursor(Qt::SizeHorCursor);
    GlisseZoomFin_ = x;
    deplacerForme(*Pict_zoom_, Controle::ZoomSelect, {GlisseZoomDebut_, x - GlisseZoomDebut_});
    suivreShpVisu();
    const Twips gauche = xVue(audio, tempsZoom(audio, GlisseZoomDebut_, Z), W);
    const Twips droite = xVue(audio, tempsZoom(audio, GlisseZoomFin_, Z), W);
    deplacerForme(*Picture1_, Controle::TotalSelect, {gauche, droite - gauche});
}

void FrmVisu::relacherZoom(const Souris& souris) {
    TxtCtrl_->setFocus();
    if (souris.bouton != Qt::LeftButton || !priseZoom_.tenue) return;
    const Prise prise = std::exchange(priseZoom_, {});
    if (prise.controle == Controle::ImgBulleInt)
        return relacherPoignee(prise.index % 2 != 0, souris.x - prise.gauche);
    if (prise.controle == Controle::LblXtrZ && souris.x > prise.gauche)
        if (Element* label = Pict_zoom_->modifiable(Controle::LblXtrZ, prise.index))
            label->cadre.largeur = souris.x - prise.gauche;
    if (prise.controle != Controle::Aucun || souris.x < 0) return;

    Pict_zoom_->setCursor(Qt::CrossCursor);
    const bool presse = GlisseZoomDebut_ != 0;
    if (presse && GlisseZoomDebut_ + SEUIL_GLISSE <= souris.x && session_.audio.MarqueDebut == 0)
        return creerExtrait(souris.x);
    if (presse && GlisseZoomDebut_ - SEUIL_GLISSE > souris.x) {
        deplacerEmpan(session_.audio, GlisseZoomDebut_, souris.x, Pict_zoom_->largeurTwips());
        suivreShpVisu();
        DessinerZoom();
    }
    cacherSelections();
    GlisseZoomDebut_ = 0;
    chercher(souris.x);
}

void FrmVisu::chercher(Twips x) {
    plateforme_.media.currentPosition(tempsZoom(session_.audio, x, Pict_zoom_->largeurTwips()));
    placerCurseurZoom(x);
    TxtCtrl_->setFocus();
}

void FrmVisu::creerExtrait(Twips x) {
    const EtatAudio& audio = session_.audio;
    const Twips Z = Pict_zoom_->largeurTwips();
    GlisseZoomFin_ = x;
    const Bornes voulues{tempsZoom(audio, GlisseZoomDebut_, Z), tempsZoom(audio, x, Z)};
    GlisseZoomDebut_ = 0;
    cacherSelections();
    const Marquage marquage = bornerNouvelExtrait(session_, voulues);
    if (marquage.englobe)
        refuserEnglobement();
    else
        ouvrirSaisie(marquage.bornes);
}

void FrmVisu::refuserEnglobement() {
    plateforme_.dialogues.demander({.texte = "Un extrait ne peut pas en englober un autre!",
                                    .titre = "Création impossible",
                                    .icone = Icone::Exclamation});
}

void FrmVisu::deplacerPoignee(Twips x) {
    const Element* texte = Pict_zoom_->modifiable(Controle::LbltxtXtrZ, IndexPoignee_);
    Element* bande = Pict_zoom_->modifiable(Controle::ShpXtrIntZ, IndexPoignee_);
    if (!texte || !bande) return;
    Rectangle cadre = bande->cadre;
    if (priseZoom_.index % 2 != 0) {
        cadre.gauche = texte->cadre.gauche + x - 120;
        cadre.largeur = texte->cadre.largeur - x + 120;
    } else if (texte->cadre.largeur + x > 0) {
        cadre.largeur = texte->cadre.largeur + x;
    }
    Pict_zoom_->repeindre(std::exchange(bande->cadre, cadre));
    Pict_zoom_->repeindre(cadre);
}

void FrmVisu::relacherPoignee(bool debut, Twips x) {
    const Twips gauche = std::exchange(PoigneeTenue_, 0);
    if (gauche == 0) return;
    poserBorne(ExtraitPoignee_, debut,
               tempsZoom(session_.audio, std::max(gauche + x, 0.0), Pict_zoom_->largeurTwips()));
}

/// An extract that is open in FrmSaisie is opened anew, or its old span would come back when it is validated.
void FrmVisu::poserBorne(int k, bool debut, double v) {
    const EtatTranscription& etat = session_.transcription;
    const bool ouvert =
        fenetres_.visible(Fenetre::FrmSaisie) && !etat.NouvelExtrait && extraitCourant(etat) == k;
    if (ouvert && ramenerSaisie(fenetres_.entamee(Fenetre::FrmSaisie))) return AfficherExtraits();

    const Deplacement deplacement = deplacerBorne(session_, k, debut, v);
    if (deplacement.englobe) return refuserEnglobement();
    const Utf8 nom = nommerExtrait(session_.corpus, "Déplacer une borne de", k, etat.source.slot);
    const bool ecrit = EnregistrerExtraits(session_, plateforme_, nom);
    LireRetranscription(session_, plateforme_);
    AfficherExtraits();
    if ((deplacement.allonge || ouvert) && ecrit) ouvrirExtrait(k);
}

} // namespace vermo
