// The proxy that all outgoing requests share, as the settings page stores it.
#pragma once

#include <QString>

struct ProxyConfiguration {
    bool enabled{false};
    int type{0};
    QString host;
    QString port;
    QString userName;
    QString password;
};
