#pragma once
#include "support/FenetresMuettes.h"
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"
#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Toile.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <sstream>

namespace vermo::essai {

/// One row of a window's table: what comes first, the gesture or key, and all that it changes. What `effet`
/// doesn't name must stay as it was.
///
/// Gestures are separated by "; ", each a verb and what follows it:
///     "clic ImgMedia2", "glisse Pict_zoom@5>10", "double Picture1@LblXtr2", "roule Pict_zoom -3 Ctrl",
///     "touche Alt+Home", "tape Bonjour", "colle é", "position 12.5", "repondre Non", "6x touche Right".
/// A place on a canvas is an item or what the window's test makes of it; keys go to the focused control.
struct Geste {
    std::string id, avant, geste, effet;
};

/// What a window may change, each under its name; a name that ends in "~" tells only that it changed.
using Releve = std::map<std::string, std::string>;

inline std::string dixieme(double nombre) {
    std::ostringstream texte;
    texte << std::round(nombre * 10) / 10 + 0.0;
    return texte.str();
}
inline std::string lisible(const Texte& texte) {
    return QString::fromLatin1(texte.data(), static_cast<qsizetype>(texte.size())).toStdString();
}
inline std::string etendue(double debut, double fin) {
    return dixieme(debut) + "-" + dixieme(fin);
}

/// A window on a simulated host, the gestures of a person at it, and the report of all that they change.
class Scene {
  public:
    Session session;
    PlateformeDeTest hote;
    FenetresMuettes fenetres;
    std::map<std::string, std::function<void(const std::string&)>> verbes; ///< the window's own
    std::set<std::string> touches;          ///< controls that a gesture has pressed
    std::set<std::string> montres, colores; ///< items whose place, or colour, the report tells

    Scene() {
        hote.annonces.surAvis = [this](const Avis& avis) { fenetres.annoncer(avis); };
    }
    virtual ~Scene() = default;
    virtual Forme& fenetre() = 0;
    /// A place that is no item, in pixels of the canvas.
    virtual QPoint lieu(const Toile& toile, const std::string& ou) {
        return {qRound(toile.width() * std::stod(ou)), toile.height() / 2};
    }

    template <class T = QWidget>
    T& controle(const std::string& nom) {
        return *fenetre().findChild<T*>(QString::fromStdString(nom));
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
        fenetres.effacerJournal();
        dits_ = hote.dialogues.journal().size();
        const Releve avant = relever();
        faire(gestes);
        std::string effet;
        const Releve apres = relever();
        Releve tous = avant;
        tous.insert(apres.begin(), apres.end());
        for (const auto& [nom, sansEgard] : tous) {
            const std::string a = valeurDe(avant, nom), b = valeurDe(apres, nom);
            if (a == b) continue;
            const std::string valeur = nom.starts_with("disque ") ? lignesChangees(a, b) : b;
            effet += (effet.empty() ? "" : "; ") + nom + (nom.ends_with("~") ? "" : "=" + valeur);
        }
        return effet;
    }

    void souris(QEvent::Type type, QWidget& cible, QPoint ou, Qt::MouseButtons tenus = {}) {
        const auto bouton = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent evenement(type, QPointF(ou), QPointF(cible.mapToGlobal(ou)), bouton, tenus, {});
        QApplication::sendEvent(&cible, &evenement);
    }

  private:
    static std::vector<std::string> couper(const std::string& texte, const std::string& entre) {
        std::vector<std::string> parts;
        for (std::size_t debut = 0; debut < texte.size();) {
            const auto fin = std::min(texte.find(entre, debut), texte.size());
            parts.push_back(texte.substr(debut, fin - debut));
            debut = fin + entre.size();
        }
        return parts;
    }
    static std::string valeurDe(const Releve& releve, const std::string& nom) {
        const auto place = releve.find(nom);
        return place == releve.end() ? "" : place->second;
    }
    /// "-" before lines that went, "+" before those that came.
    static std::string lignesChangees(const std::string& avant, const std::string& apres) {
        auto a = couper(avant, "\n"), b = couper(apres, "\n");
        while (!a.empty() && !b.empty() && a.front() == b.front())
            a.erase(a.begin()), b.erase(b.begin());
        while (!a.empty() && !b.empty() && a.back() == b.back())
            a.pop_back(), b.pop_back();
        std::string lignes;
        for (const auto& [signe, parts] : {std::pair(" -", a), std::pair(" +", b)})
            for (const std::string& part : parts)
                lignes += signe + part;
        return lignes;
    }

    QPoint placeSur(const Toile& toile, const std::string& ou) {
        if (ou.empty()) return toile.rect().center();
        for (const Element& e : toile.elements()) {
            const QRectF cadre = enPixels(toile.dansLaToile(e.cadre));
            if (nomDe(e) == ou) return cadre.intersected(toile.rect()).center().toPoint();
        }
        return lieu(toile, ou);
    }
    static std::string nomDe(const Element& element) {
        return std::string(nomControle(element.controle)) + std::to_string(element.index);
    }

    /// The mouse reaches what lies on top there, or nothing.
    std::pair<QWidget*, QPoint> viser(const std::string& ou) {
        const auto place = couper(ou, "@");
        QWidget& cible = controle(place.at(0));
        const auto* toile = qobject_cast<Toile*>(&cible);
        const QPoint point =
            toile ? placeSur(*toile, place.size() > 1 ? place[1] : "")
                  : QPoint(std::min(cible.width(), cible.height()), cible.height()) / 2; // on the icon
        EXPECT_EQ(fenetre().childAt(cible.mapTo(&fenetre(), point)), &cible) << ou << " is out of reach";
        touches.insert(place[0]);
        return {&cible, point};
    }
    void cliquer(const std::string& ou) {
        const auto [cible, point] = viser(ou);
        souris(QEvent::MouseButtonPress, *cible, point, Qt::LeftButton);
        souris(QEvent::MouseButtonRelease, *cible, point);
    }
    void glisser(const std::string& ou) {
        const auto bouts = couper(ou, ">");
        const auto [cible, de] = viser(bouts.at(0));
        const QPoint a = placeSur(dynamic_cast<Toile&>(*cible), bouts.at(1));
        souris(QEvent::MouseButtonPress, *cible, de, Qt::LeftButton);
        for (const QPoint& point : {(de + a) / 2, a})
            souris(QEvent::MouseMove, *cible, point, Qt::LeftButton);
        souris(QEvent::MouseButtonRelease, *cible, a);
    }
    void rouler(const std::string& ou) {
        const auto mots = couper(ou, " ");
        const auto [cible, point] = viser(mots.at(0));
        const auto avec = mots.size() > 2 ? Qt::ControlModifier : Qt::NoModifier;
        QWheelEvent evenement(point, cible->mapToGlobal(point), {}, {0, 120 * std::stoi(mots.at(1))}, {},
                              avec, Qt::NoScrollPhase, false);
        QApplication::sendEvent(cible, &evenement);
    }
    void taper(const std::string& touche) {
        const QKeyCombination combinaison = QKeySequence(QString::fromStdString(touche))[0];
        QTest::keyClick(fenetre().focusWidget(), combinaison.key(), combinaison.keyboardModifiers());
    }
    void ecrire(const QString& texte) {
        for (const QChar c : texte)
            QTest::sendKeyEvent(QTest::Click, fenetre().focusWidget(), Qt::Key(c.toUpper().unicode()),
                                QString(c), Qt::NoModifier);
    }
    void coller(const std::string& texte) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(texte));
        taper("Ctrl+V");
    }

    void agir(const std::string& verbe, const std::string& quoi) {
        if (verbes.contains(verbe)) return verbes[verbe](quoi);
        if (verbe == "clic") return cliquer(quoi);
        if (verbe == "glisse") return glisser(quoi);
        if (verbe == "roule") return rouler(quoi);
        if (verbe == "touche") return taper(quoi);
        if (verbe == "colle") return coller(quoi);
        if (verbe == "focus") return controle(quoi).setFocus();
        if (verbe == "tape") return ecrire(QString::fromStdString(quoi));
        if (verbe == "position") return hote.media.currentPosition(std::stod(quoi));
        if (verbe == "pause") return hote.media.pause();
        if (verbe == "repondre")
            return void(hote.dialogues.repondre(quoi == "Oui"   ? Reponse::Oui
                                                : quoi == "Non" ? Reponse::Non
                                                                : Reponse::Ok));
        const bool survol = verbe == "survole";
        if (!survol && verbe != "double") return ADD_FAILURE() << "no such gesture: " << verbe, void();
        const auto [cible, point] = viser(quoi);
        souris(survol ? QEvent::MouseMove : QEvent::MouseButtonDblClick, *cible, point);
    }

    Releve relever() {
        Releve releve;
        const LecteurSimule& media = hote.media;
        releve["lecture"] = std::to_string(static_cast<int>(media.playState()));
        releve["position"] = dixieme(media.currentPosition());
        releve["son"] = std::to_string(media.volume());
        releve["vitesse"] = std::to_string(media.vitesse());
        releve["focus"] = fenetre().focusWidget() ? fenetre().focusWidget()->objectName().toStdString() : "";
        for (const std::string& demande : fenetres.journal())
            releve["demande"] += (releve["demande"].empty() ? "" : ", ") + demande;
        for (std::size_t i = dits_; i < hote.dialogues.journal().size(); ++i)
            releve["dit"] += sansDossier(couper(hote.dialogues.journal()[i], "|").at(1));
        releverEtats(releve);
        releverDisque(releve);
        releverControles(releve);
        return releve;
    }
    std::string sansDossier(std::string texte) const {
        const auto place = texte.find(hote.dossier.chemin());
        return place == std::string::npos ? texte : texte.erase(place, hote.dossier.chemin().size());
    }
    void releverEtats(Releve& releve) const {
        const EtatAudio& a = session.audio;
        const EtatTranscription& t = session.transcription;
        releve["zoom"] = etendue(a.DebutZoom, a.FinZoom);
        releve["facteur"] = dixieme(a.FacteurZoom), releve["marque"] = dixieme(a.MarqueDebut);
        releve["volume"] = dixieme(a.VolumeLecture), releve["rythme"] = std::to_string(a.VitesseLecture);
        releve["fondu"] = dixieme(session.EtatFondu);
        releve["courant"] = dixieme(t.ExtraitCourant), releve["nouveau"] = std::to_string(t.NouvelExtrait);
        releve["saisie"] = etendue(t.SaisieDebut, t.SaisieFin);
        const bool ouverte = t.SaisieDuree == t.SaisieFin - t.SaisieDebut;
        releve["span"] = ouverte ? "" : dixieme(t.SaisieDuree),
        releve["retour"] = std::to_string(t.RetourCorpus);
        releve["options"] = std::string(t.DicteeActive ? "dictee " : "") + (t.DicteeAuto ? "auto " : "") +
                            (t.BoucleDictee ? "boucle" : "");
        releve["portion"] = etendue(t.PortionDebut, t.PortionFin);
        releve["compteur"] = dixieme(t.Compteur);
        for (int i = 1; i <= nombreExtraits(session); ++i) {
            const auto k = static_cast<std::size_t>(i);
            releve["extrait" + std::to_string(i)] =
                etendue(secondesDebut(session, i), secondesFin(session, i)) + " " + t.ExtraitCode[k] + " " +
                lisible(t.ExtraitTexte[k]);
        }
        const EtatCorpus& c = session.corpus;
        releve["reprise"] = std::to_string(c.Entretiens.at(1).Reprise);
        for (std::size_t i = 1; i < c.ThmCode.size(); ++i)
            releve["thm" + std::to_string(i)] =
                c.ThmCode[i] + "," + c.ThmCouleur[i] + "," + lisible(c.ThmNom[i]);
    }
    void releverDisque(Releve& releve) const {
        for (const auto& entree : std::filesystem::directory_iterator(hote.dossier.chemin())) {
            const std::string nom = entree.path().filename().string();
            if (!entree.is_regular_file()) continue;
            std::string& octets = releve["disque " + nom] = lisible(hote.dossier.lire(nom));
            std::replace(octets.begin(), octets.end(), '\r', '/');
        }
    }
    void releverControles(Releve& releve) {
        Forme& f = fenetre();
        releve["fenetre"] = !f.isVisible() ? "cachée" : std::to_string(f.width());
        releve["alpha"] = std::to_string(f.alpha());
        for (const auto* bouton : f.findChildren<QAbstractButton*>())
            releve[bouton->objectName().toStdString()] = bouton->isHidden() ? "caché"
                                                         : bouton->isChecked()
                                                             ? "allumé"
                                                             : "vu" + bouton->text().toStdString();
        for (const auto* label : f.findChildren<QLabel*>())
            releve[label->objectName().toStdString()] = label->isHidden() ? "" : label->text().toStdString();
        for (const auto* champ : f.findChildren<QLineEdit*>())
            releve[champ->objectName().toStdString()] = champ->text().toStdString();
        for (const auto* texte : f.findChildren<QPlainTextEdit*>())
            releve[texte->objectName().toStdString()] = texte->toPlainText().toStdString();
        for (auto* toile : f.findChildren<Toile*>())
            releverToile(releve, *toile);
    }
    void releverToile(Releve& releve, Toile& toile) const {
        constexpr int PETITE = 60; // pixels: small enough to be compared as it is painted
        const std::string nom = toile.objectName().toStdString();
        const bool petite = toile.image().isNull() && toile.height() <= PETITE;
        const QImage image = petite ? toile.grab().toImage() : toile.image();
        releve[nom + "~"] =
            std::to_string(qHashBits(image.constBits(), static_cast<std::size_t>(image.sizeInBytes())));
        for (const Element& e : toile.elements()) {
            if (e.visible && montres.contains(nomDe(e)))
                releve[nomDe(e)] = std::to_string(std::lround(e.cadre.gauche)) + "+" +
                                   std::to_string(std::lround(e.cadre.largeur));
            if (colores.contains(nomDe(e))) releve[nomDe(e)] = std::to_string(e.fond);
        }
    }

    std::size_t dits_ = 0;
};

/// What the rows do, as `couvrir` takes it.
inline std::string gestesDe(const std::vector<Geste>& table) {
    std::string suite;
    for (const Geste& ligne : table)
        suite += ligne.geste + ";";
    return suite;
}

/// Plays each row in a window of its own, made by `ouvrir`, and compares all that it changed. Every button of
/// the window must be pressed by a row.
template <class Ouvrir>
void jouerTable(const std::vector<Geste>& table, const Ouvrir& ouvrir, bool entiere = true) {
    std::set<std::string> restants, touches;
    for (const auto& [id, avant, geste, effet] : table) {
        SCOPED_TRACE(id);
        const auto scene = ouvrir();
        scene->faire(avant);
        EXPECT_EQ(scene->effetDe(geste), effet);
        for (const auto* bouton : scene->fenetre().template findChildren<QAbstractButton*>())
            restants.insert(bouton->objectName().toStdString());
        touches.merge(scene->touches);
    }
    for (const std::string& touche : touches)
        restants.erase(touche);
    EXPECT_TRUE(restants.empty() || !entiere) << *restants.begin() << " has no row";
}

} // namespace vermo::essai
