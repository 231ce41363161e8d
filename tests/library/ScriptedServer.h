// A media server of canned answers: remembers every request and answers by method. What has no answer is not
// delivered, as if nobody listened. Any thread.
#pragma once

#include "library/LibraryTransport.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QStringList>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

class ScriptedServer final {
public:
    struct Request {
        QString url;
        QByteArray body;
        QString method;
        QJsonObject params;
        int timeoutSeconds{0};
    };
    using Answer = std::function<QJsonValue(const QJsonObject &params)>;

    // The value of "result" in a good answer.
    void answer(const QString &method, Answer answer);
    void answer(const QString &method, const QJsonObject &result);
    // The whole body.
    void answerRaw(const QString &method, const QByteArray &body);
    void forget(const QString &method);

    // Requests of the method wait from now on, until they are let go.
    void hold(const QString &method);
    void letGo();
    // Blocks until a request of the method waits; false when none came.
    [[nodiscard]] bool waitUntilHeld();

    [[nodiscard]] QList<Request> requests() const;
    [[nodiscard]] QList<Request> requests(const QString &method) const;
    [[nodiscard]] QStringList methods() const;
    [[nodiscard]] int count(const QString &method) const { return requests(method).size(); }
    void forgetRequests();

    // The way to this server, which outlives it.
    [[nodiscard]] std::unique_ptr<LibraryTransport> transport();

private:
    class Transport;
    [[nodiscard]] LibraryReply reply(const QString &url, const QByteArray &body, int timeoutSeconds);
    void stop();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QMap<QString, std::function<QByteArray(const QJsonObject &)>> m_answers;
    QList<Request> m_requests;
    QString m_heldMethod;
    int m_held{0};
    bool m_isStopped{false};
};
