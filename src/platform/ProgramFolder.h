// Where the running program lies, told before there is an application object too. Stateless; any thread.
#pragma once

#include <QString>

// Absolute, with "/" and without one at its end; empty when the system does not tell.
[[nodiscard]] QString programFolder();
