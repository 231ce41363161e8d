// Decides whether this process is the first copy of the program, by a segment of shared memory that the first
// copy holds for as long as it runs, and hands the command line of a later copy over to the first. Owns the
// segment. A segment that a crashed copy left behind is taken over. Main thread.
#pragma once

#include <QSharedMemory>
#include <QString>
#include <QStringList>

class SingleApplication;
class WaitBudget;

class SingleInstance final {
public:
    static constexpr char SegmentKey[] = "Quorin Player 5";
    enum class Outcome {
        // This process is the first copy and goes on.
        First,
        // Another copy runs and has been told.
        HandedOver,
        // Another copy runs, but could not be reached.
        OtherCopySilent,
    };

    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    // The whole decision, with the argument list as it is after the maintenance arguments. The first copy
    // serves the application's name from then on; another one waits within the application's budget.
    [[nodiscard]] Outcome start(SingleApplication &application, const QStringList &arguments);

    // Whether this process holds the segment now, after trying to.
    [[nodiscard]] bool acquire(WaitBudget &budget);
    void release();

    // The text that a copy with these arguments hands over.
    [[nodiscard]] static QString handOverText(const QStringList &arguments);
    [[nodiscard]] static bool handOver(const QString &serverName, const QString &text, int timeoutMs);

    // A copy that is not the first ends with this code, however the hand-over went.
    static constexpr int HandOverExitCode = 0;

private:
    bool createSegment();

    QSharedMemory m_segment;
};
