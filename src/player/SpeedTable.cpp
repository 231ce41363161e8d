#include "SpeedTable.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SpeedTable {

namespace {

struct Row {
    float value;
    const char *text;
};

constexpr Row rows[] = {
    {-32.0F, "-32"}, {-16.0F, "-16"}, {-8.0F, "-8"},  {-4.0F, "-4"}, {-2.0F, "-2"},   {0.0F, "0"},
    {0.25F, "1/4"},  {0.5F, "1/2"},   {0.75F, "3/4"}, {1.0F, "1"},   {1.25F, "1.25"}, {1.5F, "1.5"},
    {1.75F, "1.75"}, {2.0F, "2"},     {4.0F, "4"},    {8.0F, "8"},   {16.0F, "16"},   {32.0F, "32"},
};
static_assert(std::size(rows) == Last + 1);

} // namespace

QMap<int, float> values()
{
    QMap<int, float> map;
    for (int index = First; index <= Last; ++index)
        map.insert(index, rows[index].value);
    return map;
}

QMap<int, QString> texts()
{
    QMap<int, QString> map;
    for (int index = First; index <= Last; ++index)
        map.insert(index, QLatin1String(rows[index].text));
    return map;
}

int indexOf(float speed)
{
    if (std::isnan(speed))
        return Normal;
    const auto nearest =
        std::min_element(std::begin(rows), std::end(rows), [speed](const Row &a, const Row &b) {
            return std::fabs(a.value - speed) < std::fabs(b.value - speed);
        });
    return static_cast<int>(std::distance(std::begin(rows), nearest));
}

int step(int index, bool forward)
{
    if (forward)
        return index < FirstForward ? FirstForward : std::min(index + 1, Last);
    return index > FirstRewind ? FirstRewind : std::max(index - 1, First);
}

} // namespace SpeedTable
