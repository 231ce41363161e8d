// The 3D menu of the transport bar: its entries, their states and the settings behind them.
//
// What the engine is to do follows from the settings and may take its time, so a change only says that the
// set-up is due. GUI thread.
#pragma once

#include <QMenu>
#include <QObject>

#include <functional>
#include <memory>

class QAction;
class SettingsManager;

class ThreeDMenu final : public QObject {
    Q_OBJECT

public:
    // Keys of the entries, in their actions' data.
    static constexpr char PlayIn3D[] = "playIn3D";
    static constexpr char ConvertTo3D[] = "convertTo3D";
    static constexpr char MoreSettings[] = "more3DSettings";
    // Followed by the value of the setting.
    static constexpr char SourceFormat[] = "3DSourceFormat_";

    ThreeDMenu(SettingsManager &settings, QObject *parent = nullptr);

    // Whether this system is too old for 3D.
    void setSystemTest(std::function<bool()> isWithout3D) { m_isWithout3D = std::move(isWithout3D); }

    // Every source is shown in 3D, whatever it is.
    [[nodiscard]] bool isOn() const;

    // The menu with the states of the moment; lives until the next call.
    [[nodiscard]] QMenu *build();
    // Carries an entry out.
    void deal(QAction *action);

signals:
    void setupDue();
    void moreSettingsWanted();
    // For the user, in his language.
    void refused(const QString &text);

private:
    QAction *addEntry(QMenu *menu, const QString &text, const QString &key, bool checkable, bool checked);
    void toggle(const char *settingsKey, bool fallback);

    SettingsManager &m_settings;
    std::function<bool()> m_isWithout3D;
    std::unique_ptr<QMenu> m_menu;
};
