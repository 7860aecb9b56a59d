#pragma once
#include "textfile/texte.h"

#include <QPlainTextEdit>

namespace vermo {

/// The editor of a transcript. What the files can't hold is marked as it is typed or pasted: characters
/// outside CP1252, and "::", which in a transcript bounds the extracts.
class EditeurRtr : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit EditeurRtr(QWidget* parent);

    /// Shows a text whose lines are parted by LF.
    void texte(const Utf8& texte);
    /// What stands in the editor, refused characters too; lines parted by LF.
    Utf8 saisi() const;
    /// The same with a CR in the place of each LF. Throws FauteExecution while it holds a refused character.
    Texte texte() const;
    /// The refused characters, each with its place: "« → » (ligne 2, caractère 7)". Empty when there is none.
    QStringList refuses() const;

  signals:
    /// How many characters are refused now.
    void refusesChanges(int nombre);

  protected:
    void insertFromMimeData(const QMimeData* source) override; ///< plain text only, composed

  private:
    void marquer();

    int refusesConnus_ = 0;
};

} // namespace vermo
