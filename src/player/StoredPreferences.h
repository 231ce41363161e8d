// Reads stored preferences by their rows: an absent key gives the row's default, a value that is none of its
// kind gives the default and a line in the log, a number outside the range what the row says.
//
// Refers to the settings. Any thread.
#pragma once

#include "PreferenceRows.h"

#include <QString>
#include <QVariant>

class SettingsManager;

class StoredPreferences final {
public:
    // Whether a default is written to the settings where the key is absent.
    enum class Absent { Stays, IsWritten };

    StoredPreferences(SettingsManager &settings, Absent absent)
        : m_settings(settings)
        , m_absent(absent)
    {
    }

    [[nodiscard]] bool flag(const FlagRow &row);
    [[nodiscard]] int number(const NumberRow &row);
    [[nodiscard]] QString text(const TextRow &row);
    // "#rrggbb".
    [[nodiscard]] QString color(const TextRow &row);

private:
    // The stored value, invalid where the default takes its place.
    [[nodiscard]] QVariant stored(const char *key, const QVariant &fallback);

    SettingsManager &m_settings;
    Absent m_absent;
};
