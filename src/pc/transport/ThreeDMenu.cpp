#include "ThreeDMenu.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QActionGroup>
#include <QSysInfo>

namespace {

constexpr bool kPlayIn3DDefault = true;
constexpr bool kConvertTo3DDefault = false;

constexpr const char *kSourceFormats[] = {
    QT_TRANSLATE_NOOP("ThreeDMenu", "Auto Detect"),
    QT_TRANSLATE_NOOP("ThreeDMenu", "Side by Side"),
    QT_TRANSLATE_NOOP("ThreeDMenu", "Top / Bottom"),
};

} // namespace

ThreeDMenu::ThreeDMenu(SettingsManager &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_isWithout3D([] { return QSysInfo::prettyProductName().startsWith(QLatin1String("Windows 7")); })
{
}

bool ThreeDMenu::isOn() const
{
    return m_settings.valueOr(QLatin1String(SettingsKeys::PC_ConvertTo3D), kConvertTo3DDefault);
}

QMenu *ThreeDMenu::build()
{
    m_menu = std::make_unique<QMenu>();
    const bool playIn3D = m_settings.valueOr(QLatin1String(SettingsKeys::PC_PlayIn3D), kPlayIn3DDefault);
    const bool convert = m_settings.valueOr(QLatin1String(SettingsKeys::PC_ConvertTo3D), kConvertTo3DDefault);
    addEntry(m_menu.get(), tr("Play 3D Media in 3D"), QLatin1String(PlayIn3D), true, playIn3D);
    addEntry(m_menu.get(), tr("Convert 2D Media to 3D"), QLatin1String(ConvertTo3D), true, convert);

    QMenu *formats = m_menu->addMenu(tr("3D Source Format"));
    auto *group = new QActionGroup(formats);
    const int current = m_settings.valueOr(QLatin1String(SettingsKeys::PC_3DSourceType), 0);
    int value = 0;
    for (const char *text : kSourceFormats) {
        QAction *entry = addEntry(formats, tr(text), QLatin1String(SourceFormat) + QString::number(value),
                                  true, value == current);
        group->addAction(entry);
        ++value;
    }
    m_menu->addSeparator();
    addEntry(m_menu.get(), tr("More 3D Settings"), QLatin1String(MoreSettings), false, false);
    return m_menu.get();
}

QAction *ThreeDMenu::addEntry(QMenu *menu, const QString &text, const QString &key, bool checkable,
                              bool checked)
{
    QAction *action = menu->addAction(text);
    action->setData(key);
    action->setCheckable(checkable);
    action->setChecked(checked);
    return action;
}

void ThreeDMenu::deal(QAction *action)
{
    if (action == nullptr)
        return;
    const QString key = action->data().toString();
    const QLatin1String formatKey(SourceFormat);
    const bool isFormat = key.startsWith(formatKey);
    if (key != QLatin1String(PlayIn3D) && key != QLatin1String(ConvertTo3D)
        && key != QLatin1String(MoreSettings) && !isFormat)
        return;
    if (m_isWithout3D()) {
        emit refused(tr("Oops! 3D playback support is only available on Windows 8/10 for now."));
        return;
    }
    if (key == QLatin1String(MoreSettings)) {
        emit moreSettingsWanted();
        return;
    }
    if (key == QLatin1String(PlayIn3D))
        toggle(SettingsKeys::PC_PlayIn3D, kPlayIn3DDefault);
    else if (key == QLatin1String(ConvertTo3D))
        toggle(SettingsKeys::PC_ConvertTo3D, kConvertTo3DDefault);
    else
        m_settings.setValue(QLatin1String(SettingsKeys::PC_3DSourceType), key.mid(formatKey.size()).toInt());
    emit setupDue();
}

void ThreeDMenu::toggle(const char *settingsKey, bool fallback)
{
    const QLatin1String key(settingsKey);
    m_settings.setValue(key, !m_settings.valueOr(key, fallback));
}
