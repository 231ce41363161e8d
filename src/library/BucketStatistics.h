// How large a library is, told once a run for each role and in steps only. Goes to the usage records through
// the sink. Any thread.
#pragma once

#include "LibraryRole.h"

#include <QString>

#include <array>
#include <atomic>
#include <functional>

class QJsonObject;

class BucketStatistics final {
public:
    using Sink = std::function<void(const QString &category, const QString &key, const QString &value)>;

    explicit BucketStatistics(Sink sink)
        : m_sink(std::move(sink))
    {
    }

    // Tells the step that the count falls into; only the first call for a role does.
    void report(LibraryRole role, int count);
    // Tells what the server counts itself; only the first call does.
    void reportServer(const QJsonObject &counts);

    // The step's text; empty for a role that is not told.
    [[nodiscard]] static QString bucket(LibraryRole role, int count);

private:
    Sink m_sink;
    std::array<std::atomic<bool>, LibraryRoles::Count> m_isReported{};
    std::atomic<bool> m_isServerReported{false};
};
