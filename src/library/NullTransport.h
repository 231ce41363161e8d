// The way to a media server where there is to be none: every request fails at once.
#pragma once

#include "LibraryTransport.h"

class NullTransport final : public LibraryTransport {
public:
    [[nodiscard]] LibraryReply postJson(const QString &, const QByteArray &, int) override { return {}; }
    void stop() override {}
};
