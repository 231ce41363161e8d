#include "WindowSystem.h"

// There is one only.
void WindowSystem::choose() {}
