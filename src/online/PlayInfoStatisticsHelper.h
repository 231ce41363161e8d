// Gathers facts about what is played and how it was started, for the usage records.
//
// One object a process. The source is written by the GUI thread and may be read by a worker.
#pragma once

#include <QObject>
#include <QString>

#include <atomic>

class PlayInfoStatisticsHelper final : public QObject {
    Q_OBJECT
public:
    // Where the wish to play came from.
    enum class Source { Player, OutOfPlayer };

    static PlayInfoStatisticsHelper *instance();

    explicit PlayInfoStatisticsHelper(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    void setSource(Source source) { m_source = source; }
    [[nodiscard]] Source source() const { return m_source; }

    // Counts a use. The records leave the machine only with the user's consent and a configured place for
    // them; until then they stand in the log.
    void note(const QString &group, const QString &event, const QString &value);

private:
    std::atomic<Source> m_source{Source::Player};
};
