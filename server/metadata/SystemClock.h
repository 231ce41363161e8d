// The machine's own time. Any thread.
#pragma once

#include "MetadataClock.h"

class SystemClock final : public MetadataClock {
public:
    [[nodiscard]] qint64 steadyMs() const override;
    [[nodiscard]] qint64 wallMs() const override;
    [[nodiscard]] bool pass(qint64 milliseconds, StopFlag &stop) override;
};
