// Answers of the provider, kept on disk for some days so that a repeated scan or search asks nobody.
//
// A file an answer, named by the hash of what was asked: the moment on its first line, the answer behind it.
// The oldest files go when the folder grows over its limit. Any thread. A file that can't be read or written
// costs a request, nothing more.
#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>

class AnswerCache final {
public:
    struct Limits {
        qint64 ageMs{7LL * 24 * 60 * 60 * 1000};
        qint64 bytes{64 * 1024 * 1024};
    };

    AnswerCache(const QString &folder, Limits limits);

    // Null when there is none or it is too old.
    [[nodiscard]] QByteArray find(const QByteArray &question, qint64 nowMs) const;
    void keep(const QByteArray &question, const QByteArray &answer, qint64 nowMs);

private:
    [[nodiscard]] QString pathOf(const QByteArray &question) const;
    void makeRoom();

    const QString m_folder;
    const Limits m_limits;
    std::mutex m_mutex;
    qint64 m_bytes{-1}; // not counted yet
};
