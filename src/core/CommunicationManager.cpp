#include "CommunicationManager.h"

CommunicationManager::CommunicationManager()
{
    qRegisterMetaType<UpdateStatus>("UpdateStatus");
    qRegisterMetaType<SendMsgType>("SendMsgType");
}
