// Rows of the properties that the output takes by name, and the one loop that reads them.
#pragma once

#include "PlayTool.h"

#include <algorithm>
#include <cstring>
#include <iterator>

struct PlayTool::BoolRow {
    const char *name;
    bool (*set)(PlayTool &tool, bool value);
};

struct PlayTool::IntRow {
    const char *name;
    bool (*set)(PlayTool &tool, int value);
};

struct PlayTool::StringRow {
    const char *name;
    bool (*set)(PlayTool &tool, const char *value);
};

// False when the name is not in the table.
template<typename Row, std::size_t Count, typename Value>
bool setByName(PlayTool &tool, const Row (&rows)[Count], const char *name, Value value)
{
    if (!name)
        return false;
    const auto *row = std::find_if(std::begin(rows), std::end(rows), [name](const Row &candidate) {
        return std::strcmp(candidate.name, name) == 0;
    });
    return row != std::end(rows) && row->set(tool, value);
}
