#include "window/ui/Theme.h"

#include "window/ui/Glace.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>
#include <array>
#include <map>

namespace vermo::theme {

namespace {

/// Pixels. Any spacing keeps the shaper from joining "fi": a text is as wide as its characters together. This
/// is the least that it knows.
constexpr double SANS_LIGATURE = 1.0 / 64;

QPalette palette() {
    QPalette p;
    const std::pair<QPalette::ColorRole, Couleur> roles[] = {
        {QPalette::Window, FENETRE},
        {QPalette::WindowText, TEXTE},
        {QPalette::Base, CHAMP},
        {QPalette::AlternateBase, PANNEAU},
        {QPalette::Text, TEXTE},
        {QPalette::Button, PANNEAU},
        {QPalette::ButtonText, TEXTE},
        {QPalette::BrightText, BLANC},
        {QPalette::ToolTipBase, PANNEAU},
        {QPalette::ToolTipText, TEXTE},
        {QPalette::Highlight, ACCENT},
        {QPalette::HighlightedText, rvb(16, 18, 22)},
        {QPalette::Link, ACCENT},
        {QPalette::PlaceholderText, TEXTE_DISCRET},
        {QPalette::Light, BORD},
        {QPalette::Midlight, rvb(68, 68, 72)},
        {QPalette::Mid, rvb(44, 44, 47)},
        {QPalette::Dark, rvb(26, 26, 28)},
        {QPalette::Shadow, rvb(12, 12, 14)},
    };
    for (const auto& [role, couleur] : roles)
        p.setColor(role, couleurQt(couleur));
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, couleurQt(rvb(120, 122, 128)));
    return p;
}

} // namespace

void appliquer(QApplication& application) {
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(palette());
    application.setFont(police(9));
    QToolTip::setPalette(palette());
    QToolTip::setFont(police(8));
}

void habiller(QWidget* controle) {
    controle->setStyleSheet(
        QStringLiteral("#TextRtr { background: rgb(64,64,64); color: white; border: none; padding: 4px }"
                       "#etat { color: rgb(255,150,140) }"
                       "#LblTimer { background: rgb(110,178,255); color: black; border-radius: 8px }"));
}

QFont police(int corps, bool gras) {
    QFont fonte(QStringLiteral("DejaVu Sans"));
    fonte.setPixelSize(std::max(1, qRound(corps * 96.0 / 72.0)));
    fonte.setBold(gras);
    fonte.setKerning(false);
    fonte.setLetterSpacing(QFont::AbsoluteSpacing, SANS_LIGATURE);
    fonte.setHintingPreference(QFont::PreferNoHinting);
    return fonte;
}

} // namespace vermo::theme

namespace vermo {

namespace {

struct Table {
    std::array<Twips, 256> largeurs;
    Twips hauteur, ascendante;
};

Table mesurer(int corps, bool gras) {
    const QFontMetricsF mesures(theme::police(corps, gras));
    Table table{{}, enTwips(mesures.height()), enTwips(mesures.ascent())};
    for (int octet = 0; octet < 256; ++octet) {
        const char c = static_cast<char>(octet);
        table.largeurs[static_cast<std::size_t>(octet)] =
            enTwips(mesures.horizontalAdvance(versQt(std::string_view(&c, 1))));
    }
    return table;
}

const Table& table(int corps, bool gras) {
    static std::map<std::pair<int, bool>, Table> tables;
    const auto cle = std::pair(corps, gras);
    const auto trouvee = tables.find(cle);
    return trouvee != tables.end() ? trouvee->second
                                   : tables.emplace(cle, mesurer(corps, gras)).first->second;
}

} // namespace

Twips MetriquesQt::largeur(std::string_view texte, int corps, bool gras) const {
    const Table& t = table(corps, gras);
    Twips somme = 0;
    for (char c : texte)
        somme += t.largeurs[static_cast<unsigned char>(c)];
    return somme;
}

Twips MetriquesQt::hauteur(int corps) const {
    return table(corps, false).hauteur;
}

Twips MetriquesQt::ascendante(int corps) const {
    return table(corps, false).ascendante;
}

Texte elider(std::string_view texte, Twips largeur, int corps, bool gras) {
    constexpr char POINTS = '\x85'; // an ellipsis in CP1252
    constexpr Twips TOLERANCE = 1;  // sums of widths are not exact
    const Table& t = table(corps, gras);
    auto de = [&](char c) { return t.largeurs[static_cast<unsigned char>(c)]; };
    Twips somme = 0;
    std::size_t gardes = 0;
    for (std::size_t n = 0; n < texte.size(); ++n) {
        somme += de(texte[n]);
        if (somme > largeur + TOLERANCE) return Texte(texte.substr(0, gardes)) + POINTS;
        if (somme + de(POINTS) <= largeur) gardes = n + 1;
    }
    return Texte(texte);
}

} // namespace vermo
