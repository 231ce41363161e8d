#include "WindowSystem.h"

// There is one only.
void WindowSystem::choose() {}

// It never goes without the session.
void WindowSystem::endWithDisplay() {}
