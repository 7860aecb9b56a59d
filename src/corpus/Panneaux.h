#pragma once
#include "corpus/Session.h"
#include "window/Element.h"
#include "window/Rangs.h"

/// The list of thematics, and the switches of the panels.
namespace vermo {

/// Where the list stands: in FrmCorpus what is switched off turns grey and a tooltip tells the switch.
enum class Legende { Corpus, Saisie };

/// Height of a row of the list: the frame shared among the thematics, at most 495.
Twips hauteurThematique(int nombre, Twips hauteurCadre);

/// The rows, as their LblCoul stand.
Rangs lignesThematiques(const Session& session, Twips hauteurCadre);

/// ImgCoul, ShpCoul and LblCoul (tag: the code) of each row, index the row. Places are twips of the frame.
Elements disposerThematiques(const Session& session, Twips largeur, Twips hauteurCadre, Legende legende);

void basculerEntretien(EtatCorpus& corpus, int slot);  ///< ImgOnOff, click
void isolerEntretien(EtatCorpus& corpus, int slot);    ///< ImgOnOff, double click
void basculerThematique(EtatCorpus& corpus, int rang); ///< LblCoul, left button
void isolerThematique(EtatCorpus& corpus, int rang);   ///< LblCoul, right button

/// ImgOnOffent: more than one active, all off; otherwise all on. Returns whether they are on now (ImgOn).
bool basculerTousEntretiens(EtatCorpus& corpus);
/// ImgOnOffthm: all on, all off; otherwise all on. Returns whether they are on now (ImgOn).
bool basculerToutesThematiques(EtatCorpus& corpus);

} // namespace vermo
