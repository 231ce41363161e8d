#include "ErrorNote.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QCoreApplication>

namespace ErrorNote {

namespace {

constexpr Row Rows[] = {
    {HevcInSoftware,
     QT_TRANSLATE_NOOP("ErrorNote",
                       "Your device does not support hardware decoding for H.265 4K videos, and we've "
                       "automatically switched to the software decoding mode, which might possibly cause "
                       "unsmooth playback."),
     SettingsKeys::PC_HardWareNotSupportDontShowAgain, false},
    {UhdDiscNeedsHardware,
     QT_TRANSLATE_NOOP("ErrorNote",
                       "Your computer hardware configuration does not support hardware decoding for "
                       "4K UHD Blu-rays."),
     nullptr, true},
    {ShaderInvalid, QT_TRANSLATE_NOOP("ErrorNote", "Invalid custom shader, please check and try again."),
     nullptr, false},
};

} // namespace

QString logLine(int type)
{
    return QStringLiteral("[SolveError]: error type : %1").arg(type);
}

const Row *rowOf(int type)
{
    for (const Row &row : Rows) {
        if (row.type == type)
            return &row;
    }
    return nullptr;
}

bool isShown(const Row &row, const SettingsManager &settings)
{
    return !row.suppressKey || !settings.value(QLatin1String(row.suppressKey)).toBool();
}

void suppress(const Row &row, SettingsManager &settings)
{
    if (row.suppressKey)
        settings.setValue(QLatin1String(row.suppressKey), true);
}

QString text(const Row &row)
{
    return QCoreApplication::translate("ErrorNote", row.text);
}

} // namespace ErrorNote
