#include "window/ui/Toile.h"

#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/PeintreElements.h"
#include "window/ui/Theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <algorithm>

namespace vermo {

Toile::Toile(const QString& nom, QWidget* parent) : QWidget(parent), fond_(theme::PANNEAU) {
    setObjectName(nom);
    setAccessibleName(nom);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void Toile::fond(Couleur couleur) {
    fond_ = couleur;
    update();
}

void Toile::image(const QImage& image) {
    image_ = image;
    imageAjustee_ = {};
    update();
}

void Toile::dessin(Dessin dessin) {
    dessin_ = std::move(dessin);
    update();
}

void Toile::elements(Elements elements) {
    elements_ = std::move(elements);
    update();
}

Element* Toile::modifiable(Controle controle, int index) {
    const auto trouve = std::find_if(elements_.rbegin(), elements_.rend(), [&](const Element& element) {
        return element.controle == controle && element.index == index;
    });
    return trouve == elements_.rend() ? nullptr : &*trouve;
}

void Toile::decalage(Twips x, Twips y) {
    decalageX_ = x;
    decalageY_ = y;
    update();
}

Twips Toile::largeurTwips() const {
    return enTwips(width());
}
Twips Toile::hauteurTwips() const {
    return enTwips(height());
}

void Toile::repeindre(const Rectangle& partie) {
    const QRectF pixels = enPixels(partie).translated(-enPixels(decalageX_), -enPixels(decalageY_));
    update(pixelsTouches(pixels).adjusted(-1, -1, 1, 1));
}

void Toile::peindre(QPainter& peintre, const QRectF& zone) {
    peindre(peintre, zone, elements(), {decalageX_, decalageY_});
}

void Toile::peindre(QPainter& peintre, const QRectF& zone, const Elements& elements, QPointF origine) {
    peintre.save();
    peindreFond(peintre, zone);
    const QPointF coin(enPixels(origine.x()), enPixels(origine.y()));
    const QRectF exposee = zone.translated(coin);
    peintre.translate(-coin);
    peindreDessin(peintre, dessin_, exposee);
    PeintreElements pinceau(peintre, exposee);
    for (const Element& element : elements)
        pinceau.peindre(element);
    peintre.restore();
}

void Toile::peindreFond(QPainter& peintre, const QRectF& zone) {
    if (image_.isNull() || image_.hasAlphaChannel()) peintre.fillRect(zone, couleurQt(fond_));
    if (image_.isNull()) return;
    const QSize taille = size() * peintre.device()->devicePixelRatioF();
    if (imageAjustee_.size() != taille) {
        const auto format =
            image_.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        imageAjustee_ =
            (image_.size() == taille ? image_
                                     : image_.scaled(taille, Qt::IgnoreAspectRatio, Qt::SmoothTransformation))
                .convertToFormat(format);
    }
    peintre.drawImage(QRectF(rect()), imageAjustee_);
}

void Toile::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    peindre(peintre, evenement->rect());
}

QPointF Toile::surface(QPointF pixels) const {
    return {enTwips(pixels.x()) + decalageX_, enTwips(pixels.y()) + decalageY_};
}

Souris Toile::souris(QMouseEvent* evenement) const {
    const QPointF lieu = surface(evenement->position());
    return {lieu.x(),
            lieu.y(),
            evenement->button(),
            evenement->modifiers(),
            evenement->globalPosition().toPoint(),
            sous(elements(), lieu.x(), lieu.y())};
}

void Toile::appeler(const std::function<void(const Souris&)>& action, QMouseEvent* evenement) {
    evenement->accept();
    if (action) garderPour(this, [&] { action(souris(evenement)); });
}

void Toile::mousePressEvent(QMouseEvent* evenement) {
    const Element* element = souris(evenement).element;
    const bool gauche = evenement->button() == Qt::LeftButton;
    presse_ = element ? Presse{element->controle, element->index, gauche} : Presse{.tenue = gauche};
    appeler(surPression, evenement);
}

void Toile::mouseMoveEvent(QMouseEvent* evenement) {
    appeler(surMouvement, evenement);
}

void Toile::mouseReleaseEvent(QMouseEvent* evenement) {
    const Element* element = souris(evenement).element;
    const bool meme = element ? presse_.controle == element->controle && presse_.index == element->index
                              : presse_.controle == Controle::Aucun && rect().contains(evenement->pos());
    const bool clic = presse_.tenue && meme && evenement->button() == Qt::LeftButton;
    presse_ = {};
    const QPointer<Toile> vivante(this); // the window may go while it answers
    appeler(surRelachement, evenement);
    if (clic && vivante) appeler(surClic, evenement);
}

void Toile::mouseDoubleClickEvent(QMouseEvent* evenement) {
    if (surDoubleClic && evenement->button() == Qt::LeftButton)
        appeler(surDoubleClic, evenement);
    else
        mousePressEvent(evenement);
}

void Toile::wheelEvent(QWheelEvent* evenement) {
    if (!surMolette) return evenement->ignore();
    molette_ += evenement->angleDelta().y();
    const int crans = molette_ / QWheelEvent::DefaultDeltasPerStep;
    molette_ -= crans * QWheelEvent::DefaultDeltasPerStep;
    if (crans != 0) garderPour(this, [&] { surMolette(crans, evenement->modifiers()); });
    evenement->accept();
}

void Toile::leaveEvent(QEvent* evenement) {
    QWidget::leaveEvent(evenement);
    if (surSortie) garderPour(this, surSortie);
}

bool Toile::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip) return QWidget::event(evenement);
    const auto* aide = static_cast<QHelpEvent*>(evenement);
    montrerBulle(aide->pos(), aide->globalPos());
    return true;
}

void Toile::montrerBulle(QPoint ici, QPoint ecran) {
    const QPointF lieu = surface(ici);
    const Elements& liste = elements();
    auto parle = [&](const Element& e) {
        return e.visible && !e.bulle.empty() && e.cadre.contient(lieu.x(), lieu.y());
    };
    const auto trouve = std::find_if(liste.rbegin(), liste.rend(), parle);
    if (trouve == liste.rend())
        QToolTip::showText(ecran, toolTip(), this);
    else
        QToolTip::showText(ecran, versQt(trouve->bulle), this);
}

} // namespace vermo
