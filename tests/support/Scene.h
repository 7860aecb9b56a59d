#pragma once
#include "support/FenetresMuettes.h"
#include "support/Pannes.h"
#include "support/Releve.h"
#include "support/Temoins.h"
#include "window/ui/ToileDefilante.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <cerrno>
#include <functional>
#include <memory>

namespace vermo::essai {

/// What the gestures of a test reached, and what they could have, by window.
struct Essais {
    std::map<std::string, std::set<std::string>> offerts; ///< controls that answer
    std::set<std::string> faits;                          ///< controls acted on, and keys
};

/// Windows on a simulated host, the gestures of a person at them (Gestes.h says how they are written), and
/// the report of all that they change.
class Scene {
  public:
    Session session;
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    Essais essais;
    std::string bulle;                                                     ///< what the mouse asked about
    std::map<std::string, std::function<void(const std::string&)>> verbes; ///< a test may add its own
    std::set<std::string> montres; ///< items whose place the report tells

    Scene();
    virtual ~Scene() = default;
    virtual std::vector<Forme*> formes() = 0; ///< those that a person sees, the topmost first
    /// A place that is no item, in pixels of the control.
    virtual QPoint lieu(const QWidget& controle, const std::string& ou) {
        return {qRound(controle.width() * std::stod(ou)), controle.height() / 2};
    }
    virtual Releve relever();

    Forme& fenetre() { return *formes().at(0); }
    /// In the topmost window that has it. Throws when none does.
    template <class T = QWidget>
    T& controle(const std::string& nom) {
        for (const Forme* forme : formes())
            if (auto* trouve = forme->findChild<T*>(QString::fromStdString(nom))) return *trouve;
        throw std::runtime_error("no control " + nom);
    }

    void faire(const std::string& gestes) {
        for (const std::string& geste : couper(gestes, "; ")) {
            const std::size_t debut = geste.find("x ") == 1 ? 3 : 0; // after "6x "
            const auto blanc = std::min(geste.find(' ', debut), geste.size());
            for (int i = debut == 0 ? 1 : geste[0] - '0'; i > 0; --i)
                agir(geste.substr(debut, blanc - debut), geste.substr(std::min(blanc + 1, geste.size())));
        }
    }
    /// All that `gestes` change, "nom=valeur" by name.
    std::string effetDe(const std::string& gestes) {
        reposer();
        fenetres.effacerJournal();
        dits_ = hote.dialogues.journal().size();
        const Releve avant = relever();
        faire(gestes);
        const std::string effet = remplacer(difference(avant, relever()), hote.dossier.chemin(), "");
        reposer();
        for (Forme* forme : formes())
            comparerAuDessin(*forme);
        return effet;
    }
    /// What waits is done, but for the timers.
    static void reposer() { QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers); }

  private:
    void agir(const std::string& verbe, const std::string& quoi) {
        reposer();
        const auto action = verbes.find(verbe);
        if (action == verbes.end()) throw std::runtime_error("no such gesture: " + verbe);
        for (const Forme* forme : formes())
            for (const auto* c : forme->findChildren<QWidget*>())
                if (c->isEnabled() &&
                    (c->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(c)))
                    essais.offerts[forme->objectName().toStdString()].insert(c->objectName().toStdString());
        action->second(quoi);
        QCoreApplication::sendPostedEvents(&boucle_); // a person's next gesture comes later
    }

    /// Without the texts that name the test's directory.
    void photographier(const std::string& nom) {
        QImage vue = enVue(fenetre());
        QPainter peintre(&vue);
        for (const auto* c : fenetre().findChildren<QWidget*>())
            if (enTexte(c->property("text")).find(hote.dossier.chemin()) != std::string::npos)
                peintre.fillRect(QRect(c->mapTo(&fenetre(), QPoint()), c->size()), Qt::black);
        peintre.end();
        comparerPhoto(nom, vue);
    }
    /// Nothing is left on the screen that a whole painting wouldn't show.
    static void comparerAuDessin(Forme& forme) {
        if (!forme.updatesEnabled()) return;
        const QImage vue = enVue(forme), entiere = forme.grab().toImage().convertToFormat(vue.format());
        EXPECT_TRUE(vue == entiere) << forme.objectName().toStdString() << " shows what has passed";
        for (auto* toile : forme.findChildren<ToileDefilante*>()) {
            QImage neuve(toile->size(), QImage::Format_RGB32);
            QPainter peintre(&neuve);
            toile->peindre(peintre, toile->rect());
            EXPECT_TRUE(toile->grab().toImage().convertToFormat(neuve.format()) == neuve)
                << "kept of a picture";
        }
    }

    QPoint place(const QWidget& controle, const std::string& ou) {
        const auto* toile = qobject_cast<const Toile*>(&controle);
        const QPoint surIcone = QPoint(std::min(controle.width(), controle.height()), controle.height()) / 2;
        if (ou.empty()) return toile ? toile->rect().center() : surIcone;
        if (toile)
            for (const Element& e : toile->elements())
                if (nomDe(e) == ou) {
                    const QRectF cadre = enPixels(toile->dansLaToile(e.cadre));
                    return cadre.intersected(toile->rect()).center().toPoint();
                }
        if (ou.find_first_not_of("0123456789.,-") != std::string::npos)
            throw std::runtime_error("no place " + ou);
        const auto virgule = ou.find(',');
        if (virgule == std::string::npos) return lieu(controle, ou);
        return {std::stoi(ou), std::stoi(ou.substr(virgule + 1))};
    }
    /// The mouse reaches what lies on top there, or nothing.
    std::pair<QWidget*, QPoint> viser(const std::string& quoi) {
        const auto parts = couper(quoi, "@");
        QWidget& cible = controle(parts.at(0));
        const QPoint ici = place(cible, parts.size() > 1 ? parts[1] : "");
        EXPECT_EQ(cible.window()->childAt(cible.mapTo(cible.window(), ici)), &cible)
            << quoi << " is out of reach";
        essais.faits.insert(parts[0]);
        return {&cible, ici};
    }
    static void souris(QEvent::Type type, QWidget& cible, QPoint ou, Qt::MouseButtons tenus = {},
                       Qt::MouseButton bouton = Qt::LeftButton) {
        QMouseEvent evenement(type, QPointF(ou), QPointF(cible.mapToGlobal(ou)),
                              type == QEvent::MouseMove ? Qt::NoButton : bouton, tenus, {});
        QApplication::sendEvent(&cible, &evenement);
    }

    void cliquer(const std::string& ou, Qt::MouseButton bouton = Qt::LeftButton) {
        const auto [cible, point] = viser(ou);
        souris(QEvent::MouseButtonPress, *cible, point, bouton, bouton);
        souris(QEvent::MouseButtonRelease, *cible, point, {}, bouton);
    }
    void survoler(const std::string& ou) {
        const auto [cible, point] = viser(ou);
        souris(QEvent::MouseMove, *cible, point);
    }
    /// The second click of two.
    void doubler(const std::string& ou) {
        const auto [cible, point] = viser(ou);
        const QPointer<QWidget> vivante(cible);
        souris(QEvent::MouseButtonDblClick, *cible, point, Qt::LeftButton);
        if (vivante) souris(QEvent::MouseButtonRelease, *cible, point);
    }
    static void entrer(QWidget& cible, bool dedans) {
        const QPointF ici = cible.rect().center();
        QEnterEvent entree(ici, ici, cible.mapToGlobal(ici));
        QEvent sortie(QEvent::Leave);
        QApplication::sendEvent(&cible, dedans ? static_cast<QEvent*>(&entree) : &sortie);
        QHoverEvent survol(dedans ? QEvent::HoverEnter : QEvent::HoverLeave, ici, cible.mapToGlobal(ici),
                           ici);
        QApplication::sendEvent(&cible, &survol);
    }
    void demanderBulle(const std::string& ou) {
        const auto [cible, point] = viser(ou);
        QHelpEvent demande(QEvent::ToolTip, point, cible->mapToGlobal(point));
        QApplication::sendEvent(cible, &demande);
        bulle = QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    }
    void glisser(const std::string& ou, bool lacher = true) {
        const auto bouts = couper(ou, ">");
        const auto [cible, de] = viser(bouts.at(0));
        const QPoint a = place(*cible, bouts.at(1));
        souris(QEvent::MouseButtonPress, *cible, de, Qt::LeftButton);
        for (const QPoint& point : {(de + a) / 2, a})
            souris(QEvent::MouseMove, *cible, point, Qt::LeftButton);
        if (lacher) souris(QEvent::MouseButtonRelease, *cible, a);
    }
    void rouler(const std::string& ou) {
        const auto mots = couper(ou, " ");
        const auto [cible, point] = viser(mots.at(0));
        const auto avec = mots.size() > 2 ? Qt::ControlModifier : Qt::NoModifier;
        QWheelEvent evenement(point, cible->mapToGlobal(point), {}, {0, 120 * std::stoi(mots.at(1))}, {},
                              avec, Qt::NoScrollPhase, false);
        QApplication::sendEvent(cible, &evenement);
    }
    QWidget* auClavier() {
        const bool choisie = clavier_ && clavier_->window()->isVisible();
        QWidget* cible = choisie ? clavier_->window()->focusWidget() : fenetre().focusWidget();
        if (!cible) throw std::runtime_error("nothing has the focus");
        essais.faits.insert(cible->objectName().toStdString());
        return cible;
    }
    void presser(const std::string& touche) {
        const auto touches = QKeySequence(QString::fromStdString(touche));
        if (touches.isEmpty() || touches[0].key() == Qt::Key_unknown)
            throw std::runtime_error("no key " + touche);
        essais.faits.insert(touche);
        QTest::keyClick(auClavier(), touches[0].key(), touches[0].keyboardModifiers());
    }
    void ecrire(const QString& texte) {
        for (const QChar c : texte)
            QTest::sendKeyEvent(QTest::Click, auClavier(), Qt::Key(c.toUpper().unicode()), QString(c),
                                Qt::NoModifier);
    }
    void coller(const std::string& texte) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(texte));
        presser("Ctrl+V");
    }
    void attirer(const std::string& nom) {
        clavier_ = &controle(nom);
        clavier_->setFocus();
    }
    /// "Oui" and, where given, a part of the question.
    void repondre(const std::string& quoi) {
        static const std::map<std::string, Reponse> REPONSES = {
            {"Oui", Reponse::Oui}, {"Non", Reponse::Non}, {"Ok", Reponse::Ok}, {"Annuler", Reponse::Annuler}};
        const auto blanc = std::min(quoi.find(' '), quoi.size());
        hote.dialogues.repondre(REPONSES.at(quoi.substr(0, blanc)),
                                quoi.substr(std::min(blanc + 1, quoi.size())));
    }

    QObject boucle_; ///< of events, in which the player tells what it does
    std::unique_ptr<Pannes> panne_;
    std::size_t dits_ = 0;
    QPointer<QWidget> clavier_; ///< given the focus: keys go to its window while it stands
};

inline Scene::Scene() {
    hote.media.reveil = [this] {
        QMetaObject::invokeMethod(
            &boucle_, [this] { hote.media.dire(); }, Qt::QueuedConnection);
    };
    hote.annonces.surAvis = [this](const Avis& avis) { fenetres.annoncer(avis); };
    using S = const std::string&;
    verbes = {
        {"clic", [this](S ou) { cliquer(ou); }},
        {"droit", [this](S ou) { cliquer(ou, Qt::RightButton); }},
        {"double", [this](S ou) { doubler(ou); }},
        {"survole", [this](S ou) { survoler(ou); }},
        {"glisse", [this](S ou) { glisser(ou); }},
        {"roule", [this](S ou) { rouler(ou); }},
        {"focus", [this](S nom) { attirer(nom); }},
        {"touche", [this](S touche) { presser(touche); }},
        {"tape", [this](S texte) { ecrire(QString::fromStdString(texte)); }},
        {"colle", [this](S texte) { coller(texte); }},
        {"position", [this](S secondes) { hote.media.currentPosition(std::stod(secondes)); }},
        {"ecoule", [this](S secondes) { hote.media.avancer(std::stod(secondes)); }},
        {"pause", [this](S) { hote.media.pause(); }},
        {"attend", [](S) { QApplication::processEvents(); }},
        {"photo", [this](S nom) { photographier(nom); }},
        {"fiche",
         [this](S nom) { comparerFiche(nom, remplacer(ficheDe(fenetre()), hote.dossier.chemin(), "")); }},
        {"tic", [this](S nom) { QMetaObject::invokeMethod(&controle<QTimer>(nom), "timeout"); }},
        {"entre", [this](S nom) { entrer(controle(nom), true); }},
        {"sort", [this](S nom) { entrer(controle(nom), false); }},
        {"tient", [this](S ou) { glisser(ou, false); }},
        {"bulle", [this](S ou) { demanderBulle(ou); }},
        {"sourd", [this](S) { hote.media.sansSon = true; }},
        {"volume", [this](S part) { session.audio.VolumeLecture = std::stof(part); }},
        {"panne",
         [this](S) {
             panne_ = std::make_unique<Pannes>(Panne{1, ENOSPC, "write", true});
         }},
        {"autre",
         [this](S quoi) {
             const auto blanc = quoi.find(' '), fleche = quoi.find('>');
             const std::string nom = quoi.substr(0, blanc);
             hote.dossier.ecrire(nom,
                                 remplacer(hote.dossier.lire(nom), quoi.substr(blanc + 1, fleche - blanc - 1),
                                           quoi.substr(fleche + 1)));
         }},
        {"perdre", [this](S nom) { std::filesystem::remove(hote.dossier.chemin(nom)); }},
        {"muer",
         [this](S nom) {
             std::filesystem::remove(hote.dossier.chemin(nom));
             std::filesystem::create_directory(hote.dossier.chemin(nom));
         }},
        {"repondre", [this](S reponse) { repondre(reponse); }}};
}

inline Releve Scene::relever() {
    Releve releve;
    releverLecteur(releve, hote.media);
    releve["bulle"] = bulle;
    releve["focus"] = fenetre().focusWidget() ? fenetre().focusWidget()->objectName().toStdString() : "";
    for (const std::string& demande : fenetres.journal())
        releve["demande"] += (releve["demande"].empty() ? "" : ", ") + demande;
    for (std::size_t i = dits_; i < hote.dialogues.journal().size(); ++i)
        releve["dit"] += couper(hote.dialogues.journal()[i], "|").at(1);
    releverEtats(releve, session);
    releverDisque(releve, hote.dossier);
    releverControles(releve, fenetre());
    for (auto* toile : fenetre().findChildren<Toile*>())
        releverToile(releve, *toile, montres);
    return releve;
}

} // namespace vermo::essai
