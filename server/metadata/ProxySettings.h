// The HTTP proxy that requests go through; without a host they go straight.
#pragma once

#include <QString>

struct ProxySettings {
    QString host;
    int port{0};
    QString user;
    QString password;
};
