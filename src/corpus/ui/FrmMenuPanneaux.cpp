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

namespace vermo {
namespace {

struct Commande {
    int index;
    const char* texte;
    void (*action)(Session&, Fenetres&) = nullptr; ///< none: shown disabled
};

void ouvrirParDialogue(Session& session, Fenetres& fenetres) {
    session.corpus.OuvertureDirecte = false;
    fenetres.OuvrirCorpus();
}
void lire(Session& session, Fenetres& fenetres) {
    if (session.corpus.EntretienCourant != 0)
        fenetres.montrer(Fenetre::FrmVisu,
                         EntretienVoulu{session.corpus.EntretienCourant, Ouverture::SansFondu});
}
void retirer(Session& session, Fenetres& fenetres) {
    if (session.corpus.EntretienCourant != 0) fenetres.retirerEntretien();
}

void basculer(Session& session, Fenetres& fenetres) {
    basculerEntretien(session.corpus, session.corpus.EntretienCourant);
    fenetres.annoncer({Sujet::Bascules});
}

/// lblmenu by index. The blanks in front make room for an icon.
constexpr Commande COMMANDES[] = {
    {0, "Nouveau corpus...", [](Session&, Fenetres& f) { f.NouveauCorpus(); }},
    {1, "Ouvrir un corpus existant...", ouvrirParDialogue},
    {2, "Gérer les thématiques ..."},
    {3, "Ajouter un entretien...", [](Session&, Fenetres& f) { f.ImporterEntretien(); }},
    {4, "Afficher la base de données "},
    {5, "Afficher/Masquer le volet des thématiques ..."},
    {6, ""},
    {7, "Importer les thématiques d'un autre corpus"},
    {8, "Afficher/Masquer le tri à plat"},
    {9, "Représenter la taille réelle des entretiens",
     [](Session& s, Fenetres&) { s.corpus.TailleReelle = !s.corpus.TailleReelle; }},
    {10, "         Lire", lire},
    {11, "         Informations"},
    {12, "         Supprimer", retirer},
    {13, "Supprimer un ou plusieurs entretiens..."},
    {14, "Convertir des fichiers..."},
    {15, "Ordre Alphabétique"},
    {16, "Durée"},
    {17, "% Retranscrits"},
    {18, "% Ecoutés"},
    {19, "Date de Création"},
    {20, "Activité"},
    {21, "              Ouvrir dans Word"},
    {22, "           Exporter dans  Fichier *.Rtf"},
    {23, "Créer un dossier de sauvegarde"},
    {24, "           Ouvrir dans Reader (*.Vrm)"},
};

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
    const auto remplir = [this](Panneau panneau, const QString& titre, std::initializer_list<int> indexes) {
        QVBoxLayout* colonne = ajouterPanneau(panneau, titre);
        for (int index : indexes)
            ajouterCommande(colonne, index);
        return colonne;
    };
    QVBoxLayout* corpus = remplir(Panneau::Corpus, QStringLiteral("Corpus"), {0, 1, 23});
    QWidget* cadreCorpus = corpus->parentWidget();
    corpus->addWidget(intitule("LblSynthese", QStringLiteral("Synthèse"), cadreCorpus));
    for (int index : {21, 22, 24})
        ajouterCommande(corpus, index);
    corpus->addWidget(intitule("LblRecents", QStringLiteral("Corpus récents"), cadreCorpus));
    colonneRecents_ = new QVBoxLayout;
    colonneRecents_->setSpacing(1);
    corpus->addLayout(colonneRecents_);
    QVBoxLayout* entretiens = remplir(Panneau::Entretiens, QStringLiteral("Entretiens"), {3, 13, 14, 9});
    ajouterEntretienCourant(entretiens);
    entretiens->addWidget(intitule("etq0", QStringLiteral("Tri par ..."), entretiens->parentWidget()));
    for (int index = 15; index <= 20; ++index)
        ajouterCommande(entretiens, index);
    remplir(Panneau::Thematiques, QStringLiteral("Thématiques"), {2, 5, 6, 7});
    remplir(Panneau::Attributs, QStringLiteral("Attributs"), {4, 8});
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

void FrmMenu::ajouterCommande(QVBoxLayout* colonne, int index) {
    const Commande& commande = COMMANDES[index];
    auto* ligne = new Lien(QStringLiteral("lblmenu%1").arg(index), QString::fromUtf8(commande.texte),
                           colonne->parentWidget());
    ligne->setEnabled(commande.action != nullptr);
    ligne->setMinimumWidth(LARGEUR_MIN);
    if (index == 6) ligne->setFixedHeight(MARGE);
    connect(ligne, &QAbstractButton::clicked, this, [this, &commande] { executer(commande.action); });
    colonne->addWidget(ligne);
}

void FrmMenu::executer(Action action) {
    hide();
    garder([this, action] { action(session_, fenetres_); });
}

BoutonImage* FrmMenu::ajouterIcone(const char* nom, const char* image, const QString& bulle, QWidget* parent,
                                   Action action) {
    auto* icone = new BoutonImage(QString::fromLatin1(nom), QString::fromLatin1(image), bulle, parent);
    icone->setFixedSize(ICONE, ICONE);
    icone->setCursor(Qt::PointingHandCursor);
    connect(icone, &QAbstractButton::clicked, this, [this, action] { executer(action); });
    return icone;
}

/// Name and switch of the interview that the commands below it act on.
void FrmMenu::ajouterEntretienCourant(QVBoxLayout* colonne) {
    auto* rangee = new QHBoxLayout;
    rangee->setContentsMargins(0, MARGE, RETRAIT_ICONE, 0);
    QWidget* cadre = colonne->parentWidget();
    rangee->addWidget(intitule("LblEntretien", {}, cadre), 1);
    rangee->addWidget(
        ajouterIcone("ImgOnOff", "ImgOn", QStringLiteral("Activer/désactiver l'entretien"), cadre, basculer));
    colonne->addLayout(rangee);
    for (int index : {10, 11, 12})
        ajouterCommande(colonne, index);
    ajouterIcone("ImgPlay", "ImgPlay", QStringLiteral("Ouvrir la fenêtre de saisie"),
                 cadre->findChild<Lien*>(QStringLiteral("lblmenu10")), lire)
        ->move(RETRAIT_ICONE, 4);
}

void FrmMenu::montrerEntretienCourant() {
    const int slot = session_.corpus.EntretienCourant;
    QWidget* cadre = FrmMnu_.at(Panneau::Entretiens);
    for (const char* nom : {"lblmenu10", "lblmenu12", "ImgPlay", "ImgOnOff"})
        cadre->findChild<QWidget*>(QString::fromLatin1(nom))->setEnabled(slot != 0);
    auto* label = cadre->findChild<QLabel*>(QStringLiteral("LblEntretien"));
    if (slot == 0) {
        label->setText(QStringLiteral("Aucun entretien choisi"));
        return;
    }
    const Entretien& courant = session_.corpus.Entretiens.at(static_cast<std::size_t>(slot));
    label->setText(versQt(courant.Fichier));
    cadre->findChild<BoutonImage*>(QStringLiteral("ImgOnOff"))
        ->icone(courant.Visible ? QStringLiteral("ImgOn") : QStringLiteral("ImgOff"));
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
            garder([&] {
                session_.corpus.CheminCorpus = chemin;
                session_.corpus.OuvertureDirecte = true;
                fenetres_.OuvrirCorpus();
            });
        });
        colonneRecents_->addWidget(ligne);
    }
    cadre->findChild<QLabel*>(QStringLiteral("LblRecents"))->setVisible(index > 0);
}
} // namespace vermo
