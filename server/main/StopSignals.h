// Tells when the system asks the program to end: SIGTERM, SIGINT and SIGHUP, or the console's close on
// Windows.
//
// One object at a time, on the main thread; stopRequested() comes through its event loop, never from within a
// signal.
#pragma once

#include <QObject>

#include <memory>

class StopSignals final : public QObject {
    Q_OBJECT

public:
    explicit StopSignals(QObject *parent = nullptr);
    ~StopSignals() override; // gives the signals back their usual meaning

signals:
    void stopRequested();

private:
    class Platform;
    std::unique_ptr<Platform> m_platform;
};
