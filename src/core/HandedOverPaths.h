// Finds out which of the paths that other copies hand over are files. A path may lie on a drive that has to
// spin up or on a network that is gone, so each is looked at on a thread of its own, and one that does not
// answer holds up the others for a moment only. GUI thread; owns the threads that look.
#pragma once

#include "ThreadWorker.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <list>

class HandedOverPaths final : public QObject {
    Q_OBJECT

public:
    // Runs on one of the threads.
    using Test = std::function<bool(const QString &path)>;

    // How long later paths wait for an earlier one.
    static constexpr int PatienceMs = 300;
    // Paths beyond these wait until one has answered.
    static constexpr int MaxThreads = 8;
    // What the end of the program waits for a path that does not answer.
    static constexpr int StopMs = 200;

    [[nodiscard]] static bool isFile(const QString &path);

    explicit HandedOverPaths(QObject *parent = nullptr, Test test = isFile);
    ~HandedOverPaths() override;

    void add(const QString &path);

signals:
    // In the order in which the paths came. One that answers late is told then, unless a newer one was told
    // meanwhile.
    void fileFound(const QString &path);

private:
    enum class Answer { Open, File, None };
    struct Entry {
        quint64 number{0};
        QString path;
        Answer answer{Answer::Open};
        QDeadlineTimer patience;
    };

    void take(quint64 number, bool isFile);
    void tell();

    Test m_test;
    std::list<Entry> m_waiting;
    quint64 m_lastNumber{0};
    quint64 m_lastTold{0};
    QTimer m_patience;
    ThreadWorker m_threads;
};
