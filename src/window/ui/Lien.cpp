#include "window/ui/Lien.h"

#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace vermo {
namespace {

constexpr Couleur INACTIF = rvb(112, 114, 120);
constexpr int RETRAIT = 12, RETRAIT_ICONE = 34, DROITE = 7; // pixels

} // namespace

Lien::Lien(const QString& nom, const QString& texte, QWidget* parent, int corps)
    : QAbstractButton(parent), encre_(theme::TEXTE) {
    setObjectName(nom);
    setText(texte);
    setShortcut({});
    setAccessibleName(texte.simplified());
    setFont(theme::police(corps));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
}

void Lien::encre(Couleur couleur) {
    encre_ = couleur;
    update();
}

int Lien::retrait() const {
    return text().startsWith(QLatin1Char(' ')) ? RETRAIT_ICONE : RETRAIT;
}

QSize Lien::sizeHint() const {
    const QFontMetrics mesures(font());
    return {mesures.horizontalAdvance(text().trimmed()) + retrait() + DROITE + 2, mesures.height() + 10};
}

void Lien::soulignerSeul(QWidget* parent, Lien* choisi) {
    for (Lien* lien : parent->findChildren<Lien*>(Qt::FindDirectChildrenOnly)) {
        if (lien->souligne_ == (lien == choisi)) continue;
        lien->souligne_ = lien == choisi;
        lien->update();
    }
}

void Lien::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    if (souligne_ && isEnabled()) {
        peintre.setPen(hasFocus() ? QPen(couleurQt(theme::ACCENT)) : QPen(Qt::NoPen));
        peintre.setBrush(couleurQt(theme::CHAMP));
        peintre.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    }
    QFont police = font();
    police.setUnderline(souligne_ && isEnabled());
    peintre.setFont(police);
    peintre.setPen(couleurQt(isEnabled() ? encre_ : INACTIF));
    const QRect place = rect().adjusted(retrait(), 0, -DROITE, 0);
    const QString court = QFontMetrics(police).elidedText(text().trimmed(), Qt::ElideMiddle, place.width());
    peintre.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, court);
}

void Lien::resizeEvent(QResizeEvent* evenement) {
    QAbstractButton::resizeEvent(evenement);
    if (width() < sizeHint().width()) setToolTip(text());
}

void Lien::mouseMoveEvent(QMouseEvent* evenement) {
    if (!souligne_) soulignerSeul(parentWidget(), this);
    QAbstractButton::mouseMoveEvent(evenement);
}

void Lien::leaveEvent(QEvent* evenement) {
    if (!hasFocus()) soulignerSeul(parentWidget(), nullptr);
    QAbstractButton::leaveEvent(evenement);
}

void Lien::focusInEvent(QFocusEvent* evenement) {
    if (evenement->reason() != Qt::ActiveWindowFocusReason) soulignerSeul(parentWidget(), this);
    QAbstractButton::focusInEvent(evenement);
}

void Lien::focusOutEvent(QFocusEvent* evenement) {
    soulignerSeul(parentWidget(), nullptr);
    QAbstractButton::focusOutEvent(evenement);
}

void Lien::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evenement);
}

} // namespace vermo
