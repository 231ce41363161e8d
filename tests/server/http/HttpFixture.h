// A running server on a port of its own. Its handlers are a test's; by default the body comes back as it
// went.
#pragma once

#include "RawClient.h"
#include "http/HttpServer.h"

#include <gtest/gtest.h>

class HttpFixture : public testing::Test {
protected:
    void startServer()
    {
        m_settings.port = 0;
        m_server = std::make_unique<HttpServer>(m_handlers, m_settings);
        ASSERT_EQ(m_server->start(), HttpServer::Start::Started);
        ASSERT_NE(m_server->port(), 0);
    }
    [[nodiscard]] quint16 port() const { return m_server->port(); }
    [[nodiscard]] RawReply ask(const QByteArray &request) const { return Http::ask(port(), request); }
    // Whether the server still does its work.
    [[nodiscard]] bool works() const { return ask(Http::post("ping")).status == 200; }

    HttpServer::Handlers m_handlers{[](const QByteArray &body) { return QByteArray(body); },
                                    [](const QByteArray &) {
                                        HttpReply reply;
                                        reply.status = 404;
                                        return reply;
                                    }};
    HttpServer::Settings m_settings;
    std::unique_ptr<HttpServer> m_server;
};
