#include "corpus/ui/FrmIntro.h"

#include "corpus/OuvertureCorpus.h"
#include "corpus/Session.h"
#include "window/Detourage.h"
#include "window/Placement.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"
#include "window/ui/Theme.h"
#include "window/ui/Toile.h"

#include <QPainter>
#include <vector>

namespace vermo {
namespace {

constexpr int OPACITE = 249;
constexpr int PREMIER_RECENT = 3; ///< of lblcorpus

// Sizes in pixels.
constexpr int LARGEUR = 640, HAUTEUR = 452, ARRONDI = 26;
constexpr QRect MARQUE{44, 38, 76, 76};
constexpr QRect TITRE{140, 36, 400, 48};
constexpr QRect SOUS_TITRE{142, 86, 400, 24};
constexpr int TRAIT_HAUT = 136, TRAIT_BAS = 394;
constexpr QRect LIGNES{56, 150, 540, 29}; ///< the first line of the list
constexpr QRect FERMER{586, 24, 28, 28}, SON{44, 406, 28, 28}, SUIVANT{568, 406, 28, 28};
constexpr QRect TEXTE_SON{80, 406, 470, 28};
constexpr int BANDE_PUCE = 18, COTE_PUCE = 16;

constexpr int TIC_SON_MS = 100, TICS_SON_MAX = 30;

} // namespace

FrmIntro::FrmIntro(Session& session, Plateforme& plateforme, Fenetres& fenetres)
    : Forme("FrmIntro", session, plateforme, fenetres),
      Picture1_(new Toile(QStringLiteral("Picture1"), this)), LblSon_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Vermo"));
    Transparence(OPACITE);
    const Rectangle utile = cadreUtile(plateforme_.ecran.zoneTravail());
    const Twips largeur = enTwips(LARGEUR), hauteur = enTwips(HAUTEUR);
    placer({utile.gauche + (utile.largeur - largeur) / 2, utile.haut + (utile.hauteur - hauteur) / 2, largeur,
            hauteur});
    peindreFond();
    decouper();
    deplacerPar(Picture1_);
    ajouterBoutons();
    listerCorpus();
    commandes_.ecouter();
    Picture1_->surMouvement = [this](const Souris&) { Lien::soulignerSeul(this, nullptr); };
    regler(TimerSon_, "TimerSon", TIC_SON_MS, [this] { TimerSon_Tick(); });
}

void FrmIntro::peindreFond() {
    const double finesse = devicePixelRatioF();
    QImage image(QSize(LARGEUR, HAUTEUR) * finesse, QImage::Format_RGB32);
    image.setDevicePixelRatio(finesse);
    image.fill(Qt::black);
    QPainter peintre(&image);
    const QRectF bord(0.5, 0.5, LARGEUR - 1, HAUTEUR - 1);
    peintre.setPen(couleurQt(theme::BORD));
    peintre.setBrush(couleurQt(theme::FENETRE));
    peintre.drawRoundedRect(bord, ARRONDI, ARRONDI);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.drawRoundedRect(bord, ARRONDI, ARRONDI);
    peintre.drawLine(MARQUE.left(), TRAIT_HAUT, LARGEUR - MARQUE.left(), TRAIT_HAUT);
    peintre.drawLine(MARQUE.left(), TRAIT_BAS, LARGEUR - MARQUE.left(), TRAIT_BAS);
    peintre.drawImage(MARQUE, imageEtiree(":/icones/Vermo.svg", MARQUE.size() * finesse));
    peintre.setPen(couleurQt(theme::TEXTE));
    peintre.setFont(theme::police(26, true));
    peintre.drawText(TITRE, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Vermo"));
    peintre.end();
    Picture1_->setGeometry(0, 0, LARGEUR, HAUTEUR);
    Picture1_->image(image);
}

void FrmIntro::decouper() {
    const QImage image = Picture1_->image().scaled(LARGEUR, HAUTEUR);
    std::vector<QRect> bandes;
    for (const Segment& s :
         RegionDepuisImage(LARGEUR, HAUTEUR, [&](int x, int y) { return image.pixel(x, y); }))
        bandes.emplace_back(s.debut, s.y, s.fin - s.debut, 1);
    QRegion region;
    region.setRects(bandes.data(), static_cast<int>(bandes.size()));
    setMask(region);
}

void FrmIntro::ajouterBoutons() {
    auto* version = new QLabel(QStringLiteral(VERMO_VERSION), this);
    version->setObjectName(QStringLiteral("LblVersion"));
    version->setAccessibleName(QStringLiteral("Version"));
    version->setGeometry(SOUS_TITRE);
    version->setFont(theme::police(9));

    LblSon_->setAccessibleName(QStringLiteral("Essai du son"));
    LblSon_->setObjectName(QStringLiteral("LblSon"));
    LblSon_->setGeometry(TEXTE_SON);
    LblSon_->setFont(theme::police(9));

    const auto bouton = [this](std::string_view commande, QRect place) {
        BoutonImage* b = commandes_.bouton(commande, this);
        b->setGeometry(place);
        b->setCursor(Qt::PointingHandCursor);
    };
    bouton("son", SON);
    bouton("continuer", SUIVANT);
    bouton("arreter", FERMER);
}

void FrmIntro::listerCorpus() {
    placerLigne(0, commandes_.ligne("creer", this));
    placerLigne(1, commandes_.ligne("ouvrir", this))->setFocus();
    placerLigne(2, commandes_.ligne("modele", this));
    Elements puces;
    int index = PREMIER_RECENT;
    std::vector<Utf8> recents;
    garder([&] { recents = listeProjets(plateforme_.emplacements); });
    for (const Utf8& chemin : recents) {
        const QRect ligne = ajouterRecent(index, chemin)->geometry();
        const QRectF puce(ligne.left() - BANDE_PUCE, ligne.center().y() - COTE_PUCE / 2.0, COTE_PUCE,
                          COTE_PUCE);
        puces.push_back({.controle = Controle::ImgPuce,
                         .index = index++,
                         .cadre = enTwips(puce),
                         .tag = {},
                         .image = ":/icones/Puce.svg"});
    }
    Picture1_->elements(std::move(puces));
}

Lien* FrmIntro::placerLigne(int index, Lien* ligne) {
    ligne->setGeometry(LIGNES.translated(0, index * LIGNES.height()));
    connect(ligne, &QAbstractButton::pressed, ligne, [ligne] { ligne->setCursor(Qt::WaitCursor); });
    connect(ligne, &QAbstractButton::released, ligne, [ligne] {
        ligne->encre(BLANC);
        ligne->setCursor(Qt::PointingHandCursor);
    });
    return ligne;
}

Lien* FrmIntro::ajouterRecent(int index, const Utf8& chemin) {
    auto* ligne = new Lien(QStringLiteral("lblcorpus%1").arg(index), utf8VersQt(chemin), this);
    connect(ligne, &QAbstractButton::clicked, this, [this, chemin] { ouvrir(chemin); });
    return placerLigne(index, ligne);
}

void FrmIntro::testerSon() {
    const Utf8 son = plateforme_.emplacements.fichierLu("Vermo de Vermo.mp3");
    if (son.empty()) throw FauteExecution("Le son d'essai est introuvable", "Vermo de Vermo.mp3");
    LblSon_->clear();
    plateforme_.media.URL(son, Fenetre::FrmIntro);
    plateforme_.media.play();
    ticsSon_ = 0;
    TimerSon_.start();
}

void FrmIntro::TimerSon_Tick() {
    if (plateforme_.media.proprietaire() != Fenetre::FrmIntro) return TimerSon_.stop();
    Utf8 obstacle = plateforme_.media.erreur();
    if (obstacle.empty() && plateforme_.media.muet())
        obstacle = "Aucune sortie son : la lecture est silencieuse.";
    LblSon_->setText(utf8VersQt(obstacle));
    if (!obstacle.empty() || ++ticsSon_ >= TICS_SON_MAX) TimerSon_.stop();
}

} // namespace vermo
