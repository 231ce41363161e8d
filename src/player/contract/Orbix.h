// The two functions that the engine library exports, and all that is reached through them.
//
// Slot numbers of an interface count its operations in their order from 0, the library's destructor. A
// compiler of the GCC family spends two slots on a virtual destructor, so slot 0 is an ordinary operation and
// no interface has a virtual destructor: nobody deletes through an interface.
#pragma once

#include "IVDEngineCore.h"
#include "IVDFileItem.h"
#include "IVDOrbixCallback.h"
#include "IVDPlay.h"
#include "IVDPlayCallback.h"
#include "IVDPlayOptions.h"
#include "IVDPlayTool.h"
#include "IVDPlayToolConfig.h"
#include "IVDPlayerConfig.h"
#include "IVDPlaytoolCallback.h"
#include "VDRecords.h"
#include "VDTypes.h"

namespace libvp {

// Both names are exported with C linkage.
//
// CreateVDPlayer: one engine a process; null when one exists already or an argument is null. Both arguments
// must outlive the engine.
using CreateVDPlayerFunction = IVDEngineCore *(*)(IVDPlayerConfig *config, IVDOrbixCallback *callback);
// ReleaseVDPlayer: ends all that the engine has made and waits for its threads. Null is ignored.
using ReleaseVDPlayerFunction = void (*)(IVDEngineCore *core);

constexpr const char *CreateVDPlayerName = "CreateVDPlayer";
constexpr const char *ReleaseVDPlayerName = "ReleaseVDPlayer";

} // namespace libvp
