#include "Visiteur.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <cstdio>

namespace vermo::visite {

namespace {
constexpr int PATIENCE = 20000;
}

Visiteur::Visiteur(QString dossierDesPhotos) : dossier_(std::move(dossierDesPhotos)) {
    QDir().mkpath(dossier_);
    QObject::connect(&veille_, &QTimer::timeout, [this] { repondre(); });
    veille_.start(60);
}

void Visiteur::etape(const char* nom, const std::function<void()>& agir) {
    std::printf("%s\n", nom);
    std::fflush(stdout);
    agir();
    if (!manque_.empty()) throw Manque(manque_);
    toutEstRepondu();
    photographier(QLatin1String(nom));
}

void Visiteur::photographier(const QString& nom) {
    QTest::qWait(120); // the window manager and the X server have drawn what the program asked for
    const QString fichier =
        QStringLiteral("%1/%2-%3.png").arg(dossier_).arg(++numero_, 2, 10, QLatin1Char('0')).arg(nom);
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(fichier))
        throw Manque("no photograph: " + fichier.toStdString());
}

void Visiteur::attendre(const char* quoi, const std::function<bool()>& vrai) {
    if (!QTest::qWaitFor(vrai, PATIENCE)) throw Manque(std::string("waited in vain: ") + quoi);
}

QWidget& Visiteur::fenetre(const char* nom) {
    QWidget* trouvee = nullptr;
    attendre(nom, [&] {
        for (QWidget* fenetre : QApplication::topLevelWidgets())
            if (fenetre->objectName() == QLatin1String(nom) && fenetre->isVisible()) trouvee = fenetre;
        return trouvee != nullptr;
    });
    return *trouvee;
}

void Visiteur::cliquer(QWidget& controle) {
    if (!controle.isVisible() || !controle.isEnabled())
        throw Manque("can't be clicked: " + controle.objectName().toStdString());
    QTest::mouseClick(&controle, Qt::LeftButton);
}

QRect Visiteur::place(const Toile& toile, Controle controle, int index) {
    for (const Element& element : toile.elements())
        if (element.controle == controle && element.index == index && element.visible) {
            const Rectangle cadre = toile.dansLaToile(element.cadre);
            return QRectF(cadre.gauche / TWIPS_PAR_PIXEL, cadre.haut / TWIPS_PAR_PIXEL,
                          cadre.largeur / TWIPS_PAR_PIXEL, cadre.hauteur / TWIPS_PAR_PIXEL)
                .toRect();
        }
    throw Manque("not in the picture: " + std::string(nomControle(controle)) + " " + std::to_string(index));
}

void Visiteur::cliquer(Toile& toile, Controle controle, int index, bool deuxFois) {
    const QPoint milieu = place(toile, controle, index).intersected(toile.rect()).center();
    QTest::mouseMove(&toile, milieu);
    QTest::mouseClick(&toile, Qt::LeftButton, {}, milieu);
    if (deuxFois) QTest::mouseDClick(&toile, Qt::LeftButton, {}, milieu);
}

void Visiteur::glisser(QWidget& toile, QPoint de, QPoint vers) {
    QTest::mouseMove(&toile, de);
    QTest::mousePress(&toile, Qt::LeftButton, {}, de);
    for (int pas = 1; pas <= 6; ++pas) {
        QTest::mouseMove(&toile, de + (vers - de) * pas / 6);
        QTest::qWait(20);
    }
    QTest::mouseRelease(&toile, Qt::LeftButton, {}, vers);
}

void Visiteur::taper(QWidget& controle, const QString& texte) {
    for (const QChar c : texte) {
        if (c == QLatin1Char('\n'))
            QTest::keyClick(&controle, Qt::Key_Return);
        else
            QTest::sendKeyEvent(QTest::Click, &controle, Qt::Key(c.toUpper().unicode()), QString(c),
                                Qt::NoModifier);
    }
}

void Visiteur::touche(QWidget& controle, Qt::Key touche, Qt::KeyboardModifiers avec) {
    QTest::keyClick(&controle, touche, avec);
}

void Visiteur::prevoir(std::function<void(QWidget&)> reponse) {
    reponses_.push_back(std::move(reponse));
}

void Visiteur::prevoirBouton(const char* photo, int boutonStandard) {
    prevoir([this, nom = QString::fromLatin1(photo), boutonStandard](QWidget& dialogue) {
        auto* boite = qobject_cast<QMessageBox*>(&dialogue);
        if (boite == nullptr) throw Manque("no message box: " + nom.toStdString());
        photographier(nom);
        auto* bouton = boite->button(QMessageBox::StandardButton(boutonStandard));
        if (bouton == nullptr) throw Manque("the box lacks its button: " + nom.toStdString());
        QTest::mouseClick(bouton, Qt::LeftButton);
    });
}

void Visiteur::prevoirFichier(const QString& chemin) {
    prevoir([this, chemin](QWidget& dialogue) {
        auto* champ = dialogue.findChild<QLineEdit*>();
        if (champ == nullptr || qobject_cast<QFileDialog*>(&dialogue) == nullptr)
            throw Manque("no file dialog");
        // Pasted: the dialog completes what is typed.
        QGuiApplication::clipboard()->setText(chemin);
        champ->selectAll();
        QTest::keySequence(champ, QKeySequence::Paste);
        photographier(QStringLiteral("choix-du-fichier"));
        QTest::keyClick(champ, Qt::Key_Return);
    });
}

void Visiteur::toutEstRepondu() const {
    if (!reponses_.empty()) throw Manque("a dialog that was to open didn't");
}

void Visiteur::repondre() {
    QWidget* dialogue = QApplication::activeModalWidget();
    if (dialogue == nullptr) repondu_ = nullptr;
    if (dialogue == nullptr || dialogue == repondu_ || !dialogue->isVisible()) return;
    repondu_ = dialogue;
    try {
        if (reponses_.empty()) {
            auto* boite = qobject_cast<QMessageBox*>(dialogue);
            throw Manque("a dialog nobody expected: " +
                         (boite ? boite->text() : dialogue->windowTitle()).toStdString());
        }
        const auto reponse = std::move(reponses_.front());
        reponses_.pop_front();
        reponse(*dialogue);
    } catch (const std::exception& faute) {
        manque_ = faute.what();
        dialogue->close();
    }
}

} // namespace vermo::visite
