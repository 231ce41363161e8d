// The task list on the helper's side: runs the tasks of servers too, which the player leaves to it.
#pragma once

#include "registry/DRegTaskManager.h"

class HelperTaskManager final : public DRegTaskManager {
public:
    RegResult Execute() override;
};
