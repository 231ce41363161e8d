#include "TlsIdentity.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr int MakeMs = 60000;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TlsIdentity TlsIdentity::of(const QString &address)
{
    const QTemporaryDir folder;
    QProcess openssl;
    openssl.start("openssl",
                  {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                   "-days", "2", "-subj", "/CN=" + address, "-addext", "subjectAltName=IP:" + address,
                   "-keyout", folder.filePath("key.pem"), "-out", folder.filePath("certificate.pem")});
    const bool isMade = openssl.waitForFinished(MakeMs) && openssl.exitCode() == 0;
    EXPECT_TRUE(isMade) << openssl.readAllStandardError().constData();
    return {contents(folder.filePath("key.pem")), contents(folder.filePath("certificate.pem"))};
}
