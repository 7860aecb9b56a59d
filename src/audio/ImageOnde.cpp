#include "audio/ImageOnde.h"

#include "textfile/faute.h"
#include "textfile/nombres.h"
#include "textfile/tables.h"

#include <algorithm>
#include <cmath>

namespace vermo {

namespace {

int rangees(const EnTeteWav& entete) {
    return std::clamp<int>(entete.NbCanaux, 1, 2);
}

void convertir16(PointsOnde& points, const Echelles& echelles, long largeur, long nombre) {
    const long diviseur = arrondi(echelles.Echelle);
    if (diviseur == 0) throw FauteExecution("division par zéro : image trop haute pour l'onde");
    for (long i = 0; i < nombre; ++i) {
        auto& point = ligneDe(points.points, i);
        const auto milieu = ligneDe(echelles.MilieuCanal, i / largeur);
        point = static_cast<std::int16_t>(milieu - point / diviseur);
    }
}

void convertir8(PointsOnde& points, const Echelles& echelles, long largeur, long nombre) {
    std::array<long, 256> hauteurs{};
    for (std::size_t octet = 0; octet < hauteurs.size(); ++octet)
        hauteurs[octet] = echelles.MilieuCanal[0] - arrondi(static_cast<double>(octet) / echelles.Echelle);
    for (long i = 0; i < nombre; ++i) {
        const auto milieu = ligneDe(echelles.MilieuCanal, i / largeur);
        const auto octet = ligneDe(points.octets, i);
        ligneDe(points.points, i) = static_cast<std::int16_t>(milieu + hauteurs[octet]);
    }
}

/// A progress bar for one reading; ends with it, whatever happens.
class AvanceOnde {
  public:
    AvanceOnde(Progression* progression, const EnTeteWav& entete, long largeur) : progression_(progression) {
        const long maximum = entete.BitsParEchantillon == 16 ? entete.NbCanaux * largeur - 1 : largeur - 1;
        if (progression_) progression_->debut(0, std::max(maximum, 1L));
    }
    ~AvanceOnde() {
        if (progression_) progression_->fin();
    }
    AvanceOnde(const AvanceOnde&) = delete;
    AvanceOnde& operator=(const AvanceOnde&) = delete;

    AvanceLecture suite() const {
        if (!progression_) return {};
        return [progression = progression_](long lus) { progression->avance(lus); };
    }

  private:
    Progression* progression_;
};

int enPixels(Twips twips, double densite) {
    return std::max(1, static_cast<int>(arrondi(twips * densite)));
}

/// Brings Y to the picture's own height. In stereo the zoom band's mid line falls the faster the higher the
/// band is: where the wave would leave it, it is made to fill it.
double facteurDe(const DemandeOnde& demande, const EnTeteWav& entete, const Echelles& echelles) {
    if (demande.vue == Vue::Picture1) return 1;
    const double facteur = demande.hauteur / demande.hauteurVue;
    if (demande.vue != Vue::Pict_zoom || entete.NbCanaux != 2) return facteur;
    return std::min(facteur, demande.hauteur / (2.0 * echelles.MilieuCanal[0]));
}

} // namespace

Echelles calculerEchelles(const EnTeteWav& entete, long HauteurCible) {
    Echelles echelles;
    const bool stereo = entete.NbCanaux == 2;
    echelles.MilieuCanal[0] = static_cast<std::int32_t>(HauteurCible / (stereo ? 4 : 2));
    echelles.MilieuCanal[1] = echelles.MilieuCanal[0] * (stereo ? 3 : 1);
    if (echelles.MilieuCanal[0] <= 0)
        throw FauteExecution("division par zéro : image trop basse pour l'onde");
    const int bits = std::clamp<int>(entete.BitsParEchantillon, 1, 31);
    echelles.AmplitudeMax = static_cast<std::int32_t>((std::uint32_t{1} << (bits - 1)) - 1);
    echelles.Echelle = static_cast<double>(echelles.AmplitudeMax) / echelles.MilieuCanal[0];
    return echelles;
}

long hauteurCibleZoom(const EnTeteWav& entete, Twips hauteurZoom, Twips hauteurVue) {
    return entete.NbCanaux == 2 ? arrondi(hauteurZoom) / 3 : arrondi(hauteurVue);
}

void convertirPoints(PointsOnde& points, const EnTeteWav& entete, const Echelles& echelles, long largeur) {
    const long nombre = std::max(rangees(entete) * largeur - 1, 0L);
    if (entete.BitsParEchantillon == 16)
        convertir16(points, echelles, largeur, nombre);
    else
        convertir8(points, echelles, largeur, nombre);
}

long nombreLignes(Vue vue, const EnTeteWav& entete, long largeur) {
    const long converties = rangees(entete) * largeur - 2;
    const long voulues = vue == Vue::Picture1    ? rangees(entete) * largeur
                         : vue == Vue::Pict_zoom ? largeur + 1
                                                 : largeur - 1;
    return std::max(std::min(converties, voulues), 0L);
}

void tracerOnde(Bitmap8& image, std::uint8_t indice, Vue vue, const PointsOnde& points,
                const EnTeteWav& entete, long largeur, double facteurY, double densite) {
    Traceur traceur(image, indice);
    const long lignes = nombreLignes(vue, entete, largeur);
    for (long i = 0; i < lignes; ++i) {
        const auto x = static_cast<double>(i % largeur);
        const auto place = static_cast<std::size_t>(i);
        traceur.ligne(x * densite, points.points[place] * facteurY * densite, (x + 1) * densite,
                      points.points[place + 1] * facteurY * densite);
    }
}

EnTeteWav dessinerOnde(Bitmap8& image, std::uint8_t indice, const DemandeOnde& demande, PointsOnde& points,
                       Progression* progression) {
    const EnTeteWav entete = avecDefauts(sonderEnteteWav(demande.fichier));
    const long LargeurCible = arrondi(demande.largeur);
    const bool zoom = demande.vue == Vue::Pict_zoom;
    const long HauteurCible =
        zoom ? hauteurCibleZoom(entete, demande.hauteur, demande.hauteurVue) : arrondi(demande.hauteur);
    const Echelles echelles = calculerEchelles(entete, HauteurCible);
    {
        const FichierOnde fichier(demande.fichier);
        if (const Utf8 refus = refusOnde(fichier); !refus.empty()) throw FauteExecution(refus);
        const AvanceOnde avance(progression, entete, LargeurCible);
        lirePoints(fichier, entete, demande.empan, LargeurCible, points, avance.suite());
    }
    convertirPoints(points, entete, echelles, LargeurCible);
    tracerOnde(image, indice, demande.vue, points, entete, LargeurCible, facteurDe(demande, entete, echelles),
               demande.densite);
    return entete;
}

Dessin ligneSansOnde(const Utf8& raison) {
    constexpr Twips gauche = 150, haut = 360;
    constexpr std::uint8_t corps = 9;
    return {.traits = {}, .inscriptions = {{gauche, haut, depuisUtf8(raison), rvb(0, 0, 0), corps}}};
}

Bitmap8 fondUni(Twips largeur, Twips hauteur, double densite, Couleur fond) {
    return {enPixels(largeur, densite), enPixels(hauteur, densite), {rvb(0, 0, 0), fond}, 1};
}

Bitmap8 fondZoom(Twips largeur, Twips hauteur, double densite) {
    constexpr int TEINTES = 200;
    std::vector<Couleur> palette{rvb(0, 0, 0), rvb(45, 44, 45)};
    for (int k = 0; k < TEINTES; ++k)
        palette.push_back(rvb(26 + k, 25 + k, 26 + k));
    Bitmap8 image(enPixels(largeur, densite), enPixels(hauteur, densite), palette, 1);

    const long haut = arrondi(hauteur);
    const long marche = std::max(arrondi(hauteur / 125), 1L);
    for (long i = 1; i <= haut / 2; ++i) {
        const auto teinte = static_cast<std::uint8_t>(2 + std::min<long>(i / marche, TEINTES - 1));
        for (const long y : {i, haut - i}) {
            const int rangee = static_cast<int>(std::floor(static_cast<double>(y) * densite));
            if (rangee < image.hauteur()) image.rangee(rangee, teinte);
        }
    }
    return image;
}

} // namespace vermo
