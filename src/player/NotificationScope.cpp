#include "NotificationScope.h"

namespace {

int &depth()
{
    thread_local int count = 0;
    return count;
}

} // namespace

NotificationScope::NotificationScope()
{
    ++depth();
}

NotificationScope::~NotificationScope()
{
    --depth();
}

bool NotificationScope::active()
{
    return depth() > 0;
}
