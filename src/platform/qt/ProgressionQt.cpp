#include "platform/qt/ProgressionQt.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

namespace vermo {
namespace {

constexpr int DESSIN_MS = 40;
constexpr int PAS_MS = 15;
constexpr int BOITE_MS = 1500;
constexpr int FIN_MS = 300;

int entier(long valeur) {
    return static_cast<int>(std::clamp<long>(valeur, 0, std::numeric_limits<int>::max()));
}

} // namespace

ProgressionQt::ProgressionQt() {
    abandonne_.setSingleShot(true);
    abandonne_.setInterval(FIN_MS);
    QObject::connect(&abandonne_, &QTimer::timeout, &abandonne_, [this] { finirAttente(); });
}

ProgressionQt::~ProgressionQt() {
    delete boite_;
}

void ProgressionQt::montrer() {
    if (!barre_) return;
    barre_->setRange(0, 1);
    barre_->setValue(0);
    barre_->show();
}

void ProgressionQt::debut(long minimum, long maximum) {
    depuisDessin_.start();
    if (!barre_) return;
    barre_->setRange(entier(minimum), entier(maximum));
    barre_->setValue(entier(minimum));
}

void ProgressionQt::avance(long valeur) {
    if (depuisDessin_.isValid() && depuisDessin_.elapsed() < DESSIN_MS) return;
    if (barre_) {
        barre_->setValue(entier(valeur));
        barre_->show();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    depuisDessin_.start();
}

void ProgressionQt::fin() {
    if (barre_) barre_->hide();
    finirAttente();
}

bool ProgressionQt::patienter(const char* attente) {
    if (!depuisAttente_.isValid()) depuisAttente_.start();
    abandonne_.stop(); // handling events may take longer than its time
    if (!boite_ && depuisAttente_.elapsed() >= BOITE_MS) montrerBoite(attente);
    QCoreApplication::processEvents();
    if (boite_ && !boite_->isVisible()) {
        finirAttente();
        return false;
    }
    QThread::msleep(PAS_MS);
    abandonne_.start();
    return true;
}

void ProgressionQt::finirAttente() {
    abandonne_.stop();
    depuisAttente_.invalidate();
    delete boite_;
}

void ProgressionQt::montrerBoite(const char* attente) {
    boite_ = new QDialog(QApplication::activeWindow());
    boite_->setWindowTitle(QStringLiteral("Vermo"));
    boite_->setWindowModality(Qt::ApplicationModal);
    auto* boutons = new QDialogButtonBox(boite_);
    auto* annuler = boutons->addButton(QStringLiteral("Annuler"), QDialogButtonBox::RejectRole);
    annuler->setObjectName(QStringLiteral("Annuler"));
    QObject::connect(boutons, &QDialogButtonBox::rejected, boite_, &QDialog::reject);
    auto* colonne = new QVBoxLayout(boite_);
    colonne->addWidget(new QLabel(QString::fromUtf8(attente), boite_));
    colonne->addWidget(boutons);
    boite_->show();
}

} // namespace vermo
