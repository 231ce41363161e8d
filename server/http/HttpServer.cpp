#include "HttpServer.h"

#include "HttpEngine.h"

HttpServer::HttpServer(Handlers handlers, const Settings &settings)
    : m_engine(std::make_unique<Engine>(std::move(handlers), settings))
{
}

HttpServer::~HttpServer()
{
    stop();
}

HttpServer::Start HttpServer::start()
{
    return m_engine->start();
}

void HttpServer::stop()
{
    m_engine->stop();
}

quint16 HttpServer::port() const
{
    return m_engine->port();
}
