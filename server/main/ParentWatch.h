// Tells when the process that started this one has ended: a server without its player has nothing left to do.
//
// The process is watched, not the thread of it that made the start: the player's goes as soon as the server
// is up. Main thread. On Windows the player puts the server into a job that ends with it, and nothing is to
// be watched here.
#pragma once

#include <QObject>

#include <memory>

class ParentWatch final : public QObject {
    Q_OBJECT

public:
    explicit ParentWatch(QObject *parent = nullptr);
    ~ParentWatch() override;

signals:
    void parentEnded();

private:
    class Platform;
    std::unique_ptr<Platform> m_platform;
};
