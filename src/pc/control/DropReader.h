// Sorts a drop out without holding up the window.
//
// Lives on the GUI thread; the rule runs on workers. A later drop replaces an earlier one, whose outcome is
// never told, even when the earlier one hangs on a folder that does not answer.
#pragma once

#include "DropRule.h"

#include <QObject>

#include <atomic>
#include <memory>

class ThreadWorker;

class DropReader final : public QObject {
    Q_OBJECT

public:
    explicit DropReader(DropRule rule = DropRule(), QObject *parent = nullptr);
    ~DropReader() override;

    [[nodiscard]] const DropRule &rule() const { return m_rule; }

    // Answered by one decided(), unless another drop or cancel() comes first.
    void read(const QList<QUrl> &urls, bool isPlaying);
    void cancel();
    [[nodiscard]] bool isReading() const { return m_isReading; }

signals:
    void decided(const DropRule::Outcome &outcome);

private:
    DropRule m_rule;
    // The number of the drop that counts; shared with the workers.
    std::shared_ptr<std::atomic<quint64>> m_latest;
    std::unique_ptr<ThreadWorker> m_worker;
    int m_atWork{0};
    bool m_isReading{false};
};
