#include "PlayInfoStatisticsHelper.h"

PlayInfoStatisticsHelper *PlayInfoStatisticsHelper::instance()
{
    static auto *helper = new PlayInfoStatisticsHelper;
    return helper;
}
