#include "ScriptedServer.h"

#include <QJsonDocument>

#include <chrono>

namespace {

constexpr auto kPatience = std::chrono::seconds(10);

} // namespace

class ScriptedServer::Transport final : public LibraryTransport {
public:
    explicit Transport(ScriptedServer &server)
        : m_server(server)
    {
    }
    LibraryReply postJson(const QString &url, const QByteArray &body, int timeoutSeconds) override
    {
        return m_server.reply(url, body, timeoutSeconds);
    }
    void stop() override { m_server.stop(); }

private:
    ScriptedServer &m_server;
};

void ScriptedServer::answer(const QString &method, Answer answer)
{
    std::lock_guard lock(m_mutex);
    m_answers[method] = [answer = std::move(answer)](const QJsonObject &params) {
        return QJsonDocument(QJsonObject{{"ret", 0}, {"result", answer(params)}}).toJson();
    };
}

void ScriptedServer::answer(const QString &method, const QJsonObject &result)
{
    answer(method, [result](const QJsonObject &) { return QJsonValue(result); });
}

void ScriptedServer::answerRaw(const QString &method, const QByteArray &body)
{
    std::lock_guard lock(m_mutex);
    m_answers[method] = [body](const QJsonObject &) { return body; };
}

void ScriptedServer::forget(const QString &method)
{
    std::lock_guard lock(m_mutex);
    m_answers.remove(method);
}

void ScriptedServer::hold(const QString &method)
{
    std::lock_guard lock(m_mutex);
    m_heldMethod = method;
}

void ScriptedServer::letGo()
{
    {
        std::lock_guard lock(m_mutex);
        m_heldMethod.clear();
    }
    m_changed.notify_all();
}

bool ScriptedServer::waitUntilHeld()
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, kPatience, [this] { return m_held > 0; });
}

QList<ScriptedServer::Request> ScriptedServer::requests() const
{
    std::lock_guard lock(m_mutex);
    return m_requests;
}

QList<ScriptedServer::Request> ScriptedServer::requests(const QString &method) const
{
    QList<Request> found;
    const QList<Request> all = requests();
    for (const Request &request : all) {
        if (request.method == method)
            found.append(request);
    }
    return found;
}

QStringList ScriptedServer::methods() const
{
    QStringList names;
    const QList<Request> all = requests();
    for (const Request &request : all)
        names.append(request.method);
    return names;
}

void ScriptedServer::forgetRequests()
{
    std::lock_guard lock(m_mutex);
    m_requests.clear();
}

std::unique_ptr<LibraryTransport> ScriptedServer::transport()
{
    return std::make_unique<Transport>(*this);
}

void ScriptedServer::stop()
{
    {
        std::lock_guard lock(m_mutex);
        m_isStopped = true;
    }
    m_changed.notify_all();
}

LibraryReply ScriptedServer::reply(const QString &url, const QByteArray &body, int timeoutSeconds)
{
    const QJsonObject envelope = QJsonDocument::fromJson(body).object();
    const QString method = envelope.value("method").toString();
    const QJsonObject params = envelope.value("params").toObject();
    std::function<QByteArray(const QJsonObject &)> answer;
    {
        std::unique_lock lock(m_mutex);
        if (m_isStopped)
            return {};
        m_requests.append({url, body, method, params, timeoutSeconds});
        if (method == m_heldMethod) {
            ++m_held;
            m_changed.notify_all();
            m_changed.wait(lock, [&] { return method != m_heldMethod || m_isStopped; });
            --m_held;
        }
        answer = m_answers.value(method);
    }
    return answer ? LibraryReply{true, answer(params)} : LibraryReply{};
}
