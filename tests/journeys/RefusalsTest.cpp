// Questions that are answered "Non" or "Annuler", and dialogs that are left: nothing changes.
#include "Programme.h"

namespace vermo::essai {
namespace {

/// A recording that a question about its format stands before.
const std::string STEREO = wav(2, 16, std::string(40000, '\0')), MONO = wav(1, 8, std::string(12000, '\x7F'));

void ailleurs(Programme& p) {
    p.hote.dossier.ecrire("ailleurs/z.wav", MONO);
}

TEST(Refusals, LeaveEverythingAsItWas) {
    const Geste ajouter = clic("FrmCorpus", "Imgbtn7");
    const Dit horsDuRepertoire{Reponse::Ok, "hors du répertoire"};
    std::vector<Ligne> table{
        {"Nouveau corpus", menu("lblmenu0", "lblmenu0"), "", {fichier("")}},
        {"Ouvrir", menu("lblmenu0", "lblmenu1"), "choix=0", {fichier("")}},
        {"Ouvrir le corpus ouvert",
         menu("lblmenu0", "lblmenu1"),
         "choix=0",
         {fichier("c/E.Crp"), {Reponse::Ok, "déjà ouvert"}}},
        {"Supprimer", menu("lblmenu1", "lblmenu12"), "", {{Reponse::Non, "retirer"}}},
        {"Ajouter", ajouter, "", {fichier("")}},
        {"Ajouter, format : Annuler",
         ajouter,
         "",
         {fichier("c/z.wav"), {Reponse::Annuler, "Stereo - 16"}},
         [](Programme& p) { p.hote.dossier.ecrire("c/z.wav", STEREO); }},
        {"Ajouter, format : Oui",
         ajouter,
         "",
         {fichier("c/z.wav"), {Reponse::Oui, "convertisseur"}, {Reponse::Ok, "introuvable"}},
         [](Programme& p) { p.hote.dossier.ecrire("c/z.wav", STEREO); }},
        {"Ajouter d'ailleurs",
         ajouter,
         "",
         {fichier("ailleurs/z.wav"), {Reponse::Annuler, "hors du répertoire"}},
         ailleurs},
        {"Ajouter d'ailleurs, copie abandonnée",
         ajouter,
         "",
         {fichier("ailleurs/z.wav"), horsDuRepertoire},
         [](Programme& p) { ailleurs(p), p.hote.progression.patience = 0; }},
        {"Ajouter d'ailleurs, écraser : Non",
         ajouter,
         "",
         {fichier("ailleurs/a.wav"),
          horsDuRepertoire,
          {Reponse::Non, "l'écraser?"},
          {Reponse::Ok, "est déjà présent"}},
         [](Programme& p) { p.hote.dossier.ecrire("ailleurs/a.wav", MONO); }},
        {"Ajouter, durée inconnue",
         ajouter,
         "lecteur=z.wav",
         {fichier("c/z.wav"), {Reponse::Ok, "ça ne fonctionne pas"}},
         [](Programme& p) {
             p.hote.dossier.ecrire("c/z.wav", MONO);
             p.hote.media.durees["z.wav"] = 0;
         }},
        {"Ouvrir un entretien, réessayer : Non",
         touche("FrmCorpus", "Frm_entretiens", Qt::Key_Return),
         "",
         {{Reponse::Non, "Voulez-vous réessayer"}},
         [](Programme& p) {
             p.session.corpus.Entretiens[1].Duree = 0;
             p.hote.media.durees["a.wav"] = 0;
         }},
    };
    for (Ligne& ligne : table)
        ligne.avant = [avant = ligne.avant](Programme& p) {
            p.session.corpus.EntretienCourant = 1;
            if (avant) avant(p);
        };
    verifier(table, "ab");
    verifier({{"Ajouter sans corpus : Non", ajouter, "", {{Reponse::Non, "pas de projet ouvert"}}},
              {"Ajouter sans corpus : Oui, puis rien",
               ajouter,
               "",
               {{Reponse::Oui, "pas de projet ouvert"}, fichier("")}}},
             "ab", "ImgBtn1");
}

/// During the first wait of an import.
std::function<void(Programme&)> pendant(Geste geste, bool mesure) {
    return [=](Programme& p) {
        p.hote.dossier.ecrire(mesure ? "c/z.wav" : "ailleurs/z.wav", MONO);
        p.hote.dossier.ecrire("d/F.Crp", std::string(TETE) + ">|ENTR|\r\n");
        p.hote.media.lent = mesure;
        p.hote.progression.pendant = [&p, geste, faite = false]() mutable {
            if (!std::exchange(faite, true)) geste();
            if (p.hote.media.lent) p.hote.media.pret();
        };
    };
}

TEST(Imports, EndWithTheirCorpusAndAreNotBegunTwice) {
    const Geste ajouter = clic("FrmCorpus", "Imgbtn7"), autre = menu("lblmenu0", "lblmenu1");
    const Dit copier{Reponse::Ok, "hors du répertoire"}, copie{Reponse::Ok, "a été copié"};
    verifier(
        {
            {"Un autre corpus pendant la copie",
             ajouter,
             "LblVide=oui | c/z.wav + | corpus=F.Crp | etq1=(0/0) | hauteur=335 | liste= | "
             "programme/Projets.ini ~ | rangs=",
             {fichier("ailleurs/z.wav"), copier, fichier("d/F.Crp"), copie},
             pendant(autre, false)},
            {"Un autre corpus pendant la mesure",
             ajouter,
             "LblVide=oui | corpus=F.Crp | etq1=(0/0) | hauteur=335 | lecteur=z.wav | liste= | "
             "programme/Projets.ini ~ | rangs=",
             {fichier("c/z.wav"), fichier("d/F.Crp")},
             pendant(autre, true)},
            {"Un second ajout pendant la copie",
             ajouter,
             "c/E.Crp ~ | c/E.Crp.$$$ + | c/z.Bmp + | c/z.Rtr + | c/z.wav + | choix=3 | etq1=(3/3) | "
             "fenetres=FrmCorpus- FrmVisu:250 | lecteur=z.wav joue | liste=abz | rangs=abz",
             {fichier("ailleurs/z.wav"), copier, copie},
             pendant(ajouter, false)},
        },
        "ab");
}

} // namespace
} // namespace vermo::essai
