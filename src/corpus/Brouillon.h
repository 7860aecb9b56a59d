#pragma once
#include "corpus/Session.h"
#include "platform/Horloge.h"

#include <map>
#include <string>
#include <string_view>

namespace vermo {

/// What was typed about an interview and no file of its corpus holds yet, as it outlives the program.
struct Brouillon {
    Utf8 genre;                    ///< whose it is: "extrait"
    Utf8 corpus;                   ///< full path of the corpus file
    Utf8 enregistrement;           ///< name of the interview's recording
    Utf8 empreinte{};              ///< of the recording's first bytes; empty where they can't be read
    Utf8 instant;                  ///< of the last change, local time, "2009-04-03 14:05:06"
    Utf8 texte{};                  ///< as typed, lines parted by LF
    std::map<Utf8, Utf8> champs{}; ///< what else belongs to it, by names of lower-case letters
    bool operator==(const Brouillon&) const = default;
};

/// The bytes of its file: UTF-8, a line a field.
std::string ecrireBrouillon(const Brouillon& brouillon);
/// Throws FauteExecution with file, line and what is wrong.
Brouillon lireBrouillon(std::string_view octets, const Utf8& chemin);

/// An empty one about the interview in `slot`, of no moment yet.
Brouillon nouveauBrouillon(const Session& session, int slot, const Utf8& genre);
/// This moment, as `instant`.
Utf8 instantDe(const Horloge& horloge);

/// The slot of the interview that it is about, in the corpus that is open: the corpus that it was typed in,
/// or, when that one or its recording is no more where it was, any that lists the same recording, told by its
/// name and first bytes. 0: none, or its recording isn't there.
int slotDuBrouillon(const Session& session, const Brouillon& brouillon);

} // namespace vermo
