#include "HelperTaskManager.h"

RegResult HelperTaskManager::Execute()
{
    return executeAll(Servers::Run);
}
