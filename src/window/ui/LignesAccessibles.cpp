#include "window/ui/LignesAccessibles.h"

#include "window/ui/Glace.h"
#include "window/ui/ToileDefilante.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

namespace vermo {
namespace {

/// Where a row shows on the screen; empty for one that is scrolled away.
QRect surEcran(const ToileDefilante& toile, int rang) {
    const Rangs& lignes = toile.lignes();
    const Twips haut = lignes.debut(rang);
    const Rectangle ligne = toile.dansLaToile({0, haut, toile.largeurTwips(), lignes.fin(rang) - haut});
    const QRect vue = enPixelsEntiers(ligne) & toile.rect();
    return vue.isEmpty() ? QRect() : QRect(toile.mapToGlobal(vue.topLeft()), vue.size());
}

class LigneAccessible : public QAccessibleInterface {
  public:
    LigneAccessible(ToileDefilante* toile, int rang) : toile_(toile), rang_(rang) {}

    bool isValid() const override { return toile_ && rang_ <= toile_->lignes().nombre(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(toile_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    int rang() const { return rang_; }

    QString text(QAccessible::Text quoi) const override {
        return quoi == QAccessible::Name && isValid() ? toile_->nomDeLigne(rang_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return isValid() ? surEcran(*toile_, rang_) : QRect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State etat;
        etat.invalid = !isValid();
        if (!isValid()) return etat;
        etat.focusable = etat.selectable = true;
        etat.selected = toile_->courant() == rang_;
        etat.focused = etat.selected && toile_->hasFocus();
        etat.offscreen = rect().isEmpty();
        return etat;
    }

  private:
    QPointer<ToileDefilante> toile_;
    int rang_;
};

class ListeAccessible : public QAccessibleWidget {
  public:
    explicit ListeAccessible(ToileDefilante* toile)
        : QAccessibleWidget(toile, QAccessible::List), toile_(toile) {}
    ~ListeAccessible() override {
        for (const auto& [rang, nom] : faites_)
            QAccessible::deleteAccessibleInterface(nom);
    }
    ListeAccessible(const ListeAccessible&) = delete;
    ListeAccessible& operator=(const ListeAccessible&) = delete;

    int childCount() const override { return toile_->lignes().nombre(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        const auto [ligne, nouvelle] = faites_.try_emplace(index + 1);
        if (nouvelle)
            ligne->second = QAccessible::registerAccessibleInterface(new LigneAccessible(toile_, index + 1));
        return QAccessible::accessibleInterface(ligne->second);
    }
    int indexOfChild(const QAccessibleInterface* enfant) const override {
        const auto* ligne = dynamic_cast<const LigneAccessible*>(enfant);
        return ligne ? ligne->rang() - 1 : -1;
    }
    QAccessibleInterface* focusChild() const override {
        return toile_->courant() > 0 ? child(toile_->courant() - 1) : QAccessibleWidget::focusChild();
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint ici = toile_->mapFromGlobal(QPoint(x, y));
        if (!toile_->rect().contains(ici)) return nullptr;
        return child(toile_->ligneSous(ici) - 1);
    }

  private:
    ToileDefilante* toile_;
    mutable std::map<int, QAccessible::Id> faites_; ///< by row
};

QAccessibleInterface* fabriquer(const QString& classe, QObject* objet) {
    if (classe != QLatin1String(ToileDefilante::staticMetaObject.className())) return nullptr;
    return new ListeAccessible(static_cast<ToileDefilante*>(objet));
}

} // namespace

void installerLignesAccessibles() {
    QAccessible::installFactory(fabriquer); // once, however often it is asked
}

} // namespace vermo
