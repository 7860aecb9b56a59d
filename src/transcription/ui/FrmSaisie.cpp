#include "transcription/ui/FrmSaisie.h"

#include "corpus/AnalyserEntretiens.h"
#include "textfile/nombres.h"
#include "transcription/Retranscription.h"
#include "transcription/Saisie.h"
#include "transcription/ui/EditeurRtr.h"
#include "transcription/ui/FrmSaisieTailles.h"
#include "window/Fondu.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"

#include <QCloseEvent>
#include <QEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <utility>

namespace vermo {

namespace t = tailles_saisie;

namespace {

constexpr Fondu FONDU{.pas = 50};

} // namespace

FrmSaisie::FrmSaisie(Session& session, Plateforme& plateforme, Fenetres& fenetres, QWidget* parent)
    : Forme("FrmSaisie", session, plateforme, fenetres, parent), tagSecondes_(session.transcription.LblSec) {
    setWindowTitle(QStringLiteral("Vermo - Saisie d'un extrait"));
    Picture1_ = new Toile(QStringLiteral("Picture1"), this);
    Picture1_->setAccessibleName(QStringLiteral("Fenêtre de saisie"));
    Picture1_->fond(theme::PANNEAU);
    poser(Picture1_, {0, 0, t::LARGEUR_NOUVEL_EXTRAIT, t::HAUTEUR});
    deplacerPar(Picture1_);
    Picture1_->surPression = [this](const Souris&) { TextRtr_->setFocus(); };
    creerEntete();
    creerEcoute();
    creerOptions();
    creerTexte();
    creerPanneau();
    creerAjout();
    commandes_.ecouter();
    TextRtr_->installEventFilter(this); // after the commands, so as to hear of a key before one takes it
    Timer1_.start();
    placerLargeur(false);
}

void FrmSaisie::creerEntete() {
    const auto etiquette = [this](const char* nom, const Rectangle& cadre, Qt::Alignment cote) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(nom));
        label->setAlignment(cote | Qt::AlignVCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        poser(label, cadre);
        return label;
    };
    etq_deb_sel_ = etiquette("etq_deb_sel", t::ETQ_DEB_SEL, Qt::AlignLeft);
    etq_fin_sel_ = etiquette("etq_fin_sel", t::ETQ_FIN_SEL, Qt::AlignRight);
    etiquette("lblfich", t::FICHIER, Qt::AlignHCenter);
    etat_ = etiquette("etat", t::ETAT, Qt::AlignHCenter);
    theme::habiller(etat_);
    creerBouton("quitter", t::LBL_FERMER_0);
    creerBouton("replier", t::LBL_FERMER_1);
}

BoutonImage* FrmSaisie::creerBouton(std::string_view commande, const Rectangle& cadre) {
    BoutonImage* bouton = commandes_.bouton(commande, this);
    poser(bouton, cadre);
    return bouton;
}

void FrmSaisie::creerTexte() {
    lbl_thm_ = new Lien(QStringLiteral("lbl_thm"), QString(), this, 11);
    lbl_thm_->setToolTip(commandes_.bulle("deplier"));
    poser(lbl_thm_, t::LBL_THM);
    commandes_.relier("deplier", lbl_thm_);
    TextRtr_ = new EditeurRtr(this);
    theme::habiller(TextRtr_);
    poser(TextRtr_, t::TEXTRTR);
    connect(TextRtr_, &QPlainTextEdit::textChanged, this, [this] {
        fiche_.texte = TextRtr_->saisi();
        if (!remplissage_) garder([this] { garderBrouillon(); });
    });
    connect(TextRtr_, &EditeurRtr::refusesChanges, this, [this](int nombre) {
        etat_->setText(
            nombre == 0
                ? QString()
                : QStringLiteral("Caractères impossibles à enregistrer, marqués en rouge : %1").arg(nombre));
    });
    Imgsuppr_ = creerBouton("supprimer", t::IMGSUPPR);
    creerBouton("valider", t::IMGBTN_0);
}

void FrmSaisie::montrer(const Contenu& contenu) {
    if (std::holds_alternative<NouvelExtraitVoulu>(contenu))
        PreparerSaisie();
    else if (const auto* voulu = std::get_if<ExtraitVoulu>(&contenu))
        OuvrirExtrait(voulu->numero);
    else if (std::holds_alternative<TexteAbandonneVoulu>(contenu))
        reprendreAbandon();
    else
        Forme::montrer(contenu);
}

void FrmSaisie::surAvis(const Avis& avis) {
    if (avis.sujet == Sujet::Thematiques) ConstruireThematiques();
    if (avis.sujet == Sujet::Extraits && avis.slot == fiche_.source.slot && isVisible()) retrouverExtrait();
}

/// The extracts were read again: what is typed stays, for the same extract, or for a new one beside what the
/// file holds by now. An extract that is only looked at is followed, or left.
void FrmSaisie::retrouverExtrait() {
    auto& etat = session_.transcription;
    if (fiche_.numero == 0) return;
    const int numero = saisie::retrouver(session_, ouverte_);
    if (numero == 0 && !entamee()) return relireExtrait();
    fiche_.numero = ouverte_.numero = numero;
    etat.ExtraitCourant = static_cast<float>(numero);
    etat.NouvelExtrait = numero == 0;
    Imgsuppr_->setVisible(!etat.NouvelExtrait);
    garderBrouillon();
}

void FrmSaisie::relireExtrait() {
    if (fiche_.numero > nombreExtraits(session_)) return FermerSaisie();
    saisie::ouvrirSpan(session_, fiche_.numero);
    fiche_ = ouverte_ = saisie::ficheOuverte(session_);
    montrerFiche();
    titrer();
    dessinerOnde();
}

void FrmSaisie::PreparerSaisie() {
    preparer();
    Timer2_.stop();
    Transparence(250);
    prendrePlace();
}

void FrmSaisie::OuvrirExtrait(int n) {
    saisie::ouvrirSpan(session_, n);
    Transparence(0);
    fondu_ = -FONDU.pas; // the first tick shows nothing yet
    Timer2_.start();
    preparer();
    prendrePlace();
}

void FrmSaisie::prendrePlace() {
    ouverte_ = fiche_;
    show();
    raise();
    activateWindow();
    Imgsuppr_->setVisible(!session_.transcription.NouvelExtrait);
    placerCurseur();
    TextRtr_->setFocus();
}

bool FrmSaisie::entamee() const {
    return fiche_ != ouverte_;
}

void FrmSaisie::preparer() {
    auto& etat = session_.transcription;
    LecteurMedia& media = plateforme_.media;
    arreterAllongement();
    if (!media.enLecture()) media.play();
    if (session_.audio.VitesseLecture != 0) media.rate(session_.audio.VitesseLecture);
    if (media.currentPosition() < etat.SaisieDebut) positionner(etat.SaisieDebut);
    Picture2_->setVisible(media.rateDisponible());
    fiche_ = saisie::ficheOuverte(session_);
    montrerFiche();
    etat_->clear();
    titrer();
    if (etat.DicteeActive) saisie::demarrerPortion(session_, etat.SaisieDebut, etat.PortionSecondes);
    if (etat.DicteeActive) MontrerPortion(etat.PortionDebut, etat.PortionFin);
    dessinerOnde();
    montrerOptions();
    placerLargeur(etat.NouvelExtrait);
}

void FrmSaisie::titrer() {
    const auto& etat = session_.transcription;
    etq_deb_sel_->setText(versQt(HeureTexte(etat.SaisieDebut)));
    etq_fin_sel_->setText(versQt(HeureTexte(etat.SaisieFin)));
    const auto& corpus = session_.corpus;
    if (corpus.EntretienCourant == 0) return;
    findChild<QLabel*>(QStringLiteral("lblfich"))
        ->setText(versQt(corpus.Entretiens[std::size_t(corpus.EntretienCourant)].Fichier));
}

void FrmSaisie::placerLargeur(bool depliee) {
    const bool nouveau = depliee && session_.transcription.NouvelExtrait;
    const Twips largeur = !depliee ? t::LARGEUR_PLIEE : nouveau ? t::LARGEUR_NOUVEL_EXTRAIT : t::LARGEUR_FOND;
    const ZoneTravail zone = plateforme_.ecran.zoneTravail();
    const bool jamaisMontree = !testAttribute(Qt::WA_WState_ExplicitShowHide);
    const Twips gauche = jamaisMontree ? zone.gauche + (zone.largeur - t::LARGEUR_FOND) / 2 : enTwips(x());
    const Twips haut = jamaisMontree ? zone.haut + (zone.hauteur - t::HAUTEUR) * 3 / 4 : enTwips(y());
    const int avant = width();
    placer({gauche, haut, largeur, t::HAUTEUR});
    if (depliee && (width() != avant || !isVisible())) reinitialiserAjout();
    if (depliee)
        FrmThms_->setFocus();
    else
        TextRtr_->setFocus();
}

void FrmSaisie::montrerFiche() {
    const QScopedValueRollback remplissage(remplissage_, true);
    montrerThematique();
    TextRtr_->texte(fiche_.texte);
}

void FrmSaisie::montrerThematique() {
    colorer();
    lbl_thm_->setText(versQt(fiche_.thematique.caption));
    lbl_thm_->encre(saisie::encreThematique(fiche_.thematique.tag));
}

void FrmSaisie::colorer() {
    Elements bandes;
    for (int i = 0; i < 8; ++i)
        bandes.push_back({.controle = Controle::ShpFondSaisie,
                          .index = i,
                          .cadre = t::SHPFONDSAISIE[i],
                          .fond = fiche_.thematique.couleur,
                          .rempli = true});
    bandes.push_back(
        {.controle = Controle::Shape2, .cadre = t::LBL_THM, .fond = rvb(226, 226, 230), .rempli = true});
    bandes.push_back({.controle = Controle::Shape2,
                      .index = 1,
                      .cadre = {7865, 0, 15, t::HAUTEUR},
                      .fond = theme::BORD,
                      .rempli = true});
    bandes.push_back(
        {.controle = Controle::ShpFdThm, .cadre = t::SHPFDTHM, .fond = couleurAjout_, .rempli = true});
    Picture1_->elements(std::move(bandes));
}

/// At an opening only: who comes back from another window goes on typing where the caret was.
void FrmSaisie::placerCurseur() {
    QTextCursor curseur = TextRtr_->textCursor();
    curseur.setPosition(std::min(1, int(TextRtr_->toPlainText().size())));
    TextRtr_->setTextCursor(curseur);
}

void FrmSaisie::closeEvent(QCloseEvent* evenement) {
    evenement->ignore();
    garder([this] { FermerSaisie(); });
}

bool FrmSaisie::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == TextRtr_ && evenement->type() == QEvent::KeyPress) session_.transcription.Compteur = 0;
    if (objet == ImgMedia_ && evenement->type() == QEvent::Enter) LblTip_->show();
    if (objet == ImgMedia_ && evenement->type() == QEvent::Leave) LblTip_->hide();
    return Forme::eventFilter(objet, evenement);
}

void FrmSaisie::FermerSaisie() {
    abandonner();
    arreterAllongement();
    session_.transcription.SaisieDuree = 0;
    hide();
    if (session_.transcription.RetourCorpus) plateforme_.media.pause();
}

bool FrmSaisie::texteValide(Texte& texte) {
    const QStringList refuses = TextRtr_->refuses();
    if (refuses.isEmpty()) {
        texte = TextRtr_->texte();
        return true;
    }
    const QString liste = refuses.mid(0, 10).join(QStringLiteral("\n")) +
                          (refuses.size() > 10 ? QStringLiteral("\n…") : QString());
    plateforme_.dialogues.demander(
        {.texte = utf8DepuisQt(QStringLiteral("Ces caractères ne peuvent pas être enregistrés :\n%1\n"
                                              "Rien n'est perdu : remplacez-les, puis validez.")
                                   .arg(liste)),
         .icone = Icone::Exclamation});
    return false;
}

/// While the file is written the window is away; it comes back, with all that it held, when nothing was.
bool FrmSaisie::cacherPour(const std::function<bool()>& ecrire) {
    arreterAllongement();
    const double duree = std::exchange(session_.transcription.SaisieDuree, 0);
    const EtatLu lu = session_.transcription.lu;
    const auto revenir = [&] {
        session_.transcription.SaisieDuree = duree;
        show();
        if (session_.transcription.lu != lu) retrouverExtrait();
    };
    hide();
    try {
        if (ecrire()) return true;
    } catch (...) {
        revenir();
        throw;
    }
    revenir();
    return false;
}

void FrmSaisie::valider() {
    Texte texte;
    if (!texteValide(texte)) return;
    auto& etat = session_.transcription;
    const bool ecrit = cacherPour([&] {
        return etat.NouvelExtrait
                   ? AjouterExtrait(session_, plateforme_, retranscriptionDuLecteur(session_, plateforme_),
                                    texte, fiche_.thematique.tag)
                   : saisie::validerModification(session_, plateforme_, fiche_.thematique.caption, texte);
    });
    if (ecrit) retirerBrouillon();
    if (!ecrit || etat.NouvelExtrait || !etat.RetourCorpus) return;
    etat.RetourCorpus = false;
    quitterEntretien(session_, plateforme_);
    fenetres_.decharger(Fenetre::FrmVisu);
}

void FrmSaisie::supprimer() {
    auto& etat = session_.transcription;
    if (etat.ExtraitCourant == 0) return;
    const Retranscription cible = retranscriptionDuLecteur(session_, plateforme_);
    const bool supprime =
        cacherPour([&] { return SupprimerExtrait(session_, plateforme_, cible) == Suppression::Supprime; });
    if (supprime) retirerBrouillon();
    if (!supprime || !etat.RetourCorpus) return;
    etat.RetourCorpus = false;
    quitterEntretien(session_, plateforme_);
}

void FrmSaisie::Timer2_Tick() {
    const PasFondu pas = avancer(FONDU, fondu_);
    if (pas.alpha) Transparence(*pas.alpha);
    if (pas.arreter) Timer2_.stop();
}

} // namespace vermo
