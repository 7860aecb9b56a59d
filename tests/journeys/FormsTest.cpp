// Every window of the program, at two sizes of the screen: what shows lies where it can be seen and hit, and
// is named.
#include "Programme.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessible>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <algorithm>
#include <set>

namespace vermo::essai {
namespace {

/// What isn't as it should be yet: a line that isn't met any more goes.
const std::set<std::string> CONNUES = {"FrmCorpus ImgCroix0 sticks out", "FrmMenu ImgPlay sticks out",
                                       "FrmMenu lblmenu6 has no name"};

/// Siblings that lie over each other on purpose, the one underneath first; "*": everything may lie on it.
const std::set<std::pair<std::string, std::string>> SUPERPOSES = {
    {"FrmIntro Picture1", "*"}, {"FrmVisu Imagetitre", "*"}, {"FrmSaisie Picture1", "*"}};

bool deCommande(const QWidget& controle) {
    if (qobject_cast<const QScrollBar*>(&controle)) return false; // a text field's own
    return qobject_cast<const QAbstractButton*>(&controle) || qobject_cast<const QLineEdit*>(&controle) ||
           qobject_cast<const QAbstractSlider*>(&controle) ||
           qobject_cast<const QPlainTextEdit*>(&controle) ||
           (qobject_cast<const Toile*>(&controle) && controle.focusPolicy() != Qt::NoFocus);
}

bool prendLaSouris(const QWidget& controle) {
    return controle.isVisible() && !controle.isWindow() &&
           !controle.testAttribute(Qt::WA_TransparentForMouseEvents) &&
           (deCommande(controle) || qobject_cast<const Toile*>(&controle));
}

/// What is wrong with the visible controls of one window, one line each.
class Defauts {
  public:
    explicit Defauts(Forme& fenetre) : nom_(fenetre.objectName().toStdString() + " ") {
        for (QWidget* controle : fenetre.findChildren<QWidget*>()) {
            if (controle->window() != &fenetre || !controle->isVisible()) continue;
            if (deCommande(*controle)) examiner(*controle);
            if (prendLaSouris(*controle)) comparer(*controle);
        }
    }
    std::set<std::string> fautes;

  private:
    void noter(const QWidget& controle, const std::string& quoi) {
        fautes.insert(nom_ + controle.objectName().toStdString() + " " + quoi);
    }
    void examiner(QWidget& controle) {
        if (controle.size().isEmpty()) noter(controle, "has no size");
        if (!controle.parentWidget()->rect().contains(controle.geometry())) noter(controle, "sticks out");
        const QString nom = QAccessible::queryAccessibleInterface(&controle)->text(QAccessible::Name);
        if (nom.trimmed().isEmpty() || nom == controle.objectName()) noter(controle, "has no name");
    }
    /// With the siblings that lie over it.
    void comparer(const QWidget& controle) {
        const auto freres = controle.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (auto autre = std::ranges::find(freres, &controle) + 1; autre != freres.end(); ++autre)
            if (prendLaSouris(**autre) && controle.geometry().intersects((*autre)->geometry()) &&
                !permis(controle, **autre))
                noter(controle, "lies under " + (*autre)->objectName().toStdString());
    }
    bool permis(const QWidget& dessous, const QWidget& dessus) const {
        const std::string nom = nom_ + dessous.objectName().toStdString();
        return SUPERPOSES.contains({nom, "*"}) ||
               SUPERPOSES.contains({nom, dessus.objectName().toStdString()});
    }
    std::string nom_; ///< of the window
};

constexpr Panneau PANNEAUX[] = {Panneau::Corpus, Panneau::Entretiens, Panneau::Thematiques,
                                Panneau::Attributs, Panneau::Volume};

/// Opens the window so that it shows all that it holds.
void ouvrir(Programme& programme, Fenetre fenetre, Panneau panneau) {
    if (fenetre == Fenetre::FrmVisu) {
        programme.app.montrer(fenetre, EntretienVoulu{1, Ouverture::SansFondu});
        programme.app.montrer(Fenetre::FrmSaisie, ExtraitVoulu{1});
        return programme.faire("focus TextRtr; tape X; touche Escape"); // can be taken up again
    }
    if (fenetre == Fenetre::FrmMenu) return programme.app.montrer(fenetre, PanneauVoulu{panneau, {}});
    if (fenetre == Fenetre::FrmCorpus) return programme.ouvrirCorpus();
    if (fenetre == Fenetre::FrmIntro) return programme.app.demarrer();
    programme.app.montrer(fenetre, ExtraitVoulu{1});
    programme.faire("clic lbl_thm"); // the panel comes out
}

TEST(Forms, EveryControlIsSeenNamedAndApart) {
    std::set<std::string> fautes;
    for (const QSize taille : {QSize(1280, 720), QSize(1920, 1080)}) {
        Programme programme("a");
        programme.hote.ecran.zone.largeur = TWIPS_PAR_PIXEL * taille.width();
        programme.hote.ecran.zone.hauteur = TWIPS_PAR_PIXEL * taille.height();
        for (const Fenetre fenetre : FENETRES)
            for (const Panneau panneau : PANNEAUX) {
                const std::string nom(nomFenetre(fenetre));
                if (fenetre != Fenetre::FrmMenu && panneau != Panneau::Corpus) continue;
                ouvrir(programme, fenetre, panneau);
                fautes.merge(Defauts(programme.forme(nom.c_str())).fautes);
            }
    }
    for (const std::string& faute : fautes)
        EXPECT_TRUE(CONNUES.contains(faute)) << faute;
    for (const std::string& connue : CONNUES)
        EXPECT_TRUE(fautes.contains(connue)) << "no more: " << connue;
}

} // namespace
} // namespace vermo::essai
