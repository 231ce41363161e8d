// A dispatcher over libraries in memory, and the calls of a player.
#pragma once

#include "LibraryFakes.h"
#include "rpc/RpcDispatcher.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class ProtocolFixture : public testing::Test {
protected:
    [[nodiscard]] QJsonObject send(const QByteArray &body) const
    {
        return QJsonDocument::fromJson(m_dispatcher.handle(body)).object();
    }

    [[nodiscard]] QJsonObject call(const char *method, const QByteArray &params) const
    {
        return send(QByteArrayLiteral(R"({"id":"-4107005651705192377","jsonrpc":"2.0","method":")") + method
                    + QByteArrayLiteral(R"(","params":)") + params + '}');
    }

    // The result of a call that must succeed.
    [[nodiscard]] QJsonObject result(const char *method, const QByteArray &params) const
    {
        const QJsonObject reply = call(method, params);
        EXPECT_EQ(reply.value("ret").toInt(-1), 0)
            << method << ' ' << qPrintable(reply.value("message").toString());
        return reply.value("result").toObject();
    }

    // The message of a call that must fail.
    [[nodiscard]] std::string refusal(const char *method, const QByteArray &params) const
    {
        const QJsonObject reply = call(method, params);
        EXPECT_EQ(reply.value("ret").toInt(-1), 1) << method << ' ' << params.constData();
        EXPECT_FALSE(reply.contains("result"));
        return reply.value("message").toString().toStdString();
    }

    QTemporaryDir m_folder;
    FakeRoots m_roots;
    FakeVideos m_videos;
    FakeMusic m_music;
    FakeTasks m_tasks;
    FakeMetadata m_metadata;
    RpcDispatcher m_dispatcher{{m_roots, m_videos, m_music, m_tasks, m_metadata}};
};
