// A key and a certificate that signs itself, made by the openssl program when a test asks for them.
#pragma once

#include <QByteArray>
#include <QString>

struct TlsIdentity {
    QByteArray key;         // PEM, of an elliptic curve
    QByteArray certificate; // PEM

    // For a server at that IP address. Empty, and a failure, where openssl can't.
    [[nodiscard]] static TlsIdentity of(const QString &address);
};
