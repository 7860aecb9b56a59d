#pragma once
#include "corpus/Session.h"
#include "support/PlateformeDeTest.h"
#include "transcription/Retranscription.h"
#include "window/ui/Forme.h"
#include "window/ui/Glace.h"
#include "window/ui/Toile.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
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

/// All that differs, by name; line ends as "/" (CR) and "\n".
inline std::string difference(Releve avant, Releve apres) {
    std::string effet;
    Releve tous = avant;
    tous.insert(apres.begin(), apres.end());
    for (const auto& [nom, sansEgard] : tous)
        if (avant[nom] != apres[nom])
            effet += (effet.empty() ? "" : "; ") + nom + changement(nom, avant[nom], apres[nom]);
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
    releve["options"] =
        QString(QLatin1String(t.DicteeActive ? "dictee " : "") + QLatin1String(t.DicteeAuto ? "auto " : "") +
                QLatin1String(t.BoucleDictee ? "boucle" : ""))
            .trimmed()
            .toStdString();
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

inline std::string etatDe(const QAbstractButton& bouton) {
    return bouton.isHidden() ? "caché" : bouton.isChecked() ? "allumé" : "vu" + bouton.text().toStdString();
}
inline void releverControles(Releve& releve, const Forme& f) {
    releve["fenetre"] = !f.isVisible() ? "cachée" : std::to_string(f.width());
    releve["alpha"] = std::to_string(std::lround(255 * f.windowOpacity()));
    for (const auto* c : f.findChildren<QWidget*>()) {
        std::string& etat = releve[c->objectName().toStdString()];
        if (const auto* bouton = qobject_cast<const QAbstractButton*>(c)) etat = etatDe(*bouton);
        if (const auto* label = qobject_cast<const QLabel*>(c))
            etat = label->isHidden() ? "" : label->text().toStdString();
        if (const auto* champ = qobject_cast<const QLineEdit*>(c)) etat = champ->text().toStdString();
        if (const auto* texte = qobject_cast<const QPlainTextEdit*>(c))
            etat = texte->toPlainText().toStdString();
    }
}

/// Its picture, and of the items named where they stand, or their colour.
inline void releverToile(Releve& releve, Toile& toile, const std::set<std::string>& montres,
                         const std::set<std::string>& colores) {
    constexpr int PETITE = 60; // pixels: small enough to be compared as it is painted
    const bool petite = toile.image().isNull() && toile.height() <= PETITE;
    const QImage image = petite ? toile.grab().toImage() : toile.image();
    releve[toile.objectName().toStdString() + "~"] =
        std::to_string(qHashBits(image.constBits(), static_cast<std::size_t>(image.sizeInBytes())));
    for (const Element& e : toile.elements()) {
        if (e.visible && montres.contains(nomDe(e)))
            releve[nomDe(e)] = std::to_string(std::lround(e.cadre.gauche)) + "+" +
                               std::to_string(std::lround(e.cadre.largeur));
        if (colores.contains(nomDe(e))) releve[nomDe(e)] = std::to_string(e.fond);
    }
}

} // namespace vermo::essai
