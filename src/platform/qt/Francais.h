#pragma once

class QApplication;

namespace vermo {

/// Standard buttons and dialogs in French, whatever the system's language. False when the translations aren't
/// installed: they then stay in English.
bool installerFrancais(QApplication& application);

} // namespace vermo
