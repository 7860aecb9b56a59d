#include "window/ui/Forme.h"

#include "window/Placement.h"
#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QBackingStore>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace vermo {

namespace {

constexpr std::chrono::milliseconds REPIT{300}; ///< in which the same fault is not told again

} // namespace

Forme::Forme(const char* nom, Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent)
    : QWidget(parent, (parent ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint), session_(session),
      plateforme_(plateforme), fenetres_(fenetres) {
    setObjectName(QLatin1String(nom));
    setWindowTitle(QStringLiteral("Vermo"));
}

void Forme::montrer(const Contenu&) {
    const bool enVue = isVisible();
    show();
    if (!enVue) return;
    raise();
    activateWindow();
}

void Forme::Transparence(int alpha) {
    alpha_ = std::clamp(alpha, 0, 255);
    setWindowOpacity(alpha_ / 255.0);
}

void Forme::placer(Rectangle voulu) {
    setGeometry(enPixelsEntiers(dansEcran(voulu, plateforme_.ecran.zoneTravail())));
}

void Forme::preparer() {
    create();
    if (QBackingStore* memoire = backingStore()) {
        memoire->resize(size());
        memoire->beginPaint(rect());
        QPainter(memoire->paintDevice()).fillRect(rect(), couleurQt(theme::FENETRE));
        memoire->endPaint();
    }
}

void Forme::finirPar(QCloseEvent& evenement) {
    garder([this] { fenetres_.finir(); });
    evenement.setAccepted(!isVisible());
}

void Forme::deplacerPar(QWidget* poignee) {
    poignees_.push_back(poignee);
    poignee->installEventFilter(this);
}

void Forme::regler(QTimer& timer, const char* nom, int ms, std::function<void()> tic) {
    timer.setObjectName(QLatin1String(nom));
    timer.setParent(this);
    timer.setInterval(ms);
    connect(&timer, &QTimer::timeout, this, [this, tic = std::move(tic)] { garder(tic); });
}

bool Forme::eventFilter(QObject* objet, QEvent* evenement) {
    if (std::find(poignees_.begin(), poignees_.end(), objet) != poignees_.end()) deplacer(evenement);
    return QWidget::eventFilter(objet, evenement);
}

void Forme::deplacer(QEvent* evenement) {
    if (evenement->type() == QEvent::MouseButtonPress) {
        const auto* souris = static_cast<QMouseEvent*>(evenement);
        if (souris->button() != Qt::LeftButton) return;
        prise_ = souris->globalPosition().toPoint() - pos();
        glisse_ = !windowHandle() || !windowHandle()->startSystemMove();
    } else if (evenement->type() == QEvent::MouseMove && glisse_) {
        move(static_cast<QMouseEvent*>(evenement)->globalPosition().toPoint() - prise_);
    } else if (evenement->type() == QEvent::MouseButtonRelease) {
        glisse_ = false;
    }
}

void Forme::signaler(const std::exception& faute) noexcept {
    const auto maintenant = std::chrono::steady_clock::now();
    const bool recente = maintenant - std::exchange(derniereFois_, maintenant) < REPIT;
    if (signale_ || (!derniereFaute_.nouveau(faute.what()) && recente)) return;
    signale_ = true;
    try {
        plateforme_.dialogues.demander({.texte = faute.what(), .icone = Icone::Exclamation});
    } catch (const std::exception& seconde) {
        qCritical("%s (%s)", faute.what(), seconde.what());
    }
    signale_ = false;
    derniereFois_ = std::chrono::steady_clock::now();
}

void poser(QWidget* controle, Rectangle cadre) {
    controle->setGeometry(enPixelsEntiers(cadre));
}

} // namespace vermo
