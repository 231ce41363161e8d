// The optical drives that the kernel lists.
#pragma once

#include <QString>
#include <QStringList>

// Device names ("sr0") in device order, sr2 before sr10, from a folder laid out as /sys/block.
[[nodiscard]] QStringList opticalDevices(const QString &sysBlock);
