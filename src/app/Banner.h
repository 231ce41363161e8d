// The lines that open the log of every run.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QSize>
#include <QStringList>

struct BannerFacts {
    QDateTime now;
    QString kernelVersion;
    QString productName;
    QLocale locale;
    QSize resolution;
    float scaleFactor{1.0F};
    QString playerVersion;
    QStringList arguments;
};

namespace Banner {

[[nodiscard]] QStringList lines(const BannerFacts &facts);

} // namespace Banner
