#pragma once
#include "window/Element.h"

namespace vermo {

/// Where the controls of FrmCorpus stand. Twips of the window, except where a comment names another control.
struct DispositionCorpus {
    Rectangle ImgTop;
    Rectangle ImgCroix;
    Rectangle PictVol;
    Rectangle lblmenu[4]; ///< "Corpus", "Entretiens", "Thématiques", "Attributs"
    Rectangle Imgbtn[9];
    Rectangle ImgZoom[2];
    Rectangle etq[2]; ///< captions over the thematics and over the interviews
    Rectangle ImgOnOffthm, ImgOnOffent;
    Rectangle Frm_fond_thm;
    Rectangle Frm_thm; ///< in Frm_fond_thm
    Rectangle ProgressBar1;
    Rectangle FrmBtnEntr;
    Rectangle PictTps;
    Rectangle Frm_fond_entretiens;
    Rectangle
        Frm_entretiens;    ///< in Frm_fond_entretiens; its height is the frame's until the rows are laid out
    Rectangle LigneScroll; ///< in Frm_fond_entretiens; its width is that of the thumb
    Rectangle PictTAP;     ///< empty unless TriAPlat
    Rectangle cadreThm, cadreEntretiens; ///< what Imgbulle frames
};

/// Layout of the window for its size. `TriAPlat`: the timeline gives up the height of PictTAP plus 720.
DispositionCorpus disposerFenetreCorpus(Twips largeur, Twips hauteur, bool TriAPlat);

} // namespace vermo
