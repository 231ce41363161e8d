// What the HTTP server is made of: the one place that speaks libmicrohttpd.
//
// A request's connection is suspended while a pool thread carries it out and resumed with the answer; stop()
// lets every such thread return before the library is asked to end, as the library demands.
#pragma once

#include "HttpExchange.h"
#include "HttpServer.h"

#include <QThreadPool>

#include <microhttpd.h>

#include <atomic>
#include <deque>
#include <mutex>

class HttpServer::Engine final {
public:
    Engine(Handlers handlers, const Settings &settings);

    [[nodiscard]] Start start();
    void stop();
    [[nodiscard]] quint16 port() const { return m_port; }

private:
    static MHD_Result onRequest(void *self, MHD_Connection *connection, const char *url, const char *method,
                                const char *version, const char *bytes, size_t *size, void **context);
    static void onCompleted(void *self, MHD_Connection *connection, void **context,
                            MHD_RequestTerminationCode code);
    static void onLog(void *self, const char *format, va_list arguments);
    static size_t onUnescape(void *self, MHD_Connection *connection, char *text);

    [[nodiscard]] MHD_Result begin(MHD_Connection *connection, const char *url, const char *method,
                                   const char *version, void **context);
    [[nodiscard]] MHD_Result proceed(MHD_Connection *connection, HttpExchange &exchange, const char *bytes,
                                     size_t *size);
    // False once the server is stopping.
    [[nodiscard]] bool startWork(MHD_Connection *connection, HttpExchange &exchange);
    [[nodiscard]] HttpExchange::State stateOf(const HttpExchange &exchange);
    // On a thread of the pool: the request that has waited for longest.
    void carryOutNext();
    [[nodiscard]] HttpReply carriedOut(const HttpExchange &exchange) const;

    struct Work {
        MHD_Connection *connection;
        HttpExchange *exchange;
    };

    Handlers m_handlers;
    Settings m_settings;
    quint16 m_port{0};
    MHD_Daemon *m_daemon{nullptr}; // made by start(), ended by stop()
    std::mutex m_workMutex;        // guards all below, and an exchange that goes from thread to thread
    bool m_stopping{false};
    std::deque<Work> m_waiting;

    std::atomic<qint64> m_together{0};
    QThreadPool m_pool;
};
