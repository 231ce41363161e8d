// The language that the system, not the user's session, is set to.
#pragma once

#include "core/SystemLanguageId.h"

[[nodiscard]] SystemLanguageId systemLanguage();
