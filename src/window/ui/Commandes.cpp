#include "window/ui/Commandes.h"

#include "window/ui/CapteurTouches.h"
#include "window/ui/Glace.h"
#include "window/ui/Lien.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace vermo {
namespace {

constexpr std::pair<int, std::string_view> CLES[] = {
    {Qt::Key_Return, "Entrée"},
    {Qt::Key_Enter, "Entrée"},
    {Qt::Key_Escape, "Échap"},
    {Qt::Key_Space, "Espace"},
    {Qt::Key_Left, "←"},
    {Qt::Key_Right, "→"},
    {Qt::Key_Up, "↑"},
    {Qt::Key_Down, "↓"},
    {Qt::Key_PageUp, "Page précédente"},
    {Qt::Key_PageDown, "Page suivante"},
    {Qt::Key_Home, "Origine"},
    {Qt::Key_End, "Fin"},
    {Qt::Key_Delete, "Suppr"},
};

Utf8 nomCle(int cle) {
    const auto nommee = std::ranges::find(CLES, cle, &std::pair<int, std::string_view>::first);
    return nommee != std::end(CLES) ? Utf8(nommee->second) : utf8DepuisQt(QKeySequence(cle).toString());
}

bool connue(std::string_view cle) {
    if (std::ranges::find(CLES, cle, &std::pair<int, std::string_view>::second) != std::end(CLES))
        return true;
    const auto lues = QKeySequence::fromString(utf8VersQt(cle));
    return lues.count() == 1 && lues[0].key() != Qt::Key_unknown;
}

std::uint8_t modificateurs(const QKeyEvent& evenement) {
    const Qt::KeyboardModifiers tenus = evenement.modifiers();
    return static_cast<std::uint8_t>((tenus & Qt::ControlModifier ? CTRL : 0) |
                                     (tenus & Qt::AltModifier ? ALT : 0) |
                                     (tenus & Qt::ShiftModifier ? MAJ : 0));
}

/// A control that edits a text takes these keys for its own.
constinit const Commande COMMUNES[] = {
    {.id = "annuler-changement",
     .ligne = "lblannuler",
     .texte = "Annuler",
     .touches = {{"Ctrl + Z", {}, 0}},
     .faire = agir<&Forme::annulerChangement>,
     .permise = agir<&Forme::aAnnuler>},
    {.id = "refaire-changement",
     .ligne = "lblrefaire",
     .texte = "Rétablir",
     .touches = {{"Ctrl + Maj + Z", {}, 0}},
     .faire = agir<&Forme::refaireChangement>,
     .permise = agir<&Forme::aRefaire>},
};

} // namespace

Commandes::Commandes(Forme& fenetre, TableCommandes table) : fenetre_(fenetre), table_(table) {}

TableCommandes Commandes::communes() {
    return COMMUNES;
}

const Commande& Commandes::commande(std::string_view id) const {
    for (const Commande& commune : COMMUNES)
        if (commune.id == id) return commune;
    return commandeDe(table_, id);
}

BoutonImage* Commandes::bouton(std::string_view id, QWidget* parent) {
    const Commande& commande = this->commande(id);
    auto* bouton =
        new BoutonImage(utf8VersQt(commande.bouton), utf8VersQt(commande.icone), bulle(id), parent);
    if (!commande.iconePressee.empty()) bouton->iconePressee(utf8VersQt(commande.iconePressee));
    relier(id, bouton);
    return bouton;
}

Lien* Commandes::ligne(std::string_view id, QWidget* parent) {
    const Commande& commande = this->commande(id);
    auto* ligne = new Lien(utf8VersQt(commande.ligne), utf8VersQt(commande.texte), parent);
    if (commande.bouton.empty()) ligne->setToolTip(bulle(id));
    relier(id, ligne);
    return ligne;
}

void Commandes::relier(std::string_view id, QAbstractButton* controle) {
    const Commande& commande = this->commande(id);
    controles_.emplace_back(&commande, controle);
    controle->setEnabled(permise(commande));
    const auto agir = [this, &commande] {
        fenetre_.garder([&] {
            if (avantBouton) avantBouton();
            faire(commande);
        });
    };
    if (commande.auPresser)
        connect(controle, &QAbstractButton::pressed, this, agir);
    else
        connect(controle, &QAbstractButton::clicked, this, agir);
}

QString Commandes::bulle(std::string_view id) const {
    const Commande& commande = this->commande(id);
    return utf8VersQt(vermo::avecTouches(table_, commande.bulle, &commande));
}

QString Commandes::avecTouches(std::string_view texte) const {
    return utf8VersQt(vermo::avecTouches(table_, texte));
}

QString Commandes::indices() const {
    return utf8VersQt(ligneIndices(table_));
}

void Commandes::ecouter() {
    fenetre_.installEventFilter(this);
    for (const Commande& commande : table_)
        for (const Raccourci& raccourci : commande.touches) {
            if (!raccourci.touche.cle.empty() && !connue(raccourci.touche.cle))
                throw FauteExecution("touche inconnue : " + nomTouche(raccourci.touche));
            for (const QString& nom : utf8VersQt(raccourci.ou).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                ecouter(nom);
        }
}

void Commandes::ecouter(const QString& nom) {
    auto* controle = fenetre_.findChild<QWidget*>(nom);
    if (!controle) throw FauteExecution("contrôle inconnu : " + utf8DepuisQt(nom));
    controle->installEventFilter(this);
}

void Commandes::capter(CapteurTouches& capteur) {
    capteur.surTouche = [this](const QKeyEvent& touche, Frappe frappe) {
        if (touche.key() == Qt::Key_Tab || touche.key() == Qt::Key_Backtab) return false;
        frappe == Frappe::Relachement ? relacher(touche) : presser(touche);
        return true;
    };
}

void Commandes::actualiser() {
    for (const auto& [commande, controle] : controles_)
        if (controle) controle->setEnabled(permise(*commande));
}

bool Commandes::permise(const Commande& commande) const {
    return commande.faire && (!enService || enService()) && (!commande.permise || commande.permise(fenetre_));
}

void Commandes::faire(const Commande& commande) {
    if (permise(commande)) commande.faire(fenetre_);
}

const Commande* Commandes::visee(const QKeyEvent& evenement, std::string_view controle) const {
    const Utf8 cle = nomCle(evenement.key());
    Touche touche;
    touche.cle = cle, touche.avec = modificateurs(evenement);
    const auto vise = [&](const Raccourci& r) { return r.vaut(touche) && r.tientDans(controle); };
    for (const TableCommandes table : {table_, communes()})
        for (const Commande& commande : table)
            if (std::ranges::any_of(commande.touches, vise) && permise(commande)) return &commande;
    return nullptr;
}

bool Commandes::presser(const QKeyEvent& evenement, std::string_view controle) {
    const Commande* commande = visee(evenement, controle);
    if (!commande) return false;
    if (commande->relacher) tenues_.insert(commande);
    if (!commande->seule || !evenement.isAutoRepeat()) fenetre_.garder([&] { faire(*commande); });
    return true;
}

bool Commandes::relacher(const QKeyEvent& evenement, std::string_view controle) {
    if (evenement.isAutoRepeat()) return false;
    const Commande* commande = visee(evenement, controle);
    if (!commande || tenues_.erase(commande) == 0) return false;
    fenetre_.garder([&] { commande->relacher(fenetre_); });
    return true;
}

bool Commandes::eventFilter(QObject* objet, QEvent* evenement) {
    const bool presse = evenement->type() == QEvent::KeyPress;
    if (!presse && evenement->type() != QEvent::KeyRelease) return false;
    const auto& touche = *static_cast<QKeyEvent*>(evenement);
    const Utf8 controle = objet == &fenetre_ ? Utf8() : utf8DepuisQt(objet->objectName());
    return presse ? presser(touche, controle) : relacher(touche, controle);
}

} // namespace vermo
