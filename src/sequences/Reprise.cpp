#include "sequences/Reprise.h"

#include <ctime>

namespace vermo {
namespace {

/// As the machine writes a date; the text itself when it is none.
Utf8 heureLisible(const Utf8& instant, const Reglages& reglages) {
    std::tm heure{};
    if (!strptime(instant.c_str(), "%Y-%m-%d %H:%M:%S", &heure)) return instant;
    char texte[128];
    const std::string format = reglages.formatDate + " à " + reglages.formatHeure;
    return {texte, std::strftime(texte, sizeof texte, format.c_str(), &heure)};
}

/// In one line, in quotation marks, cut between characters.
Utf8 premiersMots(const Utf8& texte) {
    constexpr std::size_t octetsMax = 80;
    Utf8 mots;
    for (const char c : texte) {
        const bool suite = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        if (mots.size() >= octetsMax && !suite) return "« " + mots + "… »";
        if (c != '\n' && c != '\0')
            mots += c;
        else if (!mots.empty() && mots.back() != ' ')
            mots += ' ';
    }
    while (mots.ends_with(' '))
        mots.pop_back();
    return mots.empty() ? "(sans texte)" : "« " + mots + " »";
}

Message question(const Session& session, const BrouillonLibre& libre) {
    return {.texte =
                "Un texte qui n'a pas été enregistré a été retrouvé.\n\nEntretien : " +
                nomEntretien(session.corpus, libre.slot) + "\nTapé le " +
                heureLisible(libre.brouillon.instant, session.reglages) + "\n" +
                premiersMots(libre.brouillon.texte) +
                "\n\nVoulez-vous le reprendre ?\n(« Non » l'oublie, « Annuler » le garde pour plus tard.)",
            .titre = "Vermo",
            .boutons = Boutons::OuiNonAnnuler,
            .icone = Icone::Question};
}

} // namespace

std::optional<BrouillonRepris> offrirBrouillon(const Session& session, Plateforme& plateforme) {
    const auto dire = [&](const Utf8& faute) {
        plateforme.dialogues.demander({.texte = faute, .icone = Icone::Exclamation});
    };
    for (BrouillonLibre& libre : brouillonsLibres(session, plateforme.emplacements, dire)) {
        if (libre.brouillon.genre != saisie::GENRE_EXTRAIT) continue;
        try {
            const saisie::Reprise reprise = saisie::repriseDe(libre.brouillon);
            const Reponse reponse = plateforme.dialogues.demander(question(session, libre));
            if (reponse == Reponse::Oui) return BrouillonRepris{reprise, libre.slot, std::move(libre.tenu)};
            if (reponse == Reponse::Non) libre.tenu->retirer();
        } catch (const FauteExecution& faute) {
            dire(ecarterBrouillon(libre.tenu->chemin(), faute));
        }
    }
    return std::nullopt;
}

} // namespace vermo
