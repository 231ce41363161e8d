// A proxy as the transport takes it. Values only, any thread.
#pragma once

#include <QString>

struct ProxyInfo {
    QString host; // a name or an address alone, without a scheme
    int port{0};
    QString user;
    QString password;
};

// The numbers are those that the updater's configuration and the download's interface know.
enum class ProxyKind { None = 0, Socks5 = 1, Http = 3 };

struct ProxyRoute {
    ProxyKind kind{ProxyKind::None};
    ProxyInfo info;
};
