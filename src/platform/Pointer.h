// The system's pointer.
#pragma once

namespace Pointer {

// Makes the pointer visible if something before this program has left it hidden.
void show();

} // namespace Pointer
