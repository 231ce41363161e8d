// Sees to it that a full disk costs no settings. QSettings takes a file that was cut while its last bytes
// went out for written, puts it over the one of before and forgets what it has lost.
//
// Keeps the file of before beside the new one until that is known to be whole; else brings it back and makes
// all that was changed pending again. A child of the QSettings object, on its thread: what that writes by
// itself goes through here too.
#pragma once

#include <QObject>
#include <QTimer>

#include <atomic>
#include <functional>
#include <mutex>

class QSettings;

class WholeSettingsFile final : public QObject {
    Q_OBJECT

public:
    // After a failure what QSettings would write by itself waits that long.
    static constexpr int RetryMs = 5000;

    // mutex: held by all who use the settings.
    WholeSettingsFile(QSettings &settings, std::mutex &mutex);

    // Writes what is pending; the mutex is held by the caller, on any thread. False when the file could not
    // be written: it is as before, and the next call tries again.
    bool sync();

    // Nothing is written any more, the destruction of QSettings apart. The mutex is held by the caller.
    void abandon() { m_isAbandoned = true; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool write(const std::function<void()> &step);
    [[nodiscard]] bool isCut() const;
    void bringBack(bool hasBefore);
    void writeByItself();

    QSettings &m_settings;
    std::mutex &m_mutex;
    QTimer m_retry;
    std::atomic<bool> m_hasFailed{false};
    bool m_isAbandoned{false};
};
