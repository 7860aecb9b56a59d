#include "platform/qt/DialoguesQt.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStringList>

namespace vermo {
namespace {

QWidget* fenetreDevant() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (fenetre->isVisible() && !fenetre->isMinimized()) return fenetre;
    return nullptr;
}

/// Work under way shows the hourglass; a question to answer doesn't.
class FlecheSurQuestion {
  public:
    FlecheSurQuestion() : posee_(QApplication::overrideCursor() != nullptr) {
        if (posee_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    FlecheSurQuestion(const FlecheSurQuestion&) = delete;
    FlecheSurQuestion& operator=(const FlecheSurQuestion&) = delete;
    ~FlecheSurQuestion() {
        if (posee_) QApplication::restoreOverrideCursor();
    }

  private:
    bool posee_;
};

QString titreOuProgramme(const Utf8& titre) {
    return titre.empty() ? QStringLiteral("Vermo") : QString::fromStdString(titre);
}

QMessageBox::Icon iconeQt(Icone icone) {
    switch (icone) {
    case Icone::Information:
        return QMessageBox::Information;
    case Icone::Exclamation:
        return QMessageBox::Warning;
    case Icone::Question:
        return QMessageBox::Question;
    case Icone::Critique:
        return QMessageBox::Critical;
    case Icone::Aucune:
        break;
    }
    return QMessageBox::NoIcon;
}

struct JeuDeBoutons {
    QMessageBox::StandardButtons boutons;
    QMessageBox::StandardButton premier, fermeture;
};

JeuDeBoutons jeu(Boutons boutons) {
    switch (boutons) {
    case Boutons::OkAnnuler:
        return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case Boutons::OuiNon:
        return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case Boutons::OuiNonAnnuler:
        return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
                QMessageBox::Cancel};
    case Boutons::Ok:
        break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

QMessageBox::StandardButton boutonDe(Reponse reponse) {
    switch (reponse) {
    case Reponse::Oui:
        return QMessageBox::Yes;
    case Reponse::Non:
        return QMessageBox::No;
    case Reponse::Annuler:
        return QMessageBox::Cancel;
    case Reponse::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Reponse reponseDe(int bouton) {
    switch (bouton) {
    case QMessageBox::Yes:
        return Reponse::Oui;
    case QMessageBox::No:
        return Reponse::Non;
    case QMessageBox::Cancel:
        return Reponse::Annuler;
    default:
        return Reponse::Ok;
    }
}

void preparer(QFileDialog& boite, const DemandeFichier& demande) {
    boite.setOption(QFileDialog::DontUseNativeDialog);
    boite.setOption(QFileDialog::HideNameFilterDetails); // dozens of patterns would make the box as wide
    boite.setAcceptMode(demande.enregistrer ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    boite.setFileMode(demande.enregistrer ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    boite.setNameFilter(filtreQt(demande.filtre));
    boite.setDefaultSuffix(QString::fromStdString(demande.extension));
}

} // namespace

QString filtreQt(const Utf8& filtre) {
    const QStringList morceaux = QString::fromStdString(filtre).split(QLatin1Char('|'));
    QStringList filtres;
    for (qsizetype i = 0; i + 1 < morceaux.size(); i += 2) {
        QString motifs = morceaux[i + 1];
        filtres << morceaux[i] + QStringLiteral(" (") + motifs.replace(QLatin1Char(';'), QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filtres.join(QStringLiteral(";;"));
}

Reponse DialoguesQt::demander(const Message& message) {
    const FlecheSurQuestion fleche;
    const JeuDeBoutons offerts = jeu(message.boutons);
    QMessageBox boite(fenetreDevant());
    boite.setIcon(iconeQt(message.icone));
    boite.setWindowTitle(titreOuProgramme(message.titre));
    boite.setTextFormat(Qt::PlainText); // file names may look like markup
    boite.setText(QString::fromStdString(message.texte));
    boite.setStandardButtons(offerts.boutons);
    boite.setDefaultButton(message.defaut ? boutonDe(*message.defaut) : offerts.premier);
    boite.setEscapeButton(offerts.fermeture);
    return reponseDe(boite.exec());
}

Utf8 DialoguesQt::choisirFichier(const DemandeFichier& demande) {
    const FlecheSurQuestion fleche;
    const QString depart = demande.repertoire.empty()
                               ? dernierRepertoire_
                               : QFile::decodeName(QByteArray::fromStdString(demande.repertoire));
    QFileDialog boite(fenetreDevant(), titreOuProgramme(demande.titre), depart);
    preparer(boite, demande);
    if (boite.exec() != QDialog::Accepted || boite.selectedFiles().isEmpty()) return {};
    const QString choisi = boite.selectedFiles().constFirst();
    dernierRepertoire_ = QFileInfo(choisi).absolutePath();
    return QFile::encodeName(choisi).toStdString();
}

} // namespace vermo
