// The controls of the window: made once, placed at each change of its size.
#include "corpus/Session.h"
#include "corpus/ui/CroixDouble.h"
#include "corpus/ui/FrmCorpus.h"
#include "corpus/ui/ToileEntretiens.h"
#include "corpus/ui/ToileThematiques.h"
#include "window/Placement.h"
#include "window/ui/BarreDefilement.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"
#include "window/ui/Theme.h"

#include <QLabel>
#include <QPainter>
#include <QProgressBar>

namespace vermo {
namespace {

// Sizes in pixels.
constexpr QRect MARQUE{16, 8, 22, 22}, TITRE{46, 6, 70, 26}, VERSION{112, 8, 50, 24};
constexpr int GAUCHE_CHEMIN = 250, ARRONDI = 8;

QLabel* etiquette(const QString& nom, QWidget* parent, int corps, Couleur encre) {
    auto* label = new QLabel(parent);
    label->setObjectName(nom);
    label->setFont(theme::police(corps));
    label->setTextFormat(Qt::PlainText);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, couleurQt(encre));
    label->setPalette(palette);
    return label;
}

QWidget* cadre(const char* nom, QWidget* parent) {
    auto* boite = new QWidget(parent);
    boite->setObjectName(QString::fromLatin1(nom));
    return boite;
}

} // namespace

FrmCorpus::FrmCorpus(Session& session, Plateforme& plateforme, Fenetres& fenetres)
    : Forme("FrmCorpus", session, plateforme, fenetres) {
    construireTitre();
    construireMenus();
    construireBoutons();
    construirePanneaux();
    placer(cadreUtile(plateforme_.ecran.zoneTravail()));
    placerControles();
    montrerComptes();
    montrerInvite();
    commandes_.ecouter();
    Frm_entretiens_->setFocus();
}

void FrmCorpus::construireTitre() {
    ImgTop_ = cadre("ImgTop", this);
    ImgTop_->setAutoFillBackground(true);
    ImgTop_->setPalette(couleurQt(theme::PANNEAU));
    deplacerPar(ImgTop_);
    auto* marque = etiquette(QStringLiteral("ImgMarque"), ImgTop_, 8, theme::TEXTE);
    marque->setGeometry(MARQUE);
    marque->setScaledContents(true);
    marque->setPixmap(
        QPixmap::fromImage(imageEtiree(":/icones/Vermo.svg", MARQUE.size() * devicePixelRatioF())));
    auto* nom = etiquette(QStringLiteral("LblNom"), ImgTop_, 11, theme::TEXTE);
    nom->setFont(theme::police(11, true));
    nom->setText(QStringLiteral("Vermo"));
    nom->setGeometry(TITRE);
    auto* version = etiquette(QStringLiteral("lblCaption0"), ImgTop_, 8, theme::TEXTE_DISCRET);
    const QString numeros = QStringLiteral(VERMO_VERSION);
    version->setText(numeros.left(numeros.lastIndexOf(QLatin1Char('.'))));
    version->setGeometry(VERSION);
    lblCaption1_ = etiquette(QStringLiteral("lblCaption1"), ImgTop_, 9, theme::TEXTE_DISCRET);

    PictVol_ = new Toile(QStringLiteral("PictVol"), this);
    PictVol_->fond(theme::PANNEAU);
    PictVol_->setFocusPolicy(Qt::TabFocus);
    PictVol_->setCursor(Qt::PointingHandCursor);
    PictVol_->surClic = [this](const Souris&) { ouvrirVolume(); };
    PictVol_->surMouvement = [this](const Souris&) {
        if (!fenetres_.visible(Fenetre::FrmMenu)) ouvrirVolume();
    };
    ImgCroix_ = new CroixDouble(QStringLiteral("ImgCroix0"), commandes_.bulle("reduire"),
                                commandes_.bulle("quitter"), this);
    connect(ImgCroix_, &QAbstractButton::clicked, this, [this] { garder([this] { croix(); }); });
}

void FrmCorpus::construireMenus() {
    lblmenu_ = {commandes_.ligne("menu-corpus", this), commandes_.ligne("menu-entretiens", this),
                commandes_.ligne("menu-thematiques", this), commandes_.ligne("menu-attributs", this)};
}

BoutonImage* FrmCorpus::ajouterBouton(std::string_view commande) {
    BoutonImage* bouton = commandes_.bouton(commande, this);
    if (bouton->isEnabled()) bouton->setCursor(Qt::PointingHandCursor);
    return bouton;
}

void FrmCorpus::construireBoutons() {
    constexpr std::pair<std::size_t, std::string_view> BOUTONS[] = {
        {0, "donnees"}, {1, "stats"}, {4, "synthese"},      {8, "paquet"},
        {7, "ajouter"}, {6, "trier"}, {3, "taille-reelle"}, {5, "tri-a-plat"}};
    FrmBtnEntr_ = cadre("FrmBtnEntr", this);
    ImgOnOffthm_ = ajouterBouton("thematiques");
    ImgOnOffent_ = ajouterBouton("entretiens");
    for (const auto& [index, commande] : BOUTONS)
        Imgbtn_.at(index) = ajouterBouton(commande);
    ImgZoom_ = {ajouterBouton("zoom-avant"), ajouterBouton("zoom-arriere")};
    for (BoutonImage* zoom : ImgZoom_)
        zoom->installEventFilter(this);
}

void FrmCorpus::construirePanneaux() {
    for (int i = 0; i < 2; ++i)
        ligneDe(etq_, i) = etiquette(QStringLiteral("etq%1").arg(i), this, 9, theme::TEXTE);
    Frm_fond_thm_ = cadre("Frm_fond_thm", this);
    Frm_thm_ = new ToileThematiques(session_, fenetres_, Frm_fond_thm_);
    Frm_thm_->surBascule = [this] { ImgOnOffthm_->icone(QStringLiteral("ImgOff")); };
    Frm_fond_entretiens_ = cadre("Frm_fond_entretiens", this);
    Frm_entretiens_ = new ToileEntretiens(session_, fenetres_, Frm_fond_entretiens_);
    Frm_entretiens_->surDefilement = [this] { montrerDefilement(); };
    LblScroll_ = new BarreDefilement(QStringLiteral("LblScroll"), session_.corpus.DefilementActif,
                                     Frm_fond_entretiens_);
    LblScroll_->setAccessibleName(QStringLiteral("Défilement des entretiens"));
    LblScroll_->surDefilement = [this](Twips voulu) { Frm_entretiens_->defiler(voulu); };
    PictTps_ = new Toile(QStringLiteral("PictTps"), this);
    PictTps_->fond(theme::REGLE);
    PictTps_->setAccessibleName(QStringLiteral("Règle du temps"));
    LblVide_ = etiquette(QStringLiteral("LblVide"), Frm_fond_entretiens_, 14, theme::TEXTE_DISCRET);
    LblVide_->setAlignment(Qt::AlignCenter);
    LblVide_->setAttribute(Qt::WA_TransparentForMouseEvents);
    ProgressBar1_ = new QProgressBar(this);
    ProgressBar1_->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1_->setAccessibleName(QStringLiteral("Progression"));
    ProgressBar1_->setTextVisible(false);
    ProgressBar1_->hide();
    PictTps_->hide();
}

void FrmCorpus::placerControles() {
    disposition_ = disposerFenetreCorpus(enTwips(width()), enTwips(height()), session_.corpus.TriAPlat);
    const DispositionCorpus& d = disposition_;
    poser(ImgTop_, d.ImgTop);
    poser(ImgCroix_, d.ImgCroix);
    poser(PictVol_, d.PictVol);
    lblCaption1_->setGeometry(GAUCHE_CHEMIN, 0, PictVol_->x() - GAUCHE_CHEMIN, ImgTop_->height());
    for (std::size_t i = 0; i < lblmenu_.size(); ++i)
        poser(lblmenu_[i], d.lblmenu[i]);
    for (std::size_t i = 0; i < Imgbtn_.size(); ++i)
        if (Imgbtn_[i]) poser(Imgbtn_[i], d.Imgbtn[i]);
    for (std::size_t i = 0; i < 2; ++i) {
        poser(ImgZoom_[i], d.ImgZoom[i]);
        poser(etq_[i], d.etq[i]);
    }
    poser(ImgOnOffthm_, d.ImgOnOffthm);
    poser(ImgOnOffent_, d.ImgOnOffent);
    poser(Frm_fond_thm_, d.Frm_fond_thm);
    poser(Frm_thm_, d.Frm_thm);
    poser(FrmBtnEntr_, d.FrmBtnEntr);
    poser(PictTps_, d.PictTps);
    poser(Frm_fond_entretiens_, d.Frm_fond_entretiens);
    poser(Frm_entretiens_, d.Frm_entretiens);
    LblScroll_->placer(d.LigneScroll);
    LblVide_->setGeometry(Frm_fond_entretiens_->rect());
    poser(ProgressBar1_, d.ProgressBar1);
    DessinerVolume();
}

void FrmCorpus::resizeEvent(QResizeEvent* evenement) {
    Forme::resizeEvent(evenement);
    if (isMinimized()) return;
    garder([this] {
        placerControles();
        if (!session_.corpus.CheminCorpus.empty()) montrerFrise();
    });
}

/// The frames around the two panels.
void FrmCorpus::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(couleurQt(theme::BORD));
    peintre.setBrush(couleurQt(theme::PANNEAU));
    for (const Rectangle& contour : {disposition_.cadreThm, disposition_.cadreEntretiens})
        peintre.drawRoundedRect(enPixels(contour), ARRONDI, ARRONDI);
}

} // namespace vermo
