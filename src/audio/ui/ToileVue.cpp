#include "audio/ui/ToileVue.h"

#include "audio/Zoom.h"
#include "transcription/PisteExtraits.h"
#include "window/ui/Theme.h"

namespace vermo {

namespace {

constexpr Couleur CURSEUR = rvb(220, 40, 40), ENTOUR = BLANC;
constexpr TaillePiste PISTE;

bool estBarre(const Element* element) {
    return element && element->controle == Controle::LblXtr;
}

} // namespace

ToileVue::ToileVue(const Session& session, QWidget* parent)
    : ToileOnde(QStringLiteral("Picture1"), Controle::TotalSelect, session, parent) {
    surPression = [this](const Souris& souris) { presserVue(souris); };
    surMouvement = [this](const Souris& souris) { survoler(souris); };
    surRelachement = [this](const Souris& souris) { relacherVue(souris); };
    surClic = [this](const Souris& souris) {
        if (estBarre(souris.element)) surExtrait(souris.element->index);
    };
    surDoubleClic = [this](const Souris& souris) {
        estBarre(souris.element) ? surOuverture(souris.element->index) : presserVue(souris);
    };
}

void ToileVue::disposer() {
    Elements piste{forme(Controle::Shp_visu, {}, theme::ACCENT, true), gardee(formeSelection())};
    const Elements barres = disposerPiste(session_, largeurTwips(), PISTE);
    piste.insert(piste.end(), barres.begin(), barres.end());
    piste.push_back(gardee(forme(Controle::Curseur, {0, TWIPS_PAR_PIXEL}, CURSEUR, true)));
    elements(std::move(piste));
    suivreEmpan();
    entourer(entoure_);
}

void ToileVue::suivreEmpan() {
    const Rectangle cadre = cadreShpVisu(session_.audio, largeurTwips());
    deplacer(Controle::Shp_visu, {cadre.gauche, cadre.largeur});
}

void ToileVue::curseur(Twips gauche) {
    deplacer(Controle::Curseur, {gauche, TWIPS_PAR_PIXEL});
}

void ToileVue::entourer(int k) {
    for (const int n : {entoure_, k})
        for (const Controle controle : {Controle::ShpXtr, Controle::ShpXtrInt})
            if (Element* element = modifiable(controle, n)) {
                element->bord = n == k ? ENTOUR : PISTE.bord;
                repeindre(element->cadre);
            }
    entoure_ = k;
}

Twips ToileVue::gaucheExtrait(int k) {
    const Element* barre = modifiable(Controle::LblXtr, k);
    return barre ? barre->cadre.gauche : 0;
}

void ToileVue::presserVue(const Souris& souris) {
    appuyer();
    if (souris.bouton == Qt::LeftButton) presser(prise_, souris.element, souris.x);
}

void ToileVue::survoler(const Souris& souris) {
    const bool surBarre = estBarre(souris.element);
    setCursor(prise_.GlisseVueDebut != 0 ? Qt::SizeHorCursor
              : surBarre                 ? Qt::PointingHandCursor
                                         : Qt::CrossCursor);
    if (const int k = extraitSous(souris.x)) surSurvol(k, surBarre);
    if (const auto selection = selectionVue(prise_, souris.x)) montrerSelection(*selection);
}

int ToileVue::extraitSous(Twips x) const {
    int sousSouris = 0;
    for (const Element& element : elements())
        if (element.controle == Controle::ShpXtrInt && element.cadre.gauche <= x &&
            x <= element.cadre.droite())
            sousSouris = element.index;
    return sousSouris;
}

void ToileVue::relacherVue(const Souris& souris) {
    if (souris.bouton != Qt::LeftButton) return;
    const auto geste = relacher(prise_, souris.x, largeurTwips());
    if (!geste) return;
    setCursor(Qt::ArrowCursor);
    surChoix(*geste);
}

} // namespace vermo
