#include "corpus/OuvertureCorpus.h"
#include "corpus/Panneaux.h"
#include "corpus/Session.h"
#include "corpus/Volume.h"
#include "corpus/ui/FrmMenu.h"
#include "corpus/ui/LblVol.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"
#include "window/ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <initializer_list>
#include <tuple>

namespace vermo {
namespace {

// Sizes in pixels.
constexpr int MARGE = 8, ICONE = 22, RETRAIT_ICONE = 4, LARGEUR_MIN = 260, LARGEUR_RECENT = 420;

QLabel* intitule(const char* nom, const QString& texte, QWidget* parent) {
    auto* label = new QLabel(texte, parent);
    label->setObjectName(QString::fromLatin1(nom));
    label->setTextFormat(Qt::PlainText);
    label->setFont(theme::police(8, true));
    label->setContentsMargins(12, 6, 12, 2);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, couleurQt(theme::TEXTE_DISCRET));
    label->setPalette(palette);
    return label;
}

} // namespace

void FrmMenu::construirePanneaux() {
    const auto remplir = [this](Panneau panneau, const QString& titre,
                                std::initializer_list<std::string_view> commandes) {
        QVBoxLayout* colonne = ajouterPanneau(panneau, titre);
        for (const std::string_view commande : commandes)
            ajouterCommande(colonne, commande);
        return colonne;
    };
    QVBoxLayout* corpus =
        remplir(Panneau::Corpus, QStringLiteral("Corpus"),
                {"nouveau", "ouvrir", "sauvegarder", "annuler-changement", "refaire-changement"});
    QWidget* cadreCorpus = corpus->parentWidget();
    corpus->addWidget(intitule("LblSynthese", QStringLiteral("Synthèse"), cadreCorpus));
    for (const std::string_view commande : {"synthese-word", "synthese-rtf", "synthese-paquet"})
        ajouterCommande(corpus, commande);
    corpus->addWidget(intitule("LblRecents", QStringLiteral("Corpus récents"), cadreCorpus));
    colonneRecents_ = new QVBoxLayout;
    colonneRecents_->setSpacing(1);
    corpus->addLayout(colonneRecents_);
    QVBoxLayout* entretiens = remplir(Panneau::Entretiens, QStringLiteral("Entretiens"),
                                      {"ajouter", "retirer-plusieurs", "convertir", "taille-reelle"});
    ajouterEntretienCourant(entretiens);
    entretiens->addWidget(intitule("etq0", QStringLiteral("Tri par ..."), entretiens->parentWidget()));
    for (const std::string_view commande :
         {"tri-alpha", "tri-duree", "tri-retranscrits", "tri-ecoutes", "tri-date", "tri-activite"})
        ajouterCommande(entretiens, commande);
    remplir(Panneau::Thematiques, QStringLiteral("Thématiques"),
            {"thematiques", "volet-thematiques", "vide", "importer-thematiques"});
    remplir(Panneau::Attributs, QStringLiteral("Attributs"), {"donnees", "tri-a-plat"});
    ajouterVolume(ajouterPanneau(Panneau::Volume, QStringLiteral("Volume")));
}

QVBoxLayout* FrmMenu::ajouterPanneau(Panneau panneau, const QString& titre) {
    auto* cadre = new QFrame(this);
    cadre->setObjectName(QStringLiteral("FrmMnu%1").arg(static_cast<int>(panneau)));
    cadre->setAccessibleName(titre);
    cadre->hide();
    FrmMnu_[panneau] = cadre;
    auto* colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins(MARGE, MARGE, MARGE, MARGE);
    colonne->setSpacing(1);
    return colonne;
}

void FrmMenu::ajouterCommande(QVBoxLayout* colonne, std::string_view commande) {
    Lien* ligne = commandes_.ligne(commande, colonne->parentWidget());
    ligne->setMinimumWidth(LARGEUR_MIN);
    if (ligne->text().isEmpty()) ligne->setFixedHeight(MARGE);
    colonne->addWidget(ligne);
}

BoutonImage* FrmMenu::ajouterIcone(std::string_view commande, QWidget* parent) {
    BoutonImage* icone = commandes_.bouton(commande, parent);
    icone->setFixedSize(ICONE, ICONE);
    icone->setCursor(Qt::PointingHandCursor);
    return icone;
}

/// Name and switch of the interview that the commands below it act on.
void FrmMenu::ajouterEntretienCourant(QVBoxLayout* colonne) {
    auto* rangee = new QHBoxLayout;
    rangee->setContentsMargins(0, MARGE, RETRAIT_ICONE, 0);
    QWidget* cadre = colonne->parentWidget();
    rangee->addWidget(intitule("LblEntretien", {}, cadre), 1);
    rangee->addWidget(ajouterIcone("basculer", cadre));
    colonne->addLayout(rangee);
    for (const std::string_view commande : {"lire", "informations", "retirer"})
        ajouterCommande(colonne, commande);
    ajouterIcone("lire", cadre->findChild<Lien*>(QStringLiteral("lblmenu10")))->move(RETRAIT_ICONE, 4);
}

void FrmMenu::montrerEntretienCourant() {
    commandes_.actualiser();
    QWidget* cadre = FrmMnu_.at(Panneau::Entretiens);
    auto* label = cadre->findChild<QLabel*>(QStringLiteral("LblEntretien"));
    if (!entretienChoisi()) {
        label->setText(QStringLiteral("Aucun entretien choisi"));
        return;
    }
    const Entretien& courant = entretienDe(session_.corpus, session_.corpus.EntretienCourant);
    label->setText(versQt(courant.Fichier));
    cadre->findChild<BoutonImage*>(QStringLiteral("ImgOnOff"))
        ->icone(courant.Visible ? QStringLiteral("ImgOn") : QStringLiteral("ImgOff"));
}

/// The change that each step through the history would take back or make again, by its name.
void FrmMenu::montrerHistoire() {
    const QWidget* cadre = FrmMnu_.at(Panneau::Corpus);
    for (const auto& [nom, action, sens] :
         {std::tuple("lblannuler", "Annuler", &session_.histoire.faits),
          std::tuple("lblrefaire", "Rétablir", &session_.histoire.defaits)}) {
        QString texte = utf8VersQt(action);
        if (!sens->empty()) {
            const QString change = utf8VersQt(sens->back().nom);
            texte += QStringLiteral(" : ") + change.at(0).toLower() + change.mid(1);
        }
        auto* ligne = cadre->findChild<Lien*>(QLatin1String(nom));
        ligne->setText(texte);
        ligne->setMaximumWidth(LARGEUR_RECENT);
    }
}

void FrmMenu::ajouterVolume(QVBoxLayout* colonne) {
    LblVol_ = new LblVol(colonne->parentWidget());
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(LblVol_);
    connect(LblVol_, &QSlider::valueChanged, this,
            [this](int part) { garder([this, part] { reglerVolume(session_, plateforme_, part); }); });
}

/// The recent corpora change with each opening, so the list is read each time the panel shows.
void FrmMenu::listerCorpus() {
    QWidget* cadre = FrmMnu_.at(Panneau::Corpus);
    while (QLayoutItem* ancien = colonneRecents_->takeAt(0)) {
        delete ancien->widget();
        delete ancien;
    }
    int index = 0;
    std::vector<Utf8> recents;
    garder([&] { recents = listeProjets(plateforme_.emplacements); });
    for (const Utf8& chemin : recents) {
        auto* ligne = new Lien(QStringLiteral("lblcorpus%1").arg(++index), utf8VersQt(chemin), cadre);
        ligne->setMaximumWidth(LARGEUR_RECENT);
        ligne->encre(theme::TEXTE_DISCRET);
        connect(ligne, &QAbstractButton::clicked, this, [this, chemin] {
            hide();
            garder([&] { ouvrirRecent(chemin); });
        });
        colonneRecents_->addWidget(ligne);
    }
    cadre->findChild<QLabel*>(QStringLiteral("LblRecents"))->setVisible(index > 0);
}
} // namespace vermo
