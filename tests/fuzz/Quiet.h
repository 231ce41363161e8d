// Keeps Qt's messages out of a fuzzing run: a line for each bad input would be all that it does.
#pragma once

#include <QtGlobal>

inline void keepQuiet()
{
    static const bool installed = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        return true;
    }();
    Q_UNUSED(installed)
}
