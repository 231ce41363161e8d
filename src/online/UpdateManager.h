// Starts the separate updater, which does the looking and the downloading itself.
//
// Works on any thread: at start-up on the background thread, on demand on the GUI thread. It does not wait
// for the updater.
#pragma once

#include <QString>

#include <functional>

class UpdateManager final {
public:
    enum class Flag { Auto, Manual };

    // Starts a program with its arguments and tells whether it runs.
    using Starter = std::function<bool(const QString &program, const QStringList &arguments)>;
    // True when a copy of the updater already serves its local server.
    using RunningTest = std::function<bool()>;

    static UpdateManager *instance();

    UpdateManager(QString updaterPath, QString configurationPath, Starter starter, RunningTest isRunning);

    // False when the updater could not be started. A running one counts as started, unless the user asked.
    bool check(Flag flag);

private:
    QString m_updaterPath;
    QString m_configurationPath;
    Starter m_starter;
    RunningTest m_isRunning;
};
