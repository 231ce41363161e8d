#include "LibraryNeeds.h"

namespace LibraryNeeds {

// The engine stands on a handful of libraries here.
QStringList inOrder(const QString &file)
{
    Q_UNUSED(file)
    return {};
}

void load(const QString &file)
{
    Q_UNUSED(file)
}

} // namespace LibraryNeeds
