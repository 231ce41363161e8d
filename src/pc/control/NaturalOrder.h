// The order in which people read names with numbers: "Part 2" before "Part 10", whatever the case. Stateless
// but for the collator that it hands out; any thread.
#pragma once

#include <QCollator>

namespace NaturalOrder {

// A collator of the user's locale; make one for each list, as it is not cheap.
[[nodiscard]] QCollator collator();

} // namespace NaturalOrder
