// The tables of the library, as the steps that make them. A step that has been released is never changed;
// what comes later is a step of its own.
#pragma once

#include "Migrations.h"

#include <QVector>

namespace Schema {

[[nodiscard]] QVector<Migration> steps();

} // namespace Schema
