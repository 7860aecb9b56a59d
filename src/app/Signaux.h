#pragma once

namespace vermo {

class Application;

/// From now on SIGTERM, SIGHUP, SIGINT and the end of the person's session put what is being typed on the
/// disk; the signals then end the program, without a question, and a second one at once. For `application`'s
/// lifetime.
void ecouterLaFin(Application& application);

} // namespace vermo
