// Posts to a server that speaks TLS, and whom the certificate file beside the program trusts.
#include "online/HttpPostClient.h"

#include "StandInServer.h"
#include "TlsIdentity.h"

#include "support/TestLog.h"

#include <QFile>
#include <QSslSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kRefused =
    QStringLiteral("error curl post: SSL peer certificate or SSH remote key was not OK, http status code: 0");

class SecuredPostTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QSslSocket::supportsSsl());
        m_here = TlsIdentity::of("127.0.0.1");
        m_client.SetTimeout(10);
        m_client.AddField("content", "news");
    }

    void trust(const QByteArray &certificates) const
    {
        QFile file(m_folder.filePath("kelcom.crt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(certificates);
    }

    // Whether the post was taken; a server that is not trusted must not have seen a word of it.
    [[nodiscard]] bool posts(const TlsIdentity &identity)
    {
        const StandInServer server([](const StandInRequest &) { return httpReply("200 OK", "taken"); },
                                   identity);
        m_client.SetUrl(server.url("/record"));
        const bool isTaken = m_client.Perform();
        EXPECT_EQ(server.requests().size(), isTaken ? 1 : 0);
        EXPECT_EQ(m_client.Response(), isTaken ? "taken" : "");
        return isTaken;
    }

    QTemporaryDir m_folder;
    TlsIdentity m_here;
    HttpPostClient m_client{m_folder.path()};
};

} // namespace

TEST_F(SecuredPostTest, AServerWithTheCertificateBesideTheProgramIsTrusted)
{
    trust(m_here.certificate);
    EXPECT_TRUE(posts(m_here));
    EXPECT_EQ(m_client.HttpStatus(), 200);
    EXPECT_EQ(TestLog::infoLines(), QStringList());
}

TEST_F(SecuredPostTest, AServerWithAnotherCertificateIsRefused)
{
    trust(m_here.certificate);
    EXPECT_FALSE(posts(TlsIdentity::of("127.0.0.1")));
    EXPECT_EQ(TestLog::infoLines(), QStringList(kRefused));
    // The client has not lost its trust in the right one.
    EXPECT_TRUE(posts(m_here));
}

TEST_F(SecuredPostTest, ACertificateOfAnotherAddressIsRefusedThoughTheFileHoldsIt)
{
    const TlsIdentity elsewhere = TlsIdentity::of("127.0.0.2");
    trust(m_here.certificate + elsewhere.certificate);
    EXPECT_FALSE(posts(elsewhere));
    EXPECT_EQ(TestLog::infoLines(), QStringList(kRefused));
    EXPECT_TRUE(posts(m_here));
}

TEST_F(SecuredPostTest, WithoutTheFileTheStoreOfTheSystemDecides)
{
    EXPECT_FALSE(posts(m_here));
    EXPECT_EQ(TestLog::infoLines(), (QStringList{"crt file missing!", kRefused}));
}
