#pragma once
#include "textfile/texte.h"

#include <stop_token>

namespace vermo {

/// Seconds of sound that the file at `chemin` really holds; 0 when it holds none, can't be read, or when
/// `arret` was asked meanwhile.
///
/// What a header says is wrong for a file cut short, and a variable bit rate makes an estimate 3 % off: the
/// packets are walked through without decoding them (8 ms for 2 minutes, 0.3 s for 2 hours), the silence that
/// an encoder added at both ends left out. Samples without compression are not walked through: their file's
/// size tells.
double dureeExacte(const Utf8& chemin, const std::stop_token& arret);

} // namespace vermo
