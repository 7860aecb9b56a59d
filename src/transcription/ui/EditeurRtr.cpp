#include "transcription/ui/EditeurRtr.h"

#include "window/ui/Glace.h"
#include "window/ui/Theme.h"

#include <QMimeData>
#include <QTextBlock>

namespace vermo {

namespace {

/// A refused character of a document: where it stands in it, and what it is.
struct Refus {
    int position, longueur;
    QString caractere;
};

QList<Refus> refusDuBloc(const QTextBlock& bloc) {
    QList<Refus> refus;
    const QString ligne = bloc.text();
    const auto ucs4 = ligne.toUcs4();
    int place = 0;
    for (const char32_t c : ucs4) {
        const QString caractere = QString::fromUcs4(&c, 1);
        const bool combinant = QChar::category(c) == QChar::Mark_NonSpacing;
        const QString compose =
            combinant && place > 0
                ? QString(ligne.mid(place - 1, 1) + caractere).normalized(QString::NormalizationForm_C)
                : caractere;
        if (c == 0)
            refus.append({bloc.position() + place, 1, QStringLiteral("\u2400")});
        else if (compose.size() > 1 && combinant)
            refus.append({bloc.position() + place, int(caractere.size()), caractere});
        else if (c != QChar::LineSeparator && !caracteresRefuses(utf8DepuisQt(compose)).empty())
            refus.append({bloc.position() + place, int(caractere.size()), caractere});
        place += int(caractere.size());
    }
    // Two colons in a row are the file's own mark: a line that held them would be read as an extract's bound.
    const QString repere = QStringLiteral("::");
    for (qsizetype p = ligne.indexOf(repere); p >= 0; p = ligne.indexOf(repere, p + 2))
        refus.append({bloc.position() + int(p), 2, repere});
    return refus;
}

QList<Refus> refusDuDocument(const QTextDocument& document) {
    QList<Refus> refus;
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next())
        refus.append(refusDuBloc(bloc));
    return refus;
}

} // namespace

EditeurRtr::EditeurRtr(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QStringLiteral("TextRtr"));
    setAccessibleName(QStringLiteral("Transcription de l'extrait"));
    setFont(theme::police(11));
    setTabChangesFocus(true);
    setPlaceholderText(QStringLiteral("Saisissez ici ce qui est dit…"));
    connect(this, &QPlainTextEdit::textChanged, this, &EditeurRtr::marquer);
}

void EditeurRtr::texte(const Utf8& texte) {
    setPlainText(utf8VersQt(texte));
}

Utf8 EditeurRtr::saisi() const {
    // The document's own plain text turns non-breaking spaces into plain ones.
    QStringList lignes;
    for (QTextBlock bloc = document()->begin(); bloc.isValid(); bloc = bloc.next())
        lignes.append(bloc.text());
    return utf8DepuisQt(lignes.join(QLatin1Char('\n')));
}

Texte EditeurRtr::texte() const {
    return depuisQt(utf8VersQt(saisi()));
}

QStringList EditeurRtr::refuses() const {
    QStringList liste;
    for (const Refus& refus : refusDuDocument(*document())) {
        const QTextBlock bloc = document()->findBlock(refus.position);
        liste.append(QStringLiteral("« %1 » (ligne %2, caractère %3)")
                         .arg(refus.caractere)
                         .arg(bloc.blockNumber() + 1)
                         .arg(refus.position - bloc.position() + 1));
    }
    return liste;
}

void EditeurRtr::insertFromMimeData(const QMimeData* source) {
    if (source->hasText()) insertPlainText(source->text().normalized(QString::NormalizationForm_C));
}

void EditeurRtr::marquer() {
    QTextCharFormat marque;
    marque.setBackground(QColor(150, 40, 40));
    marque.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    marque.setUnderlineColor(QColor(255, 120, 120));
    QList<QTextEdit::ExtraSelection> selections;
    for (const Refus& refus : refusDuDocument(*document())) {
        QTextCursor curseur(document());
        curseur.setPosition(refus.position);
        curseur.setPosition(refus.position + refus.longueur, QTextCursor::KeepAnchor);
        selections.append({curseur, marque});
    }
    setExtraSelections(selections);
    if (refusesConnus_ == selections.size()) return;
    refusesConnus_ = int(selections.size());
    emit refusesChanges(refusesConnus_);
}

} // namespace vermo
