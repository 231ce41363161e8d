// Starts the program of the media server and holds its process. An interface, so that a test starts nothing.
// Every operation may come from every thread.
#pragma once

#include <QString>

class IServerStarter {
public:
    virtual ~IServerStarter() = default;

    // Whether a process of this starter is held, running or not.
    [[nodiscard]] virtual bool isHeld() const = 0;
    // Starts the program with its data folder and holds the process. False when it did not start within the
    // time, in milliseconds; it is held all the same.
    [[nodiscard]] virtual bool start(const QString &program, const QString &dataFolder, int waitMs) = 0;
    // Whether the process that start() has started still runs.
    [[nodiscard]] virtual bool isRunning() const = 0;
    // The second way: without a data folder and without a process to hold. False when there is no such file
    // or the system refuses.
    [[nodiscard]] virtual bool startPlain(const QString &program) = 0;
    // Ends the process that is held, and lets go of it.
    virtual void release() = 0;
};
