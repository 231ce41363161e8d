#include "LogHandler.h"

#include "CLogManager.h"
#include "MarkerFiles.h"
#include "QMutexGuard.h"

#include <QDebug>
#include <QMutex>

#include <cstdarg>
#include <cstdio>

namespace {

constexpr std::size_t kPrintBuffer = 10240;
constexpr char kInfoLevel[] = ":";

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtInfoMsg)
        return;
    static QMutex *const mutex = new QMutex;
    QMutexGuard lock(*mutex);
    static const bool append = MarkerFiles::instance()->exists(MarkerFiles::DebugLog);
    QString text;
    if (append)
        text += message;
    else
        text = message;
    CLogManager::instance()->writeLine(QString::fromLatin1(kInfoLevel), text);
}

} // namespace

void installLogHandler()
{
    qInstallMessageHandler(handleMessage);
}

void logPrintf(const char *format, ...)
{
    char buffer[kPrintBuffer];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    if (length < 0)
        return;
    buffer[sizeof buffer - 1] = '\0';
    QString text = QString::fromLocal8Bit(buffer);
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('\r')))
        text.chop(1);
    // As an argument, never as the format: a "%" in the text stays what it is.
    qInfo("%s", text.toUtf8().constData());
}
