#pragma once
#include "corpus/Session.h"
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"
#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Toile.h"

#include <QAccessible>
#include <QBackingStore>
#include <QCoreApplication>
#include <QMetaProperty>
#include <QTimer>
#include <QWindow>
#include <cmath>
#include <map>
#include <set>

namespace vermo::essai {

/// What gestures may change, each under its name: a name that ends in "~" tells only that it changed; a file
/// is "disque" and its path, its value its bytes.
using Releve = std::map<std::string, std::string>;

inline std::string dixieme(double nombre) {
    std::ostringstream texte;
    texte << std::round(nombre * 10) / 10 + 0.0;
    return texte.str();
}
inline std::string etendue(double debut, double fin) {
    return dixieme(debut) + "-" + dixieme(fin);
}
inline std::string lisible(const Texte& texte) {
    return QString::fromLatin1(texte.data(), static_cast<qsizetype>(texte.size())).toStdString();
}
inline std::vector<std::string> couper(const std::string& texte, const std::string& entre) {
    std::vector<std::string> parts;
    for (std::size_t debut = 0; debut < texte.size();) {
        const auto fin = std::min(texte.find(entre, debut), texte.size());
        parts.push_back(texte.substr(debut, fin - debut));
        debut = fin + entre.size();
    }
    return parts;
}
inline std::string remplacer(std::string texte, const std::string& quoi, const std::string& par) {
    for (auto place = texte.find(quoi); place != std::string::npos; place = texte.find(quoi, place))
        texte.replace(place, quoi.size(), par);
    return texte;
}
inline std::string nomDe(const Element& element) {
    return std::string(nomControle(element.controle)) + std::to_string(element.index);
}

/// "-" before lines that went, "+" before those that came.
inline std::string lignesChangees(const std::string& avant, const std::string& apres) {
    const auto a = couper(lisible(avant), "\n"), b = couper(lisible(apres), "\n");
    const auto [finA, finB] = std::ranges::mismatch(a, b);
    const auto [queueA, queueB] = std::mismatch(a.rbegin(), std::make_reverse_iterator(finA), b.rbegin(),
                                                std::make_reverse_iterator(finB));
    std::string lignes;
    for (auto ligne = finA; ligne != queueA.base(); ++ligne)
        lignes += " -" + *ligne;
    for (auto ligne = finB; ligne != queueB.base(); ++ligne)
        lignes += " +" + *ligne;
    return lignes;
}

/// "=value"; of a file of text the lines that changed, of another whether it came, went or changed.
inline std::string changement(const std::string& nom, const std::string& avant, const std::string& apres) {
    if (nom.ends_with("~")) return "";
    if (!nom.starts_with("disque ")) return "=" + apres;
    for (const char* suffixe : {".Rtr", ".Crp", ".ini"})
        if (nom.ends_with(suffixe)) return "=" + lignesChangees(avant, apres);
    return avant.empty() ? " +" : apres.empty() ? " -" : " ~";
}

/// All that differs, by name; line ends as "/" (CR) and "\n". A control's picture isn't told where something
/// else of it is, nor any where the window itself came, went or took another size; a control that came with
/// its window tells what it says and that it can't be used.
inline std::string difference(Releve avant, Releve apres) {
    std::string effet;
    const Releve connus = avant;
    Releve tous = avant;
    tous.insert(apres.begin(), apres.end());
    const bool fenetre = avant["fenetre"] != apres["fenetre"];
    std::set<std::string> dits;
    for (const auto& [nom, sansEgard] : tous) {
        if (avant[nom] == apres[nom]) continue;
        const std::string de = nom.substr(0, nom.find_first_of(".~"));
        const bool neuf = apres.contains(de) && !connus.contains(de) && (de != nom || apres[de] == "vu");
        if (neuf && !nom.ends_with(".text") && !nom.ends_with(".lignes")) continue;
        const bool deja = dits.contains(de) || fenetre;
        if (dits.insert(de); deja && nom.ends_with("~")) continue;
        effet += (effet.empty() ? "" : "; ") + nom + changement(nom, avant[nom], apres[nom]);
    }
    return remplacer(remplacer(effet, "\r", "/"), "\n", "\\n");
}

inline void releverDisque(Releve& releve, const DossierTemporaire& dossier) {
    for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier.chemin())) {
        const std::string nom = entree.path().string().substr(dossier.chemin().size());
        if (entree.is_regular_file()) releve["disque " + nom] = dossier.lire(nom);
    }
}

inline void releverLecteur(Releve& releve, const LecteurSimule& media) {
    releve["lecture"] = std::to_string(static_cast<int>(media.playState()));
    releve["position"] = dixieme(media.currentPosition());
    releve["son"] = std::to_string(media.volume());
    releve["vitesse"] = std::to_string(media.vitesse());
}

inline void releverTranscription(Releve& releve, const Session& session) {
    const EtatTranscription& t = session.transcription;
    releve["courant"] = dixieme(t.ExtraitCourant);
    releve["nouveau"] = std::to_string(t.NouvelExtrait);
    releve["saisie"] = etendue(t.SaisieDebut, t.SaisieFin);
    const bool ouverte = t.SaisieDuree == t.SaisieFin - t.SaisieDebut;
    releve["span"] = ouverte ? "" : dixieme(t.SaisieDuree);
    releve["retour"] = std::to_string(t.RetourCorpus);
    releve["options"] = std::string(t.DicteeActive ? "dictee," : "") + (t.DicteeAuto ? "auto," : "") +
                        (t.BoucleDictee ? "boucle," : "");
    releve["portion"] = etendue(t.PortionDebut, t.PortionFin);
    releve["compteur"] = dixieme(t.Compteur);
    for (int i = 1; i <= nombreExtraits(session); ++i) {
        const auto k = static_cast<std::size_t>(i);
        releve["extrait" + std::to_string(i)] = etendue(secondesDebut(session, i), secondesFin(session, i)) +
                                                " " + t.ExtraitCode[k] + " " + lisible(t.ExtraitTexte[k]);
    }
}

inline void releverEtats(Releve& releve, const Session& session) {
    const EtatAudio& a = session.audio;
    releve["zoom"] = etendue(a.DebutZoom, a.FinZoom);
    releve["facteur"] = dixieme(a.FacteurZoom);
    releve["marque"] = dixieme(a.MarqueDebut);
    releve["volume"] = dixieme(a.VolumeLecture);
    releve["rythme"] = std::to_string(a.VitesseLecture);
    releve["fondu"] = dixieme(session.EtatFondu);
    releverTranscription(releve, session);
    const EtatCorpus& c = session.corpus;
    releve["reprise"] = std::to_string(c.Entretiens.at(1).Reprise);
    for (std::size_t i = 1; i < c.ThmCode.size(); ++i)
        releve["thm" + std::to_string(i)] = c.ThmCode[i] + "," + c.ThmCouleur[i] + "," + lisible(c.ThmNom[i]);
}

/// As text; "" for none and for what has no text.
inline std::string enTexte(const QVariant& valeur) {
    if (valeur.userType() == QMetaType::QCursor) return std::to_string(valeur.value<QCursor>().shape());
    if (!valeur.canConvert<QRect>()) return valeur.toString().toStdString();
    const QRect r = valeur.toRect();
    return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()).toStdString();
}

/// What stands on the screen of the window: of it only what asked for it was painted anew.
inline QImage enVue(Forme& f) {
    if (!f.isVisible()) return {};
    if (!f.windowHandle()->isExposed()) QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers);
    for (const auto sorte : {QEvent::LayoutRequest, QEvent::PolishRequest, QEvent::UpdateLater})
        QCoreApplication::sendPostedEvents(nullptr, sorte);
    QEvent peinture(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&f, &peinture);
    return static_cast<QImage*>(f.backingStore()->paintDevice())
        ->copy(f.rect())
        .convertToFormat(QImage::Format_RGB32);
}

/// The properties in which it isn't a plain widget, by name.
inline Releve proprietes(const QObject& o) {
    static const QWidget nu;
    Releve releve;
    for (int i = 0; i < o.metaObject()->propertyCount(); ++i) {
        const QMetaProperty propriete = o.metaObject()->property(i);
        const QVariant valeur = propriete.read(&o);
        if (!propriete.isWritable() || valeur == nu.property(propriete.name())) continue;
        std::string& lue = releve[propriete.name()] = enTexte(valeur);
        if (valeur.userType() == QMetaType::QPalette)
            lue = enTexte(valeur.value<QPalette>().windowText().color());
        if (propriete.isEnumType()) lue = std::to_string(valeur.toInt());
        if (lue.empty()) releve.erase(propriete.name());
    }
    return releve;
}

/// Each control and timer of a window with all that a look at its picture doesn't tell, one a line.
inline std::string ficheDe(const Forme& f) {
    QObjectList tous{const_cast<Forme*>(&f)};
    tous.append(f.findChildren<QObject*>());
    std::string fiche;
    for (const QObject* o : tous) {
        const auto* c = qobject_cast<const QWidget*>(o);
        if ((!c && !qobject_cast<const QTimer*>(o)) || (c && c->window() != &f) ||
            o->objectName().startsWith(QLatin1String("qt_")))
            continue;
        fiche += std::string(o->metaObject()->className()) + ":";
        for (const auto& [nom, valeur] : proprietes(*o))
            fiche += " " + nom + "=" + valeur;
        for (const auto attribut : {Qt::WA_Hover, Qt::WA_TransparentForMouseEvents, Qt::WA_OpaquePaintEvent,
                                    Qt::WA_InputMethodEnabled})
            if (c && c->testAttribute(attribut)) fiche += " +" + std::to_string(attribut);
        fiche += !c ? "\n" : c->isHidden() ? " caché\n" : " " + std::to_string(c->windowFlags()) + "\n";
    }
    return fiche;
}

/// Of its picture what no sibling covers.
inline std::size_t empreinte(const QWidget& c, const QImage& ecran) {
    QRegion vue = QRect(c.mapTo(c.window(), QPoint()), c.size()) & ecran.rect();
    const auto freres = c.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (auto autre = std::ranges::find(freres, &c) + 1; autre != freres.end(); ++autre)
        if ((*autre)->isVisible()) vue -= QRect((*autre)->mapTo(c.window(), QPoint()), (*autre)->size());
    std::size_t resultat = 0;
    for (const QRect& r : c.isVisible() ? vue : QRegion())
        for (int y = r.top(); y <= r.bottom(); ++y)
            resultat = qHashBits(ecran.constScanLine(y) + 4 * static_cast<qsizetype>(r.left()),
                                 4 * static_cast<std::size_t>(r.width()), resultat);
    return resultat;
}

/// The rows as a screen reader tells them: "*" chosen, "!" with the focus, "-" out of view.
inline std::string lignesLues(QWidget& liste) {
    const auto* lue = QAccessible::queryAccessibleInterface(&liste);
    std::string lignes;
    for (int i = 0; lue->role() == QAccessible::List && i < lue->childCount(); ++i) {
        const QAccessible::State etat = lue->child(i)->state();
        lignes += (i > 0 ? " " : "") + lue->child(i)->text(QAccessible::Name).toStdString() +
                  (etat.selected ? "*" : "") + (etat.focused ? "!" : "") + (etat.offscreen ? "-" : "");
    }
    return lignes;
}

/// What a person meets in each control, and the picture that it shows.
inline void releverControles(Releve& releve, Forme& f) {
    const QImage ecran = enVue(f);
    releve["fenetre"] = !f.isVisible() ? "cachée" : enTexte(f.geometry()) + (f.isEnabled() ? "" : " inerte");
    releve["alpha"] = std::to_string(std::lround(255 * f.windowOpacity()));
    for (const auto* timer : f.findChildren<QTimer*>(Qt::FindDirectChildrenOnly))
        if (timer->isActive()) releve[timer->objectName().toStdString()] = std::to_string(timer->interval());
    for (QWidget* c : f.findChildren<QWidget*>()) {
        const std::string nom = c->objectName().toStdString();
        if (c->window() != &f || nom.empty() || nom.starts_with("qt_")) continue;
        if (c->parent() == &f) releve["dessus"] = nom;
        releve[nom] = c->isHidden() ? "caché" : c->isEnabledTo(&f) ? "vu" : "inerte";
        for (const char* quoi : {"text", "plainText", "value", "checked", "geometry", "cursor", "toolTip",
                                 "accessibleName", "accessibleDescription"})
            if (const QVariant valeur = c->property(quoi); valeur.isValid())
                releve[nom + "." + quoi] = enTexte(valeur);
        if (c->metaObject() != &QWidget::staticMetaObject)
            releve[nom + "~"] = std::to_string(empreinte(*c, ecran));
        if (const std::string lignes = lignesLues(*c); !lignes.empty()) releve[nom + ".lignes"] = lignes;
    }
}

/// Of the items named where they stand.
inline void releverToile(Releve& releve, const Toile& toile, const std::set<std::string>& montres) {
    for (const Element& e : toile.elements()) {
        if (e.visible && montres.contains(nomDe(e)))
            releve[nomDe(e)] = std::to_string(std::lround(e.cadre.gauche)) + "+" +
                               std::to_string(std::lround(e.cadre.largeur));
    }
}

} // namespace vermo::essai
