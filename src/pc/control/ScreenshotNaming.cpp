#include "ScreenshotNaming.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace ScreenshotNaming {

namespace {

constexpr const char *Suffixes[] = {".png", ".jpg", ".bmp"};

} // namespace

Target target(const SettingsManager &settings, const QString &picturesFolder)
{
    const QString folder = settings.value(SettingsKeys::PC_SnapShotPath).toString();
    return {folder.isEmpty() ? picturesFolder : folder,
            suffixOf(settings.value(SettingsKeys::PC_SnapShotType).toString()),
            settings.valueOr(SettingsKeys::PC_SaveToDipboard, true)};
}

QString suffixOf(const QString &type)
{
    for (const char *suffix : Suffixes) {
        if (type.compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0)
            return type;
    }
    return QLatin1String(FallbackSuffix);
}

QString baseName(const QDateTime &time, int attempt)
{
    const QString name = time.toString(QStringLiteral("yyyy_MM_dd_hh_mm_ss"));
    return attempt > 1 ? QStringLiteral("%1_%2").arg(name).arg(attempt) : name;
}

} // namespace ScreenshotNaming
