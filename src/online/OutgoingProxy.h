// From the proxy that the settings store to the one that a request takes.
//
// Any thread but the GUI thread: the system may look for its proxy on the network before it answers.
#pragma once

#include "ProxyConfiguration.h"
#include "ProxyInfo.h"

#include <QUrl>

// What the system is set to for an address: HTTP, SOCKS5 or a direct connection.
[[nodiscard]] ProxyRoute systemProxyRoute(const QUrl &target);

// The system's proxy for the network at large; without a host there is none.
[[nodiscard]] ProxyInfo systemProxy();

// What the settings mean for an address. This machine is always reached directly, and so is everything when
// the stored proxy has no usable address, which is logged.
[[nodiscard]] ProxyRoute proxyRouteFor(const ProxyConfiguration &configuration, const QUrl &target);
