// The server's log file: every message of Qt's logging, a line each, from any thread.
//
// Owns the file and its one predecessor (".1"), so that the log never takes more than twice its limit. Texts
// that came in with a request stand in it with their control characters spelt out: no request can forge a
// line.
#pragma once

#include <QFile>
#include <QString>

#include <mutex>

class ServerLog final {
public:
    static constexpr qint64 DefaultLimit = 4 * 1024 * 1024; // bytes
    static constexpr int LongestLine = 8192;                // characters of a message; the rest is cut off

    explicit ServerLog(const QString &path, qint64 limit = DefaultLimit);
    ~ServerLog();
    ServerLog(const ServerLog &) = delete;
    ServerLog &operator=(const ServerLog &) = delete;

    [[nodiscard]] bool isOpen() const;

    // Makes this log the receiver of Qt's messages until it is destroyed. One log at a time.
    void install();

    void write(QtMsgType type, const QString &text);

    // The text on one line: control characters and what reorders or breaks lines as \n, \t or \u{85}.
    [[nodiscard]] static QString escaped(const QString &text);

private:
    void rotate();

    mutable std::mutex m_mutex;
    QFile m_file;
    qint64 m_limit{DefaultLimit};
    qint64 m_size{0};
    QtMessageHandler m_previous{nullptr};
    bool m_installed{false};
};
